#include "feed/observations.h"

#include "feed/hosts.h"
#include "forms/main_form.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

class ObservationsTest : public Station {
 protected:
  // Three locations whose stamps on the server are "s0", "s1", "s2" and all held, but for the slots given.
  static void SetUpChanged(std::initializer_list<int> changed) {
    SetUpLocations(3);
    for (int i = 0; i < 3; ++i) {
      ObservationRecord.ObsStampServer[i] = ObservationRecord.ObsStamp[i] = "s" + std::to_string(i);
      ObservationRecord.Tf[i] = "old";
    }
    for (int slot : changed) ObservationRecord.ObsStampServer[slot] = "new";
  }
};

TEST_F(ObservationsTest, OneMetaQueryNamesAllLocations) {
  SetUpLocations(3);
  Doubles.Reply("d=meta", MetaReply({"a", "b", "c"}));
  GetMetaData();
  EXPECT_EQ(Doubles.requests,
            std::vector<std::string>{
                "forecast.skyloft.example/forecast.asp?pc=10000&pc=10001&pc=10002&t=xml&d=meta"});
  EXPECT_EQ(ObservationRecord.ObsStampServer[0], "a");
  EXPECT_EQ(ObservationRecord.ObsStampServer[2], "c");
  EXPECT_EQ(Settings.ModelServer, "Mar 07 2003 12:00PM");
  EXPECT_EQ(Observations.ModelServerTrip, "Mar 07 2003 12:00PM");
  EXPECT_EQ(ObservationRecord.ObsStamp[0], "") << "the stamp held is untouched";
}

TEST_F(ObservationsTest, AFailedMetaQueryLeavesAllStamps) {
  SetUpLocations(1);
  ObservationRecord.ObsStampServer[0] = "kept";
  Settings.ModelServer = "kept";
  for (const char* reply : {"", "garbage", "<r>"}) {
    Doubles.replies.clear();
    Doubles.Reply("d=meta", reply);
    GetMetaData();
    EXPECT_EQ(ObservationRecord.ObsStampServer[0], "kept") << reply;
    EXPECT_EQ(Settings.ModelServer, "kept") << reply;
  }
}

TEST_F(ObservationsTest, WithoutALocationNothingIsAsked) {
  GetMetaData();
  GetCurrentData();
  EXPECT_TRUE(Doubles.requests.empty());
}

TEST_F(ObservationsTest, TheFirstModelStampOfAReplyCounts) {
  SetUpLocations(1);
  Doubles.Reply("d=meta", Reply(Element("Obs_TS_UTC", "a") + Element("Model_TS_UTC", "first") +
                                Element("Model_TS_UTC", "second")));
  GetMetaData();
  EXPECT_EQ(Settings.ModelServer, "first");
}

TEST_F(ObservationsTest, NoNewStampSendsNoRequest) {
  SetUpChanged({});
  GetCurrentData();
  EXPECT_TRUE(Doubles.requests.empty());
}

TEST_F(ObservationsTest, OnlyTheChangedSecondOfThreeIsAskedAndStored) {
  SetUpChanged({1});
  Doubles.Reply("d=current", Reply(CurrentBlock("Lawrence", 68)));
  GetCurrentData();
  EXPECT_EQ(Doubles.requests,
            std::vector<std::string>{"forecast.skyloft.example/forecast.asp?pc=10001&t=xml&d=current"});
  EXPECT_EQ(ObservationRecord.Tf[1], "68");
  EXPECT_EQ(ObservationRecord.ObsStamp[1], "new");
  EXPECT_EQ(ObservationRecord.Tf[0], "old");
  EXPECT_EQ(ObservationRecord.Tf[2], "old");
  EXPECT_EQ(ObservationRecord.ObsStamp[2], "s2");
}

TEST_F(ObservationsTest, EveryFieldOfABlockReachesItsCell) {
  SetUpChanged({0});
  Doubles.Reply("d=current", Reply(CurrentBlock("Lawrence", 68)));
  GetCurrentData();
  const ObservationTables& record = ObservationRecord;
  EXPECT_EQ(record.City[0], "Lawrence") << "the second of the pair";
  EXPECT_EQ(record.State[0], "KS");
  EXPECT_EQ(record.Lt[0], "Mar 07 2003 02:00PM");
  EXPECT_EQ(record.Desc[0], "partly cloudy");
  EXPECT_EQ(record.Ic[0], "C:\\program files\\skyloft\\icons\\sprtcloud.gif");
  EXPECT_EQ(record.Tf[0], "68");
  EXPECT_EQ(record.At[0], "67");
  EXPECT_EQ(record.Df[0], "50");
  EXPECT_EQ(record.Rh[0], "55");
  EXPECT_EQ(record.Wd[0], "SSW");
  EXPECT_EQ(record.Ws[0], "12");
  EXPECT_EQ(record.Vi[0], "10");
  EXPECT_EQ(record.Avg_H[0], "71");
  EXPECT_EQ(record.Avg_L[0], "49");
  EXPECT_EQ(record.Slp[0], "29.92");
}

TEST_F(ObservationsTest, AStampThatGoesBackwardsCountsAsNew) {
  SetUpChanged({});
  ObservationRecord.ObsStamp[0] = "Mar 07 2003 02:00PM";
  ObservationRecord.ObsStampServer[0] = "Mar 06 2003 02:00PM";
  GetCurrentData();
  EXPECT_EQ(Doubles.requests.size(), 1u);
}

TEST_F(ObservationsTest, TheJthBlockBelongsToTheJthChangedSlot) {
  SetUpChanged({0, 2});
  Doubles.Reply("d=current", Reply(CurrentBlock("First", 10) + CurrentBlock("Third", 30)));
  GetCurrentData();
  EXPECT_EQ(ObservationRecord.City[0], "First");
  EXPECT_EQ(ObservationRecord.City[2], "Third");
  EXPECT_EQ(ObservationRecord.Tf[2], "30");
}

TEST_F(ObservationsTest, WithOneCityALocationTheNamesShiftAndTheCopyForLaterSlotsFails) {
  SetUpChanged({0, 1});
  std::string blocks;
  for (const char* city : {"First", "Second"}) {
    std::string block = CurrentBlock(city, 50);
    block.erase(0, block.find("</State>") + 8);  // the station's own City and State
    blocks += block;
  }
  Doubles.Reply("d=current", Reply(blocks));
  GetCurrentData();
  EXPECT_EQ(ObservationRecord.City[0], "Second") << "node 1";
  EXPECT_EQ(ObservationRecord.ObsStamp[0], "new");
  EXPECT_EQ(ObservationRecord.Tf[1], "old");
  EXPECT_EQ(ObservationRecord.ObsStamp[1], "s1") << "it is fetched again at the next cycle";
}

TEST_F(ObservationsTest, SkyIdPresentOrMissingChangesNothing) {
  SetUpChanged({0});
  std::string block = CurrentBlock("Lawrence", 68);
  block.erase(block.find("<SkyID>"), std::string("<SkyID>3</SkyID>").size());
  Doubles.Reply("d=current", Reply(block));
  GetCurrentData();
  EXPECT_EQ(ObservationRecord.Desc[0], "partly cloudy");
  EXPECT_EQ(ObservationRecord.ObsStamp[0], "new");
}

TEST_F(ObservationsTest, TooFewElementsStopAtTheFirstMissingOneWithEarlierSlotsUpdated) {
  SetUpChanged({0, 1});
  Doubles.Reply("d=current", Reply(CurrentBlock("First", 10)));
  GetCurrentData();
  EXPECT_EQ(ObservationRecord.ObsStamp[0], "new");
  EXPECT_EQ(ObservationRecord.Tf[0], "10");
  EXPECT_EQ(ObservationRecord.ObsStamp[1], "s1");
  EXPECT_EQ(ObservationRecord.Tf[1], "old");
}

TEST_F(ObservationsTest, TheStampIsSetLastSoThatAFailureBeforeItFetchesAgain) {
  SetUpChanged({0});
  std::string block = CurrentBlock("Lawrence", 68);
  block.erase(block.find("<Slp>"));
  Doubles.Reply("d=current", Reply(block));
  GetCurrentData();
  EXPECT_EQ(ObservationRecord.Tf[0], "68") << "what was stored before the failure stays";
  EXPECT_EQ(ObservationRecord.ObsStamp[0], "s0");
}

TEST_F(ObservationsTest, AnEmptyReplyLeavesTheRecord) {
  SetUpChanged({0});
  Doubles.Reply("d=current", "");
  GetCurrentData();
  EXPECT_EQ(ObservationRecord.Tf[0], "old");
  EXPECT_EQ(ObservationRecord.ObsStamp[0], "s0");
}

TEST_F(ObservationsTest, MoreStampsThanSlotsFailAtTheBound) {
  SetUpLocations(5);
  Doubles.Reply("d=meta", MetaReply({"a", "b", "c", "d", "e", "f"}));
  GetMetaData();
  EXPECT_EQ(ObservationRecord.ObsStampServer[4], "e");
  EXPECT_EQ(Settings.ModelServer, "") << "the failure ended the procedure";
}

TEST_F(ObservationsTest, APointQueryNamesLatitudeFirstAndTakesThePlacesSecondName) {
  Doubles.Reply("d=current", Reply(CurrentBlock("Lawrence", 68)));
  PointConditions point;
  GetCurrentConditionsRT("-95.25", "38.97", point);
  EXPECT_EQ(Doubles.requests,
            std::vector<std::string>{
                "forecast.skyloft.example/forecast.asp?lat=38.97&long=-95.25&t=xml&d=current"});
  EXPECT_EQ(point.City, "Lawrence");
  EXPECT_EQ(point.State, "KS");
  EXPECT_EQ(point.Tf, "68");
  EXPECT_EQ(point.Desc, "partly cloudy");
  EXPECT_EQ(point.Ic, "C:\\program files\\skyloft\\icons\\sprtcloud.gif");
  EXPECT_EQ(ObservationRecord.Tf[0], "") << "no record is touched";
}

}  // namespace
}  // namespace skyloft
