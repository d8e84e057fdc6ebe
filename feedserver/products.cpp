#include "feedserver/products.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <span>

#include "base/guard.h"
#include "feedserver/steps.h"

namespace skyloft::feed {
namespace {

constexpr std::int64_t kHour = 3600, kRunSeconds = 6 * kHour, kRunDelay = 3 * kHour;
constexpr std::array<std::string_view, 4> kRunHours = {"00", "06", "12", "18"};

enum Category {
  kPlanners,
  kForecastMaps,
  kRadar,
  kHistorical,
  kObserved,
  kTravel,
  kSupport,
  kNewsletter,
  kShare
};

constexpr int kDaily = -1;  // a code that depends on the run
constexpr int kUrl = -2;    // the code of a page

struct Entry {
  std::string_view name;
  Category category;
  char family;
  int code;
  int period;  // for a daily product the hour of GMT at which its days end
  std::string_view file, type;
  std::optional<LayerId> layer;
};

// Those that a client makes itself. A page's code leads to no picture.
constexpr auto kOwn = std::to_array<Entry>({
    {"Hourly Planner", kPlanners, '2', kUrl, 1, "", "htm", {}},
    {"Weekly Planner", kPlanners, '2', kUrl, 1, "", "htm", {}},
    {"Reflectivity", kRadar, '2', 0, 1, "", "gif", {}},
    {"1-Hour Precipitation", kRadar, '2', 0, 1, "", "gif", {}},
    {"Total Precipitation", kRadar, '2', 0, 1, "", "gif", {}},
    {"Historical Conditions", kHistorical, '2', kUrl, 1, "", "htm", {}},
});
constexpr auto kMaps = std::to_array<Entry>({
    {"Surface Temperature", kForecastMaps, '1', 3, 66, "sfctemp", "gif", LayerId::Temperature},
    {"Precipitation", kForecastMaps, '3', 3, 66, "precip", "gif", LayerId::Precipitation},
    {"Wind", kForecastMaps, '4', 3, 66, "wind", "png", LayerId::Wind},
    {"Cloud Cover", kForecastMaps, '4', 3, 66, "cloud", "jpg", LayerId::Cloud},
    {"Forecast Radar", kForecastMaps, '3', 3, 66, "fradar", "gif", LayerId::Radar},
    {"12-Hour Precipitation", kForecastMaps, '3', 4, 10, "precip12", "gif", LayerId::HalfDayPrecipitation},
    {"Daily High Temperature", kForecastMaps, '1', kDaily, 0, "dayhigh", "gif", LayerId::High},
    {"Daily Low Temperature", kForecastMaps, '1', kDaily, 12, "daylow", "gif", LayerId::Low},
    {"24-Hour Precipitation", kForecastMaps, '3', kDaily, 18, "precip24", "png", LayerId::DayPrecipitation},
    {"24-Hour Snowfall", kForecastMaps, '3', kDaily, 6, "snow24", "gif", LayerId::DaySnow},
    {"Total Forecast Precipitation", kForecastMaps, '3', 9, 1, "preciprun", "gif", LayerId::RunPrecipitation},
    {"Surface Analysis", kForecastMaps, '1', 1, 1, "analysis", "png", LayerId::Pressure},
    {"Thunderstorm Outlook", kForecastMaps, '1', 2, 24, "thunder", "jpg", LayerId::Thunder},
    {"Observed Temperature", kObserved, '1', 0, 1, "obstemp", "gif", LayerId::Temperature},
    {"Radar Mosaic", kObserved, '4', 10, 1, "mosaic", "png", LayerId::Radar},
    {"RouteScope by Road", kTravel, '3', 11, 10, "route", "gif", LayerId::Roads},
});
constexpr auto kAddresses = std::to_array<Entry>({
    {"Questions and Answers", kSupport, '2', kUrl, 1, "http://www.skyloft.example/support/", "htm", {}},
    {"This Month", kNewsletter, '2', kUrl, 1, "http://www.skyloft.example/newsletter/", "htm", {}},
    {"Tell a Friend", kShare, '2', kUrl, 1, "http://www.skyloft.example/share/", "htm", {}},
});

// A daily product's pictures in the run's own hours: the code by the hour of the first (12, 18, 24 or 30),
// and as many as end by hour 66. After the runs of 00 and 12 two more follow from the extended run, whose
// hours for codes 5 and 7 are those of 12 hours later.
void SetDaily(Product& product, int day_end, int run_hour) {
  const int first = 12 + (day_end - run_hour - 12 + 48) % 24;
  product.code = std::to_string(5 + (first - 12) / 6);
  product.period = (66 - first) / 24 + 1;
  if (run_hour % 12 == 0 && first % 12 == 0) product.period += 2;
}

Product ProductOf(const Entry& entry, std::string_view run_hour) {
  Product product{
      entry.name,   entry.category, entry.family, entry.code == kUrl ? "url" : std::to_string(entry.code),
      entry.period, entry.file,     entry.type,   entry.layer ? &LayerOf(*entry.layer) : nullptr};
  if (entry.code == kDaily) SetDaily(product, entry.period, std::stoi(std::string(run_hour)));
  return product;
}

std::vector<std::string_view> Split(std::string_view text, char mark) {
  std::vector<std::string_view> parts;
  for (std::size_t at = 0; at != text.npos;) {
    const std::size_t end = text.find(mark, at);
    parts.push_back(text.substr(at, end - at));
    at = end == text.npos ? end : end + 1;
  }
  return parts;
}

const Entry* FindMap(std::string_view file) {
  const auto* found = std::ranges::find(kMaps, file, &Entry::file);
  return found == kMaps.end() ? nullptr : found;
}

bool IsStatic(const Entry& map) { return map.code == 0 || map.code == 2 || map.code == 10; }

bool IsHour(std::string_view text) {
  return text.size() == 3 && text.find_first_not_of("0123456789") == text.npos;
}

// The newest run that is done and begins at an hour.
Date RunAt(std::string_view hour, Date now) {
  Date run = ModelRun(now);
  while (Format(run, "hh") != hour) run.seconds -= kRunSeconds;
  return run;
}

}  // namespace

bool IsRunHour(std::string_view text) { return std::ranges::find(kRunHours, text) != kRunHours.end(); }

Date ModelRun(Date now) { return FloorTo({now.seconds - kRunDelay}, kRunSeconds); }

std::string_view ExtendedRun(std::string_view run_hour) {
  return run_hour == "00" || run_hour == "18" ? "12" : "00";
}

const std::vector<std::string_view>& Categories() {
  static const std::vector<std::string_view> names = {
      "Planners", "Forecast Maps",     "NEXRAD Radar",       "Historical",   "Observed Maps",
      "Travel",   "Technical Support", "Monthly Newsletter", "Share Skyloft"};
  return names;
}

std::vector<Product> ProductsOf(std::string_view run_hour) {
  std::vector<Product> products;
  for (const std::span<const Entry> entries : {std::span<const Entry>(kOwn), {kMaps}, {kAddresses}}) {
    std::ranges::transform(entries, std::back_inserter(products),
                           [&](const Entry& entry) { return ProductOf(entry, run_hour); });
  }
  return products;
}

std::optional<MapRequest> ReadMapPath(std::string_view path, Date now) {
  if (!path.starts_with('/')) return {};
  const auto parts = Split(path.substr(1), '.');
  if (parts.size() < 3) return {};
  const Entry* const map = FindMap(parts[0]);
  const Sector* const sector = FindSector(parts[1]);
  if (!map || !sector || parts.back() != map->type) return {};
  if (sector != &Sectors().front() && sector->id[0] != map->family) return {};

  const Layer& layer = LayerOf(*map->layer);
  MapRequest request{&layer, sector, std::string(map->name), now, layer.hours};
  if (IsStatic(*map)) {
    request.valid = FloorTo(now, 300);
    if (layer.hours > 0) request.valid = DateAdd(DateUnit::Hours, layer.hours, request.valid);  // an outlook
    return parts.size() == 3 ? std::optional(request) : std::nullopt;
  }
  if (parts.size() != 5 || parts[2].size() != 3 || parts[2][2] != 'z' || !IsRunHour(parts[2].substr(0, 2)) ||
      !IsHour(parts[3])) {
    return {};
  }
  const int hour = std::stoi(std::string(parts[3]));
  request.valid = DateAdd(DateUnit::Hours, hour, RunAt(parts[2].substr(0, 2), now));
  if (layer.over != Over::Moment && layer.hours == 0) request.hours = hour;  // the whole run
  return request;
}

const Layer* ReadLegendPath(std::string_view path) {
  constexpr std::string_view start = "/legends/", end = "_legend.gif";
  if (!path.starts_with(start) || !path.ends_with(end) || path.size() < start.size() + end.size())
    return nullptr;
  const Entry* const map = FindMap(path.substr(start.size(), path.size() - start.size() - end.size()));
  return map ? &LayerOf(*map->layer) : nullptr;
}

}  // namespace skyloft::feed
