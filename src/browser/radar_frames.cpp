#include "browser/radar_frames.h"

#include "base/dates.h"
#include "base/guard.h"
#include "base/values.h"
#include "browser/buttons.h"
#include "browser/player.h"
#include "browser/zoom.h"
#include "feed/radar.h"
#include "feed/transport.h"
#include "forms/main_form.h"
#include "platform/files.h"
#include "platform/pictures.h"
#include "settings/settings.h"
#include "weather/time.h"

namespace skyloft {

void NexradLoad(const std::string& prefix, const std::string& site) {
  Guarded([&] {
    const Date now = PresentGMT();
    const std::string zone = LocationZone(SelectedLocation());
    const long long offset = LocationOffset(SelectedLocation());
    ListControl& times = MainForm.TimeSelection;
    times.Clear();
    for (const std::string& file : ListTempFolder().Files) {
      if (!IsFrameOf(file, prefix, site)) continue;
      const Date time = FrameTime(file);
      if (DateDiff(DateUnit::Minutes, time, now) > kOldestFrameMinutes) {
        DeleteFile(TempFolder() + "\\" + file);
        continue;
      }
      const Date local = DateAdd(DateUnit::Hours, offset, time);
      times.AddItem(Format(local, "hh:mm AM/PM") + " " + zone + " " + Format(local, "mm/dd/yy"));
    }
    BackNextPlayStopState();
    ShowRadarButtons();
    if (times.Count() > 0) times.Select(times.Count() - 1);
  });
}

void NexradDisplay(const std::string& prefix, const std::string& site) {
  Guarded([&] {
    const std::string entry = MainForm.TimeSelection.Text();
    const Date local =
        ReadDate(std::string(MiddleText(entry, 1, 8)) + " " + std::string(MiddleText(entry, 14, 8)));
    const std::string stamp =
        Format(DateAdd(DateUnit::Hours, -LocationOffset(SelectedLocation()), local), "mmddyyyyhhnn");
    LoadPicture(MainForm.Display1, TempFolder() + "\\" + prefix + "." + site + "." + stamp + ".png");
    if (MainForm.AreaZoomButton.Enabled) NEXRADZoom();
  });
}

void GetLatestImage(const std::string& url) {
  Guarded([&] {
    std::string path = TempFolder() + "\\latest.gif";
    GetImage(url, path);
    ConvertRadarImage(path);
    MainForm.TimeSelection.Clear();
    MainForm.TimeSelection.AddItem("Latest");
    MainForm.TimeSelection.Select(0);
    ShowLatestImage();
  });
}

void ShowLatestImage() { LoadPicture(MainForm.Display1, TempFolder() + "\\latest.png"); }

}  // namespace skyloft
