// The widgets of the main window's browser: what they paint, and what they make of the mouse.
#include "platform/qt/widgets.h"

#include <gtest/gtest.h>

#include <optional>
#include <utility>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QFontDatabase>
#include <QMouseEvent>
#include <QPointer>
#include <QTemporaryDir>

#include "forms/forms.h"
#include "forms/main_form.h"
#include "platform/pictures.h"
#include "platform/qt/display.h"
#include "platform/qt/drive.h"
#include "platform/qt/form_window.h"
#include "platform/qt/skin_style.h"
#include "widget_testing.h"

namespace skyloft {
namespace {

class Widgets : public ::testing::Test {
 protected:
  int argc = 0;
  QApplication application{argc, nullptr};
};

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

// The rows of a label's picture that hold letters, as stretches.
int LinesIn(const QImage& picture) {
  int lines = 0;
  bool inside = false;
  for (int y = 0; y < picture.height(); ++y) {
    const bool letters =
        CountOf(picture.copy(0, y, picture.width(), 1), picture.pixel(0, 0)) < picture.width();
    lines += letters && !inside;
    inside = letters;
  }
  return lines;
}

TEST_F(Widgets, TheLinesOfALabelDoNotTouchInTheFontOfTheWindows) {
  SetFont();
  ClickLabel label(nullptr);
  label.setWordWrap(true);
  label.resize(120, 80);
  label.setText("Agyp Agyp\nAgyp Agyp\nAgyp Agyp Agyp Agyp Agyp Agyp");
  EXPECT_GE(LinesIn(Painted(label)), 4);
}

TEST_F(Widgets, TheFontOfTheWindowsIsTahomaWhereItIsInstalledAndElseTheNearest) {
  SetFont();
  const QStringList families = QFontDatabase::families();
  QString nearest;
  for (const char* family : {"DejaVu Sans", "DejaVu Sans Condensed", "Verdana", "Tahoma"}) {
    if (families.contains(family)) nearest = family;
  }
  EXPECT_EQ(QApplication::font().family(), nearest);
  EXPECT_EQ(QApplication::font().pixelSize(), 12);
}

TEST_F(MainWindow, APictureLargerThanItsPlaceShowsItsMiddle) {
  const QTemporaryDir folder;
  SetUpDrive(folder.path(), folder.path());
  QImage picture(300, 300, QImage::Format_RGB32);
  picture.fill(Qt::black);
  picture.setPixel(150, 150, qRgb(255, 255, 255));
  ASSERT_TRUE(picture.save(folder.filePath("middle.png")));
  LoadPicture(MainForm.Thumbnail, "C:\\middle.png");
  Display::Get().ShowDirty();
  EXPECT_EQ(Painted(WidgetOf(MainForm.Thumbnail)).pixel(75, 62), qRgb(255, 255, 255));
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
