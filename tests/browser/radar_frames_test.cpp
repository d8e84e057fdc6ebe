#include "browser/radar_frames.h"

#include "browser/selection.h"
#include "forms/main_form.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "station.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

const std::string kTemp = "C:\\program files\\skyloft\\temp\\";

// It is 20:05 GMT of 7 March 2003; the location is at -6.
class RadarFrames : public Station {
 protected:
  RadarFrames() {
    SetUpLocations(1);
    Doubles.zone = {360, 1};
    LocationProfile[ProfileRow::TimeZone][0] = "-6";
  }
  static void PutFrame(const std::string& stamp) {
    Doubles.files["c:\\program files\\skyloft\\temp\\nexr.ktw0." + stamp + ".png"] = "picture";
  }
  static std::vector<std::string> Load() {
    NexradLoad("nexr", "ktw0");
    return MainForm.TimeSelection.Items();
  }
  using Names = std::vector<std::string>;
};

TEST_F(RadarFrames, FramesAreListedByTheirTimeAtTheLocationAndTheLastIsShown) {
  PutFrame("030720031950");
  PutFrame("030720031800");
  Browser.SelectedProduct = "Reflectivity";
  EXPECT_EQ(Load(), (Names{"12:00 PM CST 03/07/03", "01:50 PM CST 03/07/03"}));
  EXPECT_EQ(MainForm.TimeSelection.ListIndex(), 1);
  EXPECT_EQ(MainForm.Display1.PicturePath(), kTemp + "nexr.ktw0.030720031950.png");
  EXPECT_EQ(MainForm.ProductTitle.Caption.Get(), "Reflectivity 01:50 PM CST 03/07/03");
  EXPECT_EQ(MainForm.ProgressBar.Max, 1);
  EXPECT_EQ(MainForm.ProgressBar.Value, 1);
}

TEST_F(RadarFrames, AFrameOf180MinutesIsListedAndOneOf181Deleted) {
  PutFrame("030720031705");
  PutFrame("030720031704");
  EXPECT_EQ(Load(), Names{"11:05 AM CST 03/07/03"});
  EXPECT_EQ(Doubles.files.size(), 1u);
}

TEST_F(RadarFrames, DecemberFollowsJanuary) {
  Doubles.now = MakeDate(2002, 12, 31, 18, 30, 0);  // 00:30 GMT of 1 January
  PutFrame("123120022350");
  PutFrame("010120030010");
  EXPECT_EQ(Load(), (Names{"06:10 PM CST 12/31/02", "05:50 PM CST 12/31/02"}));
}

TEST_F(RadarFrames, WithoutAFrameTheListIsEmptyAndNothingIsSelected) {
  Doubles.files["c:\\program files\\skyloft\\temp\\nexr.kddc.030720031950.png"] = "another site";
  MainForm.TimeSelection.AddItem("former");
  EXPECT_EQ(Load(), Names{});
  EXPECT_EQ(MainForm.TimeSelection.ListIndex(), -1);
  EXPECT_FALSE(MainForm.PlayButton.Enabled);
}

TEST_F(RadarFrames, AnEntryNamesItsFileAgainInDaylightTimeToo) {
  LocationProfile[ProfileRow::Dst][0] = "1";
  PutFrame("030720031950");
  Browser.SelectedProduct = "Reflectivity";
  EXPECT_EQ(Load(), Names{"02:50 PM CDT 03/07/03"});
  EXPECT_EQ(MainForm.Display1.PicturePath(), kTemp + "nexr.ktw0.030720031950.png");
}

TEST_F(RadarFrames, TheViewIsPutOverTheLocationWhileZoomingIsPossible) {
  LocationProfile[ProfileRow::NEXRADLongitude][0] = "-95";
  LocationProfile[ProfileRow::Longitude][0] = "-95.5";
  LocationProfile[ProfileRow::NEXRADLatitude][0] = "39";
  LocationProfile[ProfileRow::Latitude][0] = "38.9";
  MainForm.TimeSelection.AddItem("01:50 PM CST 03/07/03");
  MainForm.TimeSelection.Click = {};
  MainForm.TimeSelection.Select(0);
  MainForm.AreaZoomButton.Enabled = false;
  NexradDisplay("nexr", "ktw0");
  EXPECT_EQ(MainForm.Display1.ViewX, 0);
  MainForm.AreaZoomButton.Enabled = true;
  NexradDisplay("nexr", "ktw0");
  EXPECT_EQ(MainForm.Display1.ViewX, (620 - MainForm.Display1.Width) / 2 - 50 + 12);
}

TEST_F(RadarFrames, AnEntryThatIsNoTimeOrAFileThatIsGoneKeepsThePicture) {
  MainForm.TimeSelection.Click = {};
  MainForm.Display1.SetPicture("old", 1, 1);
  for (const char* entry : {"", "Latest", "99:00 PM CST 03/07/03"}) {
    MainForm.TimeSelection.Clear();
    MainForm.TimeSelection.AddItem(entry);
    MainForm.TimeSelection.Select(0);
    NexradDisplay("nexr", "ktw0");
    EXPECT_EQ(MainForm.Display1.PicturePath(), "old") << entry;
  }
  Doubles.missing_pictures.insert(kTemp + "nexr.ktw0.030720031950.png");
  MainForm.TimeSelection.Clear();
  MainForm.TimeSelection.AddItem("01:50 PM CST 03/07/03");
  MainForm.TimeSelection.Select(0);
  NexradDisplay("nexr", "ktw0");
  EXPECT_EQ(MainForm.Display1.PicturePath(), "old");
}

TEST_F(RadarFrames, TheButtonsAreThoseOfARadarPicture) {
  Load();
  EXPECT_TRUE(MainForm.ZoomInButton.Enabled && MainForm.AreaZoomButton.Enabled);
  EXPECT_FALSE(MainForm.LocalButton.Enabled || MainForm.NationalButton.Enabled ||
               MainForm.ZoomOutButton.Enabled || MainForm.ResetButton.Enabled ||
               MainForm.LegendButton.Enabled);
}

TEST_F(RadarFrames, AnEntryHasTheLettersOfItsZoneAndNamesItsFileInEveryOne) {
  const struct {
    const char *zone, *dst, *entry;
  } cases[] = {
      {"-5", "0", "02:50 PM EST 03/07/03"}, {"-5", "1", "03:50 PM EDT 03/07/03"},
      {"-6", "0", "01:50 PM CST 03/07/03"}, {"-7", "0", "12:50 PM MST 03/07/03"},
      {"-7", "1", "01:50 PM MDT 03/07/03"}, {"-8", "0", "11:50 AM PST 03/07/03"},
      {"-8", "1", "12:50 PM PDT 03/07/03"},
  };
  Browser.SelectedProduct = "Reflectivity";
  PutFrame("030720031950");
  for (const auto& c : cases) {
    LocationProfile[ProfileRow::TimeZone][0] = c.zone;
    LocationProfile[ProfileRow::Dst][0] = c.dst;
    MainForm.Display1.SetPicture("former", 1, 1);
    EXPECT_EQ(Load(), Names{c.entry});
    EXPECT_EQ(MainForm.Display1.PicturePath(), kTemp + "nexr.ktw0.030720031950.png") << c.entry;
  }
}

TEST_F(RadarFrames, ALatestPictureThatFailsHalfWayLeavesTheFormerOnesFileOnShow) {
  const std::string gif = "c:\\program files\\skyloft\\temp\\latest.gif";
  const std::string png = "c:\\program files\\skyloft\\temp\\latest.png";
  Doubles.Reply("/latest.gif", "a picture");
  Doubles.files[png] = "former";
  // What fails: the conversion, and the writing of its picture.
  for (const bool is_conversion : {true, false}) {
    Doubles.files.erase(gif);
    MainForm.Display1.SetPicture("other", 1, 1);
    (is_conversion ? Doubles.picture_failure.at : Doubles.file_failure.at) = is_conversion ? 1 : 3;
    GetLatestImage("radar.skyloft.example/latest.gif");
    Doubles.picture_failure = Doubles.file_failure = {};
    EXPECT_TRUE(Doubles.files.contains(gif)) << "what has come stays";
    EXPECT_EQ(Doubles.files[png], "former");
    EXPECT_EQ(MainForm.TimeSelection.Items(), Names{"Latest"});
    EXPECT_EQ(MainForm.Display1.PicturePath(), kTemp + "latest.png");
  }
}

TEST_F(RadarFrames, TheLatestPictureIsFetchedConvertedAndTheOnlyEntry) {
  Doubles.Reply("/latest.gif", "a picture");
  MainForm.TimeSelection.AddItem("former");
  GetLatestImage("radar.skyloft.example/latest.gif");
  EXPECT_EQ(Doubles.requests, Names{"radar.skyloft.example/latest.gif"});
  EXPECT_EQ(MainForm.TimeSelection.Items(), Names{"Latest"});
  EXPECT_EQ(MainForm.TimeSelection.ListIndex(), 0);
  EXPECT_EQ(MainForm.Display1.PicturePath(), kTemp + "latest.png");
  EXPECT_FALSE(Doubles.files.contains("c:\\program files\\skyloft\\temp\\latest.gif"));
}

}  // namespace
}  // namespace skyloft
