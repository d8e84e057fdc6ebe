#include "core/chrome.h"

#include "station.h"

namespace skyloft {
namespace {

class Chrome : public Station {
 protected:
  static std::string Icon(const std::string& file) { return "C:\\program files\\skyloft\\icons\\" + file; }
};

TEST_F(Chrome, TheWindowIsARoundRectangleThatBeginsTwoPixelsAboveIt) {
  EXPECT_EQ(CreateWindowRegion(800, 590, 1.0, 1.0, 0, 0), (RoundRegion{0, -2, 800, 590, 110, 96}));
  EXPECT_EQ(CreateWindowRegion(800, 590, 2.0, 0.5, 10, 20), (RoundRegion{10, 19, 1610, 315, 220, 48}));
}

TEST_F(Chrome, AnEmptyArgumentLeavesItsProperty) {
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

TEST_F(Chrome, ThePictureIsReadAtEveryCall) {
  Doubles.loaded_pictures.clear();
  PlayButtonState("", "", Icon("play.gif"));
  PlayButtonState("", "", Icon("play.gif"));
  EXPECT_EQ(Doubles.loaded_pictures.size(), 2u);
}

TEST_F(Chrome, AMissingPictureIsTheCallersError) {
  Doubles.missing_pictures.insert(Icon("play.gif"));
  EXPECT_THROW(PlayButtonState("True", "", Icon("play.gif")), RuntimeError);
}

TEST_F(Chrome, DownAndUpShowThePressedAndTheNormalPicture) {
  MainForm.HelpButton.Down();
  EXPECT_EQ(MainForm.HelpButton.PicturePath(), Icon("helpr.gif"));
  MainForm.HelpButton.Up();
  EXPECT_EQ(MainForm.HelpButton.PicturePath(), Icon("help.gif"));
}

TEST_F(Chrome, TheSevereButtonsComeWithTheirLabels) {
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

TEST_F(Chrome, TheBodyDragsTheWindowWithAnyButton) {
  for (const MouseButton button : {MouseButton::Left, MouseButton::Right}) {
    Fire(MainForm.MouseDown, MousePress{400, 300, button});
  }
  EXPECT_EQ(Doubles.drags, 2);
}

}  // namespace
}  // namespace skyloft
