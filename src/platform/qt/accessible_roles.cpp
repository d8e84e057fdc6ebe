#include "platform/qt/accessible_roles.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "platform/qt/form_window.h"
#include "platform/qt/html/html_scroller.h"
#include "platform/qt/html/html_view.h"
#include "platform/qt/widgets.h"
#include "platform/qt/zoom_view.h"

namespace skyloft {
namespace {

QAccessible::Role RoleOf(const QWidget& widget) {
  if (dynamic_cast<const FormWindow*>(&widget)) return QAccessible::Window;
  if (dynamic_cast<const HtmlView*>(&widget)) return QAccessible::WebDocument;
  if (dynamic_cast<const HtmlScroller*>(&widget)) return QAccessible::StaticText;
  if (dynamic_cast<const ZoomView*>(&widget) || dynamic_cast<const MarkDot*>(&widget))
    return QAccessible::Graphic;
  const bool only_shows = widget.focusPolicy() == Qt::NoFocus;
  return only_shows && dynamic_cast<const PictureButton*>(&widget) ? QAccessible::Graphic
                                                                   : QAccessible::NoRole;
}

// Nothing for a widget that Qt knows.
QAccessibleInterface* InterfaceOf(const QString&, QObject* object) {
  auto* widget = qobject_cast<QWidget*>(object);
  const QAccessible::Role role = widget ? RoleOf(*widget) : QAccessible::NoRole;
  return role == QAccessible::NoRole ? nullptr : new QAccessibleWidget(widget, role);
}

}  // namespace

void TellRoles() { QAccessible::installFactory(InterfaceOf); }

}  // namespace skyloft
