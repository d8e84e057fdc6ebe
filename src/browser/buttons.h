// The two states that the browser gives to an image button, and the sets of buttons that go together.
#pragma once

#include "core/chrome.h"

namespace skyloft {

// Enabled and visible, with its plain picture.
void TurnOn(const ImageButtonState& state);
// Disabled, with its disabled picture if it has one; visible or not as it was.
void TurnOff(const ImageButtonState& state);

void TurnMapButtonsOff();

// A radar picture: zooming in, and nothing else of the map.
void ShowRadarButtons();

// A map picture in the local or the national view.
void ShowLocalViewButtons();
void ShowNationalViewButtons();

}  // namespace skyloft
