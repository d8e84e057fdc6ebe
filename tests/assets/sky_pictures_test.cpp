#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "assets/drawn_pictures.h"
#include "weather/sky.h"

namespace skyloft::assets {
namespace {

constexpr int kFirstNightRow = 21;
constexpr int kBelowClouds = 19;  // the row where falls begin

std::string FileOf(int code) { return std::string("icons/") + GetSkyRow(code).icon; }
QImage Icon(const char* name) { return PictureOf(std::string("icons/") + name + ".gif"); }

std::set<std::string> AllFiles() {
  std::set<std::string> files;
  for (int code = 0; code < kSkyRows; ++code) files.insert(FileOf(code));
  return files;
}

TEST(SkyPictures, EveryCodeHasOneThatFillsItsCell) {
  for (const std::string& file : AllFiles()) {
    const QImage picture = PictureOf(file);
    ASSERT_EQ(picture.size(), QSize(40, 30)) << file;
    EXPECT_EQ(Share(picture, [](QRgb pixel) { return qAlpha(pixel) == 255; }), 1) << file;
    for (const int scale : {2, 3}) {
      EXPECT_EQ(PictureOf(Scaled(file, scale)).size(), QSize(40, 30) * scale) << file;
    }
  }
}

TEST(SkyPictures, EachDiffersFromEveryOtherInPixelsThatAreSeen) {
  const std::set<std::string> files = AllFiles();
  for (auto a = files.begin(); a != files.end(); ++a) {
    for (auto b = std::next(a); b != files.end(); ++b) {
      EXPECT_GT(Difference(PictureOf(*a), PictureOf(*b)), 0.03) << *a << " " << *b;
    }
  }
}

TEST(SkyPictures, NightIsDarkerThanDay) {
  for (int code = 0; code < kSkyRows; ++code) {
    const int light = qGray(PictureOf(FileOf(code)).pixel(39, 0));
    if (code < kFirstNightRow) {
      EXPECT_GT(light, 90) << FileOf(code);
    } else {
      EXPECT_LT(light, 60) << FileOf(code);
    }
  }
}

TEST(SkyPictures, HeavierRainPaintsMoreBlue) {
  const auto is_drop = [](QRgb pixel) { return qBlue(pixel) - qRed(pixel) > 85; };
  const std::vector<std::vector<const char*>> families = {
      {"scloudy", "sliterain", "smodrain", "shevyrain"}, {"sncloudy", "snlitrain", "snmodrain", "snhvyrain"}};
  for (const auto& family : families) {
    double before = 0;
    for (std::size_t i = 1; i < family.size(); ++i) {
      const double drops = Share(Icon(family[i]), is_drop, kBelowClouds);
      EXPECT_GT(drops, 1.5 * before) << family[i];
      EXPECT_GT(drops, 0.03) << family[i];
      before = drops;
    }
    EXPECT_LT(Share(Icon(family[0]), is_drop, kBelowClouds), 0.01) << "dry";
  }
}

TEST(SkyPictures, HeavierSnowPaintsMoreWhite) {
  const auto is_flake = [](QRgb pixel) { return std::min({qRed(pixel), qGreen(pixel), qBlue(pixel)}) > 215; };
  const std::vector<std::vector<const char*>> families = {{"slitesnow", "smodsnow", "shevysnow"},
                                                          {"snlitesno", "snmodsno", "snhvysnow"}};
  for (const auto& family : families) {
    double before = 0;
    for (const char* name : family) {
      const double flakes = Share(Icon(name), is_flake, kBelowClouds);
      EXPECT_GT(flakes, 1.4 * before) << name;
      EXPECT_GT(flakes, 0.02) << name;
      before = flakes;
    }
  }
  for (const char* rain : {"sliterain", "smodrain", "snlitrain", "snmodrain"}) {
    EXPECT_LT(Share(Icon(rain), is_flake, kBelowClouds + 2), 0.02) << rain << " has no snow";
  }
}

TEST(SkyPictures, ThunderHasAYellowBoltAndNothingElseThatFallsHasOne) {
  const auto is_yellow = [](QRgb pixel) {
    return qRed(pixel) > 200 && qGreen(pixel) > 170 && qBlue(pixel) < 110;
  };
  for (const char* storm : {"ststorms", "sntstorm"}) {
    EXPECT_GT(Share(Icon(storm), is_yellow, kBelowClouds), 0.04) << storm;
  }
  for (const char* calm : {"shevyrain", "snhvyrain", "shevysnow", "snfrzrnsn", "schcshower"}) {
    EXPECT_LT(Share(Icon(calm), is_yellow, kBelowClouds), 0.01) << calm;
  }
}

TEST(SkyPictures, SunAndMoonOfTheAlmanacAreOfTheSameSize) {
  for (const char* name : {"sunrise", "sunset", "moonrise", "moonset", "sun", "moon"}) {
    EXPECT_EQ(Icon(name).size(), QSize(40, 30)) << name;
  }
  EXPECT_GT(Difference(Icon("sunrise"), Icon("sunset")), 0.01);
  EXPECT_GT(Difference(Icon("moonrise"), Icon("moonset")), 0.01);
}

}  // namespace
}  // namespace skyloft::assets
