#include "browser/images.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "base/dates.h"
#include "base/guard.h"
#include "base/values.h"
#include "browser/frames.h"
#include "browser/selection.h"
#include "browser/zoom.h"
#include "core/refresh.h"
#include "feed/catalogues.h"
#include "feed/hosts.h"
#include "feed/radar.h"
#include "feed/transport.h"
#include "forms/main_form.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/pictures.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "weather/almanac.h"
#include "weather/periods.h"
#include "weather/time.h"

namespace skyloft {

Table<std::string, 67> FramePath;

namespace {

constexpr std::int64_t kTwilightMinutes = 40;
constexpr std::int64_t kFreshSeconds = 21600;  // six hours

bool IsNight(Date now, Date sunrise, Date sunset) {
  const auto since = [&](DateUnit unit, Date event) { return DateDiff(unit, event, now); };
  if (std::abs(since(DateUnit::Minutes, sunrise)) <= kTwilightMinutes) return false;
  if (std::abs(since(DateUnit::Minutes, sunset)) <= kTwilightMinutes) return false;
  const std::int64_t rise_hours = since(DateUnit::Hours, sunrise);
  const std::int64_t set_hours = since(DateUnit::Hours, sunset);
  return (std::abs(rise_hours) > std::abs(set_hours) && set_hours > 0) ||
         (std::abs(rise_hours) < std::abs(set_hours) && rise_hours < 0);
}

// The frames of a product; nothing for one that is a page or has an unknown code.
std::optional<FrameSeries> SeriesOf(int product) {
  const std::string& code = Catalogues.ProductRecord.code[product];
  if (code == "url") return {};
  return FramesOf(WholeNumber(code), WholeNumber(Catalogues.ProductRecord.period[product]));
}

bool IsFresh(const std::string& path) {
  return FileExists(path) && std::abs(DateDiff(DateUnit::Seconds, FileTime(path), Now())) <= kFreshSeconds;
}

// The search stops at the first hit.
void ShowRadar() {
  if (MainForm.ImageForwardTimer.Enabled) return;
  const auto& categories = MainForm.CategorySelection.Items();
  const auto radar = std::ranges::find(categories, "NEXRAD Radar");
  if (radar == categories.end()) return;
  MainForm.CategorySelection.Select(static_cast<int>(radar - categories.begin()));
  MainForm.ProductSelection.Select(0);
}

}  // namespace

void ImageFetch() {
  Guarded([] {
    const ProductRecords& products = Catalogues.ProductRecord;
    const int product = Catalogues.ProductMap[MainForm.ProductSelection.ListIndex()];
    const auto series = SeriesOf(product);
    if (!series) return;
    for (int k = 0; k < FramePath.Size(); ++k) {
      const auto& frame = series->frames[k];
      if (!frame) continue;
      const std::string name =
          FrameName(products.file[product], Catalogues.SectorID, *frame, products.type[product]);
      FrameUrl[k] = HostTable.imageserver + name;
      FramePath[k] = TempFolder() + "\\" + name;
      // The counter of the forecast's refresh is the same variable as the name's hour, which is meant.
      if (frame->run) Refresh.ForecastTimer = HourText(frame->hour);
    }
    if (series->single) Periods.HourIndexMax = 0;
    const std::string& path = FramePath[series->chosen];
    if (!series->kept || !IsFresh(path)) GetImage(FrameUrl[series->chosen], path);
    if (FileExists(path)) {
      LoadPicture(MainForm.Display1, path);
      MainForm.Display1.Visible = true;
    }
    if (Browser.SelectedProduct == "Forecast Radar" && Catalogues.SectorID != Catalogues.SectorIDPrevious) {
      Catalogues.SectorIDPrevious = Catalogues.SectorID;
      PlaceLocationPoints();
    }
  });
}

void ThumbnailDisplay(const std::string& prefix, const std::string& site) {
  Guarded([&] {
    std::string newest;
    for (const std::string& file : ListTempFolder().Files) {
      if (IsFrameOf(file, prefix, site)) newest = TempFolder() + "\\" + file;
    }
    if (!newest.empty()) LoadPicture(MainForm.Thumbnail, newest);
  });
}

void Background(std::string& hourly, std::string& daily) {
  Guarded([&] {
    const int location = SelectedLocation();
    const std::string today = " " + Format(Now(), "mm/dd/yyyy");
    const bool night = IsNight(LocationTime(location), ReadDate(Almanac.Sunrise[location] + today),
                               ReadDate(Almanac.Sunset[location] + today));
    const std::string folder = Settings.InstallPath + "\\backgrounds\\";
    hourly = folder + (night ? "hourlyn.jpg" : "hourlya.jpg");
    daily = folder + (night ? "dailyn.jpg" : "dailya.jpg");
  });
}

void ConnectImages() {
  MainForm.Thumbnail.Click = [] { Guarded(ShowRadar); };
}

}  // namespace skyloft
