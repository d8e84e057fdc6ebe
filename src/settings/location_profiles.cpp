#include "settings/location_profiles.h"

#include <string_view>
#include <vector>

#include "base/guard.h"
#include "base/values.h"
#include "feed/forecast.h"
#include "feed/observations.h"
#include "platform/files.h"
#include "platform/registry_store.h"
#include "settings/registry.h"
#include "settings/settings.h"
#include "weather/almanac.h"

namespace skyloft {

Grid<std::string, kProfileRows, kLocationSlots> LocationProfile;
Table<std::string, 67> FrameUrl;

namespace {

// Rows that follow one another, by their first number and their names in the store.
struct RowGroup {
  int first;
  std::vector<const char*> names;
};

const std::vector<RowGroup>& RowGroups() {
  static const std::vector<RowGroup> groups = {
      {0,
       {"ZipCode", "City", "State", "County", "AreaCode", "TimeZone", "Latitude", "Longitude", "Title",
        "StateLong", "Dst", "NWSForecastOffice", "NEXRADLocation", "NEXRADLatitude", "NEXRADLongitude",
        "NEXRADServer"}},
      {20,
       {"BlizzardWarning", "WinterStormWarning", "FreezeWarning", "FrostWarning", "WindChillWarning",
        "WindChillAdvisory", "WinterStormWatch", "WinterWeatherAdvisory"}},
      {30,
       {"TornadoWarning", "SevereThunderstormWarning", "HurricaneWarning", "TropicalStormWarning",
        "InlandHurricaneWindWarning", "HighWindWarning", "GaleWarning", "StormWarning", "TornadoWatch",
        "SevereThunderstormWatch", "HurricaneWatch", "InlandHurricaneWindWatch", "TropicalStormWatch",
        "HighWindWatch", "WindAdvisory", "DenseFogAdvisory", "SmallCraftAdvisory"}},
      {50,
       {"FlashFloodWarning", "FloodWarning", "CoastalFloodWarning", "RiverFloodWarning", "FlashFloodWatch",
        "FloodWatch", "CoastalFloodWatch", "RiverFloodWatch"}},
      {60, {"ExcessiveHeatWarning", "HeatAdvisory", "ExcessiveHeatOutlook", "ExcessiveHeatWatch"}},
      {69,
       {"SKLTPersonalAlert", "MaximumTemperature", "MaximumTemperatureThreshold", "MinimumTemperature",
        "MinimumTemperatureThreshold", "HeatIndex", "HeatIndexThreshold", "WindChill", "WindChillThreshold",
        "WindSpeed", "WindSpeedThreshold"}},
      {80,
       {"HeavyRain", "ModerateRain", "LightRain", "RainShower", "Thunderstorm", "ThunderstormChance",
        "FreezingRain", "FreezingRainSnow", "RainSnow", "HeavySnow", "ModerateSnow", "LightSnow",
        "SnowShower"}},
      {100, {"NWSAlertMessage", "NWSAlertAudio", "NWSAlertVoice", "NWSAlertEmail"}},
      {105, {"SKLTAlertMessage", "SKLTAlertAudio", "SKLTAlertVoice", "SKLTAlertEmail"}},
  };
  return groups;
}

constexpr int kCoastalFloodWatch = 56;
constexpr int kRiverFloodWatch = 57;

std::string LocationKey(int slot) { return "Software\\Aerolume\\Skyloft\\Location" + std::to_string(slot); }

using ObservationCells = ObservationTables::Cells ObservationTables::*;

// The observation's sixteen lines of sklt.dat; nothing fills the one without a cell.
constexpr ObservationCells kObservationLines[] = {
    &ObservationTables::ObsStamp,
    &ObservationTables::ObsStampServer,
    &ObservationTables::City,
    &ObservationTables::State,
    &ObservationTables::Lt,
    &ObservationTables::Desc,
    &ObservationTables::Ic,
    &ObservationTables::Tf,
    &ObservationTables::Df,
    &ObservationTables::At,
    &ObservationTables::Rh,
    &ObservationTables::Ws,
    nullptr,
    &ObservationTables::Wd,
    &ObservationTables::Vi,
    &ObservationTables::Slp,
};

// What a delete moves with the location: the lines above but for Slp.
constexpr size_t kMovedObservations = std::size(kObservationLines) - 1;

constexpr std::string ForecastHourFields::*kHourLines[] = {
    &ForecastHourFields::Ut, &ForecastHourFields::Lt, &ForecastHourFields::Desc, &ForecastHourFields::Ic,
    &ForecastHourFields::Tf, &ForecastHourFields::Df, &ForecastHourFields::Rh,   &ForecastHourFields::Wd,
    &ForecastHourFields::Ws, &ForecastHourFields::At, &ForecastHourFields::Rn,   &ForecastHourFields::Sn,
};

constexpr std::string ForecastDayFields::*kDayLines[] = {
    &ForecastDayFields::Ut,   nullptr,
    &ForecastDayFields::Desc, &ForecastDayFields::Ic,
    &ForecastDayFields::Th,   &ForecastDayFields::Tl,
    &ForecastDayFields::Rn,   &ForecastDayFields::Sn,
    &ForecastDayFields::Wd,   &ForecastDayFields::Ws,
};

// Every cell of sklt.dat in the order of its lines; the lines that nothing fills share one cell, empty on
// saving.
std::vector<std::string*> LocationDataCells(int last) {
  static std::string unfilled;
  unfilled.clear();
  std::vector<std::string*> cells;
  for (int location = 0; location <= last; ++location) {
    for (ObservationCells line : kObservationLines) {
      cells.push_back(line ? &(ObservationRecord.*line)[location] : &unfilled);
    }
  }
  for (int location = 0; location <= last; ++location) {
    for (int hour = 0; hour < kForecastHours; ++hour) {
      for (auto line : kHourLines) cells.push_back(&(ForecastHour[location][hour].*line));
      cells.push_back(&FrameUrl[hour]);  // once for each location; on load the last one wins
    }
    for (int day = 0; day < kForecastDays; ++day) {
      for (auto line : kDayLines) cells.push_back(line ? &(ForecastDay[location][day].*line) : &unfilled);
    }
  }
  for (int location = 0; location <= last; ++location) {
    for (auto* table : {&ObservationRecord.Avg_H, &ObservationRecord.Avg_L, &Almanac.Sunrise, &Almanac.Sunset,
                        &Almanac.Moonrise, &Almanac.Moonset}) {
      cells.push_back(&(*table)[location]);
    }
  }
  return cells;
}

std::string DataFile() { return Settings.InstallPath + "\\sklt.dat"; }

std::string_view TakeLine(std::string_view& rest) {
  const size_t end = rest.find('\n');
  if (rest.empty()) throw RuntimeError("sklt.dat ends early");
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

void RecoverLocationData() {
  Guarded([] {
    Settings.ModelLocal.clear();
    Settings.ModelServer.clear();
    for (int i = 0; i <= LastLocation(); ++i) {
      ObservationRecord.ObsStamp[i].clear();
      ObservationRecord.ObsStampServer[i].clear();
    }
  });
  Guarded([] {
    if (FileExists(DataFile())) DeleteFile(DataFile());
  });
}

// Copies the cells that move with a location.
void CopySlot(int from, int to) {
  for (auto& row : LocationProfile) row[to] = row[from];
  for (size_t i = 0; i < kMovedObservations; ++i) {
    if (!kObservationLines[i]) continue;
    auto& cells = ObservationRecord.*kObservationLines[i];
    cells[to] = cells[from];
  }
  for (auto* table : {&Almanac.Sunrise, &Almanac.Sunset, &Almanac.Moonrise, &Almanac.Moonset}) {
    (*table)[to] = (*table)[from];
  }
  ForecastHour[to] = ForecastHour[from];
  ForecastDay[to] = ForecastDay[from];
}

void ClearSlot(int slot) {
  for (auto& row : LocationProfile) row[slot].clear();
  for (size_t i = 0; i < kMovedObservations; ++i) {
    if (kObservationLines[i]) (ObservationRecord.*kObservationLines[i])[slot].clear();
  }
  for (auto* table : {&Almanac.Sunrise, &Almanac.Sunset, &Almanac.Moonrise, &Almanac.Moonset})
    (*table)[slot].clear();
  ForecastHour[slot] = {};
  ForecastDay[slot] = {};
}

}  // namespace

bool IsProfileOn(int row, int slot) { return LenientNumber(LocationProfile[row][slot]) == 1; }

void SaveLocationProfiles() {
  Guarded([] {
    for (int slot = 0; slot <= LastLocation(); ++slot) {
      const std::string key = LocationKey(slot);
      for (const RowGroup& group : RowGroups()) {
        int row = group.first;
        for (const char* name : group.names) WriteSetting(key, name, LocationProfile[row++][slot]);
      }
    }
    SyncSaves();
  });
}

void LoadLocationProfiles() {
  Guarded([] {
    for (int slot = 0; slot <= LastLocation(); ++slot) {
      const std::string key = LocationKey(slot);
      for (const RowGroup& group : RowGroups()) {
        int row = group.first - 1;
        for (const char* name : group.names) {
          ++row;
          if (row == kRiverFloodWatch) continue;
          const char* loaded = row == kCoastalFloodWatch ? "RiverFloodWatch" : name;
          LocationProfile[row][slot] = ReadSetting(key, loaded, "");
        }
      }
    }
  });
}

void SaveLocationData() {
  Guarded([] {
    std::string text;
    for (const std::string* cell : LocationDataCells(LastLocation())) {
      text += *cell;
      text += "\r\n";
    }
    WriteFile(DataFile(), text);
  });
}

void LoadLocationData() {
  const bool whole = Guarded([] {
    const std::string text = ReadFile(DataFile());
    std::string_view rest = text;
    for (std::string* cell : LocationDataCells(LastLocation())) *cell = TakeLine(rest);
  });
  if (!whole) RecoverLocationData();
}

void RemoveLocationEntry(int index, int max_index) {
  Guarded([&] {
    for (int slot = index; slot < max_index; ++slot) CopySlot(slot + 1, slot);
    ClearSlot(max_index);
  });
}

}  // namespace skyloft
