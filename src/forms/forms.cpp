#include "forms/forms.h"

#include "forms/initializing_form.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "forms/route_scope_form.h"
#include "forms/route_scope_options_form.h"
#include "forms/setup_wizard_form.h"
#include "forms/system_font_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"

namespace skyloft {

MainFormControls MainForm;
InitializingFormControls InitializingForm;
TickerFormControls TickerForm;
SetupWizardFormControls SetupWizardForm;
SystemOptionsFormControls SystemOptionsForm;
SystemFontFormControls SystemFontForm;
MenuFormControls MenuForm;
RouteScopeFormControls RouteScopeForm;
RouteScopeOptionsFormControls RouteScopeOptionsForm;

const std::vector<Form*>& AllForms() {
  static const std::vector<Form*> forms = {&MainForm,        &InitializingForm,  &TickerForm,
                                           &SetupWizardForm, &SystemOptionsForm, &SystemFontForm,
                                           &MenuForm,        &RouteScopeForm,    &RouteScopeOptionsForm};
  return forms;
}

Control* FindControl(std::string_view name) {
  const size_t point = name.find('.');
  for (Form* form : AllForms()) {
    if (form->Name() != name.substr(0, point)) continue;
    if (point == std::string_view::npos) return form;
    for (Control* control : form->Controls()) {
      if (control->Name() == name.substr(point + 1)) return control;
    }
  }
  return nullptr;
}

std::vector<Control*> FindMembers(const std::string& array) {
  std::vector<Control*> members;
  for (Form* form : AllForms()) {
    for (Control* control : form->Controls()) {
      const std::string name = form->Name() + "." + control->Name();
      if (name.starts_with(array + "[")) members.push_back(control);
    }
  }
  return members;
}

}  // namespace skyloft
