#include "browser/frames.h"

#include "base/dates.h"
#include "base/values.h"
#include "browser/selection.h"
#include "feed/catalogues.h"
#include "feed/observations.h"
#include "forms/main_form.h"
#include "settings/settings.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

constexpr int kLastHour = 66;  // of the newest run; later frames are of the extended run

// 12 hours apart. In the runs of 6 and 18 the first frame is 6 hours later; only up to hour 66, which is
// meant.
void FillTwelveHourly(FrameSeries& series, int count) {
  const std::string& run = Catalogues.ModelRun;
  int offset = run == "00z" || run == "12z" ? 0 : 6;
  for (int j = 1; j <= count; ++j) {
    if (12 * j <= kLastHour) {
      series.frames[j] = {run, offset + 12 * j};
    } else {
      offset = 0;
      series.frames[j] = {Catalogues.ModelRunExtended, 12 + 12 * j};
    }
  }
}

// 24 hours apart, `first` and `first_extended` hours from the day's end in either run.
void FillDaily(FrameSeries& series, int count, int first, int first_extended) {
  for (int j = 1; j <= count; ++j) {
    const int hour = first + 24 * j;
    series.frames[j] = hour <= kLastHour
                           ? FrameFile{Catalogues.ModelRun, hour}
                           : FrameFile{Catalogues.ModelRunExtended, first_extended + 12 + 24 * j};
  }
}

void FillRoute(FrameSeries& series, int count) {
  const int hour = PartsOf(ReadDate(Observations.ModelServerTrip)).hour;
  const int late = Browser.FirstRouteFrame > 1 ? -6 : 6;
  const bool even = hour == 0 || hour == 12;
  const char* run = hour == 0 ? "00z" : hour == 6 ? "06z" : hour == 12 ? "12z" : "18z";
  for (int j = Browser.FirstRouteFrame; j <= count; ++j) {
    series.frames[j] = {run, (even ? 0 : late) + 12 * j};
  }
}

}  // namespace

std::optional<FrameSeries> FramesOf(int code, int count) {
  FrameSeries series;
  const int index = MainForm.TimeSelection.ListIndex();
  series.chosen = index + 1;
  switch (code) {
    case 0:
    case 2:
    case 10:
      series.frames[0] = FrameFile{};
      series.kept = false;
      series.single = true;
      break;
    case 1:
      series.frames[0] = {Catalogues.ModelRun, 0};
      series.single = true;
      break;
    case 9:
      series.frames[0] = {Catalogues.ModelRun, LenientNumber(Settings.StopHourIndex) == 65 ? 66 : 60};
      series.single = true;
      break;
    case 3:
      for (int j = 1; j <= count; ++j) series.frames[j - 1] = {Catalogues.ModelRun, j};
      series.chosen = Periods.HourIndex;
      break;
    case 4: FillTwelveHourly(series, count); break;
    case 5: FillDaily(series, count, -12, -12); break;
    case 6: FillDaily(series, count, -6, 0); break;
    case 7: FillDaily(series, count, 0, 0); break;
    case 8: FillDaily(series, count, 6, 12); break;
    case 11:
      FillRoute(series, count);
      series.chosen = Browser.FirstRouteFrame + index;
      break;
    default: return {};
  }
  if (series.single) series.chosen = 0;
  return series;
}

std::string HourText(int hour) { return ThreeDigits(hour) + "."; }

std::string FrameName(const std::string& file, const std::string& sector, const FrameFile& frame,
                      const std::string& type) {
  const std::string start = file + "." + sector + ".";
  return frame.run ? start + *frame.run + "." + HourText(frame.hour) + type : start + type;
}

}  // namespace skyloft
