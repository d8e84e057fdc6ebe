#include "platform/qt/form_window.h"

#include <algorithm>
#include <cstdint>
#include <tuple>

#include <QCloseEvent>
#include <QCursor>
#include <QGuiApplication>
#include <QKeySequence>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>
#include <QTimer>
#include <QWindow>

#include "forms/forms.h"
#include "platform/qt/dialog_keys.h"
#include "platform/qt/focus_ring.h"
#include "platform/qt/html/html_view.h"
#include "platform/qt/key_act.h"
#include "platform/qt/scaled_pictures.h"
#include "platform/qt/skin_style.h"
#include "platform/qt/text_qt.h"
#include "platform/qt/view_maker.h"
#include "platform/qt/widgets.h"
#include "platform/qt/window_place.h"

namespace skyloft {
namespace {

constexpr std::uint32_t kInTaskbar = 0x40000;

// The bits of a form's style that the window acts on, but for the top-most band.
Qt::WindowFlags FlagsOf(const Form& form) {
  const bool titled = form.Titled();
  const bool tool = (form.ExStyle & 0x80u) != 0;
  const bool in_taskbar = (form.ExStyle & kInTaskbar) != 0;
  Qt::WindowFlags flags = tool ? Qt::Tool : in_taskbar ? Qt::Window : titled ? Qt::Dialog : Qt::Tool;
  flags |= titled ? Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint
                  : Qt::FramelessWindowHint;
  return flags;
}

bool IsSizeable(const Form& form) { return (form.Style & 0x40000u) != 0; }

QPoint PixelsOf(const Form& form) { return {form.Left / kTwipsPerPixel, form.Top / kTwipsPerPixel}; }

// A key as image buttons name theirs.
QString KeyName(const QKeyEvent& event) {
  if (IsMenuKey(event)) return "Shift+F10";
  if (event.key() == Qt::Key_Plus || event.key() == Qt::Key_Minus) return event.text();
  return QKeySequence(event.keyCombination()).toString(QKeySequence::PortableText);
}

}  // namespace

FormWindow::FormWindow(Form& form)
    : QWidget(nullptr, FlagsOf(form)), form_(form), letters_(MnemonicsOf(form)), ring_(new FocusRing(this)) {
  setObjectName(ToQt(form.Name()));
  setFixedSize(form.Width / kTwipsPerPixel, form.Height / kTwipsPerPixel);
  if (const std::string body = BodyPicture(form); !body.empty())
    body_ = ReadScaledPicture("skin:" + ToQt(body));
  if (form.Name() == "TickerForm") setAttribute(Qt::WA_ShowWithoutActivating);
  MakeViews(*this, form_.Controls());
  MakeFixedCaptions();
  if (!form.Titled()) OrderTabs();
}

void FormWindow::MakeFixedCaptions() {
  for (const FixedCaption& caption : FixedCaptions()) {
    if (form_.Name() != caption.form) continue;
    auto* label = new ClickLabel(this);
    label->setObjectName("FixedCaption");
    label->setText(caption.text);
    label->setGeometry(caption.place);
    auto* list = findChild<ListBox*>(caption.list);
    label->setBuddy(list);
    label->reached = [list] { list->showPopup(); };
    list->setAccessibleName(QString(caption.text).remove('&'));
  }
}

void FormWindow::OrderTabs() {
  const auto rank = [](const Control* control) {
    const int kind = dynamic_cast<const ListControl*>(control)   ? 0
                     : dynamic_cast<const ImageButton*>(control) ? 1
                                                                 : 2;
    return std::tuple(kind, control->Top.Get(), control->Left.Get());
  };
  std::vector<const Control*> order;
  for (const auto& [control, view] : views_) order.push_back(control);
  std::ranges::sort(order, {}, rank);
  for (size_t i = 1; i < order.size(); ++i) {
    setTabOrder(views_.at(order[i - 1]).widget, views_.at(order[i]).widget);
  }
}

void FormWindow::ShowForm() {
  setWindowTitle(ToQt(form_.Caption));
  const QSize size(form_.Width / kTwipsPerPixel, form_.Height / kTwipsPerPixel);
  if (IsSizeable(form_)) {
    setMinimumSize(0, 0);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    resize(size);
  } else {
    setFixedSize(size);
  }
  KeepInSight();
  placing_ = true;
  const bool placed = form_.Left != 0 || form_.Top != 0 || windowFlags().testFlag(Qt::FramelessWindowHint);
  // A first move counts also where it changes nothing: without one the desktop places the window.
  if (placed && (pos() != PixelsOf(form_) || !testAttribute(Qt::WA_Moved))) move(PixelsOf(form_));
  if ((windowFlags() & ~Qt::WindowStaysOnTopHint) != FlagsOf(form_)) setWindowFlags(FlagsOf(form_));
  setVisible(form_.Visible);
  PutOnTop(form_.TopMost());
  placing_ = false;
}

// Without a desktop nobody looks, and every place is kept.
void FormWindow::KeepInSight() {
  const bool watched = (form_.ExStyle & kInTaskbar) != 0 && QGuiApplication::platformName() != "offscreen";
  if (!form_.Visible || !watched) return;
  QList<ScreenPlace> screens;
  for (const QScreen* screen : QGuiApplication::screens()) {
    screens.append({screen->geometry(), screen->availableGeometry()});
  }
  const QPoint stored = PixelsOf(form_);
  const QPoint seen = PlaceInSight({stored, size()}, screens);
  if (seen == stored) return;  // to the twip
  form_.Left = seen.x() * kTwipsPerPixel;
  form_.Top = seen.y() * kTwipsPerPixel;
}

// The widget would hide its window for this, and a window that comes back takes the focus.
void FormWindow::PutOnTop(bool on) {
  if (!windowHandle() || windowFlags().testFlag(Qt::WindowStaysOnTopHint) == on) return;
  overrideWindowFlags(windowFlags().setFlag(Qt::WindowStaysOnTopHint, on));
  windowHandle()->setFlag(Qt::WindowStaysOnTopHint, on);
}

// The desktop moves the window, but X11's way to ask for that is for the left button.
void FormWindow::StartDrag() {
  held_at_.reset();
  const bool left = QGuiApplication::mouseButtons().testFlag(Qt::LeftButton);
  const bool asked = left || QGuiApplication::platformName() != "xcb";
  if (asked && windowHandle() && windowHandle()->startSystemMove()) return;
  held_at_ = QCursor::pos() - pos();
}

void FormWindow::ShowControl(const Control& control) {
  const auto view = views_.find(&control);
  if (view != views_.end()) view->second.show();
}

void FormWindow::SetRegion(const RoundRegion& region) {
  const QRectF outline(QPointF(region.left, region.top), QPointF(region.right, region.bottom));
  QPainterPath path;
  path.addRoundedRect(outline, region.corner_width / 2.0, region.corner_height / 2.0);
  setMask(QRegion(path.toFillPolygon().toPolygon()));
}

bool FormWindow::Idle() const {
  return std::all_of(pages_.begin(), pages_.end(), [](const HtmlView* page) { return page->Idle(); });
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  Raise([this] { Fire(form_.Unload); });
}

void FormWindow::mousePressEvent(QMouseEvent* event) {
  Raise([&] { form_.Press(PressOf(*event)); });
}

void FormWindow::mouseMoveEvent(QMouseEvent* event) {
  if (held_at_) move(event->globalPosition().toPoint() - *held_at_);
}

void FormWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (event->buttons() == Qt::NoButton) held_at_.reset();
  Raise([&] { form_.Release(PressOf(*event)); });
}

bool FormWindow::ActByKey(const QKeyEvent& event) {
  const std::string key = KeyName(event).toStdString();
  for (const auto& [control, view] : views_) {
    const auto* button = dynamic_cast<const ImageButton*>(control);
    if (!button || button->Key.empty() || button->Key != key || !view.widget->isVisible()) continue;
    const KeyAct act(view.widget->mapToGlobal(view.widget->rect().bottomLeft()));
    static_cast<PictureButton*>(view.widget)->click();
    return true;
  }
  if (!IsMenuKey(event) || form_.Titled()) return false;
  const KeyAct act(mapToGlobal(QPoint(0, 0)));
  Raise([this] { form_.Press({0, 0, MouseButton::Right}); });
  Raise([this] { form_.Release({0, 0, MouseButton::Right}); });
  return true;
}

// The keys of buttons, unless the control that has the focus takes them.
void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (ActByKey(*event)) return;
  if (IsEnter(*event)) {
    if (auto* button = qobject_cast<QPushButton*>(focusWidget())) return button->click();
    if (PressDefault(form_)) return;
  }
  if (event->key() == Qt::Key_Escape && PressCancel(form_)) return;
  QWidget::keyPressEvent(event);
}

void FormWindow::FocusLater(QWidget& page) {
  QTimer::singleShot(0, &page, [this, &page] {
    if (!page.isVisible() || page.isAncestorOf(focusWidget())) return;
    if (qobject_cast<QTabBar*>(focusWidget()) || FocusFirst(page))
      return;  // the arrows go on through the tabs
    for (QPushButton* button : findChildren<QPushButton*>(Qt::FindDirectChildrenOnly)) {
      if (button->isDefault()) button->setFocus();
    }
  });
}

QChar FormWindow::LetterOf(const Control& control) const {
  const auto letter = letters_.find(&control);
  return letter == letters_.end() ? QChar() : letter->second;
}

// The user moved the window: the model follows, and its place is saved with the settings.
void FormWindow::moveEvent(QMoveEvent*) {
  if (placing_ || !isVisible()) return;
  form_.Left = pos().x() * kTwipsPerPixel;
  form_.Top = pos().y() * kTwipsPerPixel;
}

void FormWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ActivationChange && !isActiveWindow())
    Raise([this] { Fire(form_.LostFocus); });
  QWidget::changeEvent(event);
}

void FormWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (form_.Name() == "TickerForm") painter.fillRect(rect(), Qt::black);
  if (body_.isNull()) {
    if (form_.Name() != "TickerForm") painter.fillRect(rect(), QColor(18, 35, 74));
  } else {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(0, 0, body_);
  }
}

}  // namespace skyloft
