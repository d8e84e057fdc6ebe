#include "weather/sky.h"

#include "base/tables.h"
#include "settings/settings.h"

namespace skyloft {
namespace {

constexpr SkyRow kSky[kSkyRows] = {
    {0, "na", "ssunny.gif"},
    {1, "sunny", "ssunny.gif"},
    {2, "mostly sunny", "smostsun.gif"},
    {3, "partly cloudy", "sprtcloud.gif"},
    {4, "partly sunny", "spartsun.gif"},
    {5, "mostly cloudy", "smstcloud.gif"},
    {6, "cloudy", "scloudy.gif"},
    {7, "fog", "sfoggy.gif"},
    {8, "light rain", "sliterain.gif"},
    {9, "rain", "smodrain.gif"},
    {10, "heavy rain", "shevyrain.gif"},
    {11, "Tstorm", "ststorms.gif"},
    {12, "frzng rain", "sfrezrain.gif"},
    {13, "frzng rain / snow", "sfrzrnsno.gif"},
    {14, "rain / snow", "srainsnow.gif"},
    {15, "light snow", "slitesnow.gif"},
    {16, "snow", "smodsnow.gif"},
    {17, "heavy snow", "shevysnow.gif"},
    {18, "Tstorm?", "ststorms.gif"},
    {19, "shower", "schcshower.gif"},
    {20, "snow shower", "schcsnowshower.gif"},
    {21, "clear", "snclear.gif"},
    {22, "mostly clear", "snmstclr.gif"},
    {23, "partly cloudy", "snpartcld.gif"},
    {24, "partly cloudy", "snpartcld.gif"},
    {25, "mostly cloudy", "snmostcld.gif"},
    {26, "cloudy", "sncloudy.gif"},
    {27, "fog", "snfoggy.gif"},
    {28, "light rain", "snlitrain.gif"},
    {29, "rain", "snmodrain.gif"},
    {30, "heavy rain", "snhvyrain.gif"},
    {31, "Tstorm", "sntstorm.gif"},
    {32, "frzng rain", "snfrzrain.gif"},
    {33, "frzng rain / snow", "snfrzrnsn.gif"},
    {34, "rain / snow", "snrainsno.gif"},
    {35, "light snow", "snlitesno.gif"},
    {36, "snow", "snmodsno.gif"},
    {37, "heavy snow", "snhvysnow.gif"},
    {38, "Tstorm?", "sntstorm.gif"},
    {39, "shower", "snchcshower.gif"},
    {40, "snow shower", "snchcsnowshower.gif"},
};

// Above the first bound and not above the second; the first range that holds gives the text.
constexpr struct {
  double above, up_to;
  const char* text;
} kWinds[] = {
    {337.5, 22.5, "  N"},  {0, 45, "NNE"},    {22.5, 67.5, " NE"},   {45, 90, "ENE"},
    {67.5, 112.5, "  E"},  {90, 135, "ESE"},  {112.5, 157.5, " SE"}, {135, 180, "SSE"},
    {157.5, 202.5, "  S"}, {180, 225, "SSW"}, {202.5, 247.5, " SW"}, {225, 270, "WSW"},
    {247.5, 292.5, "  W"}, {270, 315, "WNW"}, {292.5, 337.5, " NW"}, {315, 360, "NNW"},
};

}  // namespace

const SkyRow& GetSkyRow(int code) { return kSky[CheckedIndex(code, kSkyRows)]; }

void SkyCondition(int mode, int first_row, int last_row, int code, const std::string& phrase,
                  const std::string& icon, int& out_code, std::string& out_phrase, std::string& out_icon,
                  int& found) {
  found = 0;
  const std::string folder = Settings.InstallPath + "\\icons\\";
  for (int i = first_row; i <= last_row; ++i) {
    const SkyRow& row = GetSkyRow(i);
    const bool hit = (mode == 0 && row.code == code) || (mode == 1 && row.phrase == phrase) ||
                     (mode == 2 && folder + row.icon == icon);
    if (!hit) continue;
    out_code = row.code;
    out_phrase = row.phrase;
    out_icon = folder + row.icon;
    found = 1;
    return;
  }
}

std::string GetWindDirection(double degrees) {
  for (const auto& wind : kWinds) {
    if (degrees > wind.above && degrees <= wind.up_to) return wind.text;
  }
  return "VAR";
}

}  // namespace skyloft
