// What all drawing procedures share: canvases and the writers of files. Writers raise std::runtime_error when
// a file cannot be written.
#pragma once

#include <QImage>
#include <QPainter>
#include <QString>
#include <functional>
#include <vector>

namespace skyloft::assets {

// Draws a picture whose upper left corner is (0, 0), a unit a pixel of a plain display.
using Draw = std::function<void(QPainter& painter)>;

// A picture of that many pixels, on a clear ground; `scale` pixels a unit.
QImage Paint(QSize pixels, double scale, const Draw& draw);

// Writes `path` for a plain display, and beside it one for each display that has more pixels: NAME@2x and
// NAME@3x, as PNG.
void WriteScaled(const QString& path, QSize size, const Draw& draw);
// The same as GIF for every display, of two frames that take turns.
void WriteBlinking(const QString& path, QSize size, const Draw& first, const Draw& second);

// Pictures as the frames of one GIF. Pixels less than half opaque become transparent; the others are laid on
// the window's colour.
void WriteGif(const QString& path, const std::vector<QImage>& frames);
// An icon with one entry for each picture, each stored as PNG.
void WriteIco(const QString& path, const std::vector<QImage>& pictures);
void WritePng(const QString& path, const QImage& picture);
void WriteBytes(const QString& path, const QByteArray& bytes);

// Each fills its folders of `share`.
void DrawButtons(const QString& share);
void DrawComposedPictures(const QString& share);
void DrawTrayIcons(const QString& share);
void MakeWarningSound(const QString& share);
// Fills also a folder of icons of the desktop, SIZExSIZE/apps and scalable/apps.
void DrawApplicationIcons(const QString& share, const QString& icons);

}  // namespace skyloft::assets
