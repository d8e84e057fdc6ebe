#include "setup/menu.h"

#include "core/tray.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "forms/ticker_form.h"
#include "platform/process.h"
#include "platform/window.h"
#include "settings/registry.h"

namespace skyloft {

void OpenMainMenu() {
  const bool ticker_hidden = !TickerForm.Visible;
  MenuForm.ShowSkyloft.Visible = false;
  MenuForm.ShowTicker.Visible = ticker_hidden;
  MenuForm.Line3.Visible = ticker_hidden;
  PopUpMenu(MainForm, MenuForm.Options);
}

void ExitSkyloft() {
  SaveSystem();
  RemoveTrayIcons();
  EndProcess();
}

void ConnectMenu() { MenuForm.ExitSkyloft.Click = ExitSkyloft; }

}  // namespace skyloft
