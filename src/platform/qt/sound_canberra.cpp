#include <canberra.h>

#include <thread>

#include <QFileInfo>
#include <QLibrary>

#include "platform/qt/drive.h"
#include "platform/sound.h"

namespace skyloft {
namespace {

void Ignore(const char*, int, const char*, int, const char*, ...) {}

// The sound library beneath tells everybody on stderr when there is no device.
void SilenceErrors() {
  using SetHandler = int (*)(decltype(&Ignore));
  const auto set = reinterpret_cast<SetHandler>(QLibrary::resolve("asound", 2, "snd_lib_error_set_handler"));
  if (set) set(Ignore);
}

// Opened at the first sound; null when it cannot be.
ca_context* Sounds() {
  static ca_context* const sounds = [] {
    SilenceErrors();
    ca_context* opened = nullptr;
    return ca_context_create(&opened) == CA_SUCCESS ? opened : nullptr;
  }();
  return sounds;
}

}  // namespace

void PlaySound(const std::string& path) {
  const auto file = PathForReading(path);
  if (!file || !QFileInfo(*file).isFile()) return;
  // The library plays without waiting, but it may wait for a sound server to answer.
  std::thread([name = file->toStdString()] {
    if (Sounds()) ca_context_play(Sounds(), 0, CA_PROP_MEDIA_FILENAME, name.c_str(), nullptr);
  }).detach();
}

}  // namespace skyloft
