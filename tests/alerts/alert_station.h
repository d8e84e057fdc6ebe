// What the tests of the alerts have in common: locations with their wishes, and what stands on the bar.
#pragma once

#include <string>

#include "alerts/bulletins.h"
#include "alerts/personal_alerts.h"
#include "forms/main_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "settings/location_profiles.h"
#include "station.h"
#include "ticker/ticker_pages.h"

namespace skyloft {

inline std::string Icon(const std::string& file) { return "C:\\program files\\skyloft\\icons\\" + file; }
inline constexpr const char* kWarningSound = "C:\\program files\\skyloft\\wav\\warning.wav";

class AlertStation : public Station {
 protected:
  AlertStation() {
    SetUpLocations(2);
    Place(0, "Lawrence", "KS", "Douglas", "Kansas");
    Place(1, "Dallas", "TX", "Dallas", "Texas");
    SystemOptionsForm.Email1Value.Text = "me@home.example";
    SystemOptionsForm.ShowTicker.Checked = true;
  }

  static void Wish(int slot, std::initializer_list<int> rows) {
    for (const int row : rows) LocationProfile[row][slot] = "1";
  }
  static void Place(int slot, const std::string& city, const std::string& state, const std::string& county,
                    const std::string& state_long) {
    LocationProfile[ProfileRow::City][slot] = city;
    LocationProfile[ProfileRow::State][slot] = state;
    LocationProfile[ProfileRow::County][slot] = county;
    LocationProfile[ProfileRow::StateLong][slot] = state_long;
  }

  static const std::string& Bar() { return TickerForm.Ticker.Document; }
  // The page of a message on the bar.
  static std::string BulletinPage(const std::string& text, const std::string& sound = "") {
    return TickerScrollPage(text, sound, "", "FF0000", "FFFF00", "18");
  }
  static std::string PersonalPage(const std::string& text, const std::string& font,
                                  const std::string& sound = "") {
    return TickerScrollPage(text, sound, "", "FFFF00", font, "18");
  }

  // "icon" and whether it can be clicked, as "tornados.gif on".
  static std::string State(const ImageButton& button) {
    const std::string path = button.PicturePath();
    return path.substr(path.rfind('\\') + 1) + (button.Enabled ? " on" : " off");
  }
};

}  // namespace skyloft
