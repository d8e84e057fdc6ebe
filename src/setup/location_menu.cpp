#include "setup/location_menu.h"

#include <string>

#include "base/values.h"
#include "core/tray.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "platform/dialogs.h"
#include "settings/location_profiles.h"
#include "settings/registry.h"
#include "settings/settings.h"
#include "setup/wizard.h"

namespace skyloft {
namespace {

void Add() {
  if (IsWizardWorking()) return;
  const int next = LastLocation() + 1;
  if (next >= kLocationSlots) {
    ShowBox(BoxKind::Error, "ERROR: The maximum number of locations is 5.");
    return;
  }
  AddLocation(next);
}

void Edit(int index) {
  if (!IsWizardWorking()) EditLocation(index);
}

// The data file is written before the store: an end between the two leaves a file too short for the old
// locations, which is then fetched anew, and never one that is read for the wrong ones.
void Remove(int index) {
  const SavedTogether together;
  const int last = LastLocation();
  RemoveLocationEntry(index, last);
  ForgetLocation(index);
  MainForm.LocationSelection.RemoveItem(index);
  Settings.LocationIndexMax = NumberText(last - 1);
  MainForm.LocationSelection.Select(index == last ? index - 1 : index);
  const int tray = WholeNumber(Settings.TrayLocationIndex);
  // Of the first location too, which leaves the tray without one. This is meant.
  if (tray >= index) Settings.TrayLocationIndex = NumberText(tray - 1);
  SystemTray();
  SaveSystem();
}

void Delete(int index) {
  if (IsWizardWorking()) return;
  if (LastLocation() == 0) {
    ShowBox(BoxKind::Error, "ERROR: Skyloft requires at least 1 location!");
    return;
  }
  const BoxAnswer answer = ShowBox(BoxKind::Question, "WARNING: This will delete " +
                                                          MenuForm.DeleteLocationTitle[index].Caption.Get() +
                                                          " from your location profile! Are you sure?");
  if (answer == BoxAnswer::Yes) Remove(index);
}

void SetTrayLocation(int index) {
  Settings.TrayLocationIndex = NumberText(index);
  CheckTrayLocation();
  SystemTray();
  SaveTrayLocation();
}

}  // namespace

void ConnectLocationMenu() {
  MenuForm.AddLocation.Click = Add;
  for (int i = 0; i < MenuForm.DeleteLocationTitle.Size(); ++i) {
    MenuForm.DeleteLocationTitle[i].Click = [i] { Delete(i); };
    MenuForm.EditLocationTitle[i].Click = [i] { Edit(i); };
    MenuForm.TrayLocationTitle[i].Click = [i] { SetTrayLocation(i); };
  }
}

}  // namespace skyloft
