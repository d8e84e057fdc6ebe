#include "feedserver/place_search.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "base/values.h"

namespace skyloft::feed {
namespace {

std::string_view WholeWord(std::string_view word) {
  constexpr std::pair<std::string_view, std::string_view> kShort[] = {
      {"ST", "SAINT"}, {"FT", "FORT"}, {"MT", "MOUNT"}};
  for (const auto& [shortened, whole] : kShort) {
    if (word == shortened) return whole;
  }
  return word;
}

}  // namespace

std::string FoldedTown(std::string_view name) {
  constexpr std::string_view kGaps = " \t.";
  const std::string upper = UpperCase(name);
  std::string folded;
  for (std::size_t at = upper.find_first_not_of(kGaps); at != upper.npos;) {
    const std::size_t end = std::min(upper.find_first_of(kGaps, at), upper.size());
    if (!folded.empty()) folded += ' ';
    folded += WholeWord(std::string_view(upper).substr(at, end - at));
    at = upper.find_first_not_of(kGaps, end);
  }
  return folded;
}

NameIndex::NameIndex(const PlaceTable& table) : table_(table) {
  std::vector<std::size_t> hashes;
  hashes.reserve(table.Cities().size());
  for (const std::string_view city : table.Cities())
    hashes.push_back(std::hash<std::string>()(FoldedTown(city)));
  entries_.reserve(table.Records().size());
  for (const PlaceRecord& record : table.Records())
    entries_.push_back({hashes[record.city], static_cast<std::uint32_t>(entries_.size())});
  std::ranges::sort(entries_);
}

const PlaceRecord* NameIndex::Find(std::string_view city, std::string_view state) const {
  const std::string wanted = FoldedTown(city), wanted_state = UpperCase(TrimText(state));
  const auto same_hash =
      std::ranges::equal_range(entries_, std::hash<std::string>()(wanted), {}, &Entry::hash);
  for (const Entry& entry : same_hash) {
    const PlaceRecord& record = table_.Records()[entry.place];
    if (table_.State(record) == wanted_state && FoldedTown(table_.City(record)) == wanted) return &record;
  }
  return nullptr;
}

PointIndex::PointIndex(const PlaceTable& table) : table_(table) {
  entries_.reserve(table.Records().size());
  for (const PlaceRecord& record : table.Records()) {
    const Point point = record.Middle();
    entries_.push_back({point.latitude, static_cast<std::uint32_t>(entries_.size()), DirectionOf(point)});
  }
  std::ranges::sort(entries_, {}, [](const Entry& entry) { return std::pair(entry.latitude, entry.place); });
}

// Goes north and then south as long as the latitude alone is not further away than the nearest one found.
const PlaceRecord& PointIndex::Nearest(Point point) const {
  const Direction wanted = DirectionOf(point);
  const Entry* nearest = nullptr;
  double nearness = -2, reach = 180;  // of the nearest: the cosine, and degrees
  const auto look = [&](const Entry& entry) {
    if (std::abs(entry.latitude - point.latitude) > reach) return false;
    const double here = Nearness(entry.direction, wanted);
    if (here < nearness || (here == nearness && entry.place > nearest->place)) return true;
    nearest = &entry;
    nearness = here;
    reach = std::acos(std::min(here, 1.0)) / kRadian;
    return true;
  };
  const auto middle = std::ranges::lower_bound(entries_, point.latitude, {}, &Entry::latitude);
  for (auto entry = middle; entry != entries_.end() && look(*entry); ++entry) {
  }
  for (auto entry = middle; entry != entries_.begin() && look(*--entry);) {
  }
  return table_.Records()[nearest->place];
}

CountyIndex::CountyIndex(const PlaceTable& table) : table_(table) {
  for (std::uint32_t place = 0; const PlaceRecord& record : table.Records()) {
    if (places_.size() <= record.county) places_.resize(record.county + std::size_t{1});
    places_[record.county].push_back(place++);
  }
}

std::vector<const PlaceRecord*> CountyIndex::TownsOver(const PlaceRecord& record) const {
  const auto& places = places_[record.county];
  const auto record_of = [&](std::uint32_t place) { return &table_.Records()[place]; };
  Direction sum{};
  for (const std::uint32_t place : places) {
    const Direction direction = DirectionOf(record_of(place)->Middle());
    sum = {sum.x + direction.x, sum.y + direction.y, sum.z + direction.z};
  }
  std::vector<const PlaceRecord*> towns;
  const auto add_most = [&](auto measure) {
    const PlaceRecord* const town = record_of(std::ranges::max(
        places, {}, [&](std::uint32_t place) { return measure(DirectionOf(record_of(place)->Middle())); }));
    if (std::ranges::find(towns, town) == towns.end()) towns.push_back(town);
  };
  const Direction east{-sum.y, sum.x, 0};
  add_most([&](const Direction& town) { return Nearness(town, sum); });
  add_most([&](const Direction& town) { return town.z; });
  add_most([&](const Direction& town) { return -town.z; });
  add_most([&](const Direction& town) { return Nearness(town, east); });
  add_most([&](const Direction& town) { return -Nearness(town, east); });
  return towns;
}

}  // namespace skyloft::feed
