#include "browser/selection.h"

#include "base/guard.h"
#include "base/values.h"
#include "browser/images.h"
#include "core/chrome.h"
#include "feed/xml_readers.h"
#include "forms/main_form.h"
#include "pages/conditions.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"

namespace skyloft {

void SelectLocation() {
  Guarded([] {
    NationalButtonState("True", "True", IconPath("national.gif"));
    LocalButtonState("False", "False", IconPath("locald.gif"));
    Settings.Location = NumberText(MainForm.LocationSelection.ListIndex());
    CurrentConditions();
    ThumbnailDisplay("nexr", LowerCase(LocationProfile[ProfileRow::NEXRADLocation][SelectedLocation()]));
    SelectProduct();
  });
}

void SelectProduct() {}

void ConnectSelection() {
  MainForm.LocationSelection.Click = SelectLocation;
  MainForm.ProductSelection.Click = SelectProduct;
}

}  // namespace skyloft
