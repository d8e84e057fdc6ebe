// The setup wizard: nine pages that make a location or change one.
#pragma once

#include "setup/location_search.h"

namespace skyloft {

namespace WizardKind {
enum : int { First = 0, Add = 1, Edit = 2 };
}  // namespace WizardKind

struct WizardState {
  int CurrentFrame = 0;  // the page on show, 0 to 8
  int WizardMode = WizardKind::First;
  int EditIndex = 0;      // the slot that is edited
  int LocationFound = 0;  // 1 after a successful search; only a new location clears it, which is meant
  bool Working = false;   // whether Next is at work: it may wait for the server
  PlaceResults Results;   // the place found, or that of the location that is edited
};
extern WizardState Wizard;

// Opens the wizard for a new location in slot `index`: the first from the welcome on, a later one from the
// place on.
void AddLocation(int index);

// Opens it for the location in slot `index`, from its bulletins on.
void EditLocation(int index);

// Whether the wizard is at work and the locations must stay as they are until it is done; it shows itself
// then.
bool IsWizardWorking();

// Tells the wizard that the location in slot `index` is gone and that those behind it have moved up: an edit
// follows its own location, and ends without a change when that is the one.
void ForgetLocation(int index);

// Shows a page. The welcome is never hidden: the others cover it.
void ShowFrame(int index);

// Attaches the buttons. Next checks the page and goes on, or finishes on the last; Back goes as far as the
// wizard's kind allows; cancelling the first setup ends the program, since there is no location to show.
void ConnectWizard();

}  // namespace skyloft
