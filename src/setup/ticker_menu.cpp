#include "setup/ticker_menu.h"

#include "core/chrome.h"
#include "core/mainform.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "platform/window.h"
#include "settings/registry.h"
#include "settings/settings.h"
#include "setup/options.h"

namespace skyloft {
namespace {

constexpr const char* kToTop = "Top Screen Position";
constexpr const char* kToBottom = "Bottom Screen Position";

SystemOptionsFormControls& options = SystemOptionsForm;

// The pages of the bar: an entry and its option.
constexpr struct {
  MenuItem MenuFormControls::*entry;
  CheckBox SystemOptionsFormControls::*option;
} kPages[] = {
    {&MenuFormControls::ShowCurrentConditions, &SystemOptionsFormControls::ShowCurrentConditions},
    {&MenuFormControls::ShowHourlyForecast, &SystemOptionsFormControls::ShowHourlyForecast},
    {&MenuFormControls::Show3DayForecast, &SystemOptionsFormControls::Show3DayForecast},
    {&MenuFormControls::ShowAlmanac, &SystemOptionsFormControls::ShowAlmanac},
};

void ShowBar(bool on) {
  TickerForm.Visible = on;
  options.ShowTicker.Checked = on;
  SaveOption(options.ShowTicker);
}

void SetForeground(bool on) {
  MenuForm.AlwaysOnTop.Checked = on;
  SetOption(options.AlwaysOnTop, on);
  Chrome.TickerWindow.SetTopMost(on);
}

// The caption tells where to. Only at the bottom can the bar stay in the foreground; coming back there does
// not put it there again.
void MoveBar() {
  const bool to_top = MenuForm.ScreenPosition.Caption.Get() == kToTop;
  MenuForm.ScreenPosition.Caption = to_top ? kToBottom : kToTop;
  if (to_top) SetForeground(false);
  SetOption(options.TopScreenPosition, to_top);
  SetOption(options.BottomScreenPosition, !to_top);
  PlaceTicker();
  const SavedTogether together;
  for (const CheckBox* box :
       {&options.TopScreenPosition, &options.BottomScreenPosition, &options.AlwaysOnTop})
    SaveOption(*box);
}

void ToggleForeground() {
  if (options.BottomScreenPosition.Checked) SetForeground(!options.AlwaysOnTop.Checked);
  SaveOption(options.AlwaysOnTop);
}

void TogglePage(MenuItem& entry, CheckBox& option) {
  option.Checked = !option.Checked;
  entry.Checked = option.Checked.Get();
  SaveOption(option);
}

}  // namespace

void OpenTickerMenu() {
  MenuForm.ShowSkyloft2.Visible = !MainForm.Visible;
  MenuForm.ScreenPosition.Caption = options.TopScreenPosition.Checked ? kToBottom : kToTop;
  MenuForm.AlwaysOnTop.Checked = options.AlwaysOnTop.Checked.Get();
  for (const auto& page : kPages) (MenuForm.*page.entry).Checked = (options.*page.option).Checked.Get();
  PopUpMenu(TickerForm, MenuForm.Ticker);
}

void ConnectTickerMenu() {
  MenuForm.ShowTicker.Click = [] { ShowBar(true); };
  MenuForm.HideTicker.Click = [] { ShowBar(false); };
  MenuForm.ScreenPosition.Click = MoveBar;
  MenuForm.AlwaysOnTop.Click = ToggleForeground;
  for (const auto& page : kPages) {
    (MenuForm.*page.entry).Click = [page] { TogglePage(MenuForm.*page.entry, options.*page.option); };
  }
}

}  // namespace skyloft
