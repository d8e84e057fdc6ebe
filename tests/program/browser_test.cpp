// The product browser of the whole program, against the feed's pictures.
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QSet>

#include "feedserver/running_server.h"
#include "program/program.h"

namespace skyloft::program {
namespace {

using feed::RunningServer;

QStringList HostsOf(const RunningServer& server) {
  return {"--hosts", "127.0.0.1:" + QString::number(server.Port())};
}

// A run with these acts; then a snapshot to s/.
Ending Browse(const Folder& folder, const RunningServer& server, const std::string& acts) {
  const std::string script =
      acts + "until idle 20000\nsnapshot " + folder.Path("s").toStdString() + "\nquit\n";
  return RunInRoot(folder, HostsOf(server), QByteArray::fromStdString(script));
}

std::string Choose(const std::string& category, int product) {
  return "select MainForm.CategorySelection \"" + category +
         "\"\nuntil idle 20000\nselect MainForm.ProductSelection " + std::to_string(product) +
         "\nuntil idle 20000\n";
}

// How many colours the middle of the display shows; a picture has several, an empty display one.
int ColoursShown(const Snapshot& snapshot) {
  const QImage window = snapshot.Picture("MainForm");
  QSet<QRgb> colours;
  for (int x = 200; x < 760; x += 7) {
    for (int y = 150; y < 470; y += 7) colours << window.pixel(x, y);
  }
  return static_cast<int>(colours.size());
}

const char* const kCategories[] = {"Planners",          "Forecast Maps",      "NEXRAD Radar",
                                   "Historical",        "Observed Maps",      "Travel",
                                   "Technical Support", "Monthly Newsletter", "Share Skyloft"};

class EveryProduct : public testing::TestWithParam<const char*> {};

TEST_P(EveryProduct, ShowsAPictureOrAPageUnderItsTitle) {
  const RunningServer server({"--port", "0"});
  const Folder folder;
  SetUpTowns(folder);
  ASSERT_EQ(Browse(folder, server, Choose(GetParam(), 0)).code, 0);
  const qsizetype count =
      Snapshot(folder.Path("s")).Value("MainForm.ProductSelection", "items").toArray().size();
  ASSERT_GT(count, 0);
  for (int product = 0; product < int(count); ++product) {
    const Ending ending = Browse(folder, server, Choose(GetParam(), product));
    ASSERT_EQ(ending.code, 0) << ending.errors;
    const Snapshot shown(folder.Path("s"));
    const std::string name = shown.Text("MainForm.ProductSelection", "text").substr(4);
    EXPECT_EQ(shown.Text("MainForm.ProductTitle", "caption").find(name), 0u) << name;
    EXPECT_NE(shown.Flag("MainForm.Display1", "visible"), shown.Flag("MainForm.Display2", "visible")) << name;
    EXPECT_GT(ColoursShown(shown), 2) << name;
  }
}

INSTANTIATE_TEST_SUITE_P(Categories, EveryProduct, testing::ValuesIn(kCategories), [](const auto& test) {
  std::string name = test.param;
  std::erase(name, ' ');
  return name;
});

// A map goes on from one act to the next: views, zoom, the legend, another town.
TEST(MapOnShow, FollowsEveryButtonAndAChangeOfTheTown) {
  const Folder folder;
  SetUpTowns(folder);
  const RunningServer server({"--port", "0"});
  const auto lines = [](std::initializer_list<std::string> acts) {
    std::string text;
    for (const std::string& act : acts) text += act + "\nuntil idle 20000\n";
    return text;
  };
  const std::string legend = "click MainForm.LegendButton";
  const Ending ending = Browse(
      folder, server,
      Choose("Forecast Maps", 0) +
          lines({"expect MainForm.Legend visible true", legend, "expect MainForm.Legend visible false",
                 legend, "expect MainForm.Legend visible true", "click MainForm.NationalButton",
                 "expect MainForm.LocalButton enabled true", "expect MainForm.ZoomInButton enabled false",
                 "click MainForm.LocalButton", "click MainForm.ZoomInButton", "click MainForm.ZoomInButton",
                 "click MainForm.ZoomInButton", "expect MainForm.ZoomOutButton enabled true",
                 "click MainForm.ZoomOutButton", "click MainForm.ZoomOutButton",
                 "click MainForm.ZoomOutButton", "expect MainForm.ZoomOutButton enabled false",
                 "expect MainForm.Display1 zoom 1", "select MainForm.LocationSelection 3"}));
  EXPECT_EQ(ending.code, 0) << ending.errors;
  const Snapshot shown(folder.Path("s"));
  EXPECT_TRUE(shown.Flag("MainForm.Display1", "visible"));
  EXPECT_EQ(shown.Text("MainForm.ProductTitle", "caption").find("Surface Temperature "), 0u);
  EXPECT_GT(ColoursShown(shown), 2);
  const Ending again = Browse(folder, server, Choose("Forecast Maps", 0) + "click MainForm.Thumbnail\n");
  EXPECT_EQ(again.code, 0) << again.errors;
  EXPECT_EQ(Snapshot(folder.Path("s")).Text("MainForm.CategorySelection", "text"), "NEXRAD Radar");
}

TEST(RadarLoop, PlaysTheFramesOfASite) {
  const Folder folder;
  SetUpTowns(folder);
  const RunningServer server({"--port", "0"});
  // Three frames, ten minutes apart, by the refresh; then two ticks of the player.
  const Ending ending =
      Browse(folder, server,
             Choose("NEXRAD Radar", 0) + "tick MainForm.UpdateTimer 40\nuntil idle 20000\n" +
                 "click MainForm.PlayButton\ntick MainForm.ImageForwardTimer 2\n");
  EXPECT_EQ(ending.code, 0) << ending.errors;
  const Snapshot shown(folder.Path("s"));
  EXPECT_EQ(shown.Value("MainForm.TimeSelection", "items").toArray().size(), 3);
  EXPECT_EQ(shown.Number("MainForm.TimeSelection", "index"), 1) << "from the last to the first, and one on";
  EXPECT_FALSE(shown.Flag("MainForm.TimeSelection", "enabled")) << "it plays";
}

}  // namespace
}  // namespace skyloft::program
