#include "base/guard.h"
#include "platform/doubles.h"
#include "platform/pictures.h"

namespace skyloft {

void LoadPicture(Picture& control, const std::string& path) {
  if (Doubles.missing_pictures.contains(path) || Doubles.picture_failure.Due()) {
    throw RuntimeError("no picture " + path);
  }
  Doubles.loaded_pictures.push_back(path);
  control.SetPicture(path);
}

}  // namespace skyloft
