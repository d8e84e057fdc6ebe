#include "alerts/personal_alerts.h"

#include <functional>
#include <optional>

#include "alerts/bulletins.h"
#include "alerts/delivery.h"
#include "alerts/personal_conditions.h"
#include "base/guard.h"
#include "base/values.h"
#include "core/chrome.h"
#include "feed/forecast.h"
#include "feed/xml_readers.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "weather/time.h"

namespace skyloft {

PersonalAlertState PersonalAlertsState;

namespace {

constexpr int kLastHour = 65;
constexpr double kSecondsEach = 30;

void ShowFound() { PersonalButtonState("True", "", IconPath("personals.gif")); }
void ShowShowing() { PersonalButtonState("True", "", IconPath(PersonalButtonState.normal)); }
void ShowIdle() { PersonalButtonState("False", "", IconPath(PersonalButtonState.disabled)); }

void ClearMessage() {
  PersonalAlertsState.PersonalAlertActive = 0;
  PersonalAlertsState.PersonalAlertElapsed = 0;
  PersonalAlertsState.PersonalAlertDuration = 0;
}

// The findings of one location, as shown and as spoken.
struct LocationFindings {
  int count = 0;
  std::string display, voice;
};

// Walks the conditions of one location against its hours.
class Search {
 public:
  Search(int slot, Date now) : slot_(slot), now_(now) {}

  LocationFindings Run() {
    for (const ThresholdCondition& condition : kThresholdConditions) TestThreshold(condition);
    for (const auto& chain : kWeatherChains) TestChain(chain);
    return std::move(found_);
  }

 private:
  bool IsOn(int row) const { return IsProfileOn(row, slot_); }
  const std::string& Profile(int row) const { return LocationProfile[row][slot_]; }

  // The first hour that has not begun before now and meets the condition.
  const ForecastHourFields* FirstHour(const std::function<bool(const ForecastHourFields&)>& holds) const {
    for (int k = 0; k <= kLastHour; ++k) {
      const ForecastHourFields& hour = ForecastHour[slot_][k];
      if (ReadDate(hour.Lt) >= now_ && holds(hour)) return &hour;
    }
    return nullptr;
  }

  void Add(const ForecastHourFields& hour, const std::string& shown, const std::string& spoken) {
    found_.count += 1;
    found_.display += "..... " + Profile(ProfileRow::City) + ", " + Profile(ProfileRow::State) + shown +
                      Format(hour.Lt, "hh:mm AM/PM dddd mmm Dd yyyy") + " ..... ";
    found_.voice += spoken + Format(hour.Lt, "h AM/PM , dddd") + ". ";
  }

  void TestThreshold(const ThresholdCondition& condition) {
    if (!IsOn(condition.row)) return;
    const double threshold = LenientNumber(Profile(condition.row + 1));
    const ForecastHourFields* hour = FirstHour([&](const ForecastHourFields& fields) {
      const double value = LenientNumber(fields.*condition.field);
      return condition.at_or_above ? value >= threshold : value <= threshold;
    });
    if (!hour) return;
    const std::string& value = hour->*condition.field;
    Add(*hour, condition.label + value + condition.unit,
        condition.voice_opening + value + condition.voice_middle);
  }

  // The first condition of a chain that finds an hour ends it, however early the others' hours are.
  void TestChain(std::span<const WeatherCondition> chain) {
    for (const WeatherCondition& condition : chain) {
      if (!IsOn(condition.row)) continue;
      const ForecastHourFields* hour =
          FirstHour([&](const ForecastHourFields& fields) { return fields.Desc == condition.phrase; });
      if (!hour) continue;
      Add(*hour, condition.label, condition.voice);
      return;
    }
  }

  int slot_;
  Date now_;
  LocationFindings found_;
};

// What a run has gathered for delivery.
struct Findings {
  int count = 0;
  std::string message, mail, voice;
  bool show = false, sound = false, speak = false, send = false;
};

// Adds a location's findings. Sound, voice and mail count also where it has none, which is meant.
void Gather(int slot, const LocationFindings& found, Findings& out) {
  const auto profile = [slot](int row) { return LocationProfile[row][slot]; };
  out.count += found.count;
  if (IsProfileOn(ProfileRow::SKLTAlertMessage, slot) && !found.display.empty()) {
    out.message += " Skyloft Alert: " + found.display;
    out.show = true;
  }
  if (IsProfileOn(ProfileRow::SKLTAlertAudio, slot)) out.sound = true;
  if (IsProfileOn(ProfileRow::SKLTAlertVoice, slot)) {
    out.voice += "A Skyloft Alert has been issued for " + profile(ProfileRow::City) + " , " +
                 profile(ProfileRow::StateLong) + " , " + found.voice;
    out.speak = true;
  }
  if (IsProfileOn(ProfileRow::SKLTAlertEmail, slot)) {
    out.mail += found.display + "\r\n";
    out.send = true;
  }
  PersonalAlertsState.PersonalAlertText += found.display;
}

// The time that the message is to stay is set even when a bulletin keeps the bar, which is meant.
void Tell(const Findings& findings) {
  ShowFound();
  if (Bulletins.NWSAlertActive == 0 && findings.show) {
    PersonalAlertsState.PersonalAlertActive = 1;
    TakeBar(findings.message, kPersonalLook, findings.sound ? Warning::Sounding : Warning::Silent);
    ShowShowing();
  }
  if (findings.speak) SpeakAlert(findings.voice);
  if (findings.send) Email(findings.mail);
  PersonalAlertsState.PersonalAlertElapsed = 0;
  PersonalAlertsState.PersonalAlertDuration = kSecondsEach * findings.count;
}

void GoIdle() {
  if (Bulletins.NWSAlertActive == 0) HideUnwantedTicker();
  ShowIdle();
  ClearMessage();
}

// A message run again after one has ended stays for a single tick, since no time is left to it: this is
// meant.
void ClickButton() {
  if (Bulletins.NWSAlertActive == 1) return;
  PersonalAlertState& alert = PersonalAlertsState;
  if (alert.PersonalAlertActive == 1) {
    ClearMessage();
    LeaveBar();
    ShowFound();
  } else {
    alert.PersonalAlertActive = 1;
    alert.PersonalAlertElapsed = 0;
    TakeBar(alert.PersonalAlertText, kPersonalReplayLook, Warning::Silent);
    ShowShowing();
  }
}

}  // namespace

bool IsAlertShowing() {
  return Bulletins.NWSAlertActive == 1 || PersonalAlertsState.PersonalAlertActive == 1;
}

void PersonalAlerts() {
  Guarded([] {
    PersonalAlertsState.PersonalAlertText = "Skyloft Alert: ";
    Findings findings;
    for (int slot = 0; slot <= LastLocation(); ++slot) {
      if (!IsProfileOn(ProfileRow::SKLTPersonalAlert, slot)) continue;
      // All locations go by the clock of the selected one, which is meant.
      const Date now = LocationTime(SelectedLocation());
      Gather(slot, Search(slot, now).Run(), findings);
    }
    if (findings.count > 0) {
      Tell(findings);
    } else {
      GoIdle();
    }
  });
}

void EndPersonalAlert() {
  ClearMessage();
  HideUnwantedTicker();
  ShowFound();
}

void ConnectPersonalAlerts() { MainForm.PersonalAlertButton.Click = ClickButton; }

}  // namespace skyloft
