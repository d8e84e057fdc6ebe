#include "alerts/bulletins.h"

#include "alerts/delivery.h"
#include "alerts/personal_alerts.h"
#include "base/guard.h"
#include "base/values.h"
#include "core/chrome.h"
#include "feed/hosts.h"
#include "feed/transport.h"
#include "feed/xml_readers.h"
#include "forms/system_options_form.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "ticker/messages.h"
#include "weather/time.h"

namespace skyloft {

BulletinState Bulletins;

namespace {

constexpr double kSecondsEach = 120;

// One of the three buttons, with what it runs again.
struct SevereButton {
  const ImageButtonState&
      state;  // its pictures: normal while its message is on the bar, disabled without any
  const char* waiting;
  std::string BulletinState::*text;
  double BulletinState::*duration;

  const std::string& Text() const { return Bulletins.*text; }
  void ShowWaiting() const { state("True", "", IconPath(waiting)); }
  void ShowShowing() const { state("True", "", IconPath(state.normal)); }
  void ShowIdle() const { state("False", "", IconPath(state.disabled)); }
};
constexpr SevereButton kTornado{TornadoButtonState, "tornados.gif", &BulletinState::TornadoAlertText,
                                &BulletinState::TornadoAlertDuration};
constexpr SevereButton kThunderstorm{ThunderstormButtonState, "tstorms.gif",
                                     &BulletinState::ThunderstormAlertText,
                                     &BulletinState::ThunderstormAlertDuration};
constexpr SevereButton kFlood{FloodButtonState, "floods.gif", &BulletinState::FloodAlertText,
                              &BulletinState::FloodAlertDuration};
constexpr const SevereButton* kButtons[] = {&kTornado, &kThunderstorm, &kFlood};

// The bulletins that count. A watch is worded here, by its name and its danger; a warning, which has no
// danger here, by the feed.
struct BulletinKind {
  const char* type;
  int gate;  // row of the profile
  const SevereButton& button;
  const char* name;
  const char* danger;
};
constexpr BulletinKind kKinds[] = {
    {"TOR", ProfileRow::TornadoWarning, kTornado, "Tornado Warning", nullptr},
    {"SVR", ProfileRow::SevereThunderstormWarning, kThunderstorm, "Severe Thunderstorm Warning", nullptr},
    {"FFW", ProfileRow::FlashFloodWarning, kFlood, "Flash Flood Warning", nullptr},
    {"WTO", ProfileRow::TornadoWatch, kTornado, "TORNADO WATCH", "TORNADOES"},
    {"WSV", ProfileRow::SevereThunderstormWatch, kThunderstorm, "SEVERE THUNDERSTORM WATCH",
     "SEVERE THUNDERSTORMS"},
    {"FFA", ProfileRow::FlashFloodWatch, kFlood, "FLASH FLOOD WATCH", "FLASH FLOODING"},
};

const std::string& Profile(int row, int slot) { return LocationProfile[row][slot]; }

bool WantsAny(int slot) {
  for (const BulletinKind& kind : kKinds) {
    if (IsProfileOn(kind.gate, slot)) return true;
  }
  return false;
}

// Behind the first location comes "&", also where the first one takes no part: this is meant.
std::string CodeList() {
  std::string codes;
  for (int slot = 0; slot <= LastLocation(); ++slot) {
    if (WantsAny(slot)) codes += (slot == 0 ? "pc=" : "&pc=") + Profile(ProfileRow::ZipCode, slot);
  }
  return codes;
}

const BulletinKind* FindKind(const std::string& type) {
  for (const BulletinKind& kind : kKinds) {
    if (kind.type == type) return &kind;
  }
  return nullptr;
}

// The first location with a code; the slot behind the last where there is none.
int FindLocation(const std::string& code) {
  int slot = 0;
  while (slot <= LastLocation() && Profile(ProfileRow::ZipCode, slot) != code) ++slot;
  return slot;
}

std::string WatchText(const BulletinKind& kind, int slot, const std::string& until) {
  return std::string("THE NATIONAL WEATHER SERVICE HAS ISSUED A ") + kind.name + " WHICH INCLUDES " +
         UpperCase(Profile(ProfileRow::County, slot)) + " COUNTY, " +
         UpperCase(Profile(ProfileRow::StateLong, slot)) + ", EFFECTIVE UNTIL " + until + ". A " + kind.name +
         " MEANS THAT CONDITIONS ARE FAVORABLE FOR THE DEVELOPMENT OF " + kind.danger +
         " IN AND CLOSE TO THE WATCH AREA. PLEASE STAY TUNED FOR FURTHER DEVELOPMENTS.     ";
}

std::string SpokenWarning(const BulletinKind& kind, int slot, const std::string& until) {
  return std::string("The National Weather Service has issued a ") + kind.name + " for " +
         Profile(ProfileRow::County, slot) + " County , in " + Profile(ProfileRow::StateLong, slot) +
         " , effective until " + until + ", ";
}

// What a check has gathered for delivery.
struct Findings {
  std::string message, mail, voice;
  bool show = false, sound = false, speak = false, send = false;
};

void Gather(const BulletinKind& kind, int slot, const std::string& expiry, const std::string& feed_text,
            Findings& out) {
  kind.button.ShowWaiting();
  int dst = 0;
  const std::string until = Format(GMTtoLT(expiry, dst), "h:nn AM/PM dddd");
  const std::string text = kind.danger ? WatchText(kind, slot, until) : feed_text;
  Bulletins.*kind.button.text += text;
  Bulletins.*kind.button.duration += kSecondsEach;
  if (IsProfileOn(ProfileRow::NWSAlertMessage, slot)) {
    out.message += text;
    out.mail += text + "\r\n";
    Bulletins.NWSAlertDuration += kSecondsEach;
    out.show = true;
  }
  if (IsProfileOn(ProfileRow::NWSAlertAudio, slot)) out.sound = true;
  if (IsProfileOn(ProfileRow::NWSAlertVoice, slot)) {
    out.speak = true;
    out.voice += kind.danger ? text : SpokenWarning(kind, slot, until);
  }
  if (IsProfileOn(ProfileRow::NWSAlertEmail, slot)) out.send = true;
}

void ReadBulletins(const XmlDocument& reply, Findings& out) {
  const int bulletins = reply.Count("Text");
  TextList codes(bulletins), types(bulletins), expiries(bulletins), texts(bulletins);
  const std::pair<const char*, TextList*> tags[] = {
      {"pc", &codes}, {"Type", &types}, {"ET", &expiries}, {"Text", &texts}};
  int count = -1;
  for (const auto& [tag, list] : tags) ReadXmlList(reply, tag, *list, count);
  for (int n = 0; n <= count; ++n) {
    const int slot = FindLocation(codes[n]);
    const BulletinKind* kind = FindKind(types[n]);
    if (kind && IsProfileOn(kind->gate, slot)) Gather(*kind, slot, expiries[n], texts[n], out);
  }
}

void ClearBuckets() {
  for (const SevereButton* button : kButtons) {
    (Bulletins.*button->text).clear();
    Bulletins.*button->duration = 0;
  }
}

void ClearMessage() {
  Bulletins.NWSAlertActive = 0;
  Bulletins.NWSAlertElapsed = 0;
  Bulletins.NWSAlertDuration = 0;
}

// A text other than the last is told whole, whatever of it is new.
void Tell(const Findings& findings) {
  Bulletins.NWSLastText = findings.message;
  if (findings.show) {
    Bulletins.NWSAlertActive = 1;
    TakeBar(UpperCase(findings.message), kBulletinLook, findings.sound ? Warning::Sounding : Warning::Silent);
    for (const SevereButton* button : kButtons) {
      if (!button->Text().empty()) button->ShowShowing();
    }
  }
  if (findings.speak) SpeakAlert(findings.voice);
  if (findings.send) Email(findings.mail);
  Bulletins.NWSAlertElapsed = 0;
}

void GoIdle() {
  if (PersonalAlertsState.PersonalAlertActive == 0) HideUnwantedTicker();
  for (const SevereButton* button : kButtons) {
    if (button->Text().empty()) button->ShowIdle();
  }
  ClearMessage();
}

// Only the clicked button waits then; the others stay as they are, which is meant.
void ClickButton(const SevereButton& button) {
  if (Bulletins.NWSAlertActive == 1) {
    ClearMessage();
    LeaveBar();
    button.ShowWaiting();
  } else {
    Bulletins.NWSAlertActive = 1;
    Bulletins.NWSAlertElapsed = 0;
    Bulletins.NWSAlertDuration = Bulletins.*button.duration;
    TakeBar(button.Text(), kBulletinLook, Warning::Silent);
    button.ShowShowing();
  }
}

}  // namespace

void NWSAlerts() {
  Guarded([] {
    const std::string codes = CodeList();
    if (codes.empty()) return;
    QueryServer(HostTable.forecastserver + "bulletins.asp?" + codes + "&t=xml", [](const XmlDocument& reply) {
      ClearBuckets();
      Bulletins.NWSAlertDuration = 0;
      Findings findings;
      ReadBulletins(reply, findings);
      if (findings.message != Bulletins.NWSLastText) {
        Tell(findings);
      } else if (Bulletins.NWSAlertActive == 0) {
        GoIdle();
      }
    });
  });
}

void EndBulletin() {
  ClearMessage();
  HideUnwantedTicker();
  for (const SevereButton* button : kButtons) {
    if (button->Text().empty()) {
      button->ShowIdle();
    } else {
      button->ShowWaiting();
    }
  }
  FindAlertMessage();
}

void ConnectBulletins() {
  for (const SevereButton* button : kButtons) {
    (MainForm.*button->state.button).Click = [button] { ClickButton(*button); };
  }
}

}  // namespace skyloft
