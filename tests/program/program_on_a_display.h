// The program with its five towns on a display of its own, against a feed that fails.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "feedserver/running_server.h"
#include "program/program.h"
#include "program/watched_window.h"

namespace skyloft::program {

class ProgramOnADisplay : public testing::Test {
 protected:
  // Starts it, with a script if any; the feed writes the file "log".
  void StartAgainst(const std::string& fault, const QByteArray& script = {}) {
    SetUpTowns(folder_);
    ASSERT_TRUE(display_.Up()) << "Xvfb must be installed";
    server_ = std::make_unique<feed::RunningServer>(std::vector<std::string>{
        "--port", "0", "--log", folder_.Path("log").toStdString(), "--fault", fault});
    QStringList options = {"--hosts", "127.0.0.1:" + QString::number(server_->Port())};
    if (!script.isEmpty()) {
      folder_.Write("script", script);
      options << "--script" << folder_.Path("script");
    }
    run_ = std::make_unique<ProgramRun>(folder_, InRoot(folder_, options),
                                        QStringList{"QT_QPA_PLATFORM=xcb", "DISPLAY=" + display_.Name()});
  }

  Folder folder_;
  XDisplay display_;
  std::unique_ptr<feed::RunningServer> server_;
  std::unique_ptr<ProgramRun> run_;
  XDisplay::Window window_;  // the one that the test watches
};

}  // namespace skyloft::program
