#include "core/chrome.h"

#include "feed/catalogues.h"
#include "forms/setup_wizard_form.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

class ChromeTest : public Station {
 protected:
  static std::string Icon(const std::string& file) { return "C:\\program files\\skyloft\\icons\\" + file; }
};

TEST_F(ChromeTest, TheWindowIsARoundRectangleThatBeginsTwoPixelsAboveIt) {
  EXPECT_EQ(CreateWindowRegion(800, 590, 1.0, 1.0, 0, 0), (RoundRegion{0, -2, 800, 590, 110, 96}));
  EXPECT_EQ(CreateWindowRegion(800, 590, 2.0, 0.5, 10, 20), (RoundRegion{10, 19, 1610, 315, 220, 48}));
}

TEST_F(ChromeTest, AnEmptyArgumentLeavesItsProperty) {
  MainForm.PlayButton.Enabled = false;
  MainForm.PlayButton.Visible = true;
  PlayButtonState("", "", Icon("playr.gif"));
  EXPECT_FALSE(MainForm.PlayButton.Enabled);
  EXPECT_TRUE(MainForm.PlayButton.Visible);
  EXPECT_EQ(MainForm.PlayButton.PicturePath(), Icon("playr.gif"));
  PlayButtonState("True", "False", "");
  EXPECT_TRUE(MainForm.PlayButton.Enabled);
  EXPECT_FALSE(MainForm.PlayButton.Visible);
  EXPECT_EQ(MainForm.PlayButton.PicturePath(), Icon("playr.gif"));
}

TEST_F(ChromeTest, ThePictureIsReadAtEveryCall) {
  Doubles.loaded_pictures.clear();
  PlayButtonState("", "", Icon("play.gif"));
  PlayButtonState("", "", Icon("play.gif"));
  EXPECT_EQ(Doubles.loaded_pictures.size(), 2u);
}

TEST_F(ChromeTest, AMissingPictureIsTheCallersError) {
  Doubles.missing_pictures.insert(Icon("play.gif"));
  EXPECT_THROW(PlayButtonState("True", "", Icon("play.gif")), RuntimeError);
}

TEST_F(ChromeTest, DownAndUpShowThePressedAndTheNormalPicture) {
  MainForm.HelpButton.Down();
  EXPECT_EQ(MainForm.HelpButton.PicturePath(), Icon("helpr.gif"));
  MainForm.HelpButton.Up();
  EXPECT_EQ(MainForm.HelpButton.PicturePath(), Icon("help.gif"));
}

TEST_F(ChromeTest, TheSevereButtonsComeWithTheirLabels) {
  for (const Control* hidden :
       {static_cast<Control*>(&MainForm.TornadoButton), static_cast<Control*>(&MainForm.FloodButton),
        static_cast<Control*>(&MainForm.ThunderstormButton),
        static_cast<Control*>(&MainForm.PersonalAlertButton),
        static_cast<Control*>(&MainForm.SevereWeatherLabel),
        static_cast<Control*>(&MainForm.PersonalLabel)}) {
    EXPECT_FALSE(hidden->Visible) << hidden->Name();
  }
  ShowSevereButtons();
  EXPECT_TRUE(MainForm.TornadoButton.Visible);
  EXPECT_TRUE(MainForm.ThunderstormButton.Visible);
  EXPECT_TRUE(MainForm.FloodButton.Visible);
  EXPECT_TRUE(MainForm.PersonalAlertButton.Visible);
  EXPECT_TRUE(MainForm.SevereWeatherLabel.Visible);
  EXPECT_TRUE(MainForm.PersonalLabel.Visible);
}

TEST_F(ChromeTest, PressingTheLegendButtonTwiceBringsTheLegendBack) {
  MainForm.Legend.Visible = true;
  MainForm.LegendButton.Down();
  EXPECT_FALSE(MainForm.Legend.Visible);
  EXPECT_EQ(Settings.LegendFlag, 1);
  EXPECT_EQ(MainForm.LegendButton.PicturePath(), Icon("legendr.gif"));
  MainForm.LegendButton.Up();
  MainForm.LegendButton.Press();
  EXPECT_EQ(Settings.LegendFlag, 1) << "it acts once, on the press";
  EXPECT_EQ(MainForm.LegendButton.PicturePath(), Icon("legend.gif"));
  MainForm.LegendButton.Down();
  EXPECT_TRUE(MainForm.Legend.Visible);
  EXPECT_EQ(Settings.LegendFlag, 0);
}

TEST_F(ChromeTest, HelpChoosesTheSupportCategoryAndShowsTheWindow) {
  MainForm.CategorySelection.AddItem("Planners");
  MainForm.CategorySelection.AddItem("Technical Support");
  Catalogues.SupportCategoryIndex = 1;
  MainForm.HelpButton.Press();
  EXPECT_EQ(MainForm.CategorySelection.Text(), "Technical Support");
  EXPECT_TRUE(MainForm.Visible);
}

TEST_F(ChromeTest, HelpWithoutASupportCategoryChoosesTheFirst) {
  MainForm.CategorySelection.AddItem("Planners");
  MainForm.CategorySelection.AddItem("Forecast Maps");
  MainForm.HelpButton.Press();
  EXPECT_EQ(MainForm.CategorySelection.Text(), "Planners");
  EXPECT_TRUE(MainForm.Visible);
}

TEST_F(ChromeTest, LosingTheFocusClearsTopMost) {
  Chrome.MainWindow.SetClient(&MainForm);
  Chrome.MainWindow.SetTopMost(true);
  EXPECT_TRUE(MainForm.TopMost());
  Fire(MainForm.LostFocus);
  EXPECT_FALSE(MainForm.TopMost());
}

TEST_F(ChromeTest, TheProceduresOfAbsentButtonsChangeNothing) {
  Doubles.loaded_pictures.clear();
  MinimizeButtonState("True", "True", Icon("minimize.gif"));
  RouteScopeRoadButtonState("True", "True", Icon("x.gif"));
  EXPECT_TRUE(Doubles.loaded_pictures.empty());
}

// A button with the files of its pictures; "" where it has none. Of the severe ones the lit takes the place
// of the pressed.
struct ButtonCase {
  const ImageButtonState& state;
  ImageButton MainFormControls::*button;
  std::string normal, pressed, disabled;
};
using Form = MainFormControls;
const ButtonCase kPressable[] = {
    {BackButtonState, &Form::BackButton, "back.gif", "backr.gif", "backd.gif"},
    {NextButtonState, &Form::NextButton, "next.gif", "nextr.gif", "nextd.gif"},
    {PlayButtonState, &Form::PlayButton, "play.gif", "playr.gif", "playd.gif"},
    {StopButtonState, &Form::StopButton, "stop.gif", "stopr.gif", "stopd.gif"},
    {ExitButtonState, &Form::ExitButton, "exit.gif", "exitr.gif", ""},
    {HelpButtonState, &Form::HelpButton, "help.gif", "helpr.gif", ""},
    {MenuButtonState, &Form::MenuButton, "menu.gif", "menur.gif", ""},
    {LocalButtonState, &Form::LocalButton, "local.gif", "localr.gif", "locald.gif"},
    {NationalButtonState, &Form::NationalButton, "national.gif", "nationalr.gif", "nationald.gif"},
    {AreaZoomButtonState, &Form::AreaZoomButton, "zmarea.gif", "zmarear.gif", "zmaread.gif"},
    {ZoomInButtonState, &Form::ZoomInButton, "zoomin.gif", "zoominr.gif", "zoomind.gif"},
    {ZoomOutButtonState, &Form::ZoomOutButton, "zoomout.gif", "zoomoutr.gif", "zoomoutd.gif"},
    {ResetButtonState, &Form::ResetButton, "reset.gif", "resetr.gif", "resetd.gif"},
    {LegendButtonState, &Form::LegendButton, "legend.gif", "legendr.gif", ""},
};

TEST_F(ChromeTest, EveryButtonWithAPressedPictureShowsIt) {
  for (const ButtonCase& each : kPressable) {
    ImageButton& button = MainForm.*each.button;
    button.Enabled = true;
    button.Down();
    EXPECT_EQ(button.PicturePath(), Icon(each.pressed)) << button.Name();
    button.Up();
    EXPECT_EQ(button.PicturePath(), Icon(each.normal)) << button.Name();
  }
}

TEST_F(ChromeTest, EveryStateProcedureSetsItsButtonAndKnowsItsDisabledPicture) {
  for (const ButtonCase& each : kPressable) {
    ImageButton& button = MainForm.*each.button;
    EXPECT_EQ(each.state.disabled, each.disabled) << button.Name();
    each.state("True", "True", "");
    each.state("False", "False", Icon(each.normal));
    EXPECT_FALSE(button.Enabled) << button.Name();
    EXPECT_FALSE(button.Visible) << button.Name();
    EXPECT_EQ(button.PicturePath(), Icon(each.normal)) << button.Name();
  }
}

TEST_F(ChromeTest, SevereButtonsHaveNoPressedPictureAndTakeTheLitOne) {
  const ButtonCase severe[] = {
      {PersonalButtonState, &Form::PersonalAlertButton, "personal.gif", "personals.gif", "personald.gif"},
      {TornadoButtonState, &Form::TornadoButton, "tornado.gif", "tornados.gif", "tornadod.gif"},
      {ThunderstormButtonState, &Form::ThunderstormButton, "tstorm.gif", "tstorms.gif", "tstormd.gif"},
      {FloodButtonState, &Form::FloodButton, "flood.gif", "floods.gif", "floodd.gif"},
  };
  for (const ButtonCase& each : severe) {
    ImageButton& button = MainForm.*each.button;
    for (const std::string& picture : {each.normal, each.pressed, each.disabled}) {
      each.state("True", "", Icon(picture));
      button.Down();
      EXPECT_EQ(button.PicturePath(), Icon(picture)) << button.Name() << " when pressed";
      button.Up();
      EXPECT_EQ(button.PicturePath(), Icon(picture)) << button.Name();
    }
  }
}

TEST_F(ChromeTest, LegendButtonIsSwitchedOffWithoutAPictureOfItsOwn) {
  const std::string shown = MainForm.LegendButton.PicturePath();
  LegendButtonState("False", "", "");
  EXPECT_FALSE(MainForm.LegendButton.Enabled);
  EXPECT_TRUE(MainForm.LegendButton.Visible);
  EXPECT_EQ(MainForm.LegendButton.PicturePath(), shown);
}

TEST_F(ChromeTest, ASecondStartBringsTheMainWindowForwardOrTheWizardOfAFirstRun) {
  SetupWizardForm.Visible = true;
  ShowAgain();
  EXPECT_FALSE(MainForm.Visible);
  SetupWizardForm.Visible = false;
  SetUpLocations(1);
  ShowAgain();
  EXPECT_TRUE(MainForm.Visible);
  EXPECT_EQ(Doubles.activated, (std::vector<std::string>{"SetupWizardForm", "MainForm"}));
}

TEST_F(ChromeTest, TheBodyDragsTheWindowWithAnyButton) {
  for (const MouseButton button : {MouseButton::Left, MouseButton::Right}) {
    Fire(MainForm.MouseDown, MousePress{400, 300, button});
  }
  EXPECT_EQ(Doubles.drags, 2);
}

}  // namespace
}  // namespace skyloft
