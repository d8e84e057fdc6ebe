#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>

#include "base/values.h"
#include "feedserver/answer.h"
#include "feedserver/products.h"
#include "scan.h"

namespace skyloft::feed {
namespace {

const Date kNow = MakeDate(2003, 3, 7, 20, 5, 0);
const std::string kRuns[] = {"00", "06", "12", "18"};

Elements Ask(const std::string& path) {
  const Reply reply = Answer({path, "", kNow}, {});
  EXPECT_EQ(reply.status, 200) << path;
  return Scan(reply.body);
}

Elements Products(const std::string& run) { return Ask("/products." + run + "z.sys.4"); }

// What the catalogue says of one product.
struct Row {
  std::string id, product, code, file, type;
  int category, period;
};

std::vector<Row> RowsOf(const Elements& products) {
  std::map<std::string, std::vector<std::string>> columns;
  for (const char* tag : {"id", "product", "category", "code", "period", "file", "type"}) {
    columns[tag] = Values(products, tag);
    EXPECT_EQ(columns[tag].size(), columns["id"].size()) << tag;
  }
  std::vector<Row> rows;
  for (std::size_t i = 0; i < columns["id"].size(); ++i) {
    rows.push_back({columns["id"][i], columns["product"][i], columns["code"][i], columns["file"][i],
                    columns["type"][i], static_cast<int>(StrictNumber(columns["category"][i])),
                    static_cast<int>(StrictNumber(columns["period"][i]))});
  }
  return rows;
}

TEST(Catalogue, IsThereForEveryModelRun) {
  const std::map<std::string, std::string> extended = {
      {"00", "12z"}, {"06", "00z"}, {"12", "00z"}, {"18", "12z"}};
  for (const std::string& run : kRuns) {
    const Elements products = Products(run);
    EXPECT_EQ(First(products, "model"), run + "z");
    EXPECT_EQ(First(products, "modelx"), extended.at(run));
    EXPECT_EQ(First(products, "width"), "640");
    EXPECT_EQ(First(products, "height"), "480");
    EXPECT_EQ(
        Values(products, "menu"),
        (std::vector<std::string>{"Planners", "Forecast Maps", "NEXRAD Radar", "Historical", "Observed Maps",
                                  "Travel", "Technical Support", "Monthly Newsletter", "Share Skyloft"}));
  }
}

TEST(Catalogue, NamesThatAClientKnowsAreInTheirCategories) {
  const std::map<std::string, int> known = {{"Hourly Planner", 0},        {"Weekly Planner", 0},
                                            {"Forecast Radar", 1},        {"Reflectivity", 2},
                                            {"1-Hour Precipitation", 2},  {"Total Precipitation", 2},
                                            {"Historical Conditions", 3}, {"RouteScope by Road", 5}};
  std::size_t found = 0;
  for (const Row& row : RowsOf(Products("12"))) {
    if (!known.contains(row.product)) continue;
    ++found;
    EXPECT_EQ(row.category, known.at(row.product)) << row.product;
  }
  EXPECT_EQ(found, known.size());
}

TEST(Catalogue, EveryCodeAndEveryFormatHasAProductInEveryRun) {
  std::set<std::string> all = {"url"};
  for (int code = 0; code <= 11; ++code) all.insert(std::to_string(code));
  for (const std::string& run : kRuns) {
    std::set<std::string> codes, types;
    std::set<int> categories;
    for (const Row& row : RowsOf(Products(run))) {
      codes.insert(row.code);
      categories.insert(row.category);
      if (row.category == 1 || row.category == 4 || row.category == 5) types.insert(row.type);
      EXPECT_GE(row.period, 1) << row.product;
    }
    EXPECT_EQ(codes, all) << run;
    EXPECT_EQ(types, (std::set<std::string>{"gif", "jpg", "png"})) << run;
    EXPECT_EQ(categories, (std::set<int>{0, 1, 2, 3, 4, 5, 6, 7, 8})) << run;
  }
}

TEST(Catalogue, APageThatAClientMakesItselfLeadsToNoPicture) {
  int pages = 0;
  for (const Row& row : RowsOf(Products("12"))) {
    if (row.category != 0 && row.category != 3) continue;
    ++pages;
    EXPECT_EQ(row.code, "url") << row.product;
    EXPECT_EQ(row.file, "") << row.product;
  }
  EXPECT_EQ(pages, 3);
}

TEST(Catalogue, SupportNewsletterAndSharingArePagesOfOurHosts) {
  std::map<int, int> pages;
  for (const Row& row : RowsOf(Products("06"))) {
    if (row.category < 6) continue;
    EXPECT_EQ(row.code, "url") << row.product;
    ++pages[row.category];
    constexpr std::string_view start = "http://www.skyloft.example";
    ASSERT_TRUE(row.file.starts_with(start)) << row.file;
    EXPECT_EQ(Answer({row.file.substr(start.size()), "", kNow}, {}).type, "text/html") << row.file;
  }
  EXPECT_EQ(pages, (std::map<int, int>{{6, 1}, {7, 1}, {8, 1}}));
}

// The run and the hour of each picture that a client asks for, by the code.
struct Frame {
  std::string run;
  int hour;
};

std::vector<Frame> FramesOf(const Row& row, const std::string& model, const std::string& extended) {
  const int code = row.code == "url" ? -1 : std::stoi(row.code);
  std::vector<Frame> frames;
  const auto add = [&](int until_66, int beyond) {
    frames.push_back(until_66 <= 66 ? Frame{model, until_66} : Frame{extended, beyond});
  };
  const std::map<int, std::pair<int, int>> daily = {{5, {-12, -12}}, {6, {-6, 0}}, {7, {0, 0}}, {8, {6, 12}}};
  const int offset = model == "00z" || model == "12z" ? 0 : 6;
  for (int j = 1; j <= row.period; ++j) {
    if (code == 3) frames.push_back({model, j});
    if (code == 4)
      frames.push_back(12 * j <= 66 ? Frame{model, offset + 12 * j} : Frame{extended, 12 + 12 * j});
    if (daily.contains(code)) add(daily.at(code).first + 24 * j, daily.at(code).second + 12 + 24 * j);
    if (code == 11) frames.push_back({model, offset + 12 * j});
  }
  if (code == 1) frames.push_back({model, 0});
  if (code == 9) frames = {{model, 60}, {model, 66}};
  return frames;
}

std::string NameOf(const Row& row, const std::string& sector, const Frame& frame) {
  std::string hour = std::to_string(1000 + frame.hour).substr(1);
  return "/" + row.file + "." + sector + "." + frame.run + "." + hour + "." + row.type;
}

TEST(Catalogue, EveryPictureOfASeriesIsFoundAndShowsItsTime) {
  for (const std::string& run : kRuns) {
    // Three hours after it began a run is the newest.
    const Date begin = MakeDate(2003, 3, 7, std::stoi(run));
    const Date now = DateAdd(DateUnit::Hours, 4, begin);
    const Elements products = Products(run);
    int series = 0;
    for (const Row& row : RowsOf(products)) {
      const auto frames = FramesOf(row, First(products, "model"), First(products, "modelx"));
      Date last;
      for (std::size_t i = 0; i < frames.size(); ++i) {
        const std::string name = NameOf(row, row.id + "05", frames[i]);
        const auto map = ReadMapPath(name, now);
        ASSERT_TRUE(map) << name;
        EXPECT_TRUE(ReadMapPath(NameOf(row, "200", frames[i]), now)) << name;
        const std::int64_t gap = row.code == "3" ? 1 : row.code == "4" || row.code == "11" ? 12 : 24;
        if (i > 0 && row.code != "9") {
          EXPECT_EQ(DateDiff(DateUnit::Hours, last, map->valid), gap) << name;
        }
        last = map->valid;
        ++series;
      }
      if (row.code == "3") {
        EXPECT_EQ(DateDiff(DateUnit::Hours, begin, last), 66) << row.product;
      }
    }
    EXPECT_GT(series, 300) << run;
  }
}

TEST(Catalogue, DaysEndAtTheSameHourInEveryRun) {
  const std::map<std::string, int> day_ends = {{"Daily High Temperature", 0},
                                               {"Daily Low Temperature", 12},
                                               {"24-Hour Precipitation", 18},
                                               {"24-Hour Snowfall", 6}};
  for (const std::string& run : kRuns) {
    const Date now = MakeDate(2003, 3, 7, std::stoi(run) + 4);
    const Elements products = Products(run);
    std::size_t found = 0;
    for (const Row& row : RowsOf(products)) {
      if (!day_ends.contains(row.product)) continue;
      ++found;
      for (const Frame& frame : FramesOf(row, First(products, "model"), First(products, "modelx"))) {
        const auto map = ReadMapPath(NameOf(row, "200", frame), now);
        ASSERT_TRUE(map) << row.product;
        EXPECT_EQ(PartsOf(map->valid).hour, day_ends.at(row.product)) << row.product << ' ' << run;
      }
    }
    EXPECT_EQ(found, day_ends.size());
  }
}

}  // namespace
}  // namespace skyloft::feed
