// The user's locations: where each is and what the user wants to be told of it (the profile, in the store),
// and the last data received for it (sklt.dat). Locations are indexes 0 to LocationIndexMax, without a gap.
#pragma once

#include <string>

#include "base/tables.h"

namespace skyloft {

inline constexpr int kLocationSlots = 5;
inline constexpr int kProfileRows = 111;

// Text cells by row and slot: LocationProfile[ProfileRow::City][0]. Rows without a name exist, are copied,
// and hold nothing.
extern Grid<std::string, kProfileRows, kLocationSlots> LocationProfile;

namespace ProfileRow {
enum : int {
  ZipCode = 0,
  City,
  State,
  County,
  AreaCode,
  TimeZone,   // hours from GMT, standard time
  Latitude,   // degrees, two decimals
  Longitude,  // degrees, negative west
  Title,      // the name shown in every list, as the user typed it
  StateLong,
  Dst,  // hours to add for daylight time
  NWSForecastOffice,
  NEXRADLocation,
  NEXRADLatitude,
  NEXRADLongitude,
  NEXRADServer,
  // Bulletins that the user wants to be told of, "1" or "0"; the other kinds are stored and not looked at.
  TornadoWarning = 30,
  SevereThunderstormWarning,
  TornadoWatch = 38,
  SevereThunderstormWatch,
  FlashFloodWarning = 50,
  FlashFloodWatch = 54,
  // The user's own conditions: whether there are any, then switches with their thresholds, then switches.
  SKLTPersonalAlert = 69,
  MaximumTemperature,
  MaximumTemperatureThreshold,
  MinimumTemperature,
  MinimumTemperatureThreshold,
  HeatIndex,
  HeatIndexThreshold,
  WindChill,
  WindChillThreshold,
  WindSpeed,
  WindSpeedThreshold,
  HeavyRain,
  ModerateRain,
  LightRain,
  RainShower,
  Thunderstorm,
  ThunderstormChance,
  FreezingRain,
  FreezingRainSnow,
  RainSnow,
  HeavySnow,
  ModerateSnow,
  LightSnow,
  SnowShower,
  // How alerts are delivered, of bulletins and of the user's own.
  NWSAlertMessage = 100,
  NWSAlertAudio,
  NWSAlertVoice,
  NWSAlertEmail,
  SKLTAlertMessage = 105,
  SKLTAlertAudio,
  SKLTAlertVoice,
  SKLTAlertEmail,
};
}  // namespace ProfileRow

// Whether a switch of the profile is on: its number is 1.
bool IsProfileOn(int row, int slot);

// The addresses of the pictures of the last product shown, 67 cells that belong to no location.
extern Table<std::string, 67> FrameUrl;

// Both loop over the slots in use. Row 56 is saved as CoastalFloodWatch and row 57 as RiverFloodWatch, but
// RiverFloodWatch is loaded into row 56 and row 57 never: the store drifts at each pair of load and save.
// This is meant.
void SaveLocationProfiles();
void LoadLocationProfiles();

// sklt.dat: one value a line, CR LF, no header; (LocationIndexMax + 1) * 1143 lines. A load that fails (the
// file is missing or short) clears the stamps, so that everything is fetched again, and deletes the file; the
// cells read stay.
void SaveLocationData();
void LoadLocationData();

// Takes a location out: the slots behind it move up and slot `max_index` is cleared. Slp, Avg_H and Avg_L
// stay with their slot, which is meant.
void RemoveLocationEntry(int index, int max_index);

}  // namespace skyloft
