#include "browser/images.h"

#include "base/values.h"
#include "browser/selection.h"
#include "core/refresh.h"
#include "feed/catalogues.h"
#include "feed/hosts.h"
#include "forms/main_form.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "station.h"
#include "weather/almanac.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

// The computer and the selected location, the second, are at -6; the sun is up from 6:45 to 18:20.
class BackgroundTest : public Station {
 protected:
  BackgroundTest() {
    SetUpLocations(2);
    Settings.Location = "1";
    Doubles.zone = {360, 1};
    LocationProfile[ProfileRow::TimeZone][1] = "-6";
    Almanac.Sunrise[1] = "6:45 AM";
    Almanac.Sunset[1] = "6:20 PM";
  }
  // "a", "n", or "" when nothing came.
  static std::string LightAt(int hour, int minute) {
    Doubles.now = MakeDate(2003, 3, 7, hour, minute, 30);
    std::string hourly, daily;
    Background(hourly, daily);
    if (hourly.empty()) return daily;
    const std::string folder = "C:\\program files\\skyloft\\backgrounds\\";
    const std::string light = hourly.substr(hourly.size() - 5, 1);
    EXPECT_EQ(hourly, folder + "hourly" + light + ".jpg");
    EXPECT_EQ(daily, folder + "daily" + light + ".jpg");
    return light;
  }
};

TEST_F(BackgroundTest, WithinTheHourOfTheClockInWhichTheSunSetItIsDay) {
  Almanac.Sunset[1] = "6:05 PM";
  EXPECT_EQ(LightAt(18, 50), "a");
  EXPECT_EQ(LightAt(19, 0), "n");
}

TEST_F(BackgroundTest, ItIsNightMoreThanFortyMinutesAndAnHourOfTheClockFromSunriseAndSunset) {
  const struct {
    int hour, minute;
    const char* light;
  } cases[] = {
      {0, 0, "n"},   {5, 30, "n"},  {5, 59, "n"}, {6, 4, "a"},  // in the hour of sunrise no hour is missing
      {6, 5, "a"},   {6, 45, "a"},  {7, 25, "a"}, {7, 26, "a"}, {12, 0, "a"},  {13, 0, "a"},  {17, 0, "a"},
      {17, 40, "a"}, {18, 20, "a"}, {19, 0, "a"}, {19, 1, "n"}, {21, 15, "n"}, {23, 59, "n"},
  };
  for (const auto& c : cases) EXPECT_EQ(LightAt(c.hour, c.minute), c.light) << c.hour << ":" << c.minute;
}

TEST_F(BackgroundTest, ThePresentTimeIsTheLocationsAndTodayIsTheComputers) {
  LocationProfile[ProfileRow::TimeZone][1] = "-10";
  EXPECT_EQ(LightAt(9, 0), "n") << "5:00 there";
  EXPECT_EQ(LightAt(12, 0), "a");
  // 20:00 here is 10:00 of the next day there: 16 hours after the sunset of the computer's day, though less
  // than four before that of its own.
  LocationProfile[ProfileRow::TimeZone][1] = "8";
  EXPECT_EQ(LightAt(20, 0), "n");
  LocationProfile[ProfileRow::TimeZone][1] = "-5";
  // 23:30 here is 0:30 of the next day there, six hours after the sunset of the computer's day.
  EXPECT_EQ(LightAt(23, 30), "n");
}

TEST_F(BackgroundTest, ASunTimeThatIsEmptyReadsAsMidnight) {
  Almanac.Sunrise[1] = Almanac.Sunset[1] = "";
  EXPECT_EQ(LightAt(12, 0), "a") << "both twelve hours away";
  Almanac.Sunset[1] = "6:20 PM";
  EXPECT_EQ(LightAt(20, 0), "n");
  EXPECT_EQ(LightAt(3, 0), "a") << "the sun rose at midnight";
}

TEST_F(BackgroundTest, TimesThatCannotBeReadLeaveThePicturesAlone) {
  Almanac.Sunrise[1] = "24:00";
  Doubles.now = MakeDate(2003, 3, 7, 12, 0, 0);
  std::string hourly = "old", daily = "former";
  Background(hourly, daily);
  EXPECT_EQ(hourly + daily, "oldformer");
  Settings.Location = "";
  Almanac.Sunrise[1] = "6:45 AM";
  Background(hourly, daily);
  EXPECT_EQ(hourly + daily, "oldformer");
}

const std::string kTemp = "C:\\program files\\skyloft\\temp\\";

// One product of the catalogue in the sector "2a", whose pictures the server has.
class PictureFetch : public Station {
 protected:
  PictureFetch() {
    SetUpLocations(1);
    HostTable.imageserver = "image.skyloft.example/";
    Catalogues.SectorID = Catalogues.SectorIDPrevious = "2a";
    Catalogues.ModelRun = "12z";
    Doubles.Reply("image.skyloft.example/", "picture");
    SetProduct("4", "6");
  }
  static void SetProduct(const std::string& code, const std::string& count) {
    ProductRecords& record = Catalogues.ProductRecord;
    record = {};
    record.last = 0;
    for (const auto& [list, text] : {std::pair{&record.id, "2"},
                                     {&record.product, "Wind"},
                                     {&record.category, "1"},
                                     {&record.code, code.c_str()},
                                     {&record.period, count.c_str()},
                                     {&record.file, "wind"},
                                     {&record.type, "gif"}}) {
      list->Put(0, text);
    }
    MainForm.ProductSelection.Click = {};
    MainForm.ProductSelection.Clear();
    MainForm.ProductSelection.AddItem("001 Wind");
    MainForm.ProductSelection.Select(0);
    MainForm.TimeSelection.Click = {};
    MainForm.TimeSelection.Clear();
    for (int i = 0; i < 6; ++i) MainForm.TimeSelection.AddItem("Time");
    MainForm.TimeSelection.Select(1);
    Browser.SelectedProduct = "Wind";
  }
  static void PutPicture(const std::string& name, int seconds_old) {
    Doubles.files[LowerCase(kTemp + name)] = "old";
    Doubles.file_times[LowerCase(kTemp + name)] = DateAdd(DateUnit::Seconds, -seconds_old, Doubles.now);
  }
};

TEST_F(PictureFetch, TheSelectedFrameIsFetchedAndShown) {
  MainForm.Display1.Visible = false;
  ImageFetch();
  EXPECT_EQ(Doubles.requests, std::vector<std::string>{"image.skyloft.example/wind.2a.12z.024.gif"});
  EXPECT_EQ(MainForm.Display1.PicturePath(), kTemp + "wind.2a.12z.024.gif");
  EXPECT_TRUE(MainForm.Display1.Visible);
  EXPECT_EQ(FrameUrl[1], "image.skyloft.example/wind.2a.12z.012.gif");
  EXPECT_EQ(FramePath[1], kTemp + "wind.2a.12z.012.gif");
  EXPECT_EQ(FrameUrl[0], "");
}

TEST_F(PictureFetch, APictureOf21600SecondsIsShownAndAnOlderOneFetched) {
  for (const auto& [age, fetches] : {std::pair{21600, 0}, {21601, 1}, {0, 0}, {-21600, 0}, {-21601, 1}}) {
    PutPicture("wind.2a.12z.024.gif", age);
    Doubles.requests.clear();
    MainForm.Display1.SetPicture("former", 1, 1);
    ImageFetch();
    EXPECT_EQ(static_cast<int>(Doubles.requests.size()), fetches) << age;
    EXPECT_EQ(MainForm.Display1.PicturePath(), kTemp + "wind.2a.12z.024.gif");
  }
}

TEST_F(PictureFetch, AFailedRefetchShowsTheOldFile) {
  PutPicture("wind.2a.12z.024.gif", 30000);
  Doubles.replies.clear();
  ImageFetch();
  EXPECT_EQ(Doubles.requests.size(), 1u);
  EXPECT_EQ(MainForm.Display1.PicturePath(), kTemp + "wind.2a.12z.024.gif");
}

TEST_F(PictureFetch, APictureThatIsNotThereKeepsTheFormerOne) {
  MainForm.Display1.SetPicture("former", 1, 1);
  Doubles.replies.clear();
  ImageFetch();
  EXPECT_EQ(MainForm.Display1.PicturePath(), "former");
  Doubles.Reply("image.skyloft.example/", "garbage");
  Doubles.missing_pictures.insert(kTemp + "wind.2a.12z.024.gif");
  ImageFetch();
  EXPECT_EQ(MainForm.Display1.PicturePath(), "former") << "nor one that is no picture";
}

TEST_F(PictureFetch, ASeriesPlayedOncePlaysAgainWithoutARequest) {
  for (int round = 0; round < 2; ++round) {
    Doubles.requests.clear();
    for (int i = 0; i < 5; ++i) {
      MainForm.TimeSelection.Select(i);
      ImageFetch();
    }
    EXPECT_EQ(Doubles.requests.size(), round == 0 ? 5u : 0u);
  }
}

TEST_F(PictureFetch, PicturesWithoutASeriesAreFetchedEveryTimeAndEndTheRange) {
  for (const char* code : {"0", "2", "10"}) {
    SetProduct(code, "3");
    PutPicture("wind.2a.gif", 0);
    Periods.HourIndexMax = 65;
    Doubles.requests.clear();
    ImageFetch();
    ImageFetch();
    EXPECT_EQ(Doubles.requests, (std::vector<std::string>(2, "image.skyloft.example/wind.2a.gif"))) << code;
    EXPECT_EQ(Periods.HourIndexMax, 0) << code;
  }
}

TEST_F(PictureFetch, TheForecastsCounterKeepsTheHourNamedLastAndStaticPicturesLeaveIt) {
  ImageFetch();
  EXPECT_EQ(Refresh.ForecastTimer, "084.");
  SetProduct("0", "1");
  Refresh.ForecastTimer = "30";
  ImageFetch();
  EXPECT_EQ(Refresh.ForecastTimer, "30");
  SetProduct("1", "1");
  ImageFetch();
  EXPECT_EQ(Refresh.ForecastTimer, "000.");
}

TEST_F(PictureFetch, APageOfTheWebAndAnUnknownCodeFetchNothing) {
  for (const char* code : {"url", "12", "-1"}) {
    SetProduct(code, "3");
    ImageFetch();
    EXPECT_TRUE(Doubles.requests.empty()) << code;
  }
}

TEST_F(PictureFetch, ForecastRadarPlacesItsPointsOnlyInANewSector) {
  Browser.SelectedProduct = "Forecast Radar";
  Catalogues.SectorXMax = Catalogues.SectorYMax = 1000;
  Catalogues.ImageWidth = Catalogues.ImageHeight = "100";
  ImageFetch();
  EXPECT_FALSE(MainForm.ImagePoints[0].Visible);
  Catalogues.SectorIDPrevious = "before";
  ImageFetch();
  EXPECT_TRUE(MainForm.ImagePoints[0].Visible);
  EXPECT_EQ(Catalogues.SectorIDPrevious, "2a");
}

TEST_F(PictureFetch, TheThumbnailIsTheNewestFrameOfItsSite) {
  PutPicture("nexr.ktw0.030720031950.png", 0);
  PutPicture("nexr.ktw0.030720032000.png", 0);
  PutPicture("nexr.ktw1.030720032003.png", 0);
  ThumbnailDisplay("nexr", "ktw0");
  EXPECT_EQ(MainForm.Thumbnail.PicturePath(), kTemp + "nexr.ktw0.030720032000.png");
  ThumbnailDisplay("nexr", "kxxx");
  EXPECT_EQ(MainForm.Thumbnail.PicturePath(), kTemp + "nexr.ktw0.030720032000.png") << "it stays";
}

TEST_F(PictureFetch, AClickOnTheThumbnailShowsTheRadarUnlessThePlayerRuns) {
  for (const char* category : {"Planners", "NEXRAD Radar", "NEXRAD Radar"}) {
    MainForm.CategorySelection.AddItem(category);
  }
  MainForm.CategorySelection.Click = {};
  MainForm.ImageForwardTimer.Enabled = true;
  MainForm.Thumbnail.Press();
  EXPECT_EQ(MainForm.CategorySelection.ListIndex(), -1);
  MainForm.ImageForwardTimer.Enabled = false;
  MainForm.Thumbnail.Press();
  EXPECT_EQ(MainForm.CategorySelection.ListIndex(), 1) << "the first hit";
  EXPECT_EQ(MainForm.ProductSelection.ListIndex(), 0);
}

}  // namespace
}  // namespace skyloft
