// Answers every query that the program makes. A pure function: the same request to the same world is the same
// reply.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/dates.h"
#include "feedserver/bulletins.h"

namespace skyloft::feed {

class PictureStore;

struct World {
  std::uint64_t seed = 1;
  std::string offered_version = "1.20.00";  // of the program, told by the configuration
  std::string update_file{};                // what is served as the update; "" when there is none
  // What bulletins there are at a moment, some perhaps not yet or no longer in force; empty for none.
  std::function<std::vector<Bulletin>(Date now)> bulletins{};
  bool storms = false;               // whether the weather's own storms have bulletins too
  PictureStore* pictures = nullptr;  // where drawn pictures are kept; null where each is drawn anew
};

struct Request {
  std::string path;   // "/forecast.asp"
  std::string query;  // behind the "?", escapes unresolved
  Date now;           // GMT
};

struct Reply {
  int status = 200;
  std::string type = "text/xml";
  std::string body;
};

Reply Answer(const Request& request, const World& world);

// What a client asks for soon after a request: the radar pictures of the places of its meta data.
std::vector<Request> RequestsAfter(const Request& request);

}  // namespace skyloft::feed
