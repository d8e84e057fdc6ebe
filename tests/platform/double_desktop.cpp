// The desktop: windows, boxes, shell, sound, speech, screen and process.
#include "platform/doubles.h"
#include "platform/print.h"
#include "platform/process.h"
#include "platform/shell.h"
#include "platform/sound.h"
#include "platform/speech.h"
#include "platform/tray.h"

namespace skyloft {

void SetWindowRegion(Form&, const RoundRegion& region) { Doubles.regions.push_back(region); }
void StartWindowDrag(Form&) { ++Doubles.drags; }
void ShowSystemMenu(Form& form, int x, int y) {
  Doubles.system_menus.push_back(form.Name() + " " + std::to_string(x) + " " + std::to_string(y));
}
void ActivateWindow(Form& form) {
  Doubles.activated.push_back(form.Name());
  Doubles.activated_on_top = form.TopMost();
}
void ShowModal(Form& form) {
  form.Visible = true;
  Doubles.modal_forms.push_back(form.Name());
  if (Doubles.during_modal) Doubles.during_modal();
}
void PopUpMenu(Form&, MenuItem& menu) { Doubles.menus.push_back(menu.Name()); }

BoxAnswer ShowBox(BoxKind kind, const std::string& text) {
  Doubles.boxes.emplace_back(kind, text);
  if (Doubles.answers.empty()) return BoxAnswer::Cancel;
  const BoxAnswer answer = Doubles.answers.front();
  Doubles.answers.pop_front();
  return answer;
}

void PrintPage(const std::string& path, const std::string& title) {
  Doubles.printed.emplace_back(path, title);
}

void OpenLink(const std::string& address) { Doubles.links.push_back(address); }
void StartUpdate(const std::string& path) { Doubles.started_updates.push_back(path); }

void PlaySound(const std::string& path) { Doubles.sounds.push_back(path); }
void Speak(const std::string& text) { Doubles.spoken.push_back(text); }

int DotsPerInch() { return Doubles.dots_per_inch; }
ScreenSize GetScreenSize() { return Doubles.screen; }
WorkArea GetWorkArea() { return Doubles.work_area; }
void AddToTray(TrayIcon& icon) {
  icon.Added = true;
  Doubles.tray.push_back(icon.Name());
}
SystemVersion GetSystemVersion() { return Doubles.system_version; }

std::string ApplicationPath() { return Doubles.application_path; }
void EndProcess() { throw ProcessEnded(); }

}  // namespace skyloft
