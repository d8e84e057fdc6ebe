// Windows on a display with a window manager: what it is told of them, and how the mouse drags them.
#include "platform/window.h"

#include <gtest/gtest.h>

#include <memory>

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QMenu>
#include <QTimer>

#include "core/class1.h"
#include "platform/qt/display.h"
#include "platform/qt/form_window.h"
#include "x_display.h"

namespace skyloft {
namespace {

// A display with its manager, and the one application on it.
class Desktop {
 public:
  Desktop() {
    qputenv("DISPLAY", display_.Name().toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    application_ = std::make_unique<QApplication>(argument_count_, arguments_);
    Display::Get().Start();
  }
  const XDisplay& Screen() const { return display_; }

 private:
  XDisplay display_{XDisplay::Manager::Openbox};
  char name_[8] = "desktop";
  char* arguments_[2] = {name_, nullptr};
  int argument_count_ = 1;
  std::unique_ptr<QApplication> application_;
};

void Pass(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
}

// Runs the event loop until it is reached; false if it was not in time.
bool Await(const std::function<bool()>& reached) {
  QElapsedTimer clock;
  clock.start();
  while (!reached() && clock.elapsed() < 3000) Pass(10);
  return reached();
}

struct BareForm : Form {
  BareForm() : Form("BareForm", "Bare", Border::None) {
    Left = 200 * 15;
    Top = 150 * 15;
    Width = 300 * 15;
    Height = 200 * 15;
    ExStyle = 0x40000;  // in the taskbar
  }
};

class WindowOnADesktop : public testing::Test {
 protected:
  static void SetUpTestSuite() { desktop_ = new Desktop(); }
  static void TearDownTestSuite() { delete desktop_; }

  void SetUp() override {
    ASSERT_TRUE(Screen().Up()) << "Xvfb and openbox must be installed";
    style_.SetClient(&form_);
    Show(form_);
  }
  void TearDown() override {
    form_.Visible = false;
    Pass(50);
  }

  static const XDisplay& Screen() { return desktop_->Screen(); }
  static FormWindow& WindowOf(Form& form) { return Display::Get().WindowOf(form); }
  static void Show(Form& form) {
    form.Visible = true;
    ActivateWindow(form);
    ASSERT_TRUE(Await([&] { return WindowOf(form).isActiveWindow(); }));
  }
  bool Lists(const char* property, const char* name) {
    return Screen().Names(static_cast<xcb_window_t>(WindowOf(form_).winId()), property).contains(name);
  }
  int TitleHeight() {
    const auto extents =
        Screen().Property(static_cast<xcb_window_t>(WindowOf(form_).winId()), "_NET_FRAME_EXTENTS");
    return extents.size() == 4 ? static_cast<int>(extents[2]) : -1;
  }

  static Desktop* desktop_;
  BareForm& form_ = *new BareForm();  // its window outlives the test
  Class1 style_;
};
Desktop* WindowOnADesktop::desktop_ = nullptr;

TEST_F(WindowOnADesktop, TopMostPutsItAboveTheOthersAndBack) {
  EXPECT_FALSE(Lists("_NET_WM_STATE", "_NET_WM_STATE_ABOVE"));
  style_.SetTopMost(true);
  EXPECT_TRUE(Await([&] { return Lists("_NET_WM_STATE", "_NET_WM_STATE_ABOVE"); }));
  style_.SetTopMost(false);
  EXPECT_TRUE(Await([&] { return !Lists("_NET_WM_STATE", "_NET_WM_STATE_ABOVE"); }));
  EXPECT_TRUE(WindowOf(form_).isVisible());
}

TEST_F(WindowOnADesktop, AWindowInTheScreensCornerStaysThereWhateverTheDesktopWouldLike) {
  struct CornerForm : BareForm {
    CornerForm() { Left = Top = 0; }
  };
  auto& corner = *new CornerForm();  // its window outlives the test
  corner.Visible = true;             // the focus, which a desktop may refuse, plays no part
  ASSERT_TRUE(Await([&] { return WindowOf(corner).isVisible(); }));
  Pass(300);
  EXPECT_EQ(WindowOf(corner).frameGeometry().topLeft(), QPoint(0, 0));
  corner.Visible = false;
}

// The screen has 1024 by 768 pixels.
TEST_F(WindowOnADesktop, AWindowWhosePlaceNoScreenShowsComesBackAndItsModelFollows) {
  const struct {
    QPoint stored, shown;
  } cases[] = {{{3000, 2000}, {724, 568}}, {{-700, 90}, {0, 90}}, {{800, 100}, {800, 100}}};
  for (const auto& c : cases) {
    struct LostForm : BareForm {};
    auto& lost = *new LostForm();  // its window outlives the test
    lost.Left = c.stored.x() * 15 + 7;
    lost.Top = c.stored.y() * 15;
    lost.Visible = true;
    ASSERT_TRUE(Await([&] { return WindowOf(lost).isVisible(); }));
    Pass(300);
    EXPECT_EQ(WindowOf(lost).pos(), c.shown) << c.stored.x();
    EXPECT_EQ(lost.Left.Get(), c.shown.x() * 15 + (c.stored == c.shown ? 7 : 0))
        << "a kept place to the twip";
    EXPECT_EQ(lost.Top.Get(), c.shown.y() * 15);
    lost.Visible = false;
  }
}

TEST_F(WindowOnADesktop, OutOfTheTaskbarItIsAUtility) {
  EXPECT_FALSE(Lists("_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_UTILITY"));
  style_.SetShowInTaskbar(false);
  EXPECT_TRUE(Await([&] { return Lists("_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_UTILITY"); }));
  style_.SetShowInTaskbar(true);
  EXPECT_TRUE(Await([&] { return !Lists("_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_UTILITY"); }));
  EXPECT_TRUE(WindowOf(form_).isVisible());
}

TEST_F(WindowOnADesktop, ToolWindowIsAUtilityAlsoInTheTaskbar) {
  style_.SetToolWindow(true);
  EXPECT_TRUE(Await([&] { return Lists("_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_UTILITY"); }));
  style_.SetToolWindow(false);
  EXPECT_TRUE(Await([&] { return !Lists("_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_UTILITY"); }));
}

TEST_F(WindowOnADesktop, TitlebarComesAndGoes) {
  EXPECT_EQ(TitleHeight(), 0);
  style_.SetTitlebar(true);
  EXPECT_TRUE(Await([&] { return TitleHeight() > 10; }));
  style_.SetTitlebar(false);
  EXPECT_TRUE(Await([&] { return TitleHeight() == 0; }));
}

TEST_F(WindowOnADesktop, OnlyASizeableOneMayBeResized) {
  EXPECT_FALSE(Lists("_NET_WM_ALLOWED_ACTIONS", "_NET_WM_ACTION_RESIZE"));
  style_.SetSizeable(true);
  EXPECT_TRUE(Await([&] { return Lists("_NET_WM_ALLOWED_ACTIONS", "_NET_WM_ACTION_RESIZE"); }));
  style_.SetSizeable(false);
  EXPECT_TRUE(Await([&] { return !Lists("_NET_WM_ALLOWED_ACTIONS", "_NET_WM_ACTION_RESIZE"); }));
}

TEST_F(WindowOnADesktop, StylesLeaveItsPlaceAndItsSize) {
  const QRect place = WindowOf(form_).geometry();
  EXPECT_EQ(place, QRect(200, 150, 300, 200));
  style_.SetTopMost(true);
  style_.SetShowInTaskbar(false);
  style_.SetSizeable(true);
  Pass(200);
  EXPECT_EQ(WindowOf(form_).geometry(), place);
  EXPECT_EQ(form_.Left.Get(), 200 * 15);
  EXPECT_EQ(form_.Top.Get(), 150 * 15);
}

// An outside look at the corner of the window: what lies behind it shows there.
TEST_F(WindowOnADesktop, RegionStaysWhenStylesChange) {
  const QRect corner(200, 150, 4, 4);
  const QByteArray square = Screen().Pixels(corner);
  SetWindowRegion(form_, {0, -2, 300, 200, 110, 96});
  EXPECT_TRUE(Await([&] { return Screen().Pixels(corner) != square; }));
  const QByteArray round = Screen().Pixels(corner);
  style_.SetTopMost(true);
  EXPECT_TRUE(Await([&] { return Lists("_NET_WM_STATE", "_NET_WM_STATE_ABOVE"); }));
  Pass(100);
  EXPECT_EQ(Screen().Pixels(corner), round);
}

TEST_F(WindowOnADesktop, TopMostThatEndsWithTheFocusLeavesTheFocusWhereItWent) {
  auto& other = *new BareForm();
  form_.LostFocus = [this] { style_.SetTopMost(false); };
  style_.SetTopMost(true);
  EXPECT_TRUE(Await([&] { return WindowOf(form_).isActiveWindow(); }));
  Show(other);
  EXPECT_TRUE(Await([&] { return !form_.TopMost(); }));
  Pass(300);
  EXPECT_TRUE(WindowOf(other).isActiveWindow());
  other.Visible = false;
}

TEST_F(WindowOnADesktop, CloseRequestIsTheFormsMatterAlone) {
  int asked = 0;
  form_.Unload = [&] { ++asked; };
  EXPECT_FALSE(WindowOf(form_).close());
  EXPECT_EQ(asked, 1);
  Pass(50);
  EXPECT_TRUE(WindowOf(form_).isVisible());
}

TEST_F(WindowOnADesktop, AModalOneKeepsTheUserOutOfTheOthersUntilItIsHidden) {
  BareForm& modal = *new BareForm();
  modal.Left = 600 * 15;
  int pressed = 0, pressed_meanwhile = -1;
  form_.MouseDown = [&](const MousePress&) { ++pressed; };
  const auto press = [] { Screen().Click({250, 200}); };
  QTimer::singleShot(500, press);
  QTimer::singleShot(1000, [&] {
    pressed_meanwhile = pressed;
    EXPECT_TRUE(WindowOf(modal).isVisible());
    modal.Visible = false;
  });
  ShowModal(modal);
  EXPECT_EQ(pressed_meanwhile, 0);
  EXPECT_TRUE(Await([&] { return !WindowOf(modal).isVisible(); }));
  press();
  EXPECT_TRUE(Await([&] { return pressed == 1; }));
}

struct FormWithMenu : BareForm {
  MenuItem Menu{this, "Menu", "Menu", nullptr};
  MenuItem First{this, "First", "First", &Menu};
  MenuItem Inner{this, "Inner", "Fish & Chips", &Menu};
  MenuItem Second{this, "Second", "Second", &Inner};
};

TEST_F(WindowOnADesktop, AMenusEntryActsWhenTheMenuIsGoneSoThatItCanWait) {
  FormWithMenu& form = *new FormWithMenu();
  Show(form);
  const auto menus = [&] { return WindowOf(form).findChildren<QMenu*>(); };
  int chosen = 0;
  form.First.Click = [&] { ++chosen; };
  form.Second.Click = [&] {
    EXPECT_TRUE(menus().empty());
    Pass(100);
    chosen += 10;
  };
  PopUpMenu(form, form.Menu);
  ASSERT_EQ(menus().size(), 2);
  EXPECT_EQ(menus()[0]->actions()[1]->text(), "Fish && Chips") << "no key is marked in it";
  for (const xcb_keysym_t key : {0xff54, 0xff54, 0xff53, 0xff0d}) {  // Down, Down, Right, Return
    Pass(200);
    Screen().TapKey(key);
  }
  EXPECT_TRUE(Await([&] { return chosen > 0; }));
  EXPECT_EQ(chosen, 10);
  form.Visible = false;
}

class DragButton : public WindowOnADesktop, public testing::WithParamInterface<std::uint8_t> {};

TEST_P(DragButton, MovesTheWindowByItsBody) {
  form_.MouseDown = [this](const MousePress&) { StartWindowDrag(form_); };
  const QPoint start(350, 250);
  Screen().MoveMouse(start);
  Pass(50);
  Screen().PressButton(GetParam());
  Pass(50);
  // The first steps tell that it is a drag.
  for (int step = 1; step <= 10; ++step) {
    Screen().MoveMouse(start + QPoint(step * 8, step * 5));
    Pass(20);
  }
  Screen().ReleaseButton(GetParam());
  EXPECT_TRUE(Await([&] { return WindowOf(form_).pos() == QPoint(280, 200); }))
      << WindowOf(form_).x() << " " << WindowOf(form_).y();
  EXPECT_EQ(form_.Left.Get(), 280 * 15);
  EXPECT_EQ(form_.Top.Get(), 200 * 15);
  Screen().MoveMouse({900, 700});
  Pass(200);
  EXPECT_EQ(WindowOf(form_).pos(), QPoint(280, 200)) << "it stays once the button is up";
}

INSTANTIATE_TEST_SUITE_P(Buttons, DragButton, testing::Values(1, 2, 3), [](const auto& test) {
  return std::string(test.param == 1 ? "Left" : test.param == 2 ? "Middle" : "Right");
});

}  // namespace
}  // namespace skyloft
