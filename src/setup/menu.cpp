#include "setup/menu.h"

#include "core/tray.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "forms/ticker_form.h"
#include "platform/process.h"
#include "platform/window.h"
#include "settings/registry.h"

namespace skyloft {
namespace {

// The menu of the main window and of the tray: with the entries that show what is hidden.
void OpenMenu(bool main_hidden) {
  const bool ticker_hidden = !TickerForm.Visible;
  MenuForm.ShowSkyloft.Visible = main_hidden;
  MenuForm.ShowTicker.Visible = ticker_hidden;
  MenuForm.Line3.Visible = main_hidden || ticker_hidden;
  PopUpMenu(MainForm, MenuForm.Options);
}

}  // namespace

void OpenMainMenu() { OpenMenu(false); }

void OpenTrayMenu() { OpenMenu(!MainForm.Visible); }

void ExitSkyloft() {
  SaveSystem();
  RemoveTrayIcons();
  EndProcess();
}

void ConnectMenu() {
  MenuForm.ShowSkyloft.Click = [] { MainForm.Visible = true; };
  MenuForm.ExitSkyloft.Click = ExitSkyloft;
}

}  // namespace skyloft
