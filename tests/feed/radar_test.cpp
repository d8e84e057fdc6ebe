#include "feed/radar.h"

#include "forms/main_form.h"
#include "forms/system_options_form.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

const std::string kTemp = "c:\\program files\\skyloft\\temp\\";  // as the double keeps names

// It is 20:05 GMT of 7 March 2003.
class Radar : public Station {
 protected:
  Radar() {
    SetUpLocations(2);
    Doubles.zone = {360, 1};
    SystemOptionsForm.NexradIndexMax.Select(0);  // 10 minutes
  }
  static std::string Url(int site) {
    return "radar.skyloft.example/radar/images/DS.p19r0/SI.ktw" + std::to_string(site) + "/latest.gif";
  }
  // Puts a frame of a site that old into the folder.
  static std::string PutFrame(int site, int minutes, const std::string& type = "png") {
    const Date time = DateAdd(DateUnit::Minutes, -minutes, MakeDate(2003, 3, 7, 20, 5, 0));
    const std::string name =
        "nexr.ktw" + std::to_string(site) + "." + Format(time, "mmddyyyyhhnn") + "." + type;
    Doubles.files[kTemp + name] = "picture";
    return name;
  }
  static std::vector<std::string> Files() {
    std::vector<std::string> names;
    for (const auto& [path, bytes] : Doubles.files) names.push_back(path.substr(kTemp.size()));
    return names;
  }
  static std::vector<std::string> Fetched(int mode) {
    Doubles.requests.clear();
    GetNexradData(mode);
    return Doubles.requests;
  }
  using Names = std::vector<std::string>;
};

TEST_F(Radar, AnEmptyFolderFetchesTheNewestPictureOfEverySiteAndConvertsIt) {
  Doubles.Reply("/radar/", "a picture");
  EXPECT_EQ(Fetched(0), (Names{Url(0), Url(1)}));
  EXPECT_EQ(Files(), (Names{"nexr.ktw0.030720032005.png", "nexr.ktw1.030720032005.png"}));
  EXPECT_EQ(Doubles.conversions, (std::vector<size_t>{3, 3}));
}

TEST_F(Radar, AFrameOf180MinutesStaysAndOneOf181IsDeleted) {
  PutFrame(0, 0);
  const std::string stays = PutFrame(0, 180);
  PutFrame(0, 181);
  PutFrame(0, 100000);
  const std::string other = PutFrame(5, 500);  // of no location
  const std::string fresh = PutFrame(1, 1);
  EXPECT_EQ(Fetched(0), Names{});
  EXPECT_EQ(Files(), (Names{stays, "nexr.ktw0.030720032005.png", fresh, other}));
}

TEST_F(Radar, TheSelectedSiteIsFreshFor15MinutesAndAllSitesForTheIntervalOfTheOptions) {
  const struct {
    int mode, age;
    bool fetches;
  } cases[] = {{1, 14, false}, {1, 15, true}, {0, 9, false}, {0, 10, true}, {1, 0, false}};
  for (const auto& c : cases) {
    Doubles.files.clear();
    PutFrame(0, c.age);
    PutFrame(1, 0);
    EXPECT_EQ(Fetched(c.mode), c.fetches ? Names{Url(0)} : Names{}) << c.mode << " " << c.age;
  }
}

TEST_F(Radar, ModeOneLooksAtTheSelectedSiteAlone) {
  Settings.Location = "1";
  PutFrame(0, 500);
  EXPECT_EQ(Fetched(1), Names{Url(1)});
  EXPECT_EQ(Files().size(), 1u) << "the other site's old frame is not looked at";
}

TEST_F(Radar, OtherModesDoNothing) {
  PutFrame(0, 500);
  for (const int mode : {-1, 2}) EXPECT_EQ(Fetched(mode), Names{});
  EXPECT_EQ(Files().size(), 1u);
}

TEST_F(Radar, OnlyTheBackgroundUsesTheTransportReservedForRadar) {
  MainForm.HttpRadar.State = 1;
  EXPECT_EQ(Fetched(0), Names{});
  EXPECT_EQ(Fetched(1), Names{Url(0)});
  MainForm.HttpRadar.State = 0;
  MainForm.HttpData.State = 1;
  EXPECT_EQ(Fetched(0).size(), 2u);
  EXPECT_EQ(Fetched(1), Names{});
}

TEST_F(Radar, TwoLocationsWithOneSiteBothFetch) {
  LocationProfile[ProfileRow::NEXRADLocation][1] = "ktw0";
  Doubles.Reply("/radar/", "a picture");
  EXPECT_EQ(Fetched(0), (Names{Url(0), Url(0)}));
  EXPECT_EQ(Files(), Names{"nexr.ktw0.030720032005.png"});
}

TEST_F(Radar, AnOldFrameOfASiteOfTwoLocationsEndsItForItCannotBeDeletedTwice) {
  Doubles.Reply("/radar/", "a picture");
  LocationProfile[ProfileRow::NEXRADLocation][1] = "KTW0";
  PutFrame(0, 181);
  EXPECT_EQ(Fetched(0), Names{Url(0)}) << "the second location is not reached";
  EXPECT_EQ(Files(), Names{"nexr.ktw0.030720032005.png"});
}

TEST_F(Radar, TheSecondOfTwoFramesOfOneMinuteReplacesTheFirst) {
  LocationProfile[ProfileRow::NEXRADLocation][1] = "ktw0";
  LocationProfile[ProfileRow::NEXRADServer][1] = "other.skyloft.example";
  Doubles.Reply("radar.skyloft.example/", "first");
  Doubles.Reply("other.skyloft.example/", "second");
  GetNexradData(0);
  EXPECT_EQ(Doubles.files[kTemp + "nexr.ktw0.030720032005.png"], "second");
  EXPECT_EQ(Files().size(), 1u);
}

TEST_F(Radar, AFailedDownloadOrConversionLeavesTheFramesAndGoesOnWithTheNextSite) {
  const std::string frame = PutFrame(0, 60);
  EXPECT_EQ(Fetched(0).size(), 2u) << "nothing came";
  EXPECT_EQ(Files(), Names{frame});
  Doubles.Reply("/radar/", "no picture");
  Doubles.picture_failure.at = 1;
  EXPECT_EQ(Fetched(0).size(), 2u);
  EXPECT_EQ(Files(), (Names{frame, "nexr.ktw0.030720032005.gif", "nexr.ktw1.030720032005.png"}));
}

TEST_F(Radar, AClockChangeOfTheComputerShiftsNoStamp) {
  Doubles.Reply("/radar/", "a picture");
  Doubles.zone = {360, 2};
  Doubles.now = MakeDate(2003, 3, 7, 15, 5, 0);  // an hour later on the wall, the same moment
  Fetched(1);
  EXPECT_EQ(Files(), Names{"nexr.ktw0.030720032005.png"});
}

TEST_F(Radar, AFrameWithoutATimeInItsNameEndsIt) {
  Doubles.files[kTemp + "nexr.ktw0.garbage.png"] = "picture";
  EXPECT_EQ(Fetched(0), Names{});
}

TEST_F(Radar, AConvertedPicturesPathComesBackAndTheOldFileGoes) {
  Doubles.files[kTemp + "latest.gif"] = "bytes";
  std::string path = "C:\\program files\\skyloft\\temp\\latest.gif";
  ConvertRadarImage(path);
  EXPECT_EQ(path, "C:\\program files\\skyloft\\temp\\latest.png");
  EXPECT_EQ(Files(), Names{"latest.png"});
  std::string missing = "C:\\program files\\skyloft\\temp\\none.gif";
  ConvertRadarImage(missing);
  EXPECT_EQ(missing, "C:\\program files\\skyloft\\temp\\none.gif");
}

}  // namespace
}  // namespace skyloft
