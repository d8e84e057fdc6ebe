// Pictures for displays of more pixels. Beside NAME.gif may lie NAME@2x.png and NAME@3x.png, or .gif as well:
// the same picture, each of its pixels divided into 2 by 2 or 3 by 3.
#pragma once

#include <QImage>
#include <QString>

namespace skyloft {

struct ScaledFile {
  QString path;
  int scale;  // pixels of the file a pixel of the picture: 1 to 3
};

// What to show in place of a picture's file on a display of `ratio` pixels a unit: of the files beside it the
// one for that scale, the next larger one, or else the largest; the file itself where nothing lies beside it,
// where it is missing, and for ratios up to 1.
ScaledFile FileForRatio(const QString& file, double ratio);
// The same for the largest ratio of all displays.
ScaledFile FileForDisplays(const QString& file);

// Reads such a file; its size is device independent. Null when it is missing or no picture.
QImage ReadScaledPicture(const QString& file);

}  // namespace skyloft
