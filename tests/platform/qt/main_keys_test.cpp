// The main window and the bar under the keyboard, without a display.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QMenu>
#include <QToolTip>

#include "forms/forms.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "forms/ticker_form.h"
#include "platform/qt/display.h"
#include "platform/qt/form_window.h"
#include "platform/qt/skin_style.h"
#include "platform/qt/widgets.h"
#include "platform/window.h"
#include "widget_testing.h"

namespace skyloft {
namespace {

// The main window with all that can be seen and used, which notes its acts.
class MainUnderKeys : public testing::Test {
 protected:
  MainUnderKeys() {
    ApplySkin();
    for (Control* control : MainForm.Controls()) {
      auto* button = dynamic_cast<ImageButton*>(control);
      if (!button) continue;
      button->MouseDown = [this, button] { acts_.push_back(button->Name() + " down"); };
      button->MouseUp = [this, button] { acts_.push_back(button->Name() + " up"); };
      button->Click = [this, button] { acts_.push_back(button->Name() + " click"); };
    }
    MainForm.Thumbnail.Click = [this] { acts_.push_back("Thumbnail click"); };
    MainForm.Visible = true;
    Display::Get().ShowDirty();
    Window().activateWindow();
    QApplication::processEvents();
  }
  static FormWindow& Window() { return Display::Get().WindowOf(MainForm); }
  static QWidget& WidgetOf(const Control& control) {
    return *Window().findChild<QWidget*>(QString::fromStdString(control.Name()));
  }
  static std::vector<std::string> ActsOf(const char* name) {
    const std::string button = name;
    return {button + " down", button + " up", button + " click"};
  }

  int argc_ = 0;
  QApplication application_{argc_, nullptr};
  std::vector<std::string> acts_;
};

TEST_F(MainUnderKeys, TabGoesThroughTheListsThenTheButtonsByRowsThenTheViews) {
  QStringList order;
  const QWidget* const first = &WidgetOf(MainForm.LocationSelection);
  const QWidget* widget = first;
  do {
    const bool reached = (widget->focusPolicy() & Qt::TabFocus) && widget->isVisible() && widget->isEnabled();
    if (reached && widget != &Window()) order << widget->objectName();
    widget = widget->nextInFocusChain();
  } while (widget != first);
  EXPECT_EQ(order, (QStringList{"LocationSelection",
                                "CategorySelection",
                                "ProductSelection",
                                "TimeSelection",
                                "HelpButton",
                                "MenuButton",
                                "ExitButton",
                                "TornadoButton",
                                "ThunderstormButton",
                                "FloodButton",
                                "PersonalAlertButton",
                                "BackButton",
                                "NextButton",
                                "PlayButton",
                                "StopButton",
                                "LocalButton",
                                "NationalButton",
                                "AreaZoomButton",
                                "ZoomInButton",
                                "ZoomOutButton",
                                "ResetButton",
                                "LegendButton",
                                "WeatherConditionsBanner",
                                "Display1",
                                "Thumbnail"}));
}

TEST_F(MainUnderKeys, SpaceAndEnterPressAnImageButtonAsTheMouseDoes) {
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    acts_.clear();
    Key(WidgetOf(MainForm.NextButton), key);
    EXPECT_EQ(acts_, ActsOf("NextButton")) << key;
  }
  acts_.clear();
  Key(WidgetOf(MainForm.Thumbnail), Qt::Key_Space);
  Key(WidgetOf(MainForm.Thumbnail), Qt::Key_Return);
  EXPECT_EQ(acts_, (std::vector<std::string>{"Thumbnail click", "Thumbnail click"}));
}

TEST_F(MainUnderKeys, AKeyOfTheWindowPressesItsButtonAndIsToldInTheToolTip) {
  const struct {
    const char* button;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char* text;
    const char* tip;
  } cases[] = {
      {"ExitButton", Qt::Key_Escape, {}, "", "Hide the window (Esc)"},
      {"HelpButton", Qt::Key_F1, {}, "", "Help (F1)"},
      {"MenuButton", Qt::Key_F10, Qt::ShiftModifier, "", "Menu (Shift+F10)"},
      {"MenuButton", Qt::Key_Menu, {}, "", "Menu (Shift+F10)"},
      {"ZoomInButton", Qt::Key_Plus, Qt::ShiftModifier, "+", "Zoom in (+)"},
      {"ZoomInButton", Qt::Key_Plus, Qt::KeypadModifier, "+", "Zoom in (+)"},
      {"ZoomOutButton", Qt::Key_Minus, {}, "-", "Zoom out (-)"},
      {"ResetButton", Qt::Key_Home, {}, "", "Back to full size (Home)"},
  };
  for (QWidget* focus : {&WidgetOf(MainForm.NextButton), &WidgetOf(MainForm.Display1)}) {
    for (const auto& c : cases) {
      acts_.clear();
      Key(*focus, c.key, c.modifiers, c.text);
      EXPECT_EQ(acts_, ActsOf(c.button)) << c.key;
      EXPECT_EQ(Window().findChild<QWidget*>(c.button)->toolTip(), c.tip);
    }
  }
}

TEST_F(MainUnderKeys, TheKeyOfAButtonThatIsOffOrHiddenDoesNothing) {
  MainForm.ZoomInButton.Enabled = false;
  MainForm.ZoomOutButton.Visible = false;
  Display::Get().ShowDirty();
  Key(Window(), Qt::Key_Plus, {}, "+");
  Key(Window(), Qt::Key_Minus, {}, "-");
  EXPECT_TRUE(acts_.empty());
}

TEST_F(MainUnderKeys, EveryImageButtonTellsWhatItIsForAndShowsAHand) {
  std::set<QString> tips;
  for (const Control* control : MainForm.Controls()) {
    if (!dynamic_cast<const ImageButton*>(control)) continue;
    const QWidget& widget = WidgetOf(*control);
    EXPECT_FALSE(widget.toolTip().isEmpty()) << control->Name();
    EXPECT_TRUE(tips.insert(widget.toolTip()).second) << control->Name();
    EXPECT_EQ(widget.accessibleName(), QString::fromStdString(control->ToolTip));
    EXPECT_EQ(widget.cursor().shape(), Qt::PointingHandCursor) << control->Name();
  }
  EXPECT_EQ(tips.size(), 18u);
}

TEST_F(MainUnderKeys, AButtonIsLighterUnderTheMouseUnlessItIsOff) {
  auto& button = static_cast<PictureButton&>(WidgetOf(MainForm.NextButton));
  QImage picture(10, 10, QImage::Format_RGB32);
  picture.fill(qRgb(100, 100, 100));
  button.SetFrames({{picture}, 0});
  const auto middle = [&] { return qRed(Painted(button).pixel(button.rect().center())); };
  EXPECT_EQ(middle(), 100);
  QEnterEvent enter({1, 1}, {1, 1}, {1, 1});
  QApplication::sendEvent(&button, &enter);
  EXPECT_GT(middle(), 110);
  MainForm.NextButton.Enabled = false;
  Display::Get().ShowDirty();
  button.SetFrames({{picture}, 0});
  EXPECT_EQ(middle(), 100);
}

TEST_F(MainUnderKeys, TheFocusHasARingUnlessItCameByTheMouse) {
  for (const Control* control :
       {static_cast<Control*>(&MainForm.NextButton), static_cast<Control*>(&MainForm.Display1),
        static_cast<Control*>(&MainForm.WeatherConditionsBanner)}) {
    QWidget& widget = WidgetOf(*control);
    const QPoint corner = widget.geometry().topLeft();
    const auto ring = [&] {
      const QImage shown = Painted(Window());
      return shown.pixel(corner + QPoint(widget.width() / 2, -1)) == kFocusColor.rgb() &&
             shown.pixel(corner + QPoint(-1, widget.height() / 2)) == kFocusColor.rgb() &&
             shown.pixel(corner + QPoint(widget.width(), widget.height() / 2)) == kFocusColor.rgb();
    };
    EXPECT_FALSE(ring()) << control->Name();
    widget.setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(ring()) << control->Name();
    widget.clearFocus();
    EXPECT_FALSE(ring()) << control->Name();
    widget.setFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(ring()) << control->Name();
    Key(widget, Qt::Key_Shift);
    EXPECT_TRUE(ring()) << control->Name();
    widget.clearFocus();
  }
}

TEST_F(MainUnderKeys, ALongEntryEndsInDotsIsToldInAToolTipAndShownWholeInTheOpenList) {
  const char* const name = "A product with a name that is far too long for the closed list";
  for (const char* entry : {"Short", name}) MainForm.ProductSelection.AddItem(entry);
  auto& list = static_cast<ListBox&>(WidgetOf(MainForm.ProductSelection));
  const auto right_end = [&] { return Painted(list).copy(list.width() - 20, 3, 4, list.height() - 6); };
  MainForm.ProductSelection.Select(0);
  Display::Get().ShowDirty();
  const QImage free = right_end();
  MainForm.ProductSelection.Select(1);
  Display::Get().ShowDirty();
  EXPECT_EQ(right_end(), free) << "no letter is cut";
  QHelpEvent ask(QEvent::ToolTip, {5, 5}, list.mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(&list, &ask);
  EXPECT_EQ(QToolTip::text(), name);
  list.showPopup();
  EXPECT_GE(list.view()->viewport()->width(), list.fontMetrics().horizontalAdvance(name));
  list.hidePopup();
}

TEST_F(MainUnderKeys, AListIsCalledWhatItsCaptionSays) {
  for (const auto& [list, name] :
       std::map<const Control*, QString>{{&MainForm.LocationSelection, "Location"},
                                         {&MainForm.CategorySelection, "Category"},
                                         {&MainForm.ProductSelection, "Product"}}) {
    EXPECT_EQ(WidgetOf(*list).accessibleName(), name);
  }
}

TEST_F(MainUnderKeys, KeysOnTheMapPressItAndItsMarks) {
  std::vector<MousePress> map, mark;
  MainForm.Display1.MouseDown = [&](const MousePress& press) { map.push_back(press); };
  Mark& middle = MainForm.ImagePoints[2];
  middle.MouseDown = [&](const MousePress& press) { mark.push_back(press); };
  QWidget& view = WidgetOf(MainForm.Display1);
  middle.Left = view.rect().center().x() - 13;
  middle.Top = view.rect().center().y() - 3;
  middle.Visible = true;
  Display::Get().ShowDirty();
  Key(view, Qt::Key_Space);
  Key(view, Qt::Key_Left);
  Key(view, Qt::Key_Menu);
  ASSERT_EQ(map.size(), 1u);
  EXPECT_EQ(QPoint(map[0].x, map[0].y), view.rect().center());
  EXPECT_EQ(map[0].button, MouseButton::Left);
  ASSERT_EQ(mark.size(), 1u);
  EXPECT_EQ(mark[0].button, MouseButton::Right);
}

TEST_F(MainUnderKeys, AButtonThatGoesOffGivesTheFocusToTheOneThatComesOnBehindIt) {
  MainForm.StopButton.Enabled = false;
  Display::Get().ShowDirty();
  WidgetOf(MainForm.PlayButton).setFocus(Qt::TabFocusReason);
  MainForm.PlayButton.Enabled = false;
  MainForm.StopButton.Enabled = true;
  Display::Get().ShowDirty();
  EXPECT_EQ(Window().focusWidget(), &WidgetOf(MainForm.StopButton));
}

// The bar opens its menu by the key as by the right button.
TEST_F(MainUnderKeys, TheMenuKeyOnTheBarIsItsRightButton) {
  std::vector<MouseButton> presses;
  TickerForm.MouseDown = [&](const MousePress& press) { presses.push_back(press.button); };
  TickerForm.Visible = true;
  Display::Get().ShowDirty();
  FormWindow& bar = Display::Get().WindowOf(TickerForm);
  Key(*bar.findChild<QWidget*>("Ticker"), Qt::Key_Menu);
  Key(bar, Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(presses, (std::vector{MouseButton::Right, MouseButton::Right}));
}

TEST_F(MainUnderKeys, AMenuOpenedByAKeyStandsAtTheButtonWhereverTheMouseIs) {
  MainForm.MenuButton.Click = [] { PopUpMenu(MainForm, MenuForm.Options); };
  QCursor::setPos(1, 1);
  Key(Window(), Qt::Key_F10, Qt::ShiftModifier);
  const auto menus = Window().findChildren<QMenu*>(Qt::FindDirectChildrenOnly);
  ASSERT_FALSE(menus.empty());
  const QWidget& button = WidgetOf(MainForm.MenuButton);
  EXPECT_EQ(menus[0]->pos().y(), button.mapToGlobal(button.rect().bottomLeft()).y());
}

}  // namespace
}  // namespace skyloft
