// The program put together: the platform made ready by the options, then the start, the script, the snapshot.
#pragma once

#include "platform/qt/app_options.h"

namespace skyloft {

// Runs the program to its end. Returns only for bad options.
int RunApplication(int argc, char** argv, const AppOptions& options);

}  // namespace skyloft
