// The maps that a client chooses among.
#include "feedserver/sectors.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "base/values.h"
#include "client_map.h"
#include "feedserver/answer.h"
#include "feedserver/places.h"
#include "sample_places.h"
#include "scan.h"

namespace skyloft::feed {
namespace {

const Date kNow = MakeDate(2003, 3, 7, 20, 5, 0);

Elements Ask(const std::string& path) {
  const Reply reply = Answer({path, "", kNow}, {});
  EXPECT_EQ(reply.status, 200) << path;
  return Scan(reply.body);
}

struct Edges {
  std::string id;
  double xmin, xmax, ymin, ymax;
};

std::vector<Edges> SectorEdges() {
  const Elements sectors = Ask("/sectors.12z.sys");
  std::vector<std::vector<std::string>> columns;
  for (const char* tag : {"sector", "xmin", "xmax", "ymin", "ymax"}) columns.push_back(Values(sectors, tag));
  std::vector<Edges> edges;
  for (std::size_t i = 0; i < columns[0].size(); ++i) {
    edges.push_back({columns[0][i], StrictNumber(columns[1][i]), StrictNumber(columns[2][i]),
                     StrictNumber(columns[3][i]), StrictNumber(columns[4][i])});
  }
  return edges;
}

TEST(Sectors, NationalOneIsFirstAndHoldsTheLower48) {
  const Edges national = SectorEdges().front();
  EXPECT_EQ(national.id, "200");
  const double corners[][2] = {{48.16, -124.73}, {44.82, -66.95},  {24.54, -81.80},
                               {25.84, -97.40},  {32.53, -117.12}, {49.38, -95.15},
                               {47.46, -69.22},  {40.44, -124.41}, {38.95, -123.74}};
  for (const auto& [latitude, longitude] : corners) {
    const ClientPoint point = ClientMap(latitude, longitude);
    EXPECT_GT(point.x, national.xmin + 100e3) << latitude;
    EXPECT_LT(point.x, national.xmax - 100e3) << latitude;
    EXPECT_GT(point.y, national.ymin + 100e3) << latitude;
    EXPECT_LT(point.y, national.ymax - 100e3) << latitude;
  }
}

TEST(Sectors, HaveSquarePixelsAndNamesOfTheirOwn) {
  std::set<std::string> ids;
  for (const Edges& edges : SectorEdges()) {
    EXPECT_TRUE(ids.insert(edges.id).second) << edges.id;
    EXPECT_EQ(edges.id.size(), 3u);
    EXPECT_DOUBLE_EQ((edges.xmax - edges.xmin) / 640, (edges.ymax - edges.ymin) / 480) << edges.id;
  }
}

// Which towns lie on none of the maps of a family and are out of sight on the one that a client chooses: of
// the family's rectangles around it the one with the nearest middle.
struct Unseen {
  std::vector<std::string> on_none, out_of_sight;
};

Unseen UnseenOf(char family, const std::vector<Place>& places) {
  std::vector<Edges> sectors;
  for (const Edges& edges : SectorEdges()) {
    if (edges.id[0] == family) sectors.push_back(edges);
  }
  Unseen unseen;
  for (const Place& place : places) {
    const ClientPoint point = ClientMap(place.point.latitude, place.point.longitude);
    double best = 1e9;
    const Edges* chosen = nullptr;
    for (const Edges& edges : sectors) {
      const double distance =
          std::hypot(point.x - (edges.xmin + edges.xmax) / 2, point.y - (edges.ymin + edges.ymax) / 2);
      if (point.x < edges.xmin || point.x > edges.xmax || point.y < edges.ymin || point.y > edges.ymax ||
          distance >= best)
        continue;
      best = distance;
      chosen = &edges;
    }
    const std::string name = family + (" " + std::string(place.postal_code));
    if (!chosen) {
      unseen.on_none.push_back(name);
      continue;
    }
    const double x = (point.x - chosen->xmin) / (chosen->xmax - chosen->xmin) * 640;
    const double y = (chosen->ymax - point.y) / (chosen->ymax - chosen->ymin) * 480;
    if (x <= 4 || x >= 600 || y <= 46 || y >= 372) unseen.out_of_sight.push_back(name);
  }
  return unseen;
}

TEST(Sectors, EveryTownLiesInOneOfEachFamilyAndNearlyAllInSight) {
  std::vector<Place> places;
  for (std::size_t i = 0; i < PlaceCount(); ++i) places.push_back(PlaceAt(i));
  for (const char family : {'1', '3', '4'}) {
    const Unseen unseen = UnseenOf(family, places);
    EXPECT_EQ(unseen.on_none, std::vector<std::string>());
    EXPECT_LT(unseen.out_of_sight.size(), places.size() / 300) << family;
  }
}

TEST(Sectors, EverySampleTownIsInSightOnTheMapThatAClientChooses) {
  std::vector<Place> places;
  for (const char* postal_code : kSampleZips) places.push_back(*FindPlace(postal_code));
  for (const char family : {'1', '3', '4'})
    EXPECT_EQ(UnseenOf(family, places).out_of_sight, std::vector<std::string>());
}

TEST(Sectors, ProductsHaveFamiliesThatThereAre) {
  std::set<char> families;
  for (const Edges& edges : SectorEdges()) families.insert(edges.id[0]);
  for (const std::string& family : Values(Ask("/products.18z.sys.4"), "id")) {
    EXPECT_EQ(family.size(), 1u) << family;
    EXPECT_TRUE(families.contains(family[0])) << family;
  }
}

}  // namespace
}  // namespace skyloft::feed
