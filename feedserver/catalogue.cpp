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

struct Product {
  std::string_view id, name;
  int category;
  std::string_view code;
  int period;  // minutes between two pictures, 0 for what has none
  std::string_view file, type;
};

constexpr std::array<Product, 6> kProducts = {{
    {"1", "Hourly Planner", 0, "hourly", 0, "", "planner"},
    {"2", "Weekly Planner", 0, "weekly", 0, "", "planner"},
    {"3", "Reflectivity", 2, "N0R", 6, "N0R", "radar"},
    {"4", "1-Hour Precipitation", 2, "N1P", 6, "N1P", "radar"},
    {"5", "Total Precipitation", 2, "NTP", 6, "NTP", "radar"},
    {"6", "Historical Conditions", 3, "history", 0, "", "history"},
}};

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

}  // namespace

std::string ProductsXml(std::string_view run_hour) {
  XmlDocument xml("products");
  xml.Add("model", std::string(run_hour) + "z");
  xml.Add("modelx", std::string(run_hour) + "z");
  xml.Add("height", NumberText(kMapHeight));
  xml.Add("width", NumberText(kMapWidth));
  for (const std::string_view category : kCategories) xml.Add("menu", category);
  for (const Product& product : kProducts) {
    xml.Add("id", product.id);
    xml.Add("product", product.name);
    xml.Add("category", NumberText(product.category));
    xml.Add("code", product.code);
    xml.Add("period", NumberText(product.period));
    xml.Add("file", product.file);
    xml.Add("type", product.type);
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
