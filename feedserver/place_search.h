// Ways to find a town in the table: by its name and by a point.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "feedserver/place_table.h"
#include "feedserver/sphere.h"

namespace skyloft::feed {

// One form for all the ways to write a town: upper case, words parted by one blank, and SAINT, FORT and MOUNT
// for "St.", "Ft." and "Mt.", with or without the point. "E. st. louis " is "E SAINT LOUIS".
std::string FoldedTown(std::string_view name);

// The table is kept by whoever makes these.
class NameIndex {
 public:
  explicit NameIndex(const PlaceTable& table);
  // The lowest postal code of a town, however both are written; null when there is none.
  const PlaceRecord* Find(std::string_view city, std::string_view state) const;

 private:
  struct Entry {
    std::size_t hash;  // of the folded city
    std::uint32_t place;
    auto operator<=>(const Entry&) const = default;
  };

  const PlaceTable& table_;
  std::vector<Entry> entries_;  // sorted
};

class PointIndex {
 public:
  explicit PointIndex(const PlaceTable& table);
  // The nearest one; of several at the same point the lowest postal code.
  const PlaceRecord& Nearest(Point point) const;

 private:
  struct Entry {
    double latitude;  // degrees
    std::uint32_t place;
    Direction direction;
  };

  const PlaceTable& table_;
  std::vector<Entry> entries_;  // from south to north
};

class CountyIndex {
 public:
  explicit CountyIndex(const PlaceTable& table);
  // Towns that lie all over the county of a record: the one nearest to the middle of all its towns, then the
  // northernmost, southernmost, easternmost and westernmost; each once, of several alike the lowest postal
  // code.
  std::vector<const PlaceRecord*> TownsOver(const PlaceRecord& record) const;

 private:
  const PlaceTable& table_;
  std::vector<std::vector<std::uint32_t>> places_;  // of each county of the table
};

}  // namespace skyloft::feed
