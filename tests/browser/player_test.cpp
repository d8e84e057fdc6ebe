#include "browser/player.h"

#include "browser/selection.h"
#include "forms/main_form.h"
#include "station.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

class Player : public Station {
 protected:
  Player() {
    Browser.SelectedProduct = "Weekly Planner";  // whose times show nothing themselves
    Periods.HourIndexMax = 65;
  }
  static void SetTimes(int count) {
    MainForm.TimeSelection.Clear();
    for (int i = 0; i < count; ++i) MainForm.TimeSelection.AddItem("Time " + std::to_string(i));
    if (count > 0) MainForm.TimeSelection.Select(0);
    BackNextPlayStopState();
  }
  static std::string Picture(const ImageButton& button) {
    return button.PicturePath().substr(button.PicturePath().rfind('\\') + 1);
  }
};

TEST_F(Player, BackNextAndPlayWorkFromTwoTimesOnAndStopNever) {
  for (const auto& [count, works] : {std::pair{20, true}, {0, false}, {2, true}, {1, false}}) {
    MainForm.StopButton.Enabled = true;
    for (ImageButton* button : {&MainForm.BackButton, &MainForm.NextButton, &MainForm.PlayButton}) {
      button->Visible = false;
    }
    SetTimes(count);
    const std::pair<const ImageButton*, std::string> buttons[] = {
        {&MainForm.BackButton, "back"}, {&MainForm.NextButton, "next"}, {&MainForm.PlayButton, "play"}};
    for (const auto& [button, name] : buttons) {
      EXPECT_EQ(button->Enabled, works) << name << count;
      EXPECT_TRUE(button->Visible) << name;
      EXPECT_EQ(Picture(*button), name + (works ? ".gif" : "d.gif")) << count;
    }
    EXPECT_FALSE(MainForm.StopButton.Enabled);
    EXPECT_EQ(Picture(MainForm.StopButton), "stopd.gif");
  }
}

TEST_F(Player, BackStopsAtTheFirstEntryAndNextGoesFromTheLastToTheFirst) {
  SetTimes(3);
  const struct {
    ImageButton* button;
    int index;
  } steps[] = {{&MainForm.BackButton, 0}, {&MainForm.NextButton, 1}, {&MainForm.NextButton, 2},
               {&MainForm.BackButton, 1}, {&MainForm.NextButton, 2}, {&MainForm.NextButton, 0}};
  for (const auto& step : steps) {
    step.button->Press();
    EXPECT_EQ(MainForm.TimeSelection.ListIndex(), step.index);
    EXPECT_EQ(MainForm.ProductTitle.Caption.Get(), "Weekly Planner Time " + std::to_string(step.index));
  }
}

TEST_F(Player, AStepTurnsTheBarBlueAndStopsPlaying) {
  SetTimes(3);
  for (ImageButton* button : {&MainForm.BackButton, &MainForm.NextButton}) {
    MainForm.ProgressBar.Color = 65280;
    MainForm.ImageForwardTimer.Enabled = true;
    button->Press();
    EXPECT_EQ(MainForm.ProgressBar.Color, 0xff0000);
    EXPECT_FALSE(MainForm.ImageForwardTimer.Enabled);
  }
}

TEST_F(Player, AProductOfOneFrameStaysWhereItIs) {
  SetTimes(3);
  Periods.HourIndexMax = 0;
  MainForm.ImageForwardTimer.Enabled = true;
  MainForm.NextButton.Press();
  EXPECT_EQ(MainForm.TimeSelection.ListIndex(), 0);
  EXPECT_TRUE(MainForm.ImageForwardTimer.Enabled);
  EXPECT_EQ(MainForm.ProductTitle.Caption.Get(), "Weekly Planner Time 0");
}

TEST_F(Player, EachStepRaisesTheSelectionOnce) {
  SetTimes(2);
  int raised = 0;
  MainForm.TimeSelection.Click = [&] { ++raised; };
  MainForm.NextButton.Press();
  MainForm.BackButton.Press();
  MainForm.BackButton.Press();
  EXPECT_EQ(raised, 3) << "also for the entry that stays";
}

TEST_F(Player, PlayRunsTheTimerAndShutsTheListsButThatOfCategories) {
  SetTimes(20);
  MainForm.PlayButton.Press();
  EXPECT_TRUE(MainForm.ImageForwardTimer.Enabled);
  EXPECT_EQ(MainForm.ImageForwardTimer.Interval, 500);
  EXPECT_EQ(MainForm.ProgressBar.Color, 65280);
  EXPECT_EQ(Picture(MainForm.PlayButton) + Picture(MainForm.StopButton), "playd.gifstop.gif");
  EXPECT_EQ(Picture(MainForm.BackButton) + Picture(MainForm.NextButton), "backd.gifnextd.gif");
  EXPECT_FALSE(MainForm.PlayButton.Enabled || MainForm.BackButton.Enabled || MainForm.NextButton.Enabled);
  EXPECT_FALSE(MainForm.LocationSelection.Enabled || MainForm.ProductSelection.Enabled ||
               MainForm.TimeSelection.Enabled);
  EXPECT_TRUE(MainForm.CategorySelection.Enabled);
}

TEST_F(Player, StopGivesTheListsBack) {
  SetTimes(3);
  MainForm.PlayButton.Press();
  MainForm.StopButton.Press();
  EXPECT_FALSE(MainForm.ImageForwardTimer.Enabled);
  EXPECT_EQ(MainForm.ProgressBar.Color, 0xff0000);
  EXPECT_TRUE(MainForm.PlayButton.Enabled && MainForm.BackButton.Enabled && MainForm.NextButton.Enabled);
  EXPECT_FALSE(MainForm.StopButton.Enabled);
  EXPECT_EQ(Picture(MainForm.PlayButton) + Picture(MainForm.StopButton), "play.gifstopd.gif");
  EXPECT_EQ(Picture(MainForm.BackButton) + Picture(MainForm.NextButton), "back.gifnext.gif");
  EXPECT_TRUE(MainForm.LocationSelection.Enabled && MainForm.ProductSelection.Enabled &&
              MainForm.TimeSelection.Enabled);
}

TEST_F(Player, ALoopTakesTenSecondsAndARadarFrameAFifthOfOne) {
  const struct {
    const char* product;
    int count, interval;
  } cases[] = {{"Wind", 20, 500}, {"Wind", 3, 3333}, {"Wind", 7, 1429}, {"Reflectivity", 20, 200}};
  for (const auto& c : cases) {
    Browser.SelectedProduct = c.product;
    MainForm.TimeSelection.Click = {};
    SetTimes(c.count);
    MainForm.PlayButton.Press();
    EXPECT_EQ(MainForm.ImageForwardTimer.Interval, c.interval) << c.product << c.count;
    MainForm.StopButton.Press();
  }
}

TEST_F(Player, AProductOfOneFrameDoesNotPlay) {
  SetTimes(3);
  Periods.HourIndexMax = 0;
  MainForm.PlayButton.Press();
  EXPECT_FALSE(MainForm.ImageForwardTimer.Enabled);
  EXPECT_TRUE(MainForm.TimeSelection.Enabled);
}

TEST_F(Player, TheTimerGoesThroughTheEntriesAndBeginsAnew) {
  SetTimes(3);
  MainForm.PlayButton.Press();
  for (const int index : {1, 2, 0, 1}) {
    MainForm.ImageForwardTimer.Elapse();
    EXPECT_EQ(MainForm.TimeSelection.ListIndex(), index);
    EXPECT_EQ(MainForm.ProductTitle.Caption.Get(), "Weekly Planner Time " + std::to_string(index));
  }
  MainForm.TimeSelection.Clear();
  EXPECT_NO_THROW(MainForm.ImageForwardTimer.Elapse());
}

}  // namespace
}  // namespace skyloft
