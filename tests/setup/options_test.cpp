#include "setup/options.h"

#include "core/chrome.h"
#include "feed/transport.h"
#include "forms/main_form.h"
#include "forms/system_options_form.h"
#include "forms/ticker_form.h"
#include "settings/settings.h"
#include "station.h"
#include "store_changes.h"

namespace skyloft {
namespace {

SystemOptionsFormControls& form = SystemOptionsForm;

class Options : public Station {
 protected:
  Options() {
    LoadOptions();
    form.Email1Value.Text = "a@b.example";
    form.Email2Value.Text = "a@b.example";
    form.Visible = true;
    SaveOptions();
  }
  // The tab selected and the one frame on show, as "2 2".
  static std::string Tab() {
    std::string shown = std::to_string(form.TabStripOptions.Selected());
    for (int i = 1; i <= 4; ++i) {
      if (form.OptionsFrame[i].Visible) shown += " " + std::to_string(i);
    }
    return shown;
  }
  // Which of the position boxes are checked: T, B, F for the foreground.
  static std::string Position() {
    return std::string(form.TopScreenPosition.Checked ? "T" : "") +
           (form.BottomScreenPosition.Checked ? "B" : "") + (form.AlwaysOnTop.Checked ? "F" : "");
  }
  static void SetPosition(const std::string& boxes) {
    form.TopScreenPosition.Checked = boxes.find('T') != boxes.npos;
    form.BottomScreenPosition.Checked = boxes.find('B') != boxes.npos;
    form.AlwaysOnTop.Checked = boxes.find('F') != boxes.npos;
  }
};

TEST_F(Options, BeginsOnTheFirstTabAndATabShowsItsFrame) {
  EXPECT_EQ(Tab(), "1 1");
  for (const int tab : {2, 3, 4, 1}) {
    form.TabStripOptions.Select(tab);
    EXPECT_EQ(Tab(), std::to_string(tab) + " " + std::to_string(tab));
  }
  HideFrames();
  EXPECT_EQ(Tab(), "1");
}

TEST_F(Options, EveryControlStandsInTheFrameOfItsTabUnderItsCaption) {
  const std::pair<Control*, int> cases[] = {
      {&form.Email1Value, 1},          {&form.Email2Value, 1},           {&form.EmailOptionValue, 1},
      {&form.ShowTicker, 2},           {&form.AlwaysOnTop, 2},           {&form.TopScreenPosition, 2},
      {&form.BottomScreenPosition, 2}, {&form.ShowCurrentConditions, 2}, {&form.ShowHourlyForecast, 2},
      {&form.Show3DayForecast, 2},     {&form.ShowAlmanac, 2},           {&form.CurrentConditionsIndexMax, 3},
      {&form.ForecastIndexMax, 3},     {&form.NexradIndexMax, 3},        {&form.NWSIndexMax, 3},
      {&form.AutoConnect, 4},
  };
  for (const auto& [control, tab] : cases) {
    EXPECT_EQ(control->Container(), &form.OptionsFrame[tab]) << control->Name();
  }
  EXPECT_EQ(form.OptionsFrame[1].Name(), "OptionsFrame[1]");
  EXPECT_EQ(form.TabStripOptions.Tabs, (std::vector<std::string>{"Email", "Ticker", "Update", "Connection"}));
  const std::pair<std::string, const char*> captions[] = {
      {form.Caption, "Skyloft System Options"},
      {form.OptionsFrame[1].Caption, "Email Options"},
      {form.OptionsFrame[2].Caption, "Ticker Options"},
      {form.OptionsFrame[3].Caption, "Update Frequency"},
      {form.OptionsFrame[4].Caption, "Connection Options"},
      {form.Email1Label.Caption, "Email Address"},
      {form.Email2Label.Caption, "Re-Type Email Address"},
      {form.EmailOptionValue.Caption, "Inform me of Skyloft News and Updates"},
      {form.ShowTicker.Caption, "Show Ticker"},
      {form.AlwaysOnTop.Caption, "Always Foreground"},
      {form.TopScreenPosition.Caption, "Top Screen Position"},
      {form.BottomScreenPosition.Caption, "Bottom Screen Position"},
      {form.ShowCurrentConditions.Caption, "Show Current Conditions"},
      {form.ShowHourlyForecast.Caption, "Show Hourly Forecast"},
      {form.Show3DayForecast.Caption, "Show 3-Day Forecast"},
      {form.ShowAlmanac.Caption, "Show Almanac"},
      {form.CurrentConditionsLabel.Caption, "Current Conditions:"},
      {form.ForecastLabel.Caption, "Forecast:"},
      {form.NexradLabel.Caption, "NEXRAD Radar:"},
      {form.NWSLabel.Caption, "Severe Weather Warnings:"},
      {form.AutoConnect.Caption, "Automatically connect to the internet"},
  };
  for (const auto& [caption, expected] : captions) EXPECT_EQ(caption, expected);
}

TEST_F(Options, AChangedCharacterEmptiesTheSecondAddressAndOkIsRefusedUntilItIsTypedAgain) {
  form.Email2Value.Enabled = false;
  form.Email2Label.Enabled = false;
  form.Email1Value.Enter("a@b.example");
  EXPECT_EQ(form.Email2Value.Text.Get(), "a@b.example") << "nothing was changed";
  form.Email1Value.Enter("a@b.exampl");
  EXPECT_EQ(form.Email2Value.Text.Get(), "");
  EXPECT_TRUE(form.Email2Value.Enabled);
  EXPECT_TRUE(form.Email2Label.Enabled);
  form.OKButton.Press();
  EXPECT_TRUE(form.Visible);
  form.Email2Value.Enter("a@b.exampl");
  EXPECT_TRUE(form.Visible);
  form.OKButton.Press();
  EXPECT_FALSE(form.Visible);
  EXPECT_EQ(Doubles.Stored(kOptionsKey, "EmailAddress"), "a@b.exampl");
}

TEST_F(Options, OkIsRefusedWithoutAnAddressTypedTwiceAndGoesToTheFirstTab) {
  const std::string missing = "ERROR: Missing email address detected. Please verify each address.";
  const std::string differ = "ERROR: Invalid email address detected. Please verify each address.";
  const struct {
    const char *first, *second;
    std::string message;
  } cases[] = {
      {"", "", missing}, {"a", "", missing}, {"", "a", missing}, {"a", "b", differ}, {"a", "A", differ}};
  for (const auto& c : cases) {
    Doubles.boxes.clear();
    form.Email1Value.Text = c.first;
    form.Email2Value.Text = c.second;
    form.ShowTicker.Checked = false;
    TickerForm.Visible = true;
    form.TabStripOptions.Select(3);
    EXPECT_EQ(StoreChanges([] { form.OKButton.Press(); }), Changes{});
    ASSERT_EQ(Doubles.boxes.size(), 1u);
    EXPECT_EQ(Doubles.boxes[0].first, BoxKind::Error);
    EXPECT_EQ(Doubles.boxes[0].second, c.message);
    EXPECT_EQ(Tab(), "1 1");
    EXPECT_TRUE(form.Visible);
    EXPECT_TRUE(TickerForm.Visible) << "nothing else was done";
  }
}

TEST_F(Options, AClickOnAPositionBoxMovesTheOthers) {
  const struct {
    const char* before;
    CheckBox& box;
    bool checked;
    const char* after;
  } cases[] = {
      {"B", form.TopScreenPosition, true, "T"},
      {"BF", form.TopScreenPosition, true, "T"},  // the top clears the foreground
      {"T", form.TopScreenPosition, false, "B"},  // one of the two is always on
      {"T", form.BottomScreenPosition, true, "B"},
      {"B", form.BottomScreenPosition, false, "T"},
      {"BF", form.BottomScreenPosition, false, "T"},  // the change of the top in code acts like a click
      {"T", form.AlwaysOnTop, true, "BF"},            // the foreground moves to the bottom
      {"B", form.AlwaysOnTop, true, "BF"},
      {"BF", form.AlwaysOnTop, false, "B"},
  };
  for (const auto& c : cases) {
    SetPosition(c.before);
    c.box.Check(c.checked);
    EXPECT_EQ(Position(), c.after) << c.before << " " << c.box.Name() << " " << c.checked;
  }
}

TEST_F(Options, LoadingTheOptionsMovesNoPositionBox) {
  for (const char* name : {"TopScreenPosition", "BottomScreenPosition", "AlwaysOnTop"}) {
    Doubles.Store(kOptionsKey, name, "1");
  }
  LoadOptions();
  EXPECT_EQ(Position(), "TBF");
}

TEST_F(Options, OkShowsOrHidesTheBarWhoseRotationStopsWithIt) {
  SetUpLocations(1);
  for (const bool on : {false, true}) {
    form.Visible = true;
    form.ShowTicker.Check(on);
    TickerForm.Visible = !on;
    form.OKButton.Press();
    EXPECT_EQ(TickerForm.Visible.Get(), on);
    TickerForm.Ticker.Document = "old";
    for (int second = 0; second < 7; ++second) MainForm.Clock.Elapse();
    EXPECT_EQ(TickerForm.Ticker.Document.Get() != "old", on);
  }
}

TEST_F(Options, OkPutsTheBarToItsEdgeAndIntoTheForeground) {
  Doubles.work_area = {450, 15000, 12000};
  TickerForm.Height = 525;
  const struct {
    const char* position;
    int top;
    bool top_most;
  } cases[] = {{"T", 450, false}, {"B", 450 + 12000 - 525, false}, {"BF", 450 + 12000 - 525, true}};
  Chrome.TickerWindow.SetClient(&TickerForm);
  for (const auto& c : cases) {
    SetPosition(c.position);
    form.OKButton.Press();
    EXPECT_EQ(TickerForm.Top.Get(), c.top) << c.position;
    EXPECT_EQ(TickerForm.TopMost(), c.top_most) << c.position;
  }
}

TEST_F(Options, OkSavesWhatWasChangedAndHidesTheDialog) {
  form.ShowAlmanac.Check(false);
  form.NWSIndexMax.Select(0);
  form.EmailOptionValue.Check(false);
  EXPECT_EQ(
      StoreChanges([] { form.OKButton.Press(); }),
      (Changes{{"options/ShowAlmanac", "0"}, {"options/NWSUpdate", "0"}, {"options/EmailOption", "0"}}));
  EXPECT_FALSE(form.Visible);
  EXPECT_TRUE(Doubles.boxes.empty());
}

TEST_F(Options, AutoConnectIsSavedAndDoesNotChangeTheDialingOfThisRun) {
  form.AutoConnect.Check(false);
  EXPECT_EQ(StoreChanges([] { form.OKButton.Press(); }), (Changes{{"options/AutoConnect", "0"}}));
  EXPECT_EQ(Transport.AutoConnect, "1");
  LoadOptions();
  EXPECT_EQ(Transport.AutoConnect, "0");
}

TEST_F(Options, ChangesStandWithoutOkAndACloseOfTheWindowDoesNothing) {
  EXPECT_EQ(StoreChanges([] {
              form.ShowAlmanac.Check(false);
              Fire(form.Unload);
            }),
            Changes{});
  EXPECT_TRUE(form.Visible);
  EXPECT_FALSE(form.ShowAlmanac.Checked);
  LoadOptions();
  EXPECT_TRUE(form.ShowAlmanac.Checked) << "only the store knows what was saved";
}

TEST_F(Options, AStoreThatRefusesIsNotTold) {
  Doubles.store_refused = true;
  form.ShowAlmanac.Check(false);
  EXPECT_EQ(StoreChanges([] { form.OKButton.Press(); }), Changes{});
  EXPECT_FALSE(form.Visible);
  EXPECT_TRUE(Doubles.boxes.empty());
}

}  // namespace
}  // namespace skyloft
