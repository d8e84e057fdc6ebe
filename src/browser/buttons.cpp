#include "browser/buttons.h"

#include <string>

#include "feed/xml_readers.h"

namespace skyloft {

void TurnOn(const ImageButtonState& state) { state("True", "True", IconPath(state.normal)); }

void TurnOff(const ImageButtonState& state) {
  const std::string disabled = state.disabled;
  state("False", "", disabled.empty() ? "" : IconPath(disabled));
}

void TurnMapButtonsOff() {
  for (const ImageButtonState* state :
       {&LocalButtonState, &NationalButtonState, &AreaZoomButtonState, &ZoomInButtonState,
        &ZoomOutButtonState, &ResetButtonState, &LegendButtonState}) {
    TurnOff(*state);
  }
}

void ShowRadarButtons() {
  TurnOff(LocalButtonState);
  TurnOff(NationalButtonState);
  TurnOn(ZoomInButtonState);
  TurnOn(AreaZoomButtonState);
  TurnOff(ZoomOutButtonState);
  TurnOff(ResetButtonState);
  TurnOff(LegendButtonState);
}

void ShowLocalViewButtons() {
  LocalButtonState("False", "False", IconPath(LocalButtonState.disabled));
  TurnOn(NationalButtonState);
  TurnOn(ZoomInButtonState);
  TurnOff(ZoomOutButtonState);
  TurnOn(AreaZoomButtonState);
}

void ShowNationalViewButtons() {
  TurnOn(LocalButtonState);
  TurnOff(NationalButtonState);
  for (const ImageButtonState* state :
       {&ZoomInButtonState, &ZoomOutButtonState, &AreaZoomButtonState, &ResetButtonState}) {
    TurnOff(*state);
  }
}

}  // namespace skyloft
