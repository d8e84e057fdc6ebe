#include "feedserver/rows.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/values.h"
#include "feedserver/phrases.h"

namespace skyloft::feed {
namespace {

std::string Decimals(double value, int decimals) {
  std::array<char, 40> buffer;
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, decimals);
  return {buffer.data(), end.ptr};
}

// North is 360; only a calm has the direction 0.
std::string WindFrom(double from, double speed) {
  if (RoundHalfAway(speed) == 0) return "0";
  const long long whole = RoundHalfAway(from);
  return NumberText(whole == 0 ? 360 : static_cast<double>(whole));
}

struct Column {
  std::string_view tag;
  std::string (*text)(const Moment&);
};

constexpr std::array<Column, 18> kColumns = {{
    {"Ut", [](const Moment& m) { return Stamp(m.gmt); }},
    {"Lt", [](const Moment& m) { return Stamp(LocalTime(m.spot.place, m.gmt)); }},
    {"SkyID", [](const Moment& m) { return NumberText(m.code); }},
    {"Desc", [](const Moment& m) { return std::string(PhraseOf(m.code).text); }},
    {"Ic", [](const Moment& m) { return std::string(PhraseOf(m.code).icon); }},
    {"Tf", [](const Moment& m) { return Whole(m.weather.temperature); }},
    {"Df", [](const Moment& m) { return Whole(m.weather.dew_point); }},
    {"At", [](const Moment& m) { return Whole(m.weather.apparent); }},
    {"Rh", [](const Moment& m) { return Whole(m.weather.humidity); }},
    {"Wd", [](const Moment& m) { return WindFrom(m.weather.wind_from, m.weather.wind_speed); }},
    {"Ws", [](const Moment& m) { return Whole(m.weather.wind_speed); }},
    {"Vi", [](const Moment& m) { return Decimals(m.weather.visibility, 1); }},
    {"Slp", [](const Moment& m) { return Decimals(m.weather.pressure, 2); }},
    {"Rn", [](const Moment& m) { return Amount(m.weather.rain, 2); }},
    {"Sn", [](const Moment& m) { return Amount(m.weather.snow, 1); }},
    {"Avg_H", [](const Moment& m) { return Whole(NormalsAt(m.spot.point, m.gmt).high); }},
    {"Avg_L", [](const Moment& m) { return Whole(NormalsAt(m.spot.point, m.gmt).low); }},
    {"city_state",
     [](const Moment& m) { return std::string(m.spot.place.city).append(", ").append(m.spot.place.state); }},
}};

}  // namespace

void AddRow(XmlDocument& xml, const Moment& moment, std::span<const std::string_view> tags) {
  for (const std::string_view tag : tags) {
    xml.Add(tag, std::ranges::find(kColumns, tag, &Column::tag)->text(moment));
  }
}

std::string Stamp(Date date) { return Format(date, "mmm Dd yyyy hh:mmAM/PM"); }
std::string Whole(double value) { return NumberText(static_cast<double>(RoundHalfAway(value))); }

std::string Amount(double value, int decimals) {
  const std::string text = Decimals(value, decimals);
  return LenientNumber(text) == 0 ? "0" : text;
}

}  // namespace skyloft::feed
