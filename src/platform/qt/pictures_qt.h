// Pictures as the display shows them.
#pragma once

#include <string>

#include <QImage>
#include <QList>

namespace skyloft {

// A picture, or the frames of an animation that take turns.
struct PictureFrames {
  QList<QImage> images;  // none when there is no picture
  int delay = 0;         // milliseconds that each stays
};

// The picture to show for a path, in the pixels of the largest display if the file has a like for it: that of
// the file, decoded once for each change of it, or, while the file is gone or has become no picture, the one
// it had. None when there never was one; the pictures used last are kept.
PictureFrames LoadedFrames(const std::string& path);
// The same, or the first frame of it; null for none.
QImage LoadedPicture(const std::string& path);

// Whether a picture of that size is read at all: it is one, and no larger than a screenful of screens.
bool IsSane(QSize size);

// Reads a picture file; a null image when it is missing, no picture, or not of a sane size.
QImage ReadPicture(const std::string& path);

// The pictures of a file that holds several, such as the sizes of an icon: as many as can be read, at most
// `most`.
QList<QImage> ReadPictures(const std::string& path, int most);

}  // namespace skyloft
