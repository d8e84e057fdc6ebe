#include "base/guard.h"
#include "platform/doubles.h"
#include "platform/files.h"
#include "platform/pictures.h"
#include "platform/tray.h"

namespace skyloft {
namespace {

void Load(const std::string& path) {
  if (Doubles.missing_pictures.contains(path) || Doubles.picture_failure.Due()) {
    throw RuntimeError("no picture " + path);
  }
  Doubles.loaded_pictures.push_back(path);
}

}  // namespace

void LoadPicture(Picture& control, const std::string& path) {
  Load(path);
  control.SetPicture(path, Doubles.picture_width, Doubles.picture_height);
}

void ConvertPicture(const std::string& source, const std::string& target,
                    const std::vector<ColorReplacement>& replacements) {
  const std::string bytes = ReadFile(source);
  if (Doubles.picture_failure.Due()) throw RuntimeError("no picture " + source);
  Doubles.conversions.push_back(replacements.size());
  WriteFile(target, bytes);
}

void LoadIcon(TrayIcon& icon, const std::string& path) {
  Load(path);
  icon.Icon = path;
}

}  // namespace skyloft
