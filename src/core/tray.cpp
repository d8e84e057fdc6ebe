#include "core/tray.h"

#include "forms/main_form.h"

namespace skyloft {

void SystemTray() {}

void RemoveTrayIcons() {
  for (int i = 0; i < MainForm.SysTray.Size(); ++i) MainForm.SysTray[i].Added = false;
}

}  // namespace skyloft
