// draw_assets SOURCES SHARE ICONS: writes the program's share folder, every picture and sound of it, and its
// icons for the desktop's theme, of the drawings in SOURCES.
#include <QDir>
#include <QGuiApplication>
#include <cstdio>
#include <stdexcept>

#include "drawing.h"
#include "svg_source.h"

namespace skyloft::assets {
namespace {

void DrawAll(const QString& share, const QString& icons) {
  for (const char* folder :
       {"icons", "backgrounds", "skin", "wav", "legends"}) {  // legends come from the feed
    const QString path = share + "/" + folder;
    if (!QDir().mkpath(path)) throw std::runtime_error("cannot make " + path.toStdString());
  }
  DrawButtons(share);
  DrawComposedPictures(share);
  DrawTrayIcons(share);
  MakeWarningSound(share);
  DrawApplicationIcons(share, icons);
}

}  // namespace
}  // namespace skyloft::assets

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fputs("usage: draw_assets SOURCES SHARE ICONS\n", stderr);
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");  // a build has no display
  QGuiApplication application(argc, argv);
  try {
    skyloft::assets::SetSourceFolder(QString::fromLocal8Bit(argv[1]));
    skyloft::assets::DrawAll(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "draw_assets: %s\n", error.what());
    return 1;
  }
  return 0;
}
