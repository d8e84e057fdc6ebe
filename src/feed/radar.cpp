#include "feed/radar.h"

#include <utility>

#include "base/guard.h"
#include "base/values.h"
#include "feed/radar_colors.h"
#include "feed/transport.h"
#include "forms/main_form.h"
#include "forms/system_options_form.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "weather/time.h"

namespace skyloft {
namespace {

constexpr double kFreshMinutes = 15;  // of a frame asked for by the user

// Deletes the site's old frames among the files; whether none of the others is fresh.
bool NeedsFrame(const std::vector<std::string>& files, const std::string& site, Date now,
                double fresh_minutes) {
  bool needed = true;
  for (const std::string& file : files) {
    if (!IsFrameOf(file, "nexr", site)) continue;
    const std::int64_t age = DateDiff(DateUnit::Minutes, FrameTime(file), now);
    if (age > kOldestFrameMinutes) {
      DeleteFile(TempFolder() + "\\" + file);
    } else if (static_cast<double>(age) < fresh_minutes) {
      needed = false;
    }
  }
  return needed;
}

}  // namespace

void GetNexradData(int mode) {
  Guarded([&] {
    if (mode != 0 && mode != 1) return;
    const Date now = PresentGMT();
    // All locations see the files of now; what one of them fetches is not looked at again.
    const std::vector<std::string> files = ListTempFolder().Files;
    const int first = mode == 1 ? SelectedLocation() : 0;
    const int last = mode == 1 ? first : LastLocation();
    const double fresh = mode == 1 ? kFreshMinutes : LenientNumber(SystemOptionsForm.NexradIndexMax.Text());
    for (int slot = first; slot <= last; ++slot) {
      const std::string site = RadarSite(slot);
      if (!NeedsFrame(files, site, now, fresh)) continue;
      std::string path = TempFolder() + "\\nexr." + site + "." + Format(now, "mmddyyyyhhnn") + ".gif";
      (mode == 0 ? GetRadar : GetImage)(RadarUrl("DS.p19r0", slot), path);
      ConvertRadarImage(path);
    }
  });
}

void ConvertRadarImage(std::string& path) {
  Guarded([&] {
    const std::string target = std::string(LeftText(path, static_cast<int>(path.size()) - 3)) + "png";
    ConvertPicture(path, target, RadarColors());
    const std::string source = std::exchange(path, target);
    DeleteFile(source);
  });
}

std::string RadarUrl(const std::string& product, int slot) {
  return LocationProfile[ProfileRow::NEXRADServer][slot] + "/radar/images/" + product + "/SI." +
         RadarSite(slot) + "/latest.gif";
}

std::string RadarSite(int slot) { return LowerCase(LocationProfile[ProfileRow::NEXRADLocation][slot]); }

std::string TempFolder() { return Settings.InstallPath + "\\temp"; }

const FileList& ListTempFolder() {
  FileList& list = MainForm.FileList;
  list.Path = TempFolder();
  list.Files = ListFiles(list.Path);
  return list;
}

bool IsFrameOf(const std::string& file, const std::string& prefix, const std::string& site) {
  return LeftText(file, 9) == prefix + "." + site;
}

Date FrameTime(const std::string& file) {
  const auto part = [&](int first, int count) { return std::string(MiddleText(file, first, count)); };
  return ReadDate(part(19, 2) + ":" + part(21, 2) + " " + part(11, 2) + "/" + part(13, 2) + "/" +
                  part(15, 4));
}

Date PresentGMT() {
  int dst = 0;
  return ReadDate(GetGMT(DateText(Now()), dst));
}

}  // namespace skyloft
