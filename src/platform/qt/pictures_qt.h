// Pictures as the display shows them.
#pragma once

#include <string>

#include <QImage>
#include <QList>

namespace skyloft {

// The picture of a file, decoded once for each change of the file; a null image when there is none. The
// pictures used last are kept.
QImage LoadedPicture(const std::string& path);

// Reads a picture file; a null image when it is missing, no picture, or larger than a screenful of screens.
QImage ReadPicture(const std::string& path);

// The pictures of a file that holds several, such as the sizes of an icon: as many as can be read, at most
// `most`.
QList<QImage> ReadPictures(const std::string& path, int most);

}  // namespace skyloft
