// The end of the wizard.
#pragma once

namespace skyloft {

// Stores what the pages say and fetches everything for a new location; each step is told in the status line
// and fails by itself, so that a location is stored without data rather than not at all. The wizard's buttons
// stay off until it is opened again.
void FinishWizard();

}  // namespace skyloft
