#include "platform/window.h"

#include <map>

#include <QCursor>
#include <QMenu>
#include <QWindow>

#include "platform/qt/display.h"
#include "platform/qt/form_window.h"
#include "platform/qt/text_qt.h"

namespace skyloft {
namespace {

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
      FillMenu(*menu.addMenu(ToQt(entry->Caption)), form, *entry);
      continue;
    }
    QAction* action = menu.addAction(ToQt(entry->Caption));
    action->setEnabled(entry->Enabled && entry->Click);
    action->setCheckable(entry->Checked);
    action->setChecked(entry->Checked);
    QObject::connect(action, &QAction::triggered, action, [entry] { Raise([&] { entry->Press(); }); });
  }
}

}  // namespace

void SetWindowRegion(Form& form, const RoundRegion& region) {
  Display::Get().WindowOf(form).SetRegion(region);
}

void StartWindowDrag(Form& form) {
  FormWindow* window = Display::Get().MadeWindowOf(form);
  if (window && window->windowHandle()) window->windowHandle()->startSystemMove();
}

void PopUpMenu(Form& form, MenuItem& entries) {
  auto* menu = new QMenu(Display::Get().MadeWindowOf(form));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  FillMenu(*menu, *entries.Owner(), entries);
  menu->popup(QCursor::pos());
}

}  // namespace skyloft
