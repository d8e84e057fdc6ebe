// Towns that the program's own server knows beside those of the demonstration.
#include <gtest/gtest.h>

#include <random>

#include "feedserver/running_server.h"
#include "program/program.h"

namespace skyloft::program {
namespace {

using feed::BodyOf;
using feed::Get;
using feed::RunningServer;

struct Town {
  const char *zip_code, *city, *state, *county, *time_zone, *radar, *office;
};

TEST(Towns, AnyOfTheCountryAreAddedInTheWizard) {
  // The last two lie far from the states, Guam on the other side of the date line.
  constexpr Town kTowns[] = {
      {"59801", "Missoula", "MT", "Missoula", "-7", "KMSX", "MSO"},
      {"63101", "Saint Louis", "MO", "St. Louis City", "-6", "KLSX", "LSX"},
      {"99546", "Adak", "AK", "Aleutians West", "-10", "PABC", "AFC"},
      {"96910", "Hagatna", "GU", "Guam", "10", "PGUA", "GUM"},
      {"96799", "Pago Pago", "AS", "Eastern", "-11", "PHWA", "PPG"},
  };
  const Folder folder;
  const RunningServer server({"--port", "0"});
  const QStringList hosts = {"--hosts", "127.0.0.1:" + QString::number(server.Port())};
  QByteArray acts = ActsOfTheFirstPages(), looks;
  int count = 0;
  for (const Town& town : kTowns) {
    if (count > 0) acts += "menu AddLocation\n";
    acts += ActsOfATown(town.zip_code, town.city);
    const QByteArray number = QByteArray::number(count++);
    looks += "select MainForm.LocationSelection " + number + "\nsnapshot " + folder.Path("s").toUtf8() +
             number + "\n";
  }
  ASSERT_EQ(RunInRoot(folder, hosts, acts + "menu ExitSkyloft\n").code, 0);
  const Ending ending = RunInRoot(folder, hosts, looks + "menu ExitSkyloft\n");
  ASSERT_EQ(ending.code, 0) << ending.errors;
  for (int i = 0; i < count; ++i) {
    const Town& town = kTowns[i];
    SCOPED_TRACE(town.city);
    const QString location = "Location" + QString::number(i) + "/";
    EXPECT_EQ(folder.Setting(location + "ZipCode"), town.zip_code);
    EXPECT_EQ(folder.Setting(location + "City"), town.city);
    EXPECT_EQ(folder.Setting(location + "State"), town.state);
    EXPECT_EQ(folder.Setting(location + "County"), town.county);
    EXPECT_EQ(folder.Setting(location + "TimeZone"), town.time_zone);
    EXPECT_EQ(folder.Setting(location + "NEXRADLocation"), town.radar);
    EXPECT_EQ(folder.Setting(location + "NWSForecastOffice"), town.office);
    const Snapshot shown(folder.Path("s") + QString::number(i));
    EXPECT_EQ(shown.Text("MainForm.LocationLabel", "caption"), town.city);
    const std::string query = std::string("/forecast.asp?t=xml&d=current&pc=") + town.zip_code;
    const std::string feed = BodyOf(Get(server.Port(), query));
    const std::string page = shown.Page("MainForm.WeatherConditionsBanner");
    EXPECT_NE(page.find("Pressure</B>: " + TextsOf(feed, "Slp").at(0) + " in"), page.npos) << page;
  }
}

// Places by zip codes drawn by chance, as the server tells them.
std::vector<std::string> RandomPlaces(const RunningServer& server, size_t count) {
  std::vector<std::string> places;
  std::mt19937 random(2003);
  while (places.size() < count) {
    const QByteArray zip_code =
        QByteArray::number(static_cast<int>(random() % 100000)).rightJustified(5, '0');
    const std::string reply =
        BodyOf(Get(server.Port(), "/location_setup.asp?t=xml&pc=" + zip_code.toStdString()));
    if (!TextsOf(reply, "postal_code").empty()) places.push_back(reply);
  }
  return places;
}

// Each is added as the second town and looked at; then the one before it goes.
TEST(Towns, FiftyDrawnByChanceAreSetUpOneAfterAnotherEachComplete) {
  const Folder folder;
  const RunningServer server({"--port", "0"});
  const std::vector<std::string> places = RandomPlaces(server, 50);
  QByteArray acts = ActsOfTheFirstPages() + ActsOfATown("66044", "Lawrence");
  for (size_t i = 0; i < places.size(); ++i) {
    const QByteArray number = QByteArray::number(static_cast<int>(i));
    acts += "menu AddLocation\n" +
            ActsOfATown(QByteArray::fromStdString(TextsOf(places[i], "postal_code").at(0)), "Town" + number) +
            "select MainForm.LocationSelection 1\nuntil idle 20000\nsnapshot " + folder.Path("s").toUtf8() +
            number + "\nanswer Yes\nmenu DeleteLocationTitle 0\nuntil idle 20000\n";
  }
  const Ending ending = RunInRoot(folder, {"--hosts", "127.0.0.1:" + QString::number(server.Port())},
                                  acts + "menu ExitSkyloft\n");
  ASSERT_EQ(ending.code, 0) << ending.errors;
  for (size_t i = 0; i < places.size(); ++i) {
    SCOPED_TRACE(places[i]);
    const Snapshot shown(folder.Path("s") + QString::number(i));
    EXPECT_EQ(shown.Text("MainForm.LocationLabel", "caption"), "Town" + std::to_string(i));
    const std::string query = "/forecast.asp?t=xml&d=current&pc=" + TextsOf(places[i], "postal_code").at(0);
    const std::string pressure = TextsOf(BodyOf(Get(server.Port(), query)), "Slp").at(0);
    const std::string conditions = shown.Page("MainForm.WeatherConditionsBanner");
    EXPECT_NE(conditions.find("Pressure</B>: " + pressure + " in"), conditions.npos) << conditions;
    const std::string planner = shown.Page("MainForm.Display2");
    EXPECT_NE(planner.find("Wspd"), planner.npos);
    EXPECT_EQ(planner.find("src=''"), planner.npos);
    EXPECT_NE(shown.Text("MainForm.Thumbnail", "picture"), "") << "the radar";
  }
  // The last one is what is stored.
  EXPECT_EQ(folder.Setting("Settings/LocationIndexMax"), "0");
  EXPECT_EQ(folder.Setting("Location0/City"), TextsOf(places.back(), "city").at(0));
  EXPECT_EQ(folder.Setting("Location0/NEXRADLocation"), TextsOf(places.back(), "radar_station_code").at(0));
}

}  // namespace
}  // namespace skyloft::program
