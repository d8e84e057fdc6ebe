#include "ticker/ticker.h"

#include "forms/main_form.h"
#include "forms/ticker_form.h"

namespace skyloft {

TickerState TickerRotation;

void TickerDisplay() { TickerForm.Ticker.Enabled = false; }

void ConnectTicker() {
  TickerForm.MouseDown = [](const MousePress& press) {
    if (press.button == MouseButton::Left) MainForm.Visible = true;
  };
}

}  // namespace skyloft
