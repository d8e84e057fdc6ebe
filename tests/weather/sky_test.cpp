#include "weather/sky.h"

#include <cmath>
#include <map>

#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

class Sky : public Station {};

struct Found {
  int code = -1;
  std::string phrase = "kept";
  std::string icon = "kept";
  int found = -1;
};

Found Search(int mode, int first, int last, int code, const std::string& phrase = "",
             const std::string& icon = "") {
  Found result;
  SkyCondition(mode, first, last, code, phrase, icon, result.code, result.phrase, result.icon, result.found);
  return result;
}

// The forty-one rows as told, by code: phrase and icon.
const std::pair<const char*, const char*> kRows[] = {
    {"na", "ssunny"},
    {"sunny", "ssunny"},
    {"mostly sunny", "smostsun"},
    {"partly cloudy", "sprtcloud"},
    {"partly sunny", "spartsun"},
    {"mostly cloudy", "smstcloud"},
    {"cloudy", "scloudy"},
    {"fog", "sfoggy"},
    {"light rain", "sliterain"},
    {"rain", "smodrain"},
    {"heavy rain", "shevyrain"},
    {"Tstorm", "ststorms"},
    {"frzng rain", "sfrezrain"},
    {"frzng rain / snow", "sfrzrnsno"},
    {"rain / snow", "srainsnow"},
    {"light snow", "slitesnow"},
    {"snow", "smodsnow"},
    {"heavy snow", "shevysnow"},
    {"Tstorm?", "ststorms"},
    {"shower", "schcshower"},
    {"snow shower", "schcsnowshower"},
    {"clear", "snclear"},
    {"mostly clear", "snmstclr"},
    {"partly cloudy", "snpartcld"},
    {"partly cloudy", "snpartcld"},
    {"mostly cloudy", "snmostcld"},
    {"cloudy", "sncloudy"},
    {"fog", "snfoggy"},
    {"light rain", "snlitrain"},
    {"rain", "snmodrain"},
    {"heavy rain", "snhvyrain"},
    {"Tstorm", "sntstorm"},
    {"frzng rain", "snfrzrain"},
    {"frzng rain / snow", "snfrzrnsn"},
    {"rain / snow", "snrainsno"},
    {"light snow", "snlitesno"},
    {"snow", "snmodsno"},
    {"heavy snow", "snhvysnow"},
    {"Tstorm?", "sntstorm"},
    {"shower", "snchcshower"},
    {"snow shower", "snchcsnowshower"},
};

TEST_F(Sky, EveryCodeHasItsPhraseAndIcon) {
  ASSERT_EQ(std::size(kRows), size_t{kSkyRows});
  for (int code = 0; code < kSkyRows; ++code) {
    const Found row = Search(0, 0, 40, code);
    EXPECT_EQ(row.found, 1);
    EXPECT_EQ(row.code, code);
    EXPECT_EQ(row.phrase, kRows[code].first);
    EXPECT_EQ(row.icon, Settings.InstallPath + "\\icons\\" + kRows[code].second + ".gif");
  }
}

TEST_F(Sky, APhraseOfTheOtherHalfIsNotFoundAndTheOutputsKeepTheirValues) {
  const Found miss = Search(1, 0, 20, 0, "clear");
  EXPECT_EQ(miss.found, 0);
  EXPECT_EQ(miss.code, -1);
  EXPECT_EQ(miss.phrase, "kept");
  EXPECT_EQ(miss.icon, "kept");
  EXPECT_EQ(Search(1, 21, 40, 0, "clear").code, 21);
}

TEST_F(Sky, PartlyCloudyOfTheNightIsRow23AndNeverRow24) {
  EXPECT_EQ(Search(1, 21, 40, 0, "partly cloudy").code, 23);
  const Found row = Search(0, 0, 40, 24);
  EXPECT_EQ(row.phrase, "partly cloudy");
  EXPECT_EQ(row.icon, Settings.InstallPath + "\\icons\\snpartcld.gif");
}

TEST_F(Sky, RowZeroHasTheSunnyIcon) { EXPECT_EQ(GetSkyRow(0).icon, std::string("ssunny.gif")); }

TEST_F(Sky, TstormAndTstormWithAQuestionMarkAreTwoKeys) {
  EXPECT_EQ(Search(1, 0, 20, 0, "Tstorm").code, 11);
  EXPECT_EQ(Search(1, 0, 20, 0, "Tstorm?").code, 18);
}

TEST_F(Sky, ComparisonIsExactWithCase) { EXPECT_EQ(Search(1, 0, 40, 0, "Sunny").found, 0); }

TEST_F(Sky, ModeTwoSearchesByTheWholePathOfTheIcon) {
  EXPECT_EQ(Search(2, 0, 40, 0, "", Settings.InstallPath + "\\icons\\sntstorm.gif").code, 31);
  EXPECT_EQ(Search(2, 0, 40, 0, "", "sntstorm.gif").found, 0);
}

TEST_F(Sky, AnyOtherModeFindsNothing) {
  EXPECT_EQ(Search(3, 0, 40, 1, "sunny").found, 0);
  EXPECT_EQ(Search(-1, 0, 40, 1, "sunny").found, 0);
}

TEST_F(Sky, ARowOutsideTheTableIsARunTimeError) { EXPECT_THROW(Search(0, 0, 41, 99), RuntimeError); }

// The sectors that take effect, by their upper bounds; above 0.
std::string ExpectedWind(double degrees) {
  static const std::pair<double, const char*> sectors[] = {
      {45, "NNE"},    {67.5, " NE"},  {90, "ENE"},    {112.5, "  E"}, {135, "ESE"},
      {157.5, " SE"}, {180, "SSE"},   {202.5, "  S"}, {225, "SSW"},   {247.5, " SW"},
      {270, "WSW"},   {292.5, "  W"}, {315, "WNW"},   {337.5, " NW"}, {360, "NNW"},
  };
  if (degrees <= 0 || degrees > 360) return "VAR";
  for (const auto& [bound, text] : sectors) {
    if (degrees <= bound) return text;
  }
  return "";
}

TEST_F(Sky, WindDirectionInHalfSteps) {
  for (double degrees = -10; degrees <= 400; degrees += 0.5) {
    EXPECT_EQ(GetWindDirection(degrees), ExpectedWind(degrees)) << degrees;
  }
}

TEST_F(Sky, WindDirectionAtItsToldPoints) {
  const std::map<double, std::string> told = {{0, "VAR"},    {0.5, "NNE"}, {45, "NNE"},
                                              {45.5, " NE"}, {360, "NNW"}, {361, "VAR"}};
  for (const auto& [degrees, text] : told) EXPECT_EQ(GetWindDirection(degrees), text) << degrees;
}

TEST_F(Sky, ThereIsNoNorth) {
  for (double degrees = 0; degrees <= 361; degrees += 0.25)
    EXPECT_NE(GetWindDirection(degrees), "  N") << degrees;
}

TEST_F(Sky, AWindOfNoNumberIsVariable) { EXPECT_EQ(GetWindDirection(std::nan("")), "VAR"); }

}  // namespace
}  // namespace skyloft
