// The widgets of the main window's browser: what they paint, and what they make of the mouse.
#include "platform/qt/widgets.h"

#include <gtest/gtest.h>

#include <optional>
#include <utility>
#include <vector>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QMouseEvent>
#include <QPointer>

#include "forms/forms.h"
#include "forms/main_form.h"
#include "platform/qt/display.h"
#include "platform/qt/form_window.h"

namespace skyloft {
namespace {

QImage Painted(QWidget& widget) { return widget.grab().toImage().convertToFormat(QImage::Format_RGB32); }

void Mouse(QWidget& widget, QEvent::Type type, QPoint at, Qt::MouseButton button = Qt::LeftButton) {
  const bool is_move = type == QEvent::MouseMove;
  QMouseEvent event(type, at, widget.mapToGlobal(at), is_move ? Qt::NoButton : button,
                    type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

int CountOf(const QImage& image, QRgb color) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == color;
  }
  return count;
}

class Widgets : public ::testing::Test {
 protected:
  int argc = 0;
  QApplication application{argc, nullptr};
};

// A view of 100 by 80 pixels over a picture of squares of 10 by 10 pixels, each of a colour of its own.
class ViewOverSquares : public Widgets {
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

// The widgets of the main window, brought up to their models.
QImage Plain(QSize size, QRgb color) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(color);
  return image;
}

QList<QAbstractEventDispatcher::TimerInfo> TimersOf(QObject& object) {
  return QAbstractEventDispatcher::instance()->registeredTimers(&object);
}

class PictureButtons : public Widgets {
 protected:
  PictureButtons() { button_.resize(8, 8); }
  QRgb Middle() { return Painted(button_).pixel(4, 4); }
  // What its timer does.
  void LetTurn() {
    QTimerEvent event(TimersOf(button_)[0].timerId);
    QApplication::sendEvent(&button_, &event);
  }

  const QRgb lit_ = qRgb(255, 0, 0), dim_ = qRgb(60, 0, 0);
  PictureButton button_{nullptr};
};

TEST_F(PictureButtons, FramesTakeTurnsWhileTheButtonIsSeen) {
  button_.SetFrames({{Plain({8, 8}, lit_), Plain({8, 8}, dim_)}, 600});
  EXPECT_TRUE(TimersOf(button_).isEmpty()) << "nobody sees it";
  button_.show();
  ASSERT_EQ(TimersOf(button_).size(), 1);
  EXPECT_EQ(TimersOf(button_)[0].interval, 600);
  for (const QRgb color : {lit_, dim_, lit_}) {
    EXPECT_EQ(Middle(), color);
    LetTurn();
  }
  button_.hide();
  EXPECT_TRUE(TimersOf(button_).isEmpty());
}

TEST_F(PictureButtons, OnePictureStandsStill) {
  button_.show();
  button_.SetFrames({{Plain({8, 8}, lit_), Plain({8, 8}, dim_)}, 600});
  button_.SetFrames({{Plain({8, 8}, dim_)}, 600});
  EXPECT_TRUE(TimersOf(button_).isEmpty());
  EXPECT_EQ(Middle(), dim_);
  button_.SetFrames({});
  EXPECT_EQ(button_.sizeHint(), QSize(0, 0));
}

// One that is larger than its place is cut at all edges.
TEST_F(Widgets, APictureStandsInTheMiddleOfItsPlaceOnAnyDisplay) {
  for (const int scale : {1, 2}) {
    QImage picture = Plain(QSize(40, 40) * scale, qRgb(9, 9, 9));
    for (int y = 18 * scale; y < 22 * scale; ++y) {
      for (int x = 18 * scale; x < 22 * scale; ++x) picture.setPixel(x, y, qRgb(255, 0, 0));
    }
    picture.setDevicePixelRatio(scale);
    ClickLabel label(nullptr);
    label.resize(20, 10);
    label.SetPicture(picture);
    QImage shown(label.size() * scale, QImage::Format_RGB32);
    shown.setDevicePixelRatio(scale);
    label.render(&shown);
    EXPECT_EQ(CountOf(shown, qRgb(255, 0, 0)), 16 * scale * scale);
    EXPECT_EQ(shown.pixel(8 * scale, 3 * scale), qRgb(255, 0, 0)) << scale;
    EXPECT_EQ(shown.pixel(12 * scale - 1, 7 * scale - 1), qRgb(255, 0, 0)) << scale;
  }
}

class MainWindow : public Widgets {
 protected:
  MainWindow() {
    ApplySkin();
    MainForm.Visible = true;
    Display::Get().ShowDirty();
  }
  static QWidget& WidgetOf(const Control& control) {
    return *Display::Get().WindowOf(MainForm).findChild<QWidget*>(QString::fromStdString(control.Name()));
  }
};

TEST_F(MainWindow, ARectangleByTheMouseZoomsIntoTheMap) {
  MainForm.Display1.MouseTool = kRectangleTool;
  Display::Get().ShowDirty();
  QWidget& view = WidgetOf(MainForm.Display1);
  Mouse(view, QEvent::MouseButtonPress, {400, 300});
  Mouse(view, QEvent::MouseButtonRelease, {198, 100});
  EXPECT_EQ(MainForm.Display1.ViewX, 198);
  EXPECT_EQ(MainForm.Display1.ViewY, 100);
  EXPECT_NEAR(MainForm.Display1.Zoom, 415.0 / 200, 1e-9);
}

TEST_F(MainWindow, ADocumentThatIsLoadedAgainStartsFromItsBeginning) {
  const std::string page = "<applet><param name='text' value='Take cover'></applet>";
  HtmlDisplay& strip = MainForm.Sponsor2;
  strip.Load(page);
  Display::Get().ShowDirty();
  const QPointer<QWidget> scroller = WidgetOf(strip).findChild<QWidget*>();
  ASSERT_TRUE(scroller);
  strip.Document = page;
  strip.MarkDirty();
  Display::Get().ShowDirty();
  EXPECT_TRUE(scroller) << "what is on show runs on";
  strip.Load(page);
  Display::Get().ShowDirty();
  EXPECT_FALSE(scroller);
  EXPECT_TRUE(WidgetOf(strip).findChild<QWidget*>()) << "a fresh one";
}

TEST_F(MainWindow, ThePositionBarIsBlueWhileStepsAreTakenAndGreenWhileItPlays) {
  QWidget& bar = WidgetOf(MainForm.ProgressBar);
  const QPoint left(bar.width() / 4, bar.height() / 2), right(bar.width() * 3 / 4, bar.height() / 2);
  const QRgb ground = qRgb(11, 20, 40);
  MainForm.ProgressBar.SetPosition(10, 5);
  for (const auto& [number, color] : {std::pair{0xff0000, qRgb(0, 0, 255)}, {65280, qRgb(0, 255, 0)}}) {
    MainForm.ProgressBar.Color = number;
    Display::Get().ShowDirty();
    EXPECT_EQ(Painted(bar).pixel(left), color) << number;
    EXPECT_EQ(Painted(bar).pixel(right), ground) << number;
  }
  for (const auto& [max, value, is_full] : {std::tuple{10, 10, true}, {100, 0, false}, {0, 0, false}}) {
    MainForm.ProgressBar.SetPosition(max, value);
    Display::Get().ShowDirty();
    EXPECT_EQ(Painted(bar).pixel(right), is_full ? qRgb(0, 255, 0) : ground) << max;
    EXPECT_EQ(Painted(bar).pixel(left), is_full ? qRgb(0, 255, 0) : ground) << max;
  }
}

TEST_F(MainWindow, AMarkIsADotOfItsColourThatTellsItsPress) {
  Mark& mark = MainForm.ImagePoints[3];
  std::optional<MousePress> told;
  mark.MouseDown = [&](const MousePress& press) { told = press; };
  mark.Visible = true;
  for (const auto& [number, color] : {std::pair{0xffffff, qRgb(255, 255, 255)}, {255, qRgb(255, 0, 0)}}) {
    mark.Color = number;
    Display::Get().ShowDirty();
    QWidget& dot = WidgetOf(mark);
    EXPECT_EQ(Painted(dot).pixel(dot.width() / 2, dot.height() / 2), color);
  }
  Mouse(WidgetOf(mark), QEvent::MouseButtonPress, {2, 3}, Qt::RightButton);
  ASSERT_TRUE(told);
  EXPECT_EQ(told->button, MouseButton::Right);
}

}  // namespace
}  // namespace skyloft
