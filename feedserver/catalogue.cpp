// The catalogue of products and the sectors of the maps.
#include <array>

#include "base/values.h"
#include "feedserver/replies.h"
#include "feedserver/xml.h"

namespace skyloft::feed {
namespace {

// A product's category is the place of its name here. "Forecast Maps" has no products yet but keeps its
// number.
constexpr std::array<std::string_view, 4> kCategories = {"Planners", "Forecast Maps", "NEXRAD Radar",
                                                         "Historical"};

// Those there are have pages and pictures of their own, of which the catalogue knows only the names: one
// frame that is named and listed by code 0.
struct Product {
  std::string_view name;
  int category;
};
constexpr std::array<Product, 6> kProducts = {{{"Hourly Planner", 0},
                                               {"Weekly Planner", 0},
                                               {"Reflectivity", 2},
                                               {"1-Hour Precipitation", 2},
                                               {"Total Precipitation", 2},
                                               {"Historical Conditions", 3}}};
constexpr std::string_view kCode = "0", kFrames = "1", kType = "gif";

constexpr int kMapWidth = 640, kMapHeight = 480;  // pixels

// Edges of a map in metres of a Lambert azimuthal equal-area projection, centre 50 N 100 W, radius 6370997 m.
// Source of the projection: J. P. Snyder, Map Projections - A Working Manual, USGS Professional Paper 1395,
// 1987.
struct Sector {
  std::string_view id;
  int xmin, xmax, ymin, ymax;
};

// The lower 48 states, which reach from -2034 to 2514 km and from -2663 to 186 km, in the middle of a map of
// 4 to 3.
constexpr Sector kNational{"200", -2400000, 2800000, -3100000, 800000};

// The run whose frames go beyond hour 66: of the shorter ones, the longer one before.
std::string_view ExtendedRun(std::string_view run_hour) { return run_hour < "12" ? "00z" : "12z"; }

}  // namespace

std::string ProductsXml(std::string_view run_hour) {
  XmlDocument xml("products");
  xml.Add("model", std::string(run_hour) + "z");
  xml.Add("modelx", ExtendedRun(run_hour));
  xml.Add("height", NumberText(kMapHeight));
  xml.Add("width", NumberText(kMapWidth));
  for (const std::string_view category : kCategories) xml.Add("menu", category);
  for (const Product& product : kProducts) {
    xml.Add("id", kNational.id.substr(0, 1));
    xml.Add("product", product.name);
    xml.Add("category", NumberText(product.category));
    xml.Add("code", kCode);
    xml.Add("period", kFrames);
    xml.Add("file", "");
    xml.Add("type", kType);
  }
  return std::move(xml).Finish();
}

std::string SectorsXml() {
  XmlDocument xml("sectors");
  xml.Add("sector", kNational.id);
  xml.Add("xmin", NumberText(kNational.xmin));
  xml.Add("xmax", NumberText(kNational.xmax));
  xml.Add("ymin", NumberText(kNational.ymin));
  xml.Add("ymax", NumberText(kNational.ymax));
  return std::move(xml).Finish();
}

}  // namespace skyloft::feed
