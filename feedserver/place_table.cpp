#include "feedserver/place_table.h"

#include <algorithm>
#include <span>

#include "feedserver/unpacker.h"

// What data.S puts into the program.
extern "C" {
extern const unsigned char skyloft_places_begin[], skyloft_places_end[];
}

namespace skyloft::feed {
namespace {

void WriteDigits(std::span<char> digits, std::int32_t number) {
  for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, number /= 10)
    *digit = static_cast<char>('0' + number % 10);
}

// Takes so many names from the front of a text, each ended by a zero.
std::vector<std::string_view> TakeNames(std::string_view& text, std::size_t count) {
  std::vector<std::string_view> names(count);
  for (std::string_view& name : names) {
    name = text.substr(0, text.find('\0'));
    text.remove_prefix(name.size() + 1);
  }
  return names;
}

}  // namespace

PlaceTable::PlaceTable() {
  const std::vector<unsigned char> bytes = Inflated({skyloft_places_begin, skyloft_places_end});
  Unpacker data(bytes);
  records_.resize(data.Next<std::uint32_t>());
  const auto cities = data.Next<std::uint32_t>(), counties = data.Next<std::uint32_t>(),
             states = data.Next<std::uint32_t>();
  std::int32_t sum = 0;
  for (PlaceRecord& record : records_) WriteDigits(record.postal_code, sum += data.Next<std::int32_t>());
  sum = 0;
  for (PlaceRecord& record : records_) record.latitude = sum += data.Next<std::int32_t>();
  sum = 0;
  for (PlaceRecord& record : records_) record.longitude = sum += data.Next<std::int32_t>();
  for (PlaceRecord& record : records_) record.city = data.Next<std::uint16_t>();
  for (PlaceRecord& record : records_) record.county = data.Next<std::uint16_t>();
  for (PlaceRecord& record : records_) WriteDigits(record.area_code, data.Next<std::uint16_t>());
  for (PlaceRecord& record : records_) record.zone = data.Next<std::int8_t>();
  names_.assign(data.Rest().begin(), data.Rest().end());
  std::string_view rest = names_;
  cities_ = TakeNames(rest, cities);
  counties_ = TakeNames(rest, counties);
  states_ = TakeNames(rest, states);
}

std::string_view PlaceTable::StateName(std::string_view state) const {
  return std::ranges::lower_bound(states_, state)->substr(3);
}

}  // namespace skyloft::feed
