#include "setup/wizard.h"

#include <algorithm>
#include <string>

#include "base/guard.h"
#include "forms/setup_wizard_form.h"
#include "platform/dialogs.h"
#include "platform/process.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "setup/alert_profile.h"
#include "setup/email_check.h"
#include "setup/wizard_finish.h"

namespace skyloft {

WizardState Wizard;

namespace {

enum : int {
  kWelcomePage,
  kEmailPage,
  kPlacePage,
  kVerificationPage,
  kBulletinPage,
  kPersonalPage,
  kThresholdPage,
  kPrecipitationPage,
  kTitlePage,
};
constexpr int kLowestPages[] = {kEmailPage, kPlacePage, kBulletinPage};  // by the wizard's kind

void Open(int kind, int page) {
  Wizard.WizardMode = kind;
  Wizard.CurrentFrame = page;
  ShowFrame(page);
  SetupWizardForm.Visible = true;
}

bool Refuse(const char* error) {
  ShowBox(BoxKind::Error, error);
  return false;
}

// Whether a later location's place is none of the present ones.
bool IsNewPlace() {
  const SetupWizardFormControls& form = SetupWizardForm;
  for (int slot = 0; slot <= LastLocation(); ++slot) {
    if (form.ZipCodeInput.Text.Get() == LocationProfile[ProfileRow::ZipCode][slot]) {
      return Refuse("ERROR: Duplicate zip code detected. This zip code already used as a location.");
    }
    if (form.CityInput.Text.Get() == LocationProfile[ProfileRow::City][slot] &&
        form.StateInput.Text() == LocationProfile[ProfileRow::State][slot]) {
      return Refuse("ERROR: Duplicate city detected. This city already used as a location.");
    }
  }
  return true;
}

bool FindPlace() {
  if (Wizard.WizardMode == WizardKind::Add && !IsNewPlace()) return false;
  if (Wizard.WizardMode == WizardKind::Edit) return true;
  Wizard.LocationFound = SearchLocationDatabase(Wizard.Results);
  if (Wizard.LocationFound == 1) return true;
  return Refuse("ERROR: The location you requested was not found in the Skyloft database.");
}

// Whether the page may be left; what it means for those that follow.
bool LeavePage() {
  switch (Wizard.CurrentFrame) {
    case kEmailPage:
      return CheckEmailAddresses(SetupWizardForm.EmailAddress1.Text, SetupWizardForm.EmailAddress2.Text);
    case kPlacePage: return FindPlace();
    case kVerificationPage: NamePlace(); return true;
    case kPersonalPage:
      if (!SetupWizardForm.SKLTPersonalAlert.Checked) Wizard.CurrentFrame = kPrecipitationPage;
      return true;
    default: return true;
  }
}

void NextScreen() {
  Wizard.Working = true;
  Guarded([] {
    SetupWizardFormControls& form = SetupWizardForm;
    if (Wizard.CurrentFrame == kWelcomePage) {
      Wizard.CurrentFrame = kEmailPage;
      ShowFrame(kEmailPage);
      return;
    }
    if (form.NextButton.Caption.Get() == "Done") {
      FinishWizard();
      return;
    }
    if (!LeavePage()) return;
    Wizard.CurrentFrame = std::min(Wizard.CurrentFrame + 1, int{kTitlePage});
    ShowFrame(Wizard.CurrentFrame);
    if (Wizard.CurrentFrame > kEmailPage) form.BackButton.Enabled = true;
    form.NextButton.Caption = Wizard.CurrentFrame == kTitlePage ? "Done" : "Next";
  });
  Wizard.Working = false;
}

void PreviousScreen() {
  SetupWizardFormControls& form = SetupWizardForm;
  if (Wizard.CurrentFrame == kTitlePage && !form.SKLTPersonalAlert.Checked) {
    Wizard.CurrentFrame = kThresholdPage;
  }
  const int lowest = kLowestPages[Wizard.WizardMode];
  Wizard.CurrentFrame = std::max(Wizard.CurrentFrame - 1, lowest);
  form.BackButton.Enabled = Wizard.CurrentFrame > lowest;
  ShowFrame(Wizard.CurrentFrame);
  form.NextButton.Caption = "Next";
}

void CancelWizard() {
  if (Wizard.WizardMode == WizardKind::First) EndProcess();
  SetupWizardForm.Visible = false;
}

}  // namespace

void AddLocation(int index) {
  InitializeWizard();
  Wizard.LocationFound = 0;
  if (index == 0) {
    Open(WizardKind::First, kWelcomePage);
  } else {
    Open(WizardKind::Add, kPlacePage);
  }
}

void EditLocation(int index) {
  LoadProfilePages(index);
  Wizard.EditIndex = index;
  Open(WizardKind::Edit, kBulletinPage);
}

bool IsWizardWorking() {
  if (Wizard.Working) SetupWizardForm.Visible = true;
  return Wizard.Working;
}

void ForgetLocation(int index) {
  if (Wizard.WizardMode != WizardKind::Edit || Wizard.EditIndex < index) return;
  if (Wizard.EditIndex == index) SetupWizardForm.Visible = false;
  --Wizard.EditIndex;
}

void ShowFrame(int index) {
  for (int i = 1; i < SetupWizardForm.SetupFrame.Size(); ++i) SetupWizardForm.SetupFrame[i].Visible = false;
  SetupWizardForm.SetupFrame[index].Visible = true;
}

void ConnectWizard() {
  SetupWizardForm.NextButton.Click = NextScreen;
  SetupWizardForm.BackButton.Click = PreviousScreen;
  SetupWizardForm.CancelButton.Click = CancelWizard;
  // The window's own close request is Cancel, and waits like it for the end of a finish.
  SetupWizardForm.Unload = [] { SetupWizardForm.CancelButton.Press(); };
  ConnectPlaceOptions();
  ConnectAlertProfile();
}

}  // namespace skyloft
