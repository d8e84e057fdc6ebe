#include "platform/screen.h"

#include <QGuiApplication>
#include <QScreen>

namespace skyloft {
namespace {
constexpr int kTwips = 15;  // a pixel
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
