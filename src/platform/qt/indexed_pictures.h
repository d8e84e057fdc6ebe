// Pictures by a table of at most 256 colours, read and written without a detour over their pixels' colours.
#pragma once

#include <string>

#include <QImage>

namespace skyloft {

// The picture of a GIF file; its first one if it has several. Null for all that is not plain: what is no GIF
// or is cut off, a picture that does not fill its screen, transparency, and a size that is not sane.
QImage ReadPlainGif(const std::string& file);

// Whether a picture is opaque and has a table of colours, a byte a pixel.
bool IsPlainIndexed(const QImage& image);
// The PNG file of such a picture. It is compressed by its runs of equal pixels alone, which is fast and does
// most for drawn pictures.
std::string WriteIndexedPng(const QImage& image);

}  // namespace skyloft
