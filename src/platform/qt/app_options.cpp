#include "platform/qt/app_options.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "base/dates.h"

namespace skyloft {
namespace {

constexpr struct {
  const char* option;
  const char* argument;  // "" for a switch
  const char* meaning;
} kOptions[] = {
    {"--root", "DIR", "keep all files and settings in DIR (environment: SKYLOFT_ROOT)"},
    {"--hosts", "HOST[:PORT]",
     "use this weather server instead of the built-in one (environment: SKYLOFT_HOSTS)"},
    {"--bulletins", "FILE",
     "let the built-in weather server tell the bulletins of FILE, read again when it changes"},
    {"--demo", "", "set up five towns at once"},
    {"--now", "ISO", "stop the program's clock at that local time, such as 2003-03-07T14:05:00"},
    {"--zone", "NAME", "the computer's time zone, such as America/Chicago"},
    {"--dpi", "N", "the display's dots per inch"},
    {"--snapshot", "DIR",
     "when start-up is over, save pictures and the state of all windows to DIR, then end"},
    {"--print", "FILE", "print into FILE, a PDF, without asking for a printer"},
    {"--script", "FILE", "drive the program by the commands of FILE, one a line"},
    {"--autostart", "on|off", "start with the desktop's session from now on, or no longer; then end"},
    {"--version", "", "show the version"},
    {"--help", "", "show these options"},
};

bool ReadNumber(std::string_view text, int& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() && number > 0;
}

bool Take(AppOptions& options, std::string_view name, const std::string& value) {
  Date date;
  if (name == "--root") options.root = value;
  if (name == "--hosts") options.hosts = value;
  if (name == "--bulletins") options.bulletins = value;
  if (name == "--demo") options.demo = true;
  if (name == "--now") options.now = value;
  if (name == "--zone") options.zone = value;
  if (name == "--snapshot") options.snapshot = value;
  if (name == "--print") options.print = value;
  if (name == "--script") options.script = value;
  if (name == "--autostart") options.autostart = value;
  if (name == "--version") options.version = true;
  if (name == "--help") options.help = true;
  if (name == "--now") return TryReadDate(value, date);
  if (name == "--autostart") return value == "on" || value == "off";
  if (name == "--dpi") return ReadNumber(value, options.dots_per_inch);
  return true;
}

std::nullopt_t Refuse(const std::string& message) {
  std::fprintf(stderr, "skyloft: %s (see skyloft --help)\n", message.c_str());
  return std::nullopt;
}

}  // namespace

std::optional<AppOptions> ReadOptions(int argc, char** argv) {
  AppOptions options;
  for (int i = 1; i < argc; ++i) {
    std::string name = argv[i];
    std::string value;
    const size_t equals = name.find('=');
    const bool joined = name.starts_with("--") && equals != std::string::npos;
    if (joined) {
      value = name.substr(equals + 1);
      name.resize(equals);
    }
    const auto* row = std::begin(kOptions);
    while (row != std::end(kOptions) && name != row->option) ++row;
    if (row == std::end(kOptions)) return Refuse("unknown option " + name);
    const bool wants_value = *row->argument != '\0';
    if (wants_value && !joined) {
      if (++i == argc) return Refuse(name + " needs a value");
      value = argv[i];
    }
    if (wants_value == value.empty() || !Take(options, name, value)) return Refuse("bad value for " + name);
  }
  const char* root = std::getenv("SKYLOFT_ROOT");
  const char* hosts = std::getenv("SKYLOFT_HOSTS");
  if (options.root.empty() && root) options.root = root;
  if (options.hosts.empty() && hosts) options.hosts = hosts;
  return options;
}

std::string HelpText() {
  std::string text = "skyloft: a desktop weather station\n\n";
  for (const auto& row : kOptions) {
    std::string line = std::string("  ") + row.option + (*row.argument ? " " : "") + row.argument;
    line.resize(std::max<size_t>(line.size() + 2, 24), ' ');
    text += line + row.meaning + "\n";
  }
  return text;
}

}  // namespace skyloft
