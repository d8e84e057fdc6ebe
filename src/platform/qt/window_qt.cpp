#include "platform/window.h"

#include <map>

#include <QCoreApplication>
#include <QCursor>
#include <QMenu>
#include <QWindow>

#include "platform/qt/display.h"
#include "platform/qt/form_window.h"
#include "platform/qt/key_act.h"
#include "platform/qt/text_qt.h"

namespace skyloft {
namespace {

// A caption as it stands: an "&" in it is no mark of a key.
QString CaptionOf(const MenuItem& entry) { return ToQt(entry.Caption).replace('&', "&&"); }

// Fills a menu with the visible entries that stand in `container`.
void FillMenu(QMenu& menu, const Form& form, const Control& container) {
  std::map<const Control*, QMenu*> submenus;
  for (Control* control : form.Controls()) {
    auto* entry = dynamic_cast<MenuItem*>(control);
    if (!entry || entry->Container() != &container || !entry->Visible) continue;
    if (entry->Separator()) {
      menu.addSeparator();
      continue;
    }
    QMenu submenu;
    FillMenu(submenu, form, *entry);
    if (!submenu.isEmpty()) {
      FillMenu(*menu.addMenu(CaptionOf(*entry)), form, *entry);
      continue;
    }
    QAction* action = menu.addAction(CaptionOf(*entry));
    action->setEnabled(entry->Enabled && entry->Click);
    action->setCheckable(entry->Checked);
    action->setChecked(entry->Checked);
    // Posted: an entry may let events go on for long, and the menu goes with them.
    QObject::connect(
        action, &QAction::triggered, &Display::Get(), [entry] { Raise([&] { entry->Press(); }); },
        Qt::QueuedConnection);
  }
}

void AddSystemEntry(QMenu& menu, FormWindow& window, const SystemMenuEntry& entry) {
  if (entry.command == 0) {
    menu.addSeparator();
    return;
  }
  static const std::map<int, std::pair<const char*, void (*)(FormWindow&)>> commands = {
      {61728, {"Restore", [](FormWindow& w) { w.showNormal(); }}},
      {61456, {"Move", [](FormWindow& w) { w.windowHandle()->startSystemMove(); }}},
      {61440,
       {"Size", [](FormWindow& w) { w.windowHandle()->startSystemResize(Qt::BottomEdge | Qt::RightEdge); }}},
      {61472, {"Minimize", [](FormWindow& w) { w.showMinimized(); }}},
      {61488, {"Maximize", [](FormWindow& w) { w.showMaximized(); }}},
      {61536, {"Close", [](FormWindow& w) { w.close(); }}},
  };
  const auto command = commands.find(entry.command | 0x8000);
  if (command == commands.end()) return;
  QAction* action = menu.addAction(command->second.first);
  action->setEnabled(entry.enabled);
  QObject::connect(action, &QAction::triggered, &window,
                   [act = command->second.second, &window] { act(window); });
}

}  // namespace

void SetWindowRegion(Form& form, const RoundRegion& region) {
  Display::Get().WindowOf(form).SetRegion(region);
}

void StartWindowDrag(Form& form) {
  if (FormWindow* window = Display::Get().MadeWindowOf(form)) window->StartDrag();
}

void ActivateWindow(Form& form) {
  Display::Get().ShowDirty();
  FormWindow& window = Display::Get().WindowOf(form);
  window.raise();
  window.activateWindow();
}

void ShowModal(Form& form) {
  Display::Get().WindowOf(form).setWindowModality(Qt::ApplicationModal);
  form.Visible = true;
  while (form.Visible) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

// The desktop's own menu of a window cannot be opened from here on every desktop; ours offers what it would.
void ShowSystemMenu(Form& form, int x, int y) {
  FormWindow* window = Display::Get().MadeWindowOf(form);
  if (!window) return;
  auto* menu = new QMenu(window);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const SystemMenuEntry& entry : form.SystemMenu) AddSystemEntry(*menu, *window, entry);
  menu->popup(window->mapToGlobal(QPoint(x, y)));
}

void PopUpMenu(Form& form, MenuItem& entries) {
  auto* menu = new QMenu(Display::Get().MadeWindowOf(form));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  FillMenu(*menu, *entries.Owner(), entries);
  menu->popup(KeyAct::Place().value_or(QCursor::pos()));
}

}  // namespace skyloft
