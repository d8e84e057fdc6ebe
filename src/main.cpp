// The program's entry: reads the options and runs the program on the desktop.
#include <cstdio>

#include "platform/qt/app_options.h"
#include "platform/qt/application.h"

int main(int argc, char** argv) {
  const auto options = skyloft::ReadOptions(argc, argv);
  if (!options) return 2;
  if (options->help) {
    std::fputs(skyloft::HelpText().c_str(), stdout);
    return 0;
  }
  return skyloft::RunApplication(argc, argv, *options);
}
