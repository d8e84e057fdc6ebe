#include "feedserver/phrases.h"

#include <algorithm>
#include <array>

#include "base/tables.h"

namespace skyloft::feed {
namespace {

constexpr int kNight = 20;  // what a night's code is above the day's

constexpr std::array<Phrase, 41> kPhrases = {{
    {"na", "ssunny.gif"},                    // 0
    {"sunny", "ssunny.gif"},                 // 1
    {"mostly sunny", "smostsun.gif"},        // 2
    {"partly cloudy", "sprtcloud.gif"},      // 3
    {"partly sunny", "spartsun.gif"},        // 4
    {"mostly cloudy", "smstcloud.gif"},      // 5
    {"cloudy", "scloudy.gif"},               // 6
    {"fog", "sfoggy.gif"},                   // 7
    {"light rain", "sliterain.gif"},         // 8
    {"rain", "smodrain.gif"},                // 9
    {"heavy rain", "shevyrain.gif"},         // 10
    {"Tstorm", "ststorms.gif"},              // 11
    {"frzng rain", "sfrezrain.gif"},         // 12
    {"frzng rain / snow", "sfrzrnsno.gif"},  // 13
    {"rain / snow", "srainsnow.gif"},        // 14
    {"light snow", "slitesnow.gif"},         // 15
    {"snow", "smodsnow.gif"},                // 16
    {"heavy snow", "shevysnow.gif"},         // 17
    {"Tstorm?", "ststorms.gif"},             // 18
    {"shower", "schcshower.gif"},            // 19
    {"snow shower", "schcsnowshower.gif"},   // 20
    {"clear", "snclear.gif"},                // 21
    {"mostly clear", "snmstclr.gif"},        // 22
    {"partly cloudy", "snpartcld.gif"},      // 23
    {"partly cloudy", "snpartcld.gif"},      // 24
    {"mostly cloudy", "snmostcld.gif"},      // 25
    {"cloudy", "sncloudy.gif"},              // 26
    {"fog", "snfoggy.gif"},                  // 27
    {"light rain", "snlitrain.gif"},         // 28
    {"rain", "snmodrain.gif"},               // 29
    {"heavy rain", "snhvyrain.gif"},         // 30
    {"Tstorm", "sntstorm.gif"},              // 31
    {"frzng rain", "snfrzrain.gif"},         // 32
    {"frzng rain / snow", "snfrzrnsn.gif"},  // 33
    {"rain / snow", "snrainsno.gif"},        // 34
    {"light snow", "snlitesno.gif"},         // 35
    {"snow", "snmodsno.gif"},                // 36
    {"heavy snow", "snhvysnow.gif"},         // 37
    {"Tstorm?", "sntstorm.gif"},             // 38
    {"shower", "snchcshower.gif"},           // 39
    {"snow shower", "snchcsnowshower.gif"},  // 40
}};

enum Code {
  kSunny = 1,
  kMostlySunny,
  kPartlyCloudy,
  kPartlySunny,
  kMostlyCloudy,
  kCloudy,
  kFog,
  kLightRain,
  kRain,
  kHeavyRain,
  kThunder,
  kFreezingRain,
  kFreezingRainAndSnow,
  kRainAndSnow,
  kLightSnow,
  kSnow,
  kHeavySnow,
  kChanceOfThunder,
  kShower,
  kSnowShower
};

// Intensities after the Glossary of Meteorology of the American Meteorological Society: rain is light to 0.10
// and moderate to 0.30 inches an hour; snow is taken as light to 0.4 and moderate to 1.2 inches of depth.
int FallingCode(const Weather& weather) {
  const auto grade = [](double amount, double light, double moderate) {
    return amount <= light ? 0 : amount <= moderate ? 1 : 2;
  };
  switch (weather.fall) {
    case Fall::FreezingRain: return kFreezingRain;
    case Fall::FreezingRainAndSnow: return kFreezingRainAndSnow;
    case Fall::RainAndSnow: return kRainAndSnow;
    case Fall::Snow: return weather.is_shower ? kSnowShower : kLightSnow + grade(weather.snow, 0.4, 1.2);
    default: break;
  }
  if (weather.thunder > 0.5) return kThunder;
  if (weather.thunder > 0.2) return kChanceOfThunder;
  return weather.is_shower ? kShower : kLightRain + grade(weather.rain, 0.10, 0.30);
}

int SkyOnlyCode(double cloud) {
  constexpr std::array<double, 5> kUpTo = {0.1, 0.3, 0.5, 0.65, 0.87};
  return kSunny + static_cast<int>(std::ranges::lower_bound(kUpTo, cloud) - kUpTo.begin());
}

}  // namespace

int SkyCode(const Weather& weather, bool is_day) {
  const int code = weather.fall != Fall::None ? FallingCode(weather)
                   : weather.is_fog           ? static_cast<int>(kFog)
                                              : SkyOnlyCode(weather.cloud);
  if (is_day) return code;
  // A night has one code for "partly" where the day has two.
  return kNight + (code == kPartlySunny ? static_cast<int>(kPartlyCloudy) : code);
}

const Phrase& PhraseOf(int code) { return kPhrases[CheckedIndex(code, kPhrases.size())]; }

}  // namespace skyloft::feed
