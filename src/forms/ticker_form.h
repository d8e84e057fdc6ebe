// The bar at the edge of the screen.
#pragma once

#include "platform/controls.h"

namespace skyloft {

struct TickerFormControls : Form {
  TickerFormControls() : Form("TickerForm", "Skyloft Ticker", Border::None) {
    ExStyle = 0x80;  // a tool window
    Sponsor4.Visible = false;
  }

  HtmlDisplay Sponsor4{this, "Sponsor4"};
  HtmlDisplay Ticker{this, "Ticker"};
};

extern TickerFormControls TickerForm;

}  // namespace skyloft
