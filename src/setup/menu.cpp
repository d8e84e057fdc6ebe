#include "setup/menu.h"

#include "core/tray.h"
#include "feed/catalogues.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "platform/dialogs.h"
#include "platform/process.h"
#include "platform/window.h"
#include "settings/registry.h"
#include "setup/location_menu.h"
#include "setup/ticker_menu.h"

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

void ShowSystemOptions() {
  SystemOptionsForm.TabStripOptions.Select(1);
  SystemOptionsForm.Visible = true;
}

}  // namespace

void OpenMainMenu() { OpenMenu(false); }

void OpenTrayMenu() { OpenMenu(!MainForm.Visible); }

void ShowCategory(int index) {
  MainForm.CategorySelection.Select(index);
  MainForm.Visible = true;
}

void ExitSkyloft() {
  SaveSystem();
  RemoveTrayIcons();
  EndProcess();
}

void ExitProgram() {
  const BoxAnswer answer = ShowBox(BoxKind::Question, "WARNING: This will disable Skyloft! Are you sure?");
  if (answer == BoxAnswer::Yes) ExitSkyloft();
}

void ConnectMenu() {
  MenuForm.SystemSettings.Click = ShowSystemOptions;
  MenuForm.Share.Click = [] { ShowCategory(Catalogues.ShareCategoryIndex); };
  MenuForm.TechnicalSupport.Click = [] { ShowCategory(Catalogues.SupportCategoryIndex); };
  MenuForm.MonthlyNewsletter.Click = [] { ShowCategory(Catalogues.NewsletterCategoryIndex); };
  for (MenuItem* entry : {&MenuForm.ShowSkyloft, &MenuForm.ShowSkyloft2}) {
    entry->Click = [] { MainForm.Visible = true; };
  }
  MenuForm.ExitSkyloft.Click = ExitSkyloft;
  ConnectLocationMenu();
  ConnectTickerMenu();
}

}  // namespace skyloft
