#include "feedserver/options.h"

#include <array>
#include <charconv>

#include "base/guard.h"

namespace skyloft::feed {
namespace {

template <class Number>
Number ReadWhole(const std::string& text, Number least, Number most) {
  Number number = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
  if (text.empty() || read.ptr != text.data() + text.size() || read.ec != std::errc() || number < least ||
      number > most) {
    throw RuntimeError("no number from " + std::to_string(least) + " to " + std::to_string(most) + ": " +
                       text);
  }
  return number;
}

struct ValueOption {
  std::string_view name;
  void (*set)(Options&, const std::string& value);
};

constexpr std::array<ValueOption, 10> kValueOptions = {{
    {"--address", [](Options& o, const std::string& value) { o.address = value; }},
    {"--port", [](Options& o, const std::string& value) { o.port = ReadWhole(value, 0, 65535); }},
    {"--threads", [](Options& o, const std::string& value) { o.threads = ReadWhole(value, 1, 64); }},
    {"--seed",
     [](Options& o, const std::string& value) {
       o.world.seed = ReadWhole(value, std::uint64_t{0}, ~std::uint64_t{0});
     }},
    {"--now", [](Options& o, const std::string& value) { o.now = ReadDate(value); }},
    {"--log", [](Options& o, const std::string& value) { o.log_file = value; }},
    {"--fault", [](Options& o, const std::string& value) { o.faults.push_back(ReadFault(value)); }},
    {"--offer-version", [](Options& o, const std::string& value) { o.world.offered_version = value; }},
    {"--update", [](Options& o, const std::string& value) { o.update_file = value; }},
    {"--bulletins", [](Options& o, const std::string& value) { o.bulletins_file = value; }},
}};

const ValueOption* FindValueOption(std::string_view name) {
  for (const ValueOption& option : kValueOptions) {
    if (option.name == name) return &option;
  }
  return nullptr;
}

}  // namespace

Options ReadOptions(const std::vector<std::string>& arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& name = arguments[i];
    const ValueOption* const option = FindValueOption(name);
    if (name == "--stay") {
      options.stays = true;
    } else if (name == "--storms") {
      options.world.storms = true;
    } else if (name == "--version") {
      options.wants_version = true;
    } else if (name == "--help") {
      options.wants_help = true;
    } else if (!option) {
      throw RuntimeError("unknown option " + name);
    } else if (i + 1 == arguments.size()) {
      throw RuntimeError(name + " wants a value");
    } else {
      option->set(options, arguments[++i]);
    }
  }
  return options;
}

std::string_view HelpText() {
  return R"(skyloft-feed: answers every query of Skyloft with simulated weather, to this machine alone.

  --port N           listen on port N; 0 is any free port (default 8080)
  --address A        listen on another address than 127.0.0.1: 0.0.0.0 answers every machine that can reach
                     this one, ::1 is this machine by IPv6
  --threads N        answer N requests at once, 1 to 64 (default 4)
  --seed N           another weather; the same seed is always the same weather (default 1)
  --now TIME         the clock stands, at a time in GMT: 2003-03-07T14:05:00
  --log FILE         append one JSON line for each request
  --fault PATH=KIND  make a fault; may be given again. PATH may end with ?PIECE, a piece of the query,
                     KIND with @N, from the N-th such request on. Kinds: refuse, 500, empty, cut, garbage,
                     hang, drip, huge, many, bomb, wrong-count
  --offer-version V  the version of the program that is on offer (default 1.20.00)
  --update FILE      what is served as the update
  --bulletins FILE   the bulletins that are in force, read again when the file changes; see docs/feed.md
  --storms           the simulated weather's own storms have bulletins
  --stay             do not end when standard input ends
  --version          print the version
  --help             print this

The first line of its output is "listening PORT". A line "now TIME" on its standard input lets the clock
stand at another time; it is written back when that is done. The server ends when its standard input does.
)";
}

}  // namespace skyloft::feed
