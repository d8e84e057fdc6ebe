#include <QDir>
#include <QFile>
#include <stdexcept>

#include "drawing.h"
#include "svg_source.h"

namespace skyloft::assets {
namespace {

constexpr int kSizes[] = {16, 22, 24, 32, 48, 64, 128, 256, 512};
constexpr int kLargestOfWindow = 128;

// The file of the desktop's theme for that size; makes its folder.
QString FileOf(const QString& icons, const QString& size, const char* ending) {
  const QString folder = icons + "/" + size + "/apps";
  if (!QDir().mkpath(folder)) throw std::runtime_error("cannot make " + folder.toStdString());
  return folder + "/example.skyloft.Skyloft." + ending;
}

}  // namespace

void DrawApplicationIcons(const QString& share, const QString& icons) {
  const SvgSource source("application");
  std::vector<QImage> pictures;
  for (const int size : kSizes) {
    pictures.push_back(Paint({size, size}, static_cast<double>(size) / source.Size().width(),
                             [&](QPainter& painter) { source.Draw(painter); }));
    WritePng(FileOf(icons, QString("%1x%1").arg(size), "png"), pictures.back());
  }
  std::erase_if(pictures, [](const QImage& picture) { return picture.width() > kLargestOfWindow; });
  WriteIco(share + "/skin/app.ico", pictures);
  WriteBytes(FileOf(icons, "scalable", "svg"), source.Text());
}

}  // namespace skyloft::assets
