// The program's settings, which it keeps itself, and the user's options, which live in the controls of
// SystemOptionsForm; and how both reach the store.
#pragma once

#include <string>

#include "platform/controls.h"

namespace skyloft {

inline constexpr const char* kSettingsKey = "Software\\Aerolume\\Skyloft\\Settings";
inline constexpr const char* kOptionsKey = "Software\\Aerolume\\Skyloft\\Options";

struct SettingsState {
  std::string InstallPath;       // folder of all files; set at start-up
  std::string Location;          // index of the selected location; "" before one was ever set
  std::string LocationIndexMax;  // highest location in use, 0 to 4; "" when there is none, which is not 0
  std::string TrayLocationIndex = "0";  // location whose temperature the tray shows
  std::string GMTStartTime;             // hour of day, GMT, of the first forecast hour
  std::string ModelLocal;               // stamp of the model run that the held forecast came from
  std::string ModelServer;              // stamp of the newest model run on the server
  std::string StartHourIndex = "0";     // first usable hour of the forecast table
  std::string StopHourIndex = "59";     // last usable hour
  int LegendFlag = 0;                   // an option: 0 the product's legend is shown, 1 hidden
};
extern SettingsState Settings;

// LocationIndexMax and Location as numbers; raise when there is none.
int LastLocation();
int SelectedLocation();

// Any error in LoadSettings (a Top that is no number) leaves the values not yet read as they are. The window
// goes to the stored place, or to the screen's centre when either of Top and Left is empty.
void LoadSettings();
void SaveSettings();
// TrayLocationIndex alone.
void SaveTrayLocation();

// LoadOptions repairs the "-1" of an unselected list: current conditions to 10 minutes, although the default
// is 15; both are meant.
void LoadOptions();
void SaveOptions();
// One check box of the options alone.
void SaveOption(const CheckBox& box);

}  // namespace skyloft
