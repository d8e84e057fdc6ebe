#include "setup/wizard.h"

#include "forms/setup_wizard_form.h"
#include "platform/process.h"
#include "settings/settings.h"

namespace skyloft {
namespace {

void CancelWizard() {
  if (Settings.LocationIndexMax.empty()) EndProcess();
  SetupWizardForm.Visible = false;
}

}  // namespace

void AddLocation(int index) {
  const int page = index == 0 ? 0 : 2;
  for (int i = 0; i < SetupWizardForm.SetupFrame.Size(); ++i)
    SetupWizardForm.SetupFrame[i].Visible = i == page;
  SetupWizardForm.NextButton.Enabled = false;
  SetupWizardForm.Status.Caption = "";
  SetupWizardForm.Visible = true;
}

void ConnectWizard() {
  SetupWizardForm.CancelButton.Click = CancelWizard;
  SetupWizardForm.Unload = CancelWizard;
}

}  // namespace skyloft
