#include "platform/qt/form_window.h"

#include <QCloseEvent>
#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QTimer>
#include <QWindow>

#include "forms/forms.h"
#include "platform/qt/dialog_keys.h"
#include "platform/qt/html/html_view.h"
#include "platform/qt/scaled_pictures.h"
#include "platform/qt/skin_style.h"
#include "platform/qt/text_qt.h"
#include "platform/qt/view_maker.h"
#include "platform/qt/widgets.h"

namespace skyloft {
namespace {

bool IsDialog(const Form& form) { return (form.Style & 0xC00000u) != 0; }

// The bits of a form's style that the window acts on, but for the top-most band.
Qt::WindowFlags FlagsOf(const Form& form) {
  const bool titled = IsDialog(form);
  const bool tool = (form.ExStyle & 0x80u) != 0;
  const bool in_taskbar = (form.ExStyle & 0x40000u) != 0;
  Qt::WindowFlags flags = tool ? Qt::Tool : in_taskbar ? Qt::Window : titled ? Qt::Dialog : Qt::Tool;
  flags |= titled ? Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint
                  : Qt::FramelessWindowHint;
  return flags;
}

bool IsSizeable(const Form& form) { return (form.Style & 0x40000u) != 0; }

QPoint PixelsOf(const Form& form) { return {form.Left / kTwipsPerPixel, form.Top / kTwipsPerPixel}; }

}  // namespace

FormWindow::FormWindow(Form& form)
    : QWidget(nullptr, FlagsOf(form)),
      form_(form),
      letters_(IsDialog(form) ? MnemonicsOf(form) : std::unordered_map<const Control*, QChar>()) {
  setObjectName(ToQt(form.Name()));
  setFixedSize(form.Width / kTwipsPerPixel, form.Height / kTwipsPerPixel);
  if (const std::string body = BodyPicture(form); !body.empty())
    body_ = ReadScaledPicture("skin:" + ToQt(body));
  if (form.Name() == "TickerForm") setAttribute(Qt::WA_ShowWithoutActivating);
  MakeViews(*this, form_.Controls());
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
  placing_ = true;
  const bool placed = form_.Left != 0 || form_.Top != 0 || windowFlags().testFlag(Qt::FramelessWindowHint);
  // A first move counts also where it changes nothing: without one the desktop places the window.
  if (placed && (pos() != PixelsOf(form_) || !testAttribute(Qt::WA_Moved))) move(PixelsOf(form_));
  if ((windowFlags() & ~Qt::WindowStaysOnTopHint) != FlagsOf(form_)) setWindowFlags(FlagsOf(form_));
  setVisible(form_.Visible);
  PutOnTop(form_.TopMost());
  placing_ = false;
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

// Enter and Esc, unless the control that has the focus takes them.
void FormWindow::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter) {
    if (auto* button = qobject_cast<QPushButton*>(focusWidget())) return button->click();
    if (PressDefault(form_)) return;
  }
  if (event->key() == Qt::Key_Escape && PressCancel(form_)) return;
  QWidget::keyPressEvent(event);
}

void FormWindow::FocusLater(QWidget& page) {
  QTimer::singleShot(0, &page, [this, &page] {
    if (!page.isVisible() || page.isAncestorOf(focusWidget()) || FocusFirst(page)) return;
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
  painter.setPen(QColor(159, 182, 230));
  QFont small = font();
  small.setPixelSize(11);
  painter.setFont(small);
  for (const FixedCaption& caption : FixedCaptions()) {
    if (form_.Name() == caption.form) {
      painter.drawText(caption.place, Qt::AlignLeft | Qt::AlignVCenter, caption.text);
    }
  }
}

}  // namespace skyloft
