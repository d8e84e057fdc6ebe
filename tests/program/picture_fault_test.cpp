// The product browser against a feed whose pictures or catalogues fail.
#include <gtest/gtest.h>

#include <QJsonArray>

#include "feedserver/running_server.h"
#include "program/program.h"

namespace skyloft::program {
namespace {

using feed::RunningServer;

// A path of the feed's pictures, and the act that asks for it: a product of a category by its place.
struct PicturePath {
  const char *name, *path, *category;
  int product;
};
// For Lawrence at kNow. Products of the first place are chosen with their category.
constexpr PicturePath kPaths[] = {
    {"RadarFrame", "/radar/images/DS.p19r0/SI.ktwx/latest.gif", "NEXRAD Radar", 0},
    {"HourPrecipitation", "/radar/images/DS.78ohp/SI.ktwx/latest.gif", "NEXRAD Radar", 1},
    {"TotalPrecipitation", "/radar/images/DS.80stp/SI.ktwx/latest.gif", "NEXRAD Radar", 2},
    {"ObservedMap", "/obstemp.104.gif", "Observed Maps", 0},
    {"Mosaic", "/mosaic.404.png", "Observed Maps", 1},
    {"HourlyMap", "/precip.304.12z.009.gif", "Forecast Maps", 1},
    {"HourlyMapAsPng", "/wind.404.12z.009.png", "Forecast Maps", 2},
    {"HourlyMapAsJpeg", "/cloud.404.12z.009.jpg", "Forecast Maps", 3},
    {"HalfDayMap", "/precip12.304.12z.012.gif", "Forecast Maps", 5},
    {"DailyMap", "/dayhigh.104.12z.012.gif", "Forecast Maps", 6},
    {"RunMap", "/preciprun.304.12z.060.gif", "Forecast Maps", 10},
    {"Analysis", "/analysis.104.12z.000.png", "Forecast Maps", 11},
    {"Outlook", "/thunder.104.jpg", "Forecast Maps", 12},
    {"RouteMap", "/route.304.12z.012.gif", "Travel", 0},
    {"Legend", "/legends/precip_legend.gif", "Forecast Maps", 1},
};
constexpr const char* kQuarterLater = "2003-03-07T14:25:00";  // the frame of the start is no longer fresh

std::string Category(const char* name) {
  return std::string("select MainForm.CategorySelection \"") + name + "\"\n";
}
std::string Product(int place) { return "select MainForm.ProductSelection " + std::to_string(place) + "\n"; }
// The frame that the start had, in a script's quotes.
const std::string kFrame = "C:\\\\program files\\\\skyloft\\\\temp\\\\nexr.ktwx.030720032005.png";
const std::string kIdle = "until idle 20000\n";
std::string Choose(const char* category, int product) {
  return Category(category) + kIdle + Product(product) + kIdle;
}
// The map that is on show before a picture fails.
const std::string kFormer = Category("Forecast Maps") + kIdle;

class PictureTrouble : public testing::Test {
 protected:
  void SetUp() override { SetUpTowns(folder_); }

  // A run against a feed with these faults that ends with a snapshot to s/.
  Ending Run(const std::vector<std::string>& faults, const std::string& acts,
             const QStringList& options = {}) const {
    std::vector<std::string> arguments = {"--port", "0", "--log", folder_.Path("log").toStdString()};
    for (const std::string& fault : faults) arguments.insert(arguments.end(), {"--fault", fault});
    const RunningServer server(arguments);
    return RunInRoot(folder_, QStringList{"--hosts", "127.0.0.1:" + QString::number(server.Port())} + options,
                     QByteArray::fromStdString(acts + Save("s") + "quit\n"));
  }
  std::string Save(const char* name) const { return "snapshot " + folder_.Path(name).toStdString() + "\n"; }
  bool Asked(const char* path) const { return !Only(ReadLog(folder_.Path("log")), path).empty(); }
  Snapshot Shown(const char* name = "s") const { return Snapshot(folder_.Path(name)); }
  static std::string Image(const Snapshot& shown) { return shown.Text("MainForm.Display1", "image"); }

  Folder folder_;
};

struct BadPicture {
  const char* kind;
  bool comes;  // whether there is a file, which is no picture
};

class EveryPicturePath : public PictureTrouble, public testing::WithParamInterface<BadPicture> {};

// All fail in one run; only the start's frame and the former map have come.
TEST_P(EveryPicturePath, ThatFailsLeavesTheFormerPictureOnShow) {
  std::vector<std::string> faults;
  for (const PicturePath& path : kPaths) faults.push_back(std::string(path.path) + "=" + GetParam().kind);
  const std::string expect_former =
      "expect MainForm.Display1 image \"C:\\\\program files\\\\skyloft\\\\temp\\\\sfctemp.104.12z.009.gif\"\n"
      "expect MainForm.Display1 visible true\n";
  const std::string expect_frame = "expect MainForm.Display1 image \"" + kFrame + "\"\n";
  std::string acts = kFormer + expect_former;
  for (const PicturePath& path : kPaths) {
    if (path.category == std::string("NEXRAD Radar")) continue;
    acts += Choose(path.category, path.product);
    acts += expect_former;
  }
  acts +=
      "expect MainForm.Legend picture \"C:\\\\program files\\\\skyloft\\\\legends\\\\sfctemp_legend.gif\"\n";
  // A new frame that is no picture is listed behind the start's frame, and shows nothing.
  for (const int product : {0, 1, 2}) {
    acts += Choose("NEXRAD Radar", product);
    acts += GetParam().comes ? expect_former : expect_frame;
  }
  const std::string thumbnail = GetParam().comes ? "" : kFrame;  // the newest file, or none yet
  acts += "expect MainForm.Thumbnail picture \"" + thumbnail + "\"\n";
  const Ending ending = Run(faults, acts + Category("Planners") + kIdle, {"--now", kQuarterLater});
  EXPECT_EQ(ending.code, 0) << ending.errors;
  EXPECT_EQ(ending.errors.find("box "), std::string::npos) << ending.errors;
  for (const PicturePath& path : kPaths) EXPECT_TRUE(Asked(path.path)) << path.name;
  EXPECT_EQ(Shown().Text("MainForm.ProductTitle", "caption").find("Hourly Planner"), 0u) << "it goes on";
}

constexpr BadPicture kBadPictures[] = {{"refuse", false}, {"500", false},    {"cut", false},
                                       {"empty", true},   {"garbage", true}, {"bomb", true}};
INSTANTIATE_TEST_SUITE_P(Kinds, EveryPicturePath, testing::ValuesIn(kBadPictures),
                         [](const auto& test) { return "By" + std::string(test.param.kind); });

TEST_F(PictureTrouble, APictureWith64MegabytesBehindItIsShown) {
  const Ending ending = Run({"/mosaic.404.png=huge"}, Choose("Observed Maps", 1));
  EXPECT_EQ(ending.code, 0) << ending.errors;
  EXPECT_TRUE(Asked("/mosaic.404.png"));
  EXPECT_TRUE(Image(Shown()).ends_with("\\mosaic.404.png")) << Image(Shown());
}

class EndlessPicture : public PictureTrouble,
                       public testing::WithParamInterface<std::tuple<PicturePath, const char*>> {};

TEST_P(EndlessPicture, LeavesTheFormerOneOnShowAndAProgramThatEnds) {
  const auto& [path, kind] = GetParam();
  const bool is_first = path.product == 0;
  // The start has had its own frame; after a quarter of an hour the next one is asked for.
  const std::string fault =
      std::string(path.path) + "=" + kind + (path.name == std::string("RadarFrame") ? "@2" : "");
  const std::string acts = kFormer + "clock 2003-03-07T14:45:00\n" +
                           (is_first ? "" : Category(path.category) + kIdle) + Save("former") + "async " +
                           (is_first ? Category(path.category) : Product(path.product)) + "wait 700\n";
  const Ending ending = Run({fault}, acts, {"--now", kQuarterLater});
  EXPECT_EQ(ending.code, 0) << ending.errors;
  EXPECT_TRUE(Asked(path.path));
  if (path.name == std::string("Legend")) {
    EXPECT_EQ(Shown().Text("MainForm.Legend", "picture"), Shown("former").Text("MainForm.Legend", "picture"));
  } else {
    EXPECT_EQ(Image(Shown()), Image(Shown("former")));
  }
  EXPECT_NE(Image(Shown()), "");
}

INSTANTIATE_TEST_SUITE_P(Paths, EndlessPicture,
                         testing::Combine(testing::ValuesIn(kPaths), testing::Values("hang", "drip")),
                         [](const auto& test) {
                           return std::get<0>(test.param).name + std::string("By") + std::get<1>(test.param);
                         });

class CatalogueTrouble : public PictureTrouble, public testing::WithParamInterface<const char*> {};

TEST_P(CatalogueTrouble, LeavesAProgramThatWorks) {
  for (const std::string path : {"/products.12z.sys.4", "/sectors.12z.sys"}) {
    const Ending ending = Run({path + "=" + GetParam()}, "select MainForm.LocationSelection 1\n" + kIdle);
    EXPECT_EQ(ending.code, 0) << path << ending.errors;
    EXPECT_EQ(ending.errors.find("box "), std::string::npos) << ending.errors;
    EXPECT_TRUE(Shown().Flag("MainForm", "visible")) << path;
    EXPECT_EQ(Shown().Text("MainForm.LocationLabel", "caption"), "Miami, FL") << path;
    EXPECT_LE(Shown().Value("MainForm.ProductSelection", "items").toArray().size(), 1001) << path;
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, CatalogueTrouble,
                         testing::Values("500", "empty", "cut", "garbage", "refuse", "many", "wrong-count"),
                         [](const auto& test) {
                           std::string name = test.param;
                           std::erase(name, '-');
                           return "By" + name;
                         });

// More products than there is room for: the first of them are listed and can be shown.
TEST_F(PictureTrouble, ACatalogueThatIsTooLongListsItsFirstProducts) {
  const Ending ending = Run({"/products.12z.sys.4=many"}, Choose("Forecast Maps", 0));
  EXPECT_EQ(ending.code, 0) << ending.errors;
  EXPECT_TRUE(Image(Shown()).ends_with("\\sfctemp.104.12z.009.gif")) << Image(Shown());
  EXPECT_GT(Shown().Value("MainForm.ProductSelection", "items").toArray().size(), 100);
}

TEST_F(PictureTrouble, TheLast48HoursAskForNoPicture) {
  ASSERT_EQ(Run({}, Category("Historical") + kIdle).code, 0);
  for (const Logged& request : ReadLog(folder_.Path("log"))) {
    EXPECT_TRUE(request.path.ends_with("latest.gif") || !request.path.ends_with("gif")) << request.path;
  }
  EXPECT_TRUE(Shown().Flag("MainForm.Display2", "visible"));
}

}  // namespace
}  // namespace skyloft::program
