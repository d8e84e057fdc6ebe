// The products of the catalogue: what a client may choose, and how it asks for their pictures.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "feedserver/maps.h"

namespace skyloft::feed {

// Runs of the model: "00", "06", "12", "18", the hours of GMT at which they begin.
bool IsRunHour(std::string_view text);
// The newest run that is done: three hours after it began.
Date ModelRun(Date now);
// The run whose frames follow after hour 66 of another: the one of 12 hours before, or of 6 for a short one.
std::string_view ExtendedRun(std::string_view run_hour);

struct Product {
  std::string_view name;
  int category;      // the place of its name in Categories
  char family;       // of its sectors
  std::string code;  // how its times are listed and its pictures named: "0" to "11", or "url"
  int period;        // pictures
  std::string_view file, type;
  const Layer* layer;  // of its maps; null for what is no map
};

const std::vector<std::string_view>& Categories();
// The products as the catalogue of a run has them; codes and periods of daily ones differ from run to run.
std::vector<Product> ProductsOf(std::string_view run_hour);

// The map that a path stands for: "/FILE.SECTOR.TYPE" of now, or "/FILE.SECTOR.RUNz.HHH.TYPE" of an hour of
// the newest run of that name. Nothing for another path.
std::optional<MapRequest> ReadMapPath(std::string_view path, Date now);
// The layer of "/legends/FILE_legend.gif"; null for another path.
const Layer* ReadLegendPath(std::string_view path);

}  // namespace skyloft::feed
