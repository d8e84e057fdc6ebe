#include "platform/doubles.h"

#include "base/values.h"

namespace skyloft {

DoublesState Doubles;

namespace {

// The name under which the store's double keeps a key of the user's branch.
std::pair<std::string, std::string> CellOf(const std::string& key, const std::string& name) {
  return {LowerCase("2147483649\\" + key), name};
}

}  // namespace

std::string DoublesState::Stored(const std::string& key, const std::string& name) const {
  const auto found = store.find(CellOf(key, name));
  return found == store.end() ? "(none)" : std::get<std::string>(found->second);
}

void DoublesState::Store(const std::string& key, const std::string& name, const std::string& text) {
  store[CellOf(key, name)] = text;
}

}  // namespace skyloft
