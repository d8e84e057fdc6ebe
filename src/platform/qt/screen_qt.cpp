#include "platform/qt/screen_qt.h"

#include <QGuiApplication>
#include <QScreen>

#include "platform/screen.h"

namespace skyloft {
namespace {

constexpr int kTwips = 15;  // a pixel

int& GivenDotsPerInch() {
  static int dots = 0;
  return dots;
}

}  // namespace

void SetDotsPerInch(int dots) { GivenDotsPerInch() = dots; }

int DotsPerInch() {
  if (GivenDotsPerInch() > 0) return GivenDotsPerInch();
  return qRound(QGuiApplication::primaryScreen()->logicalDotsPerInch());
}

ScreenSize GetScreenSize() {
  const QRect screen = QGuiApplication::primaryScreen()->geometry();
  return {screen.width() * kTwips, screen.height() * kTwips};
}

WorkArea GetWorkArea() {
  const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
  return {area.top() * kTwips, area.width() * kTwips, area.height() * kTwips};
}

}  // namespace skyloft
