#include "settings/location_profiles.h"

#include <algorithm>

#include "feed/forecast.h"
#include "feed/observations.h"
#include "settings/settings.h"
#include "station.h"
#include "weather/almanac.h"

namespace skyloft {
namespace {

class Profiles : public Station {
 protected:
  static std::string Key(int slot) { return "Software\\Aerolume\\Skyloft\\Location" + std::to_string(slot); }
  static std::string DataFile() { return "c:\\program files\\skyloft\\sklt.dat"; }
  static std::vector<std::string> SavedLines() {
    std::vector<std::string> lines;
    const std::string& text = Doubles.files.at(DataFile());
    size_t start = 0;
    for (size_t end; (end = text.find("\r\n", start)) != std::string::npos; start = end + 2) {
      lines.push_back(text.substr(start, end - start));
    }
    EXPECT_EQ(start, text.size()) << "every line ends with CR LF";
    return lines;
  }
};

TEST_F(Profiles, SavingWrites85ValuesASlotAndNothingAboveTheLastLocation) {
  SetUpLocations(2);
  SaveLocationProfiles();
  std::map<std::string, int> values;
  for (const auto& [cell, value] : Doubles.store) ++values[cell.first.substr(cell.first.rfind('\\') + 1)];
  EXPECT_EQ(values, (std::map<std::string, int>{{"location0", 85}, {"location1", 85}}));
}

TEST_F(Profiles, ADeletedLocationsKeyStays) {
  SetUpLocations(2);
  SaveLocationProfiles();
  RemoveLocationEntry(1, 1);
  Settings.LocationIndexMax = "0";
  SaveLocationProfiles();
  EXPECT_EQ(Doubles.Stored(Key(1), "ZipCode"), "10001");
}

TEST_F(Profiles, EveryRowSurvivesSaveAndLoadButTheTwoFloodWatches) {
  SetUpLocations(1);
  for (int row = 0; row < kProfileRows; ++row) LocationProfile[row][0] = "row " + std::to_string(row);
  SaveLocationProfiles();
  LocationProfile = {};
  LoadLocationProfiles();
  int filled = 0;
  for (int row = 0; row < kProfileRows; ++row) {
    if (LocationProfile[row][0].empty()) continue;
    ++filled;
    EXPECT_EQ(LocationProfile[row][0], "row " + std::to_string(row == 56 ? 57 : row));
  }
  EXPECT_EQ(filled, 84);
  EXPECT_EQ(LocationProfile[57][0], "") << "RiverFloodWatch is never loaded into its own row";
}

TEST_F(Profiles, ATwiceSavedProfileHasTheOldRiverFloodWatchAsCoastalFloodWatch) {
  SetUpLocations(1);
  LocationProfile[56][0] = "coastal";
  LocationProfile[57][0] = "river";
  SaveLocationProfiles();
  EXPECT_EQ(Doubles.Stored(Key(0), "CoastalFloodWatch"), "coastal");
  EXPECT_EQ(Doubles.Stored(Key(0), "RiverFloodWatch"), "river");
  LoadLocationProfiles();
  SaveLocationProfiles();
  EXPECT_EQ(Doubles.Stored(Key(0), "CoastalFloodWatch"), "river");
}

TEST_F(Profiles, TheRowsThatOthersNameLieWhereTheyAreTold) {
  Doubles.Store(Key(0), "TornadoWarning", "30");
  Doubles.Store(Key(0), "TornadoWatch", "38");
  Doubles.Store(Key(0), "FlashFloodWatch", "54");
  Doubles.Store(Key(0), "SKLTPersonalAlert", "69");
  Doubles.Store(Key(0), "MaximumTemperature", "70");
  Doubles.Store(Key(0), "WindSpeedThreshold", "79");
  Doubles.Store(Key(0), "SnowShower", "92");
  Doubles.Store(Key(0), "NWSAlertEmail", "103");
  Doubles.Store(Key(0), "SKLTAlertMessage", "105");
  Doubles.Store(Key(0), "NEXRADServer", "15");
  Settings.LocationIndexMax = "0";
  LoadLocationProfiles();
  for (int row : {15, 30, 38, 54, 69, 70, 79, 92, 103, 105})
    EXPECT_EQ(LocationProfile[row][0], std::to_string(row));
}

TEST_F(Profiles, WithoutALocationNothingIsSavedOrLoaded) {
  SaveLocationProfiles();
  LoadLocationProfiles();
  EXPECT_TRUE(Doubles.store.empty());
}

TEST_F(Profiles, OneLocationHas1143LinesAndLine17IsTheFirstUt) {
  SetUpLocations(1);
  ForecastHour[0][0].Ut = "first Ut";
  SaveLocationData();
  const auto lines = SavedLines();
  ASSERT_EQ(lines.size(), 1143u);
  EXPECT_EQ(lines[16], "first Ut");
}

TEST_F(Profiles, FiveLocationsHave5715Lines) {
  SetUpLocations(5);
  SaveLocationData();
  EXPECT_EQ(SavedLines().size(), 5715u);
}

TEST_F(Profiles, EveryLineOfTheFileHoldsItsCell) {
  SetUpLocations(2);
  ObservationRecord.ObsStamp[1] = "stamp";
  ObservationRecord.ObsStampServer[1] = "server stamp";
  ObservationRecord.Ws[1] = "12";
  ObservationRecord.Wd[1] = "SSW";
  ObservationRecord.Slp[1] = "29.92";
  ObservationRecord.Avg_H[1] = "71";
  Almanac.Moonset[1] = "5:00 AM";
  ForecastHour[1][66].Sn = "last snow";
  FrameUrl[66] = "last frame";
  ForecastDay[1][0].Ut = "first day";
  ForecastDay[1][24].Ws = "last wind";
  SaveLocationData();
  const auto lines = SavedLines();
  ASSERT_EQ(lines.size(), 2286u);
  EXPECT_EQ(lines[16], "stamp");
  EXPECT_EQ(lines[17], "server stamp");
  EXPECT_EQ(lines[16 + 11], "12");
  EXPECT_EQ(lines[16 + 12], "") << "the cell that nothing fills";
  EXPECT_EQ(lines[16 + 13], "SSW");
  EXPECT_EQ(lines[16 + 15], "29.92");
  const size_t second = 32 + 67 * 13 + 250;  // section 2 of location 1
  EXPECT_EQ(lines[second + 66 * 13 + 11], "last snow");
  EXPECT_EQ(lines[second + 66 * 13 + 12], "last frame");
  EXPECT_EQ(lines[32 + 66 * 13 + 12], "last frame") << "the list stands once for each location";
  EXPECT_EQ(lines[second + 67 * 13], "first day");
  EXPECT_EQ(lines[second + 67 * 13 + 249], "last wind");
  EXPECT_EQ(lines[2280], "71");
  EXPECT_EQ(lines[2285], "5:00 AM");
}

TEST_F(Profiles, TheFileLoadsBackWhole) {
  SetUpLocations(2);
  ObservationRecord.City[0] = "Lawrence";
  ForecastHour[1][3].Desc = "rain";
  ForecastDay[0][24].Tl = "20";
  Almanac.Sunrise[1] = "6:45 AM";
  Settings.ModelLocal = "model";
  SaveLocationData();
  ObservationRecord = {};
  ForecastHour = {};
  ForecastDay = {};
  Almanac = {};
  LoadLocationData();
  EXPECT_EQ(ObservationRecord.City[0], "Lawrence");
  EXPECT_EQ(ForecastHour[1][3].Desc, "rain");
  EXPECT_EQ(ForecastDay[0][24].Tl, "20");
  EXPECT_EQ(Almanac.Sunrise[1], "6:45 AM");
  EXPECT_EQ(Settings.ModelLocal, "model");
}

TEST_F(Profiles, OfTheImageListTheLastCopyWins) {
  SetUpLocations(2);
  FrameUrl[0] = "old";
  SaveLocationData();
  std::string& text = Doubles.files[DataFile()];
  text.replace(text.rfind("old"), 3, "new");
  LoadLocationData();
  EXPECT_EQ(FrameUrl[0], "new");
}

TEST_F(Profiles, AShortFileClearsTheStampsIsDeletedAndLeavesTheCellsReadSoFar) {
  SetUpLocations(1);
  ObservationRecord.City[0] = "Lawrence";
  SaveLocationData();
  Settings.LocationIndexMax = "1";
  for (int i = 0; i < 2; ++i) {
    ObservationRecord.ObsStamp[i] = "stamp";
    ObservationRecord.ObsStampServer[i] = "stamp";
  }
  ObservationRecord.City[0] = "";
  Settings.ModelLocal = Settings.ModelServer = "model";
  LoadLocationData();
  EXPECT_FALSE(Doubles.files.contains(DataFile()));
  EXPECT_EQ(ObservationRecord.City[0], "Lawrence");
  EXPECT_EQ(Settings.ModelLocal, "");
  EXPECT_EQ(Settings.ModelServer, "");
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(ObservationRecord.ObsStamp[i], "");
    EXPECT_EQ(ObservationRecord.ObsStampServer[i], "");
  }
}

TEST_F(Profiles, AMissingFileClearsTheStampsToo) {
  SetUpLocations(1);
  ObservationRecord.ObsStamp[0] = "stamp";
  Settings.ModelLocal = "model";
  LoadLocationData();
  EXPECT_EQ(ObservationRecord.ObsStamp[0], "");
  EXPECT_EQ(Settings.ModelLocal, "");
}

TEST_F(Profiles, AFileCutBeforeItsLastLineIsShort) {
  SetUpLocations(1);
  SaveLocationData();
  Doubles.files[DataFile()].resize(Doubles.files[DataFile()].size() - 2);
  LoadLocationData();
  EXPECT_FALSE(Doubles.files.contains(DataFile()));
}

TEST_F(Profiles, UnfilledLinesAreSavedEmptyWhateverAFileHeld) {
  SetUpLocations(1);
  SaveLocationData();
  std::string lines;
  for (int i = 0; i < 1143; ++i) lines += "x\r\n";
  Doubles.files[DataFile()] = lines;
  LoadLocationData();
  SaveLocationData();
  const auto saved = SavedLines();
  EXPECT_EQ(saved[12], "");
  EXPECT_EQ(saved[16 + 67 * 13 + 1], "") << "the second line of a day";
  EXPECT_EQ(saved[13], "x");
}

TEST_F(Profiles, ALastLineWithoutItsLineEndIsALine) {
  SetUpLocations(1);
  Almanac.Moonset[0] = "5:00 AM";
  SaveLocationData();
  Doubles.files[DataFile()].resize(Doubles.files[DataFile()].size() - 2);
  Almanac = {};
  LoadLocationData();
  EXPECT_EQ(Almanac.Moonset[0], "5:00 AM");
}

TEST_F(Profiles, ALineBreakInATextShiftsAllLaterLines) {
  SetUpLocations(1);
  ObservationRecord.Desc[0] = "rain\r\nsnow";
  ObservationRecord.Tf[0] = "50";
  SaveLocationData();
  LoadLocationData();
  EXPECT_EQ(ObservationRecord.Desc[0], "rain");
  EXPECT_EQ(ObservationRecord.Ic[0], "snow");
  EXPECT_EQ(ObservationRecord.Df[0], "50");
}

TEST_F(Profiles, ASaveThatFailsLeavesTheOldFile) {
  SetUpLocations(1);
  SaveLocationData();
  const std::string old = Doubles.files[DataFile()];
  ObservationRecord.City[0] = "Lawrence";
  Doubles.file_failure.at = 1;
  SaveLocationData();
  EXPECT_EQ(Doubles.files[DataFile()], old);
}

TEST_F(Profiles, ADeletedMiddleLocationMovesTheOthersUpAndLeavesPressureAndNormalsWithTheirSlots) {
  SetUpLocations(3);
  for (int i = 0; i < 3; ++i) {
    const std::string slot = std::to_string(i);
    ObservationRecord.Tf[i] = "Tf " + slot;
    ObservationRecord.Slp[i] = "Slp " + slot;
    ObservationRecord.Avg_H[i] = "H " + slot;
    ObservationRecord.Avg_L[i] = "L " + slot;
    ObservationRecord.ObsStamp[i] = "stamp " + slot;
    Almanac.Sunset[i] = "sunset " + slot;
    ForecastHour[i][66].Tf = "hour " + slot;
    ForecastDay[i][24].Th = "day " + slot;
    LocationProfile[110][i] = "row " + slot;
  }
  RemoveLocationEntry(1, 2);
  EXPECT_EQ(LocationProfile[ProfileRow::Title][1], "Town 2");
  EXPECT_EQ(LocationProfile[110][1], "row 2");
  EXPECT_EQ(ObservationRecord.Tf[1], "Tf 2");
  EXPECT_EQ(ObservationRecord.ObsStamp[1], "stamp 2");
  EXPECT_EQ(Almanac.Sunset[1], "sunset 2");
  EXPECT_EQ(ForecastHour[1][66].Tf, "hour 2");
  EXPECT_EQ(ForecastDay[1][24].Th, "day 2");
  EXPECT_EQ(ObservationRecord.Slp[1], "Slp 1");
  EXPECT_EQ(ObservationRecord.Avg_H[1], "H 1");
  EXPECT_EQ(ObservationRecord.Avg_L[1], "L 1");
  EXPECT_EQ(ObservationRecord.Tf[2], "");
  EXPECT_EQ(ObservationRecord.Slp[2], "Slp 2");
  EXPECT_EQ(LocationProfile[ProfileRow::Title][2], "");
  EXPECT_EQ(LocationProfile[110][2], "");
  EXPECT_EQ(ForecastHour[2][66].Tf, "");
  EXPECT_EQ(ObservationRecord.Tf[0], "Tf 0");
}

TEST_F(Profiles, DeletingTheLastSlotOnlyClearsIt) {
  SetUpLocations(2);
  RemoveLocationEntry(1, 1);
  EXPECT_EQ(LocationProfile[ProfileRow::Title][0], "Town 0");
  EXPECT_EQ(LocationProfile[ProfileRow::Title][1], "");
}

}  // namespace
}  // namespace skyloft
