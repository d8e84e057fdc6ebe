// The towns as they are stored: data/places.bin, which is part of the program.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "feedserver/weather.h"

namespace skyloft::feed {

struct PlaceRecord {
  char postal_code[5];
  char area_code[3];
  std::uint16_t city, county;        // places in the table's lists
  std::int32_t latitude, longitude;  // ten-thousandths of a degree
  std::int8_t zone;  // twice the hours of standard time, and 1 more where the clocks change in summer

  std::string_view PostalCode() const { return {postal_code, sizeof postal_code}; }
  std::string_view AreaCode() const { return {area_code, sizeof area_code}; }
  Point Middle() const { return {latitude / 1e4, longitude / 1e4}; }
};

// About a megabyte and a half when decoded.
class PlaceTable {
 public:
  PlaceTable();  // decodes it
  PlaceTable(const PlaceTable&) = delete;
  PlaceTable& operator=(const PlaceTable&) = delete;

  const std::vector<PlaceRecord>& Records() const { return records_; }     // by their postal codes
  const std::vector<std::string_view>& Cities() const { return cities_; }  // "Lawrence"
  std::string_view State(const PlaceRecord& record) const { return counties_[record.county].substr(0, 2); }
  std::string_view County(const PlaceRecord& record) const { return counties_[record.county].substr(3); }
  std::string_view City(const PlaceRecord& record) const { return cities_[record.city]; }
  std::string_view StateName(std::string_view state) const;  // of one that there is: "KS" is "Kansas"

 private:
  std::string names_;
  std::vector<PlaceRecord> records_;
  std::vector<std::string_view> cities_, counties_, states_;  // the last two as "KS Douglas", "KS Kansas"
};

}  // namespace skyloft::feed
