#include "browser/selection.h"

#include "feed/observations.h"
#include "forms/main_form.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

class Selection : public Station {};

TEST_F(Selection, AChosenLocationShowsItsConditionsAndFetchesNothing) {
  SetUpLocations(3);
  ObservationRecord.Tf[2] = "33";
  MainForm.LocationSelection.Select(2);
  EXPECT_EQ(Settings.Location, "2");
  EXPECT_EQ(MainForm.LocationLabel.Caption.Get(), "Town 2");
  EXPECT_NE(MainForm.WeatherConditionsBanner.Document.Get().find("Temperature</B>: 33 F"), std::string::npos);
  EXPECT_TRUE(Doubles.requests.empty());
}

TEST_F(Selection, AChosenLocationResetsTheTwoViewButtons) {
  SetUpLocations(1);
  MainForm.NationalButton.Enabled = MainForm.NationalButton.Visible = false;
  MainForm.LocalButton.Enabled = MainForm.LocalButton.Visible = true;
  MainForm.LocationSelection.Select(0);
  EXPECT_TRUE(MainForm.NationalButton.Enabled);
  EXPECT_TRUE(MainForm.NationalButton.Visible);
  EXPECT_EQ(MainForm.NationalButton.PicturePath(), "C:\\program files\\skyloft\\icons\\national.gif");
  EXPECT_FALSE(MainForm.LocalButton.Enabled);
  EXPECT_FALSE(MainForm.LocalButton.Visible);
  EXPECT_EQ(MainForm.LocalButton.PicturePath(), "C:\\program files\\skyloft\\icons\\locald.gif");
}

TEST_F(Selection, ChoosingTheSameLocationAgainShowsItsNewReading) {
  SetUpLocations(1);
  MainForm.LocationSelection.Select(0);
  ObservationRecord.Tf[0] = "44";
  MainForm.LocationSelection.Select(0);
  EXPECT_NE(MainForm.WeatherConditionsBanner.Document.Get().find("44 F"), std::string::npos);
}

TEST_F(Selection, AMissingButtonPictureEndsTheEventQuietly) {
  SetUpLocations(1);
  Doubles.missing_pictures.insert("C:\\program files\\skyloft\\icons\\national.gif");
  EXPECT_NO_THROW(MainForm.LocationSelection.Select(0));
  EXPECT_EQ(MainForm.LocationLabel.Caption.Get(), "") << "the rest of the event is abandoned";
}

}  // namespace
}  // namespace skyloft
