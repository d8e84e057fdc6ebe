// The catalogue of products and the sectors of the maps.
#include "base/values.h"
#include "feedserver/products.h"
#include "feedserver/replies.h"
#include "feedserver/xml.h"

namespace skyloft::feed {

std::string ProductsXml(std::string_view run_hour) {
  XmlDocument xml("products");
  xml.Add("model", std::string(run_hour) + "z");
  xml.Add("modelx", std::string(ExtendedRun(run_hour)) + "z");
  xml.Add("height", NumberText(kMapHeight));
  xml.Add("width", NumberText(kMapWidth));
  for (const std::string_view category : Categories()) xml.Add("menu", category);
  for (const Product& product : ProductsOf(run_hour)) {
    xml.Add("id", std::string(1, product.family));
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
  for (const Sector& sector : Sectors()) {
    xml.Add("sector", sector.id);
    xml.Add("xmin", NumberText(sector.xmin));
    xml.Add("xmax", NumberText(sector.xmax));
    xml.Add("ymin", NumberText(sector.ymin));
    xml.Add("ymax", NumberText(sector.ymax));
  }
  return std::move(xml).Finish();
}

}  // namespace skyloft::feed
