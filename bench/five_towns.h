// A station with the data of five towns, as the start of the program leaves it: the program's own logic,
// reader of XML, files and store; the feed answers within the process, and what it has answered once it
// answers again at once.
#pragma once

#include <QTemporaryDir>
#include <string>

#include "station.h"

namespace skyloft::bench {

class FiveTowns : public Station {
 public:
  FiveTowns();

  // The feed's reply to the last request whose address holds `part`.
  static const std::string& ReplyTo(const std::string& part);

 private:
  void TestBody() override {}

  const QTemporaryDir folder_;
};

// The one station of the process, made at the first call. The clock stands at an afternoon in March.
FiveTowns& TheTowns();

}  // namespace skyloft::bench
