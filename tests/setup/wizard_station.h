// What the tests of the wizard have in common: a server that knows one town, and hands for the pages.
#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "feed/hosts.h"
#include "forms/setup_wizard_form.h"
#include "settings/location_profiles.h"
#include "setup/wizard.h"
#include "station.h"

namespace skyloft {

inline std::string LawrenceReply() {
  return Reply(Element("postal_code", "66044") + Element("city", "Lawrence") + Element("state", "KS") +
               Element("county", "Douglas") + Element("area_code", "785") + Element("gmt_offset", "-6") +
               Element("latitude", "38.9717") + Element("longitude", "-95.2353") +
               Element("nws_office", "TOP") + Element("radar_station_code", "TWX") +
               Element("radar_station_lat", "38.997") + Element("radar_station_long", "-96.232") +
               Element("nws_radar_server", "radar.skyloft.example") + Element("state_long", "Kansas") +
               Element("dst_ind", "1"));
}

// Next from the wizard's page to another one behind it.
inline void WalkTo(int page) {
  for (int steps = 0; Wizard.CurrentFrame < page; ++steps) {
    ASSERT_LT(steps, 8) << "the wizard stays on page " << Wizard.CurrentFrame;
    SetupWizardForm.NextButton.Press();
  }
}

class WizardStation : public Station {
 protected:
  WizardStation() { Doubles.Reply("location_setup.asp", LawrenceReply()); }

  // The page that covers the others.
  static int Page() {
    int page = 0;
    for (int i = 1; i < 9; ++i) {
      if (SetupWizardForm.SetupFrame[i].Visible) page = i;
    }
    EXPECT_EQ(Wizard.CurrentFrame, page);
    return page;
  }
  static void Next() { SetupWizardForm.NextButton.Press(); }
  static void Back() { SetupWizardForm.BackButton.Press(); }
  static void CheckPersonalAlerts(bool on) { SetupWizardForm.SKLTPersonalAlert.Check(on); }
  static void EnterAddresses(const std::string& first, const std::string& second) {
    SetupWizardForm.EmailAddress1.Enter(first);
    SetupWizardForm.EmailAddress2.Enter(second);
  }
  static void SelectState(const std::string& state) {
    const auto& states = SetupWizardForm.StateInput.Items();
    SetupWizardForm.StateInput.Select(static_cast<int>(std::ranges::find(states, state) - states.begin()));
  }
  static void Place(int slot, const std::string& city, const std::string& state) {
    LocationProfile[ProfileRow::City][slot] = city;
    LocationProfile[ProfileRow::State][slot] = state;
  }
  // A first setup that has come to a page; `found` whether the place is typed that the server knows.
  static void BeginAt(int page, bool found = true) {
    AddLocation(0);
    EnterAddresses("a@b.example", "a@b.example");
    SetupWizardForm.ZipCodeInput.Text = found ? "66044" : "00000";
    WalkTo(page);
  }
  static std::vector<std::pair<BoxKind, std::string>> Errors(const std::vector<std::string>& texts) {
    std::vector<std::pair<BoxKind, std::string>> boxes;
    for (const std::string& text : texts) boxes.emplace_back(BoxKind::Error, text);
    return boxes;
  }
};

}  // namespace skyloft
