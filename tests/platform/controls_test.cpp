#include "platform/controls.h"

#include <gtest/gtest.h>

#include "forms/forms.h"
#include "forms/main_form.h"
#include "forms/menu_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"

namespace skyloft {
namespace {

struct SmallForm : Form {
  SmallForm() : Form("SmallForm", "Small", Border::None) {}
  Label Title{this, "Title"};
  ListControl Choice{this, "Choice"};
  CheckBox Switch{this, "Switch"};
  TextBox Line{this, "Line"};
  Timer Beat{this, "Beat", 1000};
  ControlArray<Mark, 3> Marks{this, "Marks"};
};

TEST(Controls, AFormKnowsItsControlsByName) {
  SmallForm form;
  ASSERT_EQ(form.Controls().size(), 8u);
  EXPECT_EQ(form.Controls()[7]->Name(), "Marks[2]");
  EXPECT_FALSE(form.Visible) << "a form starts hidden";
}

TEST(Controls, AssigningAFreshFormResetsItAndKeepsItsControls) {
  SmallForm form;
  form.Title.Caption = "changed";
  form.Choice.AddItem("one");
  form.Switch.Click = [] {};
  form = {};
  EXPECT_EQ(form.Title.Caption.Get(), "");
  EXPECT_EQ(form.Choice.Count(), 0);
  EXPECT_FALSE(form.Switch.Click);
  EXPECT_EQ(form.Controls().size(), 8u);
  EXPECT_EQ(form.Controls()[0], &form.Title);
  EXPECT_EQ(form.Title.Owner(), &form);
}

TEST(Controls, OnlyAChangeMarksDirty) {
  SmallForm form;
  TakeDirtyControls();
  form.Title.Caption = "";
  EXPECT_FALSE(AnyDirtyControl());
  form.Title.Caption = "new";
  form.Title.Visible = false;
  const auto dirty = TakeDirtyControls();
  ASSERT_EQ(dirty.size(), 1u) << "a control is dirty once";
  EXPECT_EQ(dirty[0], &form.Title);
  EXPECT_FALSE(AnyDirtyControl());
}

TEST(Controls, AControlThatGoesIsNoLongerDirty) {
  {
    SmallForm form;
    form.Title.Caption = "new";
  }
  for (const Control* control : TakeDirtyControls()) EXPECT_NE(control->Name(), "Title");
}

TEST(Controls, SettingAnIndexRaisesTheEventAlsoWhenUnchanged) {
  SmallForm form;
  int raised = 0;
  form.Choice.Click = [&] { ++raised; };
  form.Choice.AddItem("one");
  form.Choice.AddItem("two");
  EXPECT_EQ(raised, 0) << "filling raises nothing";
  form.Choice.Select(1);
  form.Choice.Select(1);
  EXPECT_EQ(raised, 2);
  form.Choice.Clear();
  EXPECT_EQ(raised, 2) << "clearing raises nothing";
}

TEST(Controls, AnUnselectedListHasIndexMinusOneAndNoText) {
  SmallForm form;
  form.Choice.AddItem("one");
  EXPECT_EQ(form.Choice.ListIndex(), -1);
  EXPECT_EQ(form.Choice.Text(), "");
}

TEST(Controls, AnIndexOutsideTheListIsARunTimeError) {
  SmallForm form;
  form.Choice.AddItem("one");
  EXPECT_THROW(form.Choice.Select(1), RuntimeError);
  EXPECT_THROW(form.Choice.Select(-2), RuntimeError);
  EXPECT_THROW(form.Choice.RemoveItem(1), RuntimeError);
  EXPECT_NO_THROW(form.Choice.Select(-1));
}

TEST(Controls, RemovingAnEntryBeforeTheSelectedOneShiftsIt) {
  SmallForm form;
  for (const char* item : {"a", "b", "c"}) form.Choice.AddItem(item);
  form.Choice.Select(2);
  form.Choice.RemoveItem(0);
  EXPECT_EQ(form.Choice.Text(), "c");
  form.Choice.RemoveItem(1);
  EXPECT_EQ(form.Choice.ListIndex(), -1);
}

TEST(Controls, ADisabledControlTakesNoAct) {
  SmallForm form;
  int raised = 0;
  form.Title.Click = form.Switch.Click = form.Line.Change = [&] { ++raised; };
  form.Title.Enabled = form.Switch.Enabled = form.Line.Enabled = false;
  form.Title.Press();
  form.Switch.Check(true);
  form.Line.Enter("text");
  EXPECT_EQ(raised, 0);
  EXPECT_FALSE(form.Switch.Checked);
  EXPECT_EQ(form.Line.Text.Get(), "");
}

TEST(Controls, NoFailureOfAHandlerLeavesRaise) {
  SmallForm form;
  form.Title.Click = [] { throw RuntimeError("handler"); };
  EXPECT_NO_THROW(Raise([&] { form.Title.Press(); }));
}

TEST(Controls, ATickInsideItsOwnTickIsDroppedAndAnotherTimersRuns) {
  SmallForm form;
  SmallForm other;
  int ticks = 0;
  int other_ticks = 0;
  other.Beat.Tick = [&] { ++other_ticks; };
  form.Beat.Tick = [&] {
    if (++ticks > 3) return;
    form.Beat.Elapse();
    other.Beat.Elapse();
  };
  form.Beat.Elapse();
  EXPECT_EQ(ticks, 1);
  EXPECT_EQ(other_ticks, 1);
  form.Beat.Elapse();
  EXPECT_EQ(ticks, 2);
}

TEST(Controls, AFailedTickLetsTheNextOneRun) {
  SmallForm form;
  int ticks = 0;
  form.Beat.Tick = [&] {
    ++ticks;
    throw RuntimeError("tick");
  };
  Raise([&] { form.Beat.Elapse(); });
  Raise([&] { form.Beat.Elapse(); });
  EXPECT_EQ(ticks, 2);
}

TEST(Forms, EveryControlIsFoundByItsOutsideName) {
  EXPECT_EQ(FindControl("MainForm.Thumbnail"), &MainForm.Thumbnail);
  EXPECT_EQ(FindControl("MainForm.SysTray[2]"), &MainForm.SysTray[2]);
  EXPECT_EQ(FindControl("MenuForm.DeleteLocationTitle[9]"), &MenuForm.DeleteLocationTitle[9]);
  EXPECT_EQ(FindControl("MainForm"), &MainForm);
  EXPECT_EQ(FindControl("MainForm.Nothing"), nullptr);
  EXPECT_EQ(FindControl("NoForm.Thumbnail"), nullptr);
  EXPECT_EQ(FindControl(""), nullptr);
}

TEST(Forms, TheOptionListsHoldTheirMinutes) {
  const auto& form = SystemOptionsForm;
  EXPECT_EQ(form.NWSIndexMax.Items().front(), "2");
  EXPECT_EQ(form.NWSIndexMax.Items().back(), "10");
  EXPECT_EQ(form.NWSIndexMax.Count(), 9);
  EXPECT_EQ(form.CurrentConditionsIndexMax.Count(), 12);
  EXPECT_EQ(form.CurrentConditionsIndexMax.Items()[2], "15");
  EXPECT_EQ(form.ForecastIndexMax.Items()[11], "60");
  EXPECT_EQ(form.NexradIndexMax.Items().front(), "10");
  EXPECT_EQ(form.NexradIndexMax.Count(), 11);
}

// Whether it has a place of its own in the window; what lies in another control does not.
bool IsShown(const Control& control) {
  return control.Width > 0 && control.Height > 0 && !control.Container();
}

TEST(Skin, NothingOfTheMainWindowLiesUnderItsRoundCorners) {
  ApplySkin();
  // Corners are quarter ellipses of 55 by 48 pixels; the outline begins two pixels above the window.
  const auto inside = [](double x, double y) {
    const double dx = x < 55 ? 55 - x : x > 745 ? x - 745 : 0;
    const double dy = y < 46 ? 46 - y : y > 542 ? y - 542 : 0;
    return dx * dx / (55 * 55) + dy * dy / (48 * 48) <= 1;
  };
  for (const Control* control : MainForm.Controls()) {
    if (!IsShown(*control)) continue;
    const int right = control->Left + control->Width;
    const int bottom = control->Top + control->Height;
    for (const auto& [x, y] : {std::pair<int, int>(control->Left, control->Top),
                               {right, control->Top},
                               {control->Left, bottom},
                               {right, bottom}}) {
      EXPECT_TRUE(inside(x, y)) << control->Name() << " at " << x << ", " << y;
    }
  }
}

TEST(Skin, NoTwoControlsOfTheMainWindowOverlapButTheDisplays) {
  ApplySkin();
  const auto overlap = [](const Control& a, const Control& b) {
    return a.Left < b.Left + b.Width && b.Left < a.Left + a.Width && a.Top < b.Top + b.Height &&
           b.Top < a.Top + a.Height;
  };
  const auto display = [](const Control& control) {
    return &control == &MainForm.Display1 || &control == &MainForm.Display2 || &control == &MainForm.Legend;
  };
  const auto& controls = MainForm.Controls();
  for (size_t i = 0; i < controls.size(); ++i) {
    for (size_t j = i + 1; j < controls.size(); ++j) {
      if (!IsShown(*controls[i]) || !IsShown(*controls[j])) continue;
      if (display(*controls[i]) && display(*controls[j])) continue;
      EXPECT_FALSE(overlap(*controls[i], *controls[j]))
          << controls[i]->Name() << " and " << controls[j]->Name();
    }
  }
}

TEST(Skin, TheToldSizesHold) {
  ApplySkin();
  EXPECT_EQ(MainForm.Width, 800 * 15);
  EXPECT_EQ(MainForm.Height, 590 * 15);
  EXPECT_EQ(MainForm.WeatherConditionsBanner.Width, 150);
  EXPECT_GE(MainForm.Display1.Width, 604);
  EXPECT_GE(MainForm.Display1.Height, 415);
  EXPECT_EQ(MainForm.Sponsor2.Width, 740);
  EXPECT_EQ(MainForm.Sponsor2.Height, 15);
  EXPECT_EQ(TickerForm.Sponsor4.Left, 0);
  EXPECT_EQ(TickerForm.Sponsor4.Width, 90);
  EXPECT_EQ(TickerForm.Sponsor4.Height, 35);
  EXPECT_EQ(TickerForm.Ticker.Left, 88);
  EXPECT_EQ(TickerForm.Ticker.Height, 35);
}

TEST(Controls, APositionOutsideTheBarIsBroughtToItsNearerEnd) {
  const struct {
    int max, value, shown;
  } cases[] = {{65, 8, 8}, {65, 0, 0}, {65, 65, 65}, {59, 64, 59}, {59, -1, 0}, {0, 5, 0}, {-1, 0, 0}};
  for (const auto& c : cases) {
    MainForm.ProgressBar.SetPosition(c.max, c.value);
    EXPECT_EQ(MainForm.ProgressBar.Max, c.max);
    EXPECT_EQ(MainForm.ProgressBar.Value, c.shown) << c.max << " " << c.value;
  }
  MainForm = {};
}

TEST(Controls, ADocumentTakesThePlaceOfAnAddressAndEachVisitShowsItAnew) {
  HtmlDisplay& page = MainForm.Display2;
  page.Document = "one";
  page.Navigate("C:\\a.htm");
  EXPECT_EQ(page.Document.Get(), "");
  EXPECT_EQ(page.Address(), "C:\\a.htm");
  TakeDirtyControls();
  page.Navigate("C:\\a.htm");
  EXPECT_TRUE(AnyDirtyControl());
  TakeDirtyControls();
  page.Document = "one";
  EXPECT_TRUE(AnyDirtyControl()) << "the same document as before the visits";
  MainForm = {};
}

TEST(Controls, ADocumentIsLoadedAnewAlsoWhenItIsTheOneOnShow) {
  HtmlDisplay& page = MainForm.Display2;
  page.Document = "one";
  TakeDirtyControls();
  page.Document = "one";
  EXPECT_FALSE(AnyDirtyControl());
  for (const int visits : {1, 2}) {
    page.Load("one");
    EXPECT_EQ(page.Document.Get(), "one");
    EXPECT_EQ(page.Visits(), visits);
    EXPECT_EQ(TakeDirtyControls(), std::vector<Control*>{&page});
  }
  MainForm = {};
}

}  // namespace
}  // namespace skyloft
