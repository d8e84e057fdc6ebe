// The setup wizard.
#pragma once

namespace skyloft {

// Opens the wizard for a new location in slot `index`. So far it welcomes the user and can be cancelled; its
// other pages and the finish come later.
void AddLocation(int index);

// Attaches the wizard's buttons. Cancelling the first setup ends the program: there is no location to show.
void ConnectWizard();

}  // namespace skyloft
