// The one HTML display of the program: shows a page with local and remote pictures, follows links, runs no
// scripts.
#pragma once

#include <QSize>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/qt/html/html_reading.h"
#include "platform/qt/html/html_services.h"

class QPagedPaintDevice;

namespace litehtml {
class document;
}

namespace skyloft {

class HtmlContainer;
class HtmlLoader;

// With the focus it is scrolled by the arrows and the keys for pages; Tab goes through its links, Enter
// follows the one reached. A screen reader finds the page's words in the view's description.
class HtmlView : public QWidget {
 public:
  explicit HtmlView(HtmlServices services, QWidget* parent = nullptr);
  ~HtmlView() override;

  // Shows the complete document (windows-1252) in place of the former one. What is remote comes in later.
  // The first sound of the page plays once, if it is a local file. A page too costly to lay out shows as an
  // empty one.
  void SetDocument(const std::string& html);
  // A click anywhere. Links are opened as well, by a posted call.
  std::function<void()> clicked;
  // A click with the right button.
  std::function<void()> secondary_clicked;
  // Whether nothing of the present document is still being fetched or waits to be shown.
  bool Idle() const;
  // Draws the whole document on the pages of a printer, as wide as it fits but never larger than on a screen
  // of 96 dots per inch; a page ends between the rows of its tables. False when the printer takes no drawing.
  bool PrintTo(QPagedPaintDevice& printer);
  // Of the whole document, in pixels; 0 by 0 before the first.
  QSize DocumentSize() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  static constexpr int kLine = 40;  // pixels that a key or a notch of the wheel scrolls
  void Build();
  void LayOut();
  void Render(int width);
  void ShowScroller();
  void PlaceScroller();
  void PlaySound();
  void Post(bool rebuild);
  void RunPosted();
  void ScrollTo(int y);
  void ReachLink(int link);
  std::optional<HtmlLink> ReachedLink() const;
  void FollowLink(const QString& address);
  int PageEnd(int top, int height) const;
  int MaxScroll() const;
  QRect BarRect() const;

  const HtmlServices services_;
  const std::shared_ptr<HtmlLoader> loader_;
  const std::unique_ptr<HtmlContainer> container_;
  std::shared_ptr<litehtml::document> document_;  // must end before its container
  std::string page_;                              // tidied, UTF-8
  QSize laid_out_;                                // the size of the view that the document was laid out for
  QWidget* scroller_ = nullptr;
  QSize scroller_size_;     // as the page says; a side of 0 takes the view's
  bool scrollable_ = true;  // body { overflow: hidden } has no scroll bar
  bool posted_ = false, rebuild_ = false;
  int scroll_ = 0;  // pixels of the document above the view
  int link_ = -1;   // the one that Tab has reached, by its place in the page; -1 for none
  int drag_ = -1;   // where in the bar's handle the mouse holds it; -1 for not
};

}  // namespace skyloft
