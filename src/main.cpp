// The program's entry: reads the options and runs the program on the desktop.
#include <cstdio>

#include "feed/addresses.h"
#include "platform/qt/app_options.h"
#include "platform/qt/application.h"
#include "platform/qt/autostart.h"

int main(int argc, char** argv) {
  const auto options = skyloft::ReadOptions(argc, argv);
  if (!options) return 2;
  if (options->help) {
    std::fputs(skyloft::HelpText().c_str(), stdout);
    return 0;
  }
  if (options->version) {
    std::printf("skyloft %s\n", skyloft::kOwnVersion);
    return 0;
  }
  if (!options->autostart.empty()) return skyloft::StartWithSession(options->autostart == "on") ? 0 : 2;
  return skyloft::RunApplication(argc, argv, *options);
}
