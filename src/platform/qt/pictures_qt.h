// Pictures as the display shows them.
#pragma once

#include <string>

#include <QImage>
#include <QList>

namespace skyloft {

// The picture to show for a path: that of the file, decoded once for each change of it, or, while the file is
// gone or has become no picture, the one it had. Null when there never was one; the pictures used last are
// kept.
QImage LoadedPicture(const std::string& path);

// Whether a picture of that size is read at all: it is one, and no larger than a screenful of screens.
bool IsSane(QSize size);

// Reads a picture file; a null image when it is missing, no picture, or not of a sane size.
QImage ReadPicture(const std::string& path);

// The pictures of a file that holds several, such as the sizes of an icon: as many as can be read, at most
// `most`.
QList<QImage> ReadPictures(const std::string& path, int most);

}  // namespace skyloft
