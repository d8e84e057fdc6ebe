#include "setup/options.h"

#include "base/guard.h"
#include "core/chrome.h"
#include "core/mainform.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "settings/settings.h"
#include "setup/email_check.h"

namespace skyloft {
namespace {

SystemOptionsFormControls& form = SystemOptionsForm;

void ShowTab() {
  HideFrames();
  form.OptionsFrame[form.TabStripOptions.Selected()].Visible = true;
}

// A new address must be confirmed.
void AskForAddressAgain() {
  form.Email2Label.Enabled = true;
  form.Email2Value.Enabled = true;
  form.Email2Value.Text = "";
}

// Only at the bottom of the screen can the bar stay in the foreground, and it is at one of the two.
void TopScreenPositionClick() {
  if (form.TopScreenPosition.Checked) {
    SetOption(form.BottomScreenPosition, false);
    SetOption(form.AlwaysOnTop, false);
  } else {
    SetOption(form.BottomScreenPosition, true);
  }
}

void BottomScreenPositionClick() { SetOption(form.TopScreenPosition, !form.BottomScreenPosition.Checked); }

void AlwaysOnTopClick() {
  if (!form.AlwaysOnTop.Checked) return;
  SetOption(form.TopScreenPosition, false);
  SetOption(form.BottomScreenPosition, true);
}

void Accept() {
  if (!CheckEmailAddresses(form.Email1Value.Text, form.Email2Value.Text)) {
    form.TabStripOptions.Select(1);
    return;
  }
  TickerForm.Visible = form.ShowTicker.Checked;
  PlaceTicker();
  Chrome.TickerWindow.SetTopMost(form.AlwaysOnTop.Checked);
  SaveOptions();
  form.Visible = false;
}

}  // namespace

void HideFrames() {
  for (int i = form.OptionsFrame.kFirst; i <= form.OptionsFrame.kLast; ++i) {
    form.OptionsFrame[i].Visible = false;
  }
}

void SetOption(CheckBox& box, bool on) {
  if (box.Checked != on) box.Check(on);
}

void ConnectOptions() {
  form.TabStripOptions.Click = ShowTab;
  form.Email1Value.Change = AskForAddressAgain;
  form.TopScreenPosition.Click = TopScreenPositionClick;
  form.BottomScreenPosition.Click = BottomScreenPositionClick;
  form.AlwaysOnTop.Click = AlwaysOnTopClick;
  form.OKButton.Click = [] { Guarded(Accept); };
  form.TabStripOptions.Select(1);
}

}  // namespace skyloft
