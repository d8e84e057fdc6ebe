// draw_assets OUT_DIR: writes the program's share folder, every picture and sound of it.
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <cstdio>
#include <stdexcept>

#include "drawing.h"

namespace skyloft::assets {

void WriteBytes(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
    throw std::runtime_error("cannot write " + path.toStdString());
  }
}

void WritePicture(const QString& path, const QImage& picture, int quality) {
  if (!picture.save(path, nullptr, quality)) throw std::runtime_error("cannot write " + path.toStdString());
}

namespace {

void DrawAll(const QString& share) {
  const auto folder = [&](const char* name) {
    QString path = share + "/" + name;
    if (!QDir().mkpath(path)) throw std::runtime_error("cannot make " + path.toStdString());
    return path;
  };
  DrawButtons(folder("icons"));
  DrawSkyIcons(folder("icons"));
  DrawHorizonIcons(folder("icons"));
  DrawTrayIcons(folder("icons"));
  DrawBackgrounds(folder("backgrounds"));
  DrawSkin(folder("skin"));
  MakeWarningSound(folder("wav"));
  folder("legends");  // filled by the feed
}

}  // namespace
}  // namespace skyloft::assets

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: draw_assets OUT_DIR\n", stderr);
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");  // a build has no display
  QGuiApplication application(argc, argv);
  try {
    skyloft::assets::DrawAll(QString::fromLocal8Bit(argv[1]));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "draw_assets: %s\n", error.what());
    return 1;
  }
  return 0;
}
