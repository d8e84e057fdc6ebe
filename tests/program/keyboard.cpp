#include "program/keyboard.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QThread>

#include "program/program.h"

namespace skyloft::program {

QByteArray Keyboard::Tool(const QStringList& arguments) const {
  QProcess tool;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("DISPLAY", display_.Name());
  tool.setProcessEnvironment(environment);
  tool.start("xdotool", arguments);
  EXPECT_TRUE(tool.waitForFinished(20000)) << "xdotool must be installed";
  return tool.readAllStandardOutput().trimmed();
}

void Keyboard::Press(const QStringList& keys) const {
  for (const QString& key : keys) {
    if (key.startsWith('=')) {
      Tool({"type", "--delay", "5", key.mid(1)});
    } else {
      Tool({"key", key});
      QThread::msleep(250);  // a page may ask the server
    }
  }
}

bool Keyboard::HasFocus(const char* title) const {
  return Tool({"getwindowfocus", "getwindowname"}) == title;
}

bool Keyboard::AwaitFocus(const char* title) const {
  return Await(10000, [&] { return HasFocus(title); });
}

}  // namespace skyloft::program
