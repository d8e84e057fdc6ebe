// The planners on show, made of the feed's own replies.
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>

#include "base/values.h"
#include "core/live_station.h"
#include "core/mainform.h"
#include "core/refresh.h"
#include "feed/catalogues.h"
#include "feed/forecast.h"
#include "feed/projection.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

std::vector<std::string> TextsOf(const std::string& reply, const std::string& tag) {
  std::vector<std::string> texts;
  const std::string open = "<" + tag + ">";
  for (size_t at = reply.find(open); at != std::string::npos; at = reply.find(open, at + 1)) {
    const size_t start = at + open.size();
    texts.push_back(reply.substr(start, reply.find('<', start) - start));
  }
  return texts;
}

// The texts of a page's cells between two marks, in order.
std::vector<std::string> CellsOf(const std::string& page, const std::string& label) {
  std::vector<std::string> cells;
  const size_t row = page.find(">" + label + "</td>");
  const size_t end = page.find("</tr>", row);
  for (size_t at = page.find("<b>", row); at < end; at = page.find("<b>", at + 1)) {
    cells.push_back(page.substr(at + 3, page.find('<', at + 3) - at - 3));
  }
  return cells;
}

class LivePages : public LiveStation {
 protected:
  std::string Ask(const std::string& query) const {
    return feed::BodyOf(feed::Get(server->Port(), "/forecast.asp?pc=" + zips[0] + query));
  }
  static void RefreshAll() {
    Refresh.CurrentTimer = 1e6;
    Refresh.ForecastTimer = "1000000";
    MainForm.UpdateTimer.Elapse();
  }
};

TEST_F(LivePages, EveryModelRunGivesBothPlannersOfTheSelectedTown) {
  LocationProfile[ProfileRow::TimeZone][0] = "-6";
  SaveSystem();
  MainForm.LocationSelection.Clear();
  LoadMainForm();
  // Up to the night in which the feed's town goes over to daylight time.
  for (int hours = 0; hours <= 36; hours += 6) {
    const Date now = DateAdd(DateUnit::Hours, hours, start);
    MoveTo(now);
    RefreshAll();
    MainForm.CategorySelection.Select(0);
    ASSERT_EQ(MainForm.ProductSelection.Text(), "001 Hourly Planner");
    const std::string reply = Ask("&st=1%2F1%2F2000+0%3A00%3A00+AM&et=12%2F31%2F2100+12%3A00%3A00+AM&t=xml");
    const auto stamps = TextsOf(reply, "Ut"), temperatures = TextsOf(reply, "Tf");
    // The hour after the present one, which is the same moment everywhere.
    const Date next = DateAdd(DateUnit::Hours, 1, now);
    size_t place = 0;
    while (place < stamps.size() && ReadDate(stamps[place]) != next) ++place;
    ASSERT_LT(place + 12, stamps.size());
    const auto shown = CellsOf(MainForm.Display2.Document, "Temp");
    ASSERT_EQ(shown.size(), 12u) << "at " << DateText(now);
    for (size_t i = 0; i < 12; ++i)
      EXPECT_EQ(shown[i], temperatures[place + i]) << i << " at " << DateText(now);

    MainForm.ProductSelection.Select(1);
    const std::string page = MainForm.Display2.Document;
    EXPECT_NE(page.find("Weather Planner Extended"), std::string::npos) << "at " << DateText(now);
    const auto days = CellsOf(page, "Day"), dates = CellsOf(page, "Date");
    ASSERT_EQ(days.size(), 12u);
    for (size_t i = 0; i < 12; ++i) EXPECT_NE(days[i] + "|" + dates[i], "|") << i;
    EXPECT_EQ(MainForm.TimeSelection.Text(), dates[0] + " thru " + dates[11]);
  }
}

TEST_F(LivePages, APictureThatNeverComesLeavesTheFormerAndTheNextChoiceFetchesAgain) {
  LoadMainForm();
  ConnectTo({"--fault", "/obstemp.200.gif=hang"});
  MoveTo(start);
  Start.LocalView = "False";
  MainForm.HttpData.Timeout = 200;
  MainForm.Display1.SetPicture("former", 1, 1);
  MainForm.CategorySelection.Select(4);
  ASSERT_EQ(MainForm.ProductSelection.Text().substr(4), "Observed Temperature");
  EXPECT_EQ(MainForm.Display1.PicturePath(), "former");
  EXPECT_TRUE(MainForm.HttpData.Idle());
  ConnectTo({});
  MainForm.HttpData.Timeout = 60000;
  MainForm.ProductSelection.Select(0);
  EXPECT_EQ(MainForm.Display1.PicturePath(), "C:\\program files\\skyloft\\temp\\obstemp.200.gif");
}

TEST_F(LivePages, AClickOnAMapTellsTheHourOfTheMap) {
  LocationProfile[ProfileRow::TimeZone][0] = "-6";
  LocationProfile[ProfileRow::Latitude][0] = "38.97";
  LocationProfile[ProfileRow::Longitude][0] = "-95.24";
  SaveSystem();
  MainForm.LocationSelection.Clear();
  LoadMainForm();
  MainForm.CategorySelection.Select(1);
  ASSERT_EQ(MainForm.ProductSelection.Text().substr(4), "Surface Temperature");
  const CatalogueState& map = Catalogues;
  const MapPoint town = LocationOnMap(0);
  const double x =
      (town.x - map.SectorXMin) / (map.SectorXMax - map.SectorXMin) * LenientNumber(map.ImageWidth);
  const double y =
      (map.SectorYMax - town.y) / (map.SectorYMax - map.SectorYMin) * LenientNumber(map.ImageHeight);
  MainForm.Display1.MouseDown({static_cast<int>(x), static_cast<int>(y), MouseButton::Left});
  const std::string& time = ForecastHour[0][Periods.HourIndex].Lt;
  const std::string page = MainForm.WeatherConditionsBanner.Document;
  EXPECT_NE(page.find("Lawrence, KS" + time + " CST"), std::string::npos) << time << page;
}

// Nothing of a catalogue's names leads out of the temp folder.
TEST_F(LivePages, HostileNamesInACatalogueWriteNothingOutsideTheFolders) {
  LoadMainForm();
  MainForm.CategorySelection.Select(4);
  const auto all_files = [&] {
    QStringList files;
    QDirIterator walk(folder.path(), QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
      const QString file = walk.next();
      if (!file.startsWith(folder.path() + "/program files/skyloft/temp/") && file != log) files << file;
    }
    files.sort();
    return files;
  };
  const QStringList before = all_files();
  MainForm.Display1.SetPicture("former", 1, 1);
  const int product = Catalogues.ProductMap[0];
  for (const std::string name :
       {"..\\..\\evil", "../../../evil", "C:\\evil", "D:\\evil", "/etc/evil", "\\\\host\\evil"}) {
    Catalogues.ProductRecord.file.Put(product, name);
    MainForm.ProductSelection.Select(0);
    EXPECT_EQ(MainForm.Display1.PicturePath(), "former") << name;
    EXPECT_EQ(all_files(), before) << name.c_str();
  }
  Catalogues.ProductRecord.file.Put(product, std::string("evil\0name", 9));
  MainForm.ProductSelection.Select(0);
  EXPECT_EQ(all_files(), before);
}

}  // namespace
}  // namespace skyloft
