#include "core/class1.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "forms/main_form.h"
#include "station.h"

namespace skyloft {
namespace {

class WindowStyle : public Station {
 protected:
  WindowStyle() { style.SetClient(&form); }
  std::vector<int> Commands() const {
    std::vector<int> commands;
    for (const auto& entry : form.SystemMenu) commands.push_back(entry.command);
    return commands;
  }
  struct SmallForm : Form {
    SmallForm() : Form("SmallForm", "", Border::None) {}
    Label Title{this, "Title"};
  } form;
  Class1 style;
};

struct BitCase {
  const char* name;
  bool (Class1::*get)() const;
  bool (Class1::*set)(bool);
  std::uint32_t style, ex_style;
};
const BitCase kBits[] = {
    {"ControlBox", &Class1::ControlBox, &Class1::SetControlBox, 0x80000, 0},
    {"MaxButton", &Class1::MaxButton, &Class1::SetMaxButton, 0x10000, 0},
    {"MinButton", &Class1::MinButton, &Class1::SetMinButton, 0x20000, 0},
    {"Sizeable", &Class1::Sizeable, &Class1::SetSizeable, 0x40000, 0},
    {"ShowInTaskbar", &Class1::ShowInTaskbar, &Class1::SetShowInTaskbar, 0, 0x40000},
    {"Titlebar", &Class1::Titlebar, &Class1::SetTitlebar, 0xC00000, 0},
    {"ToolWindow", &Class1::ToolWindow, &Class1::SetToolWindow, 0, 0x80},
    {"WhatsThisButton", &Class1::WhatsThisButton, &Class1::SetWhatsThisButton, 0, 0x400},
};

TEST_F(WindowStyle, EveryStyleIsItsBits) {
  for (const BitCase& bit : kBits) {
    EXPECT_FALSE((style.*bit.get)()) << bit.name;
    EXPECT_TRUE((style.*bit.set)(true)) << bit.name << " stuck";
    EXPECT_EQ(form.Style.Get(), bit.style) << bit.name;
    EXPECT_EQ(form.ExStyle.Get(), bit.ex_style) << bit.name;
    EXPECT_TRUE((style.*bit.get)()) << bit.name;
    EXPECT_TRUE((style.*bit.set)(false)) << bit.name;
    EXPECT_EQ(form.Style.Get() | form.ExStyle.Get(), 0u) << bit.name;
  }
}

TEST_F(WindowStyle, AGetReadsTheWindowAndNotACopy) {
  form.Style = 0x400000;
  EXPECT_TRUE(style.Titlebar()) << "any of its bits";
  form.ExStyle = 0x8;
  EXPECT_TRUE(style.TopMost());
  style.SetTopMost(false);
  EXPECT_EQ(form.ExStyle.Get(), 0u);
}

TEST_F(WindowStyle, OtherBitsStay) {
  form.Style = 0x80000;
  style.SetSizeable(true);
  EXPECT_EQ(form.Style.Get(), 0xC0000u);
}

TEST_F(WindowStyle, ADisabledEntryBearsItsCommandWithoutBit15AndIsFoundByEither) {
  EXPECT_TRUE(style.Moveable());
  style.SetMoveable(false);
  EXPECT_FALSE(style.Moveable());
  EXPECT_EQ(form.SystemMenu[1].command, 61456 & ~0x8000);
  EXPECT_FALSE(form.SystemMenu[1].enabled);
  style.SetMoveable(true);
  EXPECT_EQ(form.SystemMenu[1].command, 61456);
  EXPECT_TRUE(form.SystemMenu[1].enabled);
  style.SetSizeable(false);
  EXPECT_FALSE(form.SystemMenu[2].enabled);
}

TEST_F(WindowStyle, MinAndMaxButtonsAndSizeableSwitchTheirCommands) {
  const struct {
    bool (Class1::*set)(bool);
    int command;
  } cases[] = {{&Class1::SetMinButton, 61472}, {&Class1::SetMaxButton, 61488}, {&Class1::SetSizeable, 61440}};
  for (const auto& each : cases) {
    for (const bool on : {false, true}) {
      (style.*each.set)(on);
      const int shown = on ? each.command : each.command & ~0x8000;
      const auto entry = std::ranges::find(form.SystemMenu, shown, &SystemMenuEntry::command);
      ASSERT_NE(entry, form.SystemMenu.end()) << each.command << on;
      EXPECT_EQ(entry->enabled, on) << each.command;
    }
  }
}

TEST_F(WindowStyle, RemovingCloseTakesTheEntryAboveItAlong) {
  style.RemoveMenuItem(61536);
  EXPECT_EQ(Commands(), (std::vector<int>{61728, 61456, 61440, 61472, 61488}));
}

TEST_F(WindowStyle, RemovingMinimizeAndMaximizeTurnsTheirButtonsOffFirst) {
  style.SetMinButton(true);
  style.SetMaxButton(true);
  style.RemoveMenuItem(61472);
  style.RemoveMenuItem(61488);
  EXPECT_FALSE(style.MinButton());
  EXPECT_FALSE(style.MaxButton());
  EXPECT_EQ(Commands(), (std::vector<int>{61728, 61456, 61440, 0, 61536}));
}

TEST_F(WindowStyle, OnlyTheLeftButtonDragsAndOnlyWithAutoDrag) {
  form.Press({1, 2, MouseButton::Left});
  EXPECT_EQ(Doubles.drags, 0);
  style.AutoDrag = true;
  form.Press({1, 2, MouseButton::Right});
  EXPECT_EQ(Doubles.drags, 0);
  form.Press({1, 2, MouseButton::Left});
  EXPECT_EQ(Doubles.drags, 1);
}

TEST_F(WindowStyle, TheRightButtonOpensTheSystemMenuWhenReleasedWithAutoSysMenu) {
  form.Release({3, 4, MouseButton::Right});
  EXPECT_TRUE(Doubles.system_menus.empty());
  style.AutoSysMenu = true;
  form.Press({3, 4, MouseButton::Right});
  form.Release({3, 4, MouseButton::Left});
  EXPECT_TRUE(Doubles.system_menus.empty());
  form.Release({3, 4, MouseButton::Right});
  EXPECT_EQ(Doubles.system_menus, std::vector<std::string>{"SmallForm 3 4"});
}

TEST_F(WindowStyle, AnythingButAFormIsIgnoredAsClient) {
  style.SetClient(&form.Title);
  EXPECT_EQ(style.Client(), &form);
  style.SetClient(nullptr);
  EXPECT_EQ(style.Client(), &form);
}

TEST_F(WindowStyle, WithoutAClientNothingHappens) {
  Class1 none;
  EXPECT_FALSE(none.SetTitlebar(true));
  EXPECT_FALSE(none.Titlebar());
  none.RemoveMenuItem(61536);
  none.ShowSysMenu(0, 0);
  EXPECT_TRUE(Doubles.system_menus.empty());
}

TEST_F(WindowStyle, TheTaskbarChangesWhileTheWindowIsHiddenAndItComesBack) {
  form.Visible = true;
  style.SetShowInTaskbar(true);
  EXPECT_TRUE(form.Visible);
}

}  // namespace
}  // namespace skyloft
