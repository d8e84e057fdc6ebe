// The wizard's pages of alerts: which bulletins a location tells, which conditions of the user's own, and
// how.
#pragma once

#include <string>

#include "forms/setup_wizard_form.h"
#include "setup/location_search.h"

namespace skyloft {

// One of the wizard's four pictures, with its files under \icons\. Calling it sets what is not empty. Its
// arguments stand in another order than those of the main window's buttons; `result` is not used.
struct WizardPictureState {
  ImageButton SetupWizardFormControls::*button;
  const char* on;
  const char* off;

  void operator()(const std::string& visible, const std::string& enabled, const std::string& picture,
                  const std::string& result) const;
};
inline constexpr WizardPictureState WizardTornadoState{&SetupWizardFormControls::TornadoButton,
                                                       "tornados.gif", "tornadod.gif"};
inline constexpr WizardPictureState WizardThunderstormState{&SetupWizardFormControls::ThunderstormButton,
                                                            "tstorms.gif", "tstormd.gif"};
inline constexpr WizardPictureState WizardFloodState{&SetupWizardFormControls::FloodButton, "floods.gif",
                                                     "floodd.gif"};
inline constexpr WizardPictureState WizardPersonalState{&SetupWizardFormControls::PersonalAlertButton,
                                                        "personals.gif", "personald.gif"};

// All pages as for a new location. The three hazards stand lit although nothing is checked, which is meant.
void InitializeWizard();

// All pages from the profile of a location, and the wizard's Results too. A threshold that is not in its list
// leaves the list on its default.
void LoadProfilePages(int index);

// The labels of the alert pages with the place of page 3.
void NamePlace();

// Clears rows 1 to 110 of a profile; row 0, the zip code, stays, which is meant.
void InitializeProfile(int index);

// The pages into a profile, and with `keep_place` 0 the place of `results`. The wish for a voice is that for
// sound: there is no box for it.
void SetProfile(int index, const PlaceResults& results, int keep_place);

// The boxes of delivery, on or off.
void NWSEnable();
void NWSDisable();
void SKLTEnable();
void SKLTDisable();

// Attaches the boxes of the pages.
void ConnectAlertProfile();

}  // namespace skyloft
