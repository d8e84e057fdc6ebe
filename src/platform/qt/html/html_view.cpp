#include "platform/qt/html/html_view.h"

#include <QMouseEvent>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPointer>
#include <QTimer>
#include <QWheelEvent>
#include <algorithm>

#include "base/text.h"
#include "platform/qt/html/html_container.h"
#include "platform/qt/html/html_prepass.h"
#include "platform/qt/html/html_reading.h"
#include "platform/qt/html/html_scroller.h"
#include "platform/qt/html/master_style.h"

namespace skyloft {
namespace {

constexpr int kBarWidth = 8;

litehtml::context& EngineContext() {
  static litehtml::context context = [] {
    litehtml::context fresh;
    fresh.load_master_stylesheet(kMasterStyle);
    return fresh;
  }();
  return context;
}

QString AttributeOf(const litehtml::element::ptr& element, const char* name) {
  return QString::fromUtf8(element->get_attr(name, ""));
}

}  // namespace

HtmlView::HtmlView(HtmlServices services, QWidget* parent)
    : QWidget(parent),
      services_(std::move(services)),
      loader_(std::make_shared<HtmlLoader>(services_,
                                           [view = QPointer(this)](bool sheet) {
                                             if (view) view->Post(sheet);
                                           })),
      container_(std::make_unique<HtmlContainer>(loader_)) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

HtmlView::~HtmlView() = default;

void HtmlView::SetDocument(const std::string& html) {
  page_ = ToUtf8(TidyHtml(html));
  loader_->BeginDocument();
  rebuild_ = false;
  scroll_ = 0;
  link_ = -1;
  Build();
  setAccessibleDescription(document_ ? WordsOf(*document_) : QString());
  ShowScroller();
  PlaySound();
}

bool HtmlView::Idle() const { return loader_->Idle() && !posted_; }

QSize HtmlView::DocumentSize() const {
  return document_ ? QSize(document_->width(), document_->height()) : QSize(0, 0);
}

void HtmlView::Build() {
  container_->SetViewSize(size());
  document_.reset();
  container_->Budget().BeginPage();
  document_ = litehtml::document::createFromUTF8(page_.c_str(), container_.get(), &EngineContext());
  const auto body = document_ && document_->root() ? document_->root()->select_one("body") : nullptr;
  scrollable_ = !body || body->get_overflow() != litehtml::overflow_hidden;
  LayOut();
}

void HtmlView::Render(int width) {
  container_->Budget().BeginLayout();
  document_->render(width);
}

void HtmlView::LayOut() {
  if (!document_) return;
  container_->SetViewSize(size());
  laid_out_ = size();
  try {
    Render(width());
    if (MaxScroll() > 0) Render(width() - kBarWidth);
  } catch (const LayoutTooCostly&) {
    document_.reset();
  }
  ScrollTo(scroll_);
  if (loader_->HasWaiting()) Post(false);
  update();
}

void HtmlView::ShowScroller() {
  delete std::exchange(scroller_, nullptr);
  const auto applet = document_ ? document_->root()->select_one("applet") : nullptr;
  if (!applet) return;
  QHash<QString, QString> parameters;
  for (const auto& param : applet->select_all("param")) {
    parameters.insert(AttributeOf(param, "name").toLower(), AttributeOf(param, "value"));
  }
  scroller_ = new HtmlScroller(parameters, this);
  scroller_size_ = {AttributeOf(applet, "width").toInt(), AttributeOf(applet, "height").toInt()};
  PlaceScroller();
  scroller_->show();
}

// At the top of the view, in the middle, for on the pages that have a scroller there is nothing else.
void HtmlView::PlaceScroller() {
  if (!scroller_) return;
  const int wide = scroller_size_.width() > 0 ? std::min(scroller_size_.width(), width()) : width();
  const int high = scroller_size_.height() > 0 ? std::min(scroller_size_.height(), height()) : height();
  scroller_->setGeometry((width() - wide) / 2, 0, wide, high);
}

void HtmlView::PlaySound() {
  const auto sound = document_ ? document_->root()->select_one("bgsound") : nullptr;
  if (!sound || !services_.play_sound) return;
  const QString path = LocalPathOf(AttributeOf(sound, "src"));
  if (!path.isEmpty()) QTimer::singleShot(0, this, [this, path] { services_.play_sound(path); });
}

// Everything that must not happen inside the engine or a fetch is posted; several requests are one.
void HtmlView::Post(bool rebuild) {
  rebuild_ = rebuild_ || rebuild;
  if (std::exchange(posted_, true)) return;
  QTimer::singleShot(0, this, [this] { RunPosted(); });
}

void HtmlView::RunPosted() {
  posted_ = false;
  if (std::exchange(rebuild_, false)) {
    Build();
  } else {
    LayOut();
  }
  loader_->StartFetches();  // last: the view may end in it
}

int HtmlView::MaxScroll() const {
  return scrollable_ && document_ ? std::max(0, document_->height() - height()) : 0;
}

void HtmlView::ScrollTo(int y) {
  scroll_ = std::clamp(y, 0, MaxScroll());
  update();
}

// The handle of the scroll bar; empty when there is none.
QRect HtmlView::BarRect() const {
  const int hidden = MaxScroll();
  if (hidden == 0) return {};
  const int handle = std::max(20, height() * height() / (height() + hidden));
  return {width() - kBarWidth, (height() - handle) * scroll_ / hidden, kBarWidth, handle};
}

void HtmlView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  if (document_) container_->Paint(*document_, painter, {0, -scroll_}, rect());
  if (const QRect handle = BarRect(); !handle.isEmpty()) {
    painter.fillRect(width() - kBarWidth, 0, kBarWidth, height(), QColor(0x0d, 0x1b, 0x36));
    painter.fillRect(handle.adjusted(1, 1, -1, -1), QColor(0x5b, 0x9b, 0xff));
  }
  const auto link = ReachedLink();
  if (!link) return;
  for (const QPen& pen : {QPen(Qt::black), QPen(QColor(0xff, 0xd3, 0x5c), 1, Qt::DashLine)}) {
    painter.setPen(pen);
    painter.drawRect(link->place.translated(0, -scroll_).adjusted(-2, -1, 1, 0));
  }
}

// Where a page ends that begins at `top`: below the last row that has room, all in pixels of the document.
int HtmlView::PageEnd(int top, int height) const {
  const int last = std::min(top + height, document_->height());
  if (last == document_->height()) return last;
  int end = top;
  for (const auto& cell : document_->root()->select_all("td")) {
    const int bottom = cell->get_placement().bottom();
    if (bottom <= last) end = std::max(end, bottom);
  }
  return end > top ? end : last;
}

bool HtmlView::PrintTo(QPagedPaintDevice& printer) {
  QPainter painter(&printer);
  if (!painter.isActive() || !document_) return painter.isActive();
  const double natural = printer.logicalDpiX() / 96.0;
  const double scale = std::min(natural, double(printer.width()) / document_->width());
  const int height = static_cast<int>(printer.height() / scale);
  painter.scale(scale, scale);
  for (int top = 0, end = 0; top < document_->height(); top = end) {
    end = PageEnd(top, height);
    if (top > 0) printer.newPage();
    const QRect page(0, 0, document_->width(), end - top);
    painter.setClipRect(page);
    container_->Paint(*document_, painter, {0, -top}, page);
  }
  return true;
}

void HtmlView::resizeEvent(QResizeEvent*) {
  PlaceScroller();
  if (size() != laid_out_) LayOut();
}

void HtmlView::wheelEvent(QWheelEvent* event) { ScrollTo(scroll_ - event->angleDelta().y() * kLine / 120); }

void HtmlView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const QPoint at = event->position().toPoint();
  if (MaxScroll() > 0 && at.x() >= width() - kBarWidth) {
    drag_ = BarRect().contains(at) ? at.y() - BarRect().y() : BarRect().height() / 2;
    return mouseMoveEvent(event);
  }
  litehtml::position::vector redraw;
  if (document_) document_->on_lbutton_down(at.x(), at.y() + scroll_, at.x(), at.y(), redraw);
}

void HtmlView::mouseMoveEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  if (drag_ >= 0) {
    const int way = std::max(1, height() - BarRect().height());
    return ScrollTo(static_cast<int>(qint64{at.y() - drag_} * MaxScroll() / way));
  }
  litehtml::position::vector redraw;
  if (!document_) return;
  if (document_->on_mouse_over(at.x(), at.y() + scroll_, at.x(), at.y(), redraw)) update();
  setCursor(container_->Cursor());
}

void HtmlView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton && secondary_clicked) return secondary_clicked();
  if (event->button() != Qt::LeftButton) return;
  if (std::exchange(drag_, -1) >= 0) return;
  const QPoint at = event->position().toPoint();
  litehtml::position::vector redraw;
  if (document_) document_->on_lbutton_up(at.x(), at.y() + scroll_, at.x(), at.y(), redraw);
  FollowLink(container_->TakeClickedLink());
  const auto handler = clicked;  // a copy: it may end this view
  if (handler) handler();
}

void HtmlView::leaveEvent(QEvent*) {
  litehtml::position::vector redraw;
  if (document_ && document_->on_mouse_leave(redraw)) update();
}

}  // namespace skyloft
