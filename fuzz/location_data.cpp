// The first byte chooses the number of locations, the rest is sklt.dat.
#include "feed/observations.h"
#include "platform/doubles.h"
#include "require.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"

namespace skyloft {
namespace {

const char* const kPath = "c:\\station\\sklt.dat";  // as the double keeps names

void RequireRecovered() {
  Require(Settings.ModelServer.empty(), "a file that does not load clears the model's stamp");
  for (int slot = 0; slot <= LastLocation(); ++slot) {
    Require(ObservationRecord.ObsStamp[slot].empty(), "and those of the observations");
  }
}

// What was loaded, saved and loaded again, is saved the same.
void RequireStable() {
  SaveLocationData();
  const std::string saved = Doubles.files[kPath];
  LoadLocationData();
  Require(Doubles.files.contains(kPath), "a saved file loads");
  SaveLocationData();
  Require(Doubles.files[kPath] == saved, "a loaded file is saved as it was");
}

void LoadBytes(int last, const std::string& file) {
  Doubles.files = {{kPath, file}};
  Settings.InstallPath = "C:\\station";
  Settings.LocationIndexMax = std::to_string(last);
  Settings.ModelServer = "held";
  LoadLocationData();
  if (Doubles.files.contains(kPath)) {
    RequireStable();
  } else {
    RequireRecovered();
  }
}

}  // namespace
}  // namespace skyloft

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  if (size == 0) return 0;
  skyloft::LoadBytes(bytes[0] % skyloft::kLocationSlots, std::string(bytes + 1, bytes + size));
  return 0;
}
