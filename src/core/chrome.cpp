#include "core/chrome.h"

#include "base/guard.h"
#include "base/values.h"
#include "feed/catalogues.h"
#include "feed/xml_readers.h"
#include "forms/forms.h"
#include "forms/setup_wizard_form.h"
#include "platform/pictures.h"
#include "settings/settings.h"
#include "setup/menu.h"

namespace skyloft {

ChromeState Chrome;

namespace {

constexpr const ImageButtonState* kButtons[] = {
    &BackButtonState,         &NextButtonState,     &PlayButtonState,     &StopButtonState,
    &ExitButtonState,         &HelpButtonState,     &MenuButtonState,     &LocalButtonState,
    &NationalButtonState,     &AreaZoomButtonState, &ZoomInButtonState,   &ZoomOutButtonState,
    &ResetButtonState,        &LegendButtonState,   &PersonalButtonState, &TornadoButtonState,
    &ThunderstormButtonState, &FloodButtonState,
};

void SetFlag(Control::Property<bool>& flag, const std::string& text) {
  if (!text.empty()) flag = text == "True";
}

// The state a button has before any product is chosen or alert has come.
void SetFirstState(const ImageButtonState& state) {
  const bool always_on = std::string(state.disabled).empty();
  const bool severe = std::string(state.pressed).empty();
  Guarded([&] {
    state(BooleanText(always_on), BooleanText(!severe), IconPath(always_on ? state.normal : state.disabled));
  });
}

void ConnectPresses(const ImageButtonState& state) {
  if (std::string(state.pressed).empty()) return;
  ImageButton& button = MainForm.*state.button;
  button.MouseDown = [&state] { state("", "", IconPath(state.pressed)); };
  button.MouseUp = [&state] { state("", "", IconPath(state.normal)); };
}

// Help is a page of the product browser.
void ShowHelp() {
  Guarded([] { ShowCategory(Catalogues.SupportCategoryIndex); });
}

// The legend goes or comes on the press already.
void ToggleLegend() {
  LegendButtonState("", "", IconPath(LegendButtonState.pressed));
  Settings.LegendFlag = Settings.LegendFlag == 0 ? 1 : 0;
  MainForm.Legend.Visible = Settings.LegendFlag == 0;
}

int Pixels(double twips) { return static_cast<int>(RoundHalfEven(Divide(twips, kTwipsPerPixel))); }

}  // namespace

void ImageButtonState::operator()(const std::string& enabled, const std::string& visible,
                                  const std::string& picture) const {
  if (!button) return;
  ImageButton& control = MainForm.*button;
  SetFlag(control.Enabled, enabled);
  SetFlag(control.Visible, visible);
  if (!picture.empty()) LoadPicture(control, picture);
}

RoundRegion CreateWindowRegion(int width, int height, double x_scale, double y_scale, int x_offset,
                               int y_offset) {
  return {.left = x_offset,
          .top = Pixels(y_scale * -2 * 15) + y_offset,
          .right = Pixels(width * x_scale * 15) + x_offset,
          .bottom = Pixels(height * y_scale * 15) + y_offset,
          .corner_width = Pixels(x_scale * 110 * 15),
          .corner_height = Pixels(y_scale * 96 * 15)};
}

void ShowAgain() {
  const bool first_run = SetupWizardForm.Visible && Settings.LocationIndexMax.empty();
  Form& form = first_run ? static_cast<Form&>(SetupWizardForm) : static_cast<Form&>(MainForm);
  form.Visible = true;
  ActivateWindow(form);
}

void ShowSevereButtons() {
  Guarded([] {
    MainForm.SevereWeatherLabel.Visible = true;
    MainForm.PersonalLabel.Visible = true;
    PersonalButtonState("", "True", "");
    TornadoButtonState("", "True", "");
    ThunderstormButtonState("", "True", "");
    FloodButtonState("", "True", "");
  });
}

void ConnectChrome() {
  MainForm.SevereWeatherLabel.Visible = false;
  MainForm.PersonalLabel.Visible = false;
  for (const ImageButtonState* state : kButtons) {
    SetFirstState(*state);
    ConnectPresses(*state);
  }
  MainForm.LegendButton.MouseDown = ToggleLegend;
  MainForm.HelpButton.Click = ShowHelp;
  MainForm.ExitButton.Click = [] { MainForm.Visible = false; };
  MainForm.MenuButton.Click = OpenMainMenu;
  MainForm.MouseDown = [](const MousePress&) { StartWindowDrag(MainForm); };
  MainForm.Unload = [] { MainForm.Visible = false; };
  MainForm.LostFocus = [] { Chrome.MainWindow.SetTopMost(false); };
}

}  // namespace skyloft
