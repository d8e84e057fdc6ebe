// What all drawing procedures share: the colours of the night-sky skin, canvases and the writers of files.
// Writers raise std::runtime_error when a file cannot be written.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QString>
#include <vector>

namespace skyloft::assets {

namespace color {
inline const QColor kWindowDeep{0x07, 0x0d, 0x20}, kWindowDark{0x0d, 0x1b, 0x36}, kWindow{0x1b, 0x35, 0x63};
inline const QColor kButtonTop{0x3f, 0x67, 0xad}, kButtonBottom{0x1c, 0x37, 0x6c},
    kButtonEdge{0x6f, 0xa0, 0xe6};
inline const QColor kOffTop{0x1d, 0x2c, 0x4b}, kOffBottom{0x16, 0x23, 0x3e}, kOffEdge{0x2d, 0x44, 0x70};
inline const QColor kOffGlyph{0x5a, 0x70, 0x9c};
inline const QColor kAccent{0x5b, 0x9b, 0xff}, kGold{0xff, 0xd3, 0x5c}, kWhite{0xf2, 0xf7, 0xff};
}  // namespace color

inline QImage NewCanvas(int width, int height, const QColor& ground = Qt::transparent) {
  QImage canvas(width, height, QImage::Format_ARGB32_Premultiplied);
  canvas.fill(ground);
  return canvas;
}

// A gradient from the top of `height` pixels to their bottom.
inline QLinearGradient Downward(double height, const QColor& top, const QColor& bottom) {
  QLinearGradient gradient(0, 0, 0, height);
  gradient.setColorAt(0, top);
  gradient.setColorAt(1, bottom);
  return gradient;
}

// One picture as GIF. Pixels less than half opaque become transparent; the others are laid on the window's
// colour.
void WriteGif(const QString& path, const QImage& picture);
// An icon with one entry for each picture, each stored as PNG.
void WriteIco(const QString& path, const std::vector<QImage>& pictures);
// By Qt's writer of the file's extension.
void WritePicture(const QString& path, const QImage& picture, int quality = -1);
void WriteBytes(const QString& path, const QByteArray& bytes);

// Each fills one folder.
void DrawButtons(const QString& icons);
void DrawSkyIcons(const QString& icons);
void DrawHorizonIcons(const QString& icons);
void DrawTrayIcons(const QString& icons);
void DrawBackgrounds(const QString& backgrounds);
void DrawSkin(const QString& skin);
void MakeWarningSound(const QString& wav);

}  // namespace skyloft::assets
