#include "platform/qt/process_qt.h"

#include <cstdio>
#include <cstdlib>
#include <vector>

#include "platform/process.h"

namespace skyloft {
namespace {

std::vector<std::function<void()>>& EndActs() {
  static std::vector<std::function<void()>> acts;
  return acts;
}

}  // namespace

void AtEnd(std::function<void()> act) { EndActs().push_back(std::move(act)); }

void EndWith(int code) {
  while (!EndActs().empty()) {
    const auto act = std::move(EndActs().back());
    EndActs().pop_back();
    act();
  }
  std::fflush(nullptr);
  std::_Exit(code);
}

std::string ApplicationPath() { return "C:\\program files\\skyloft\\skyloft"; }

void EndProcess() { EndWith(0); }

}  // namespace skyloft
