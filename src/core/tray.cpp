#include "core/tray.h"

#include "base/guard.h"
#include "base/values.h"
#include "core/chrome.h"
#include "feed/observations.h"
#include "feed/xml_readers.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "platform/tray.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "setup/menu.h"

namespace skyloft {
namespace {

// The file of icon 0, "" for none, and that of icon 1, by the case that the number falls into.
struct TemperatureIcons {
  std::string sign, number;
};
TemperatureIcons IconsOf(const std::string& temperature) {
  const double value = LenientNumber(temperature);
  if (value < 0) return {"-.ico", temperature + ".ico"};
  if (value > 99) return {"1.ico", std::string(RightText(temperature, 2)) + ".ico"};
  return {"", temperature + ".ico"};
}

void ShowFromTray() {
  Chrome.MainWindow.SetTopMost(true);
  MainForm.Visible = true;
  ActivateWindow(MainForm);
  Chrome.MainWindow.SetTopMost(false);
  // The ticker had the main window above it for a moment.
  if (SystemOptionsForm.AlwaysOnTop.Checked) Chrome.TickerWindow.SetTopMost(true);
}

}  // namespace

void SystemTray() {
  Guarded([] {
    const SystemVersion system = GetSystemVersion();
    RemoveTrayIcons();
    const int slot = WholeNumber(Settings.TrayLocationIndex);
    const std::string& temperature = ObservationRecord.Tf[slot];
    const TemperatureIcons files = IconsOf(temperature);
    auto& icons = MainForm.SysTray;
    const int first = files.sign.empty() ? 1 : 0;
    if (first == 0) LoadIcon(icons[0], IconPath(files.sign));
    LoadIcon(icons[1], IconPath(files.number));
    LoadIcon(icons[2], IconPath("F.ico"));
    const bool descending = system.platform >= 2 && system.version > 5;
    for (int i = first; i <= 2; ++i) AddToTray(icons[descending ? 2 + first - i : i]);
    const std::string tip = LocationProfile[ProfileRow::Title][slot] + " " + temperature + " F " +
                            UpperCase(ObservationRecord.Desc[slot]);
    for (int i = 0; i <= 2; ++i) icons[i].ToolTip = tip;
  });
}

void RemoveTrayIcons() {
  for (int i = 0; i < MainForm.SysTray.Size(); ++i) MainForm.SysTray[i].Added = false;
}

void ConnectTray() {
  for (int i = 0; i < MainForm.SysTray.Size(); ++i) {
    MainForm.SysTray[i].Click = ShowFromTray;
    MainForm.SysTray[i].SecondaryClick = OpenTrayMenu;
  }
}

}  // namespace skyloft
