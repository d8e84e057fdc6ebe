#include "setup/demo.h"

#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

class Demo : public Station {
 protected:
  static void AnswerPlaces() {
    Doubles.Reply("hosts.xml", Reply(Element("version", "1.20.00") + Element("forecastserver", "server/")));
    Doubles.Reply("pc=",
                  Reply(Element("postal_code", "1") + Element("city", "Town") + Element("state", "KS")));
  }
};

TEST_F(Demo, FiveTownsAreSearchedAndStored) {
  AnswerPlaces();
  SetUpDemoTowns();
  EXPECT_EQ(Doubles.requests.size(), 6u) << "the host table and five searches";
  EXPECT_EQ(Doubles.Stored(kSettingsKey, "LocationIndexMax"), "4");
  EXPECT_EQ(Doubles.Stored(kSettingsKey, "Location"), "0");
  EXPECT_EQ(Doubles.Stored(kSettingsKey, "Hosts"), "www.skyloft.example/skyloft/config/hosts.xml");
  EXPECT_EQ(Doubles.Stored("Software\\Aerolume\\Skyloft\\Location4", "Title"), "Town, KS");
}

TEST_F(Demo, StoredLocationsAreLeftAlone) {
  Doubles.Store(kSettingsKey, "LocationIndexMax", "0");
  AnswerPlaces();
  SetUpDemoTowns();
  EXPECT_TRUE(Doubles.requests.empty());
}

TEST_F(Demo, ATownThatIsNotKnownIsLeftOut) {
  AnswerPlaces();
  Doubles.Reply("pc=80202", "<r/>");
  SetUpDemoTowns();
  EXPECT_EQ(Doubles.Stored(kSettingsKey, "LocationIndexMax"), "3");
}

TEST_F(Demo, WithoutAServerNothingIsStored) {
  SetUpDemoTowns();
  EXPECT_TRUE(Doubles.store.empty());
}

}  // namespace
}  // namespace skyloft
