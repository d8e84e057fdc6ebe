// What an act changes in the store.
#pragma once

#include <map>
#include <string>

#include "platform/doubles.h"

namespace skyloft {

// The values that `act` has changed or added, by the last part of their key and their name,
// "options/ShowTicker".
template <class Act>
std::map<std::string, std::string> StoreChanges(Act&& act) {
  const auto before = Doubles.store;
  act();
  std::map<std::string, std::string> changes;
  for (const auto& [place, value] : Doubles.store) {
    const auto old = before.find(place);
    if (old != before.end() && old->second == value) continue;
    const std::string key = place.first.substr(place.first.rfind('\\') + 1);
    changes[key + "/" + place.second] = std::get<std::string>(value);
  }
  for (const auto& [place, value] : before) EXPECT_TRUE(Doubles.store.contains(place)) << place.second;
  return changes;
}
using Changes = std::map<std::string, std::string>;

}  // namespace skyloft
