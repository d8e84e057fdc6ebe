#include "setup/wizard.h"

#include "forms/setup_wizard_form.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

class Wizard : public Station {};

TEST_F(Wizard, TheFirstLocationBeginsOnTheWelcomePage) {
  AddLocation(0);
  EXPECT_TRUE(SetupWizardForm.Visible);
  for (int i = 0; i < 9; ++i) EXPECT_EQ(SetupWizardForm.SetupFrame[i].Visible, i == 0) << i;
}

TEST_F(Wizard, CancellingTheFirstSetupEndsTheProgramWithoutSaving) {
  for (auto* act : {&SetupWizardForm.CancelButton.Click, &SetupWizardForm.Unload}) {
    AddLocation(0);
    EXPECT_TRUE(EndsProcess([&] { (*act)(); }));
    EXPECT_TRUE(Doubles.store.empty());
  }
}

TEST_F(Wizard, CancellingALaterOneOnlyHidesIt) {
  SetUpLocations(1);
  for (auto* act : {&SetupWizardForm.CancelButton.Click, &SetupWizardForm.Unload}) {
    AddLocation(1);
    EXPECT_FALSE(EndsProcess([&] { (*act)(); }));
    EXPECT_FALSE(SetupWizardForm.Visible);
  }
}

}  // namespace
}  // namespace skyloft
