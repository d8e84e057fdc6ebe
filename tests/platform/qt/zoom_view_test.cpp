// The view of a picture: what it paints, and what it makes of the mouse and of keys.
#include "platform/qt/zoom_view.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "platform/qt/skin_style.h"
#include "widget_testing.h"

namespace skyloft {
namespace {

// A view of 100 by 80 pixels over a picture of squares of 10 by 10 pixels, each of a colour of its own.
class ViewOverSquares : public ::testing::Test {
 protected:
  ViewOverSquares() {
    for (int y = 0; y < squares_.height(); ++y) {
      for (int x = 0; x < squares_.width(); ++x) squares_.setPixel(x, y, SquareAt(x, y));
    }
    view_.resize(100, 80);
    view_.pressed = [this](const MousePress& press) { presses_.push_back(press); };
    view_.dragged = [this](QPoint from, QPoint to) { drags_.emplace_back(from, to); };
  }
  static QRgb SquareAt(int x, int y) { return qRgb(40 + x / 10 * 10, 40 + y / 10 * 10, 99); }

  int argc_ = 0;
  QApplication application_{argc_, nullptr};
  QImage squares_{200, 200, QImage::Format_RGB32};
  ZoomView view_{nullptr};
  std::vector<MousePress> presses_;
  std::vector<std::pair<QPoint, QPoint>> drags_;
};

TEST_F(ViewOverSquares, AtScaleEveryPixelIsThePicturesFromTheOriginOn) {
  view_.SetView(squares_, 1, {30, 50});
  const QImage shown = Painted(view_);
  for (const QPoint at : {QPoint(0, 0), QPoint(99, 79), QPoint(9, 10), QPoint(10, 9)}) {
    EXPECT_EQ(shown.pixel(at), SquareAt(at.x() + 30, at.y() + 50)) << at.x() << " " << at.y();
  }
}

TEST_F(ViewOverSquares, BesideThePictureItIsBlack) {
  view_.SetView(squares_, 1, {-20, 150});
  const QImage shown = Painted(view_);
  EXPECT_EQ(shown.pixel(19, 0), qRgb(0, 0, 0));
  EXPECT_EQ(shown.pixel(20, 0), SquareAt(0, 150));
  EXPECT_EQ(shown.pixel(20, 49), SquareAt(0, 199));
  EXPECT_EQ(shown.pixel(20, 50), qRgb(0, 0, 0));
}

TEST_F(ViewOverSquares, ZoomEnlargesThePictureFromTheOriginOn) {
  for (const double zoom : {1.1, 2.0, 4.0}) {
    view_.SetView(squares_, zoom, {30, 50});
    const QImage shown = Painted(view_);
    for (const QPoint middle : {QPoint(5, 5), QPoint(15, 5), QPoint(5, 15)}) {
      EXPECT_EQ(shown.pixel(static_cast<int>(middle.x() * zoom), static_cast<int>(middle.y() * zoom)),
                SquareAt(30 + middle.x(), 50 + middle.y()))
          << zoom;
    }
  }
}

TEST_F(ViewOverSquares, ATextLiesOnItsPixelOfThePictureAtEveryZoom) {
  squares_.fill(Qt::black);
  view_.SetOverlay({{"+", 50, 60}});
  const auto lies_in = [&](const QRect& place) {
    const QImage shown = Painted(view_);
    return CountOf(shown, qRgb(0, 0, 0)) < 100 * 80 &&
           CountOf(shown.copy(place), qRgb(0, 0, 0)) - place.width() * place.height() ==
               CountOf(shown, qRgb(0, 0, 0)) - 100 * 80;
  };
  view_.SetView(squares_, 1, {30, 50});
  EXPECT_TRUE(lies_in({20, 10, 20, 30}));
  view_.SetView(squares_, 2, {50, 60});
  EXPECT_TRUE(lies_in({0, 0, 40, 60}));
  view_.SetOverlay({});
  EXPECT_FALSE(lies_in({0, 0, 40, 60})) << "nothing is left of it";
}

TEST_F(ViewOverSquares, APressTellsItsPixelAndItsButton) {
  const struct {
    QEvent::Type type;
    Qt::MouseButton button;
    MouseButton told;
  } cases[] = {{QEvent::MouseButtonPress, Qt::LeftButton, MouseButton::Left},
               {QEvent::MouseButtonPress, Qt::RightButton, MouseButton::Right},
               {QEvent::MouseButtonDblClick, Qt::LeftButton, MouseButton::Double}};
  for (const auto& c : cases) {
    presses_.clear();
    Mouse(view_, c.type, {12, 34}, c.button);
    Mouse(view_, QEvent::MouseButtonRelease, {15, 36}, c.button);
    ASSERT_EQ(presses_.size(), 1u) << "a release tells nothing";
    EXPECT_EQ(presses_[0].x, 12);
    EXPECT_EQ(presses_[0].y, 34);
    EXPECT_EQ(presses_[0].button, c.told);
  }
  EXPECT_TRUE(drags_.empty());
}

TEST_F(ViewOverSquares, TheRectangleToolGivesTheRectangleFromThePressToTheRelease) {
  view_.SetView(squares_, 1, {0, 0});
  view_.SetRectangleTool(true);
  EXPECT_EQ(view_.cursor().shape(), Qt::CrossCursor);
  const QRgb line = qRgb(255, 211, 92);
  Mouse(view_, QEvent::MouseButtonPress, {60, 70});
  Mouse(view_, QEvent::MouseMove, {20, 10});
  const QImage spanned = Painted(view_);
  EXPECT_GT(CountOf(spanned, line), 40) << "dashes";
  EXPECT_EQ(CountOf(spanned.copy(21, 11, 39, 59), line), 0) << "around it, not in it";
  Mouse(view_, QEvent::MouseButtonRelease, {25, 15}, Qt::RightButton);
  EXPECT_TRUE(drags_.empty()) << "the left button is still down";
  Mouse(view_, QEvent::MouseButtonRelease, {22, 11});
  EXPECT_EQ(drags_, (std::vector<std::pair<QPoint, QPoint>>{{{60, 70}, {22, 11}}}));
  EXPECT_EQ(CountOf(Painted(view_), line), 0);
  Mouse(view_, QEvent::MouseButtonRelease, {30, 30});
  EXPECT_EQ(drags_.size(), 1u) << "one press, one rectangle";
}

TEST_F(ViewOverSquares, WithoutTheToolOrByTheRightButtonNoRectangleIsSpanned) {
  for (const auto& [tool, button] : {std::pair{false, Qt::LeftButton}, {true, Qt::RightButton}}) {
    view_.SetRectangleTool(tool);
    Mouse(view_, QEvent::MouseButtonPress, {10, 10}, button);
    Mouse(view_, QEvent::MouseMove, {50, 50}, button);
    Mouse(view_, QEvent::MouseButtonRelease, {50, 50}, button);
    EXPECT_TRUE(drags_.empty()) << tool;
  }
  view_.SetRectangleTool(false);
  EXPECT_EQ(view_.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(ViewOverSquares, TheArrowsMoveACrossAndKeysPressThereWhatTheMouseWould) {
  view_.SetView(squares_, 1, {0, 0});
  Key(view_, Qt::Key_Left);
  Key(view_, Qt::Key_Down);
  Key(view_, Qt::Key_Down, Qt::ShiftModifier);
  const QPoint cross = view_.rect().center() + QPoint(-10, 11);
  EXPECT_EQ(Painted(view_).pixel(cross), kFocusColor.rgb());
  Key(view_, Qt::Key_Space);
  Key(view_, Qt::Key_Enter);
  const std::vector<MouseButton> buttons = {MouseButton::Left, MouseButton::Left, MouseButton::Double};
  ASSERT_EQ(presses_.size(), buttons.size());
  for (size_t i = 0; i < buttons.size(); ++i) {
    EXPECT_EQ(presses_[i].button, buttons[i]) << i;
    EXPECT_EQ(QPoint(presses_[i].x, presses_[i].y), cross) << i;
  }
}

TEST_F(ViewOverSquares, TheCrossStaysInTheView) {
  for (int i = 0; i < 30; ++i) Key(view_, Qt::Key_Right);
  for (int i = 0; i < 30; ++i) Key(view_, Qt::Key_Up);
  Key(view_, Qt::Key_Space);
  ASSERT_EQ(presses_.size(), 1u);
  EXPECT_EQ(QPoint(presses_[0].x, presses_[0].y), QPoint(99, 0));
}

TEST_F(ViewOverSquares, TheCrossShowsUnlessTheFocusCameByTheMouse) {
  view_.SetView(squares_, 1, {0, 0});
  const auto cross_in = [&](Qt::FocusReason reason) {
    QFocusEvent come(QEvent::FocusIn, reason), go(QEvent::FocusOut, reason);
    QApplication::sendEvent(&view_, &come);
    const bool shown = CountOf(Painted(view_), kFocusColor.rgb()) > 0;
    QApplication::sendEvent(&view_, &go);
    return shown;
  };
  EXPECT_TRUE(cross_in(Qt::TabFocusReason));
  EXPECT_FALSE(cross_in(Qt::MouseFocusReason));
}

TEST_F(ViewOverSquares, WithTheRectangleToolSpaceMarksOneCornerAndThenTheOther) {
  view_.SetRectangleTool(true);
  const QPoint middle = view_.rect().center();
  Key(view_, Qt::Key_Space);
  EXPECT_TRUE(drags_.empty());
  Key(view_, Qt::Key_Right);
  Key(view_, Qt::Key_Right);
  Key(view_, Qt::Key_Down);
  Key(view_, Qt::Key_Space);
  EXPECT_EQ(drags_, (std::vector<std::pair<QPoint, QPoint>>{{middle, middle + QPoint(20, 10)}}));
}

TEST_F(ViewOverSquares, KeysOnAMarkUnderTheCrossAreItsOwn) {
  std::vector<MouseButton> told;
  auto* mark = new MarkDot(&view_);
  mark->setGeometry(QRect(view_.rect().center() - QPoint(3, 3), QSize(7, 7)));
  mark->pressed = [&](const MousePress& press) { told.push_back(press.button); };
  mark->hide();
  Key(view_, Qt::Key_Menu);
  Key(view_, Qt::Key_F10, Qt::ShiftModifier);
  Key(view_, Qt::Key_Space);
  EXPECT_TRUE(told.empty()) << "a hidden mark is none";
  EXPECT_EQ(presses_.size(), 1u);
  mark->show();
  Key(view_, Qt::Key_Menu);
  Key(view_, Qt::Key_F10, Qt::ShiftModifier);
  Key(view_, Qt::Key_Space);
  EXPECT_EQ(told, (std::vector{MouseButton::Right, MouseButton::Right, MouseButton::Left}));
  EXPECT_EQ(presses_.size(), 1u);
}

}  // namespace
}  // namespace skyloft
