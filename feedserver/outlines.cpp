#include "feedserver/outlines.h"

#include "feedserver/unpacker.h"

// What data.S puts into the program.
extern "C" {
extern const unsigned char skyloft_outlines_begin[], skyloft_outlines_end[];
}

namespace skyloft::feed {
namespace {

constexpr double kPerDegree = 200;  // the steps in which points are stored

}  // namespace

// What data/make_outlines.py packed.
std::vector<Outline> DecodedOutlines() {
  const std::vector<unsigned char> bytes = Inflated({skyloft_outlines_begin, skyloft_outlines_end});
  Unpacker data(bytes);
  std::vector<Outline> outlines;
  int longitude = 0, latitude = 0;
  while (!data.Rest().empty()) {
    const auto kind = data.Next<std::uint8_t>();
    const auto count = static_cast<std::size_t>(data.NextShort());
    outlines.push_back(
        {static_cast<Area>(kind / 4), static_cast<Stroke>(kind % 4), std::vector<Point>(count)});
    for (Point& point : outlines.back().points) {
      longitude += data.NextShort();
      latitude += data.NextShort();
      point = {latitude / kPerDegree, longitude / kPerDegree};
    }
  }
  return outlines;
}

const std::vector<Outline>& Outlines() {
  static const std::vector<Outline> outlines = DecodedOutlines();
  return outlines;
}

}  // namespace skyloft::feed
