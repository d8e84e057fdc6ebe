// Faults that the server makes on purpose, so that a client's behaviour in trouble can be tried.
#pragma once

#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "feedserver/answer.h"

namespace skyloft::feed {

enum class FaultKind {
  None,
  Refuse,       // the connection is closed without a byte
  ServerError,  // status 500
  Empty,        // 200 without a body
  Cut,          // half of the body under the full Content-Length
  Garbage,      // 200 with bytes that are neither XML nor a picture
  Hang,         // accepted, never answered
  Drip,         // a byte each 100 ms
  Huge,         // 64 MB of valid XML
  Bomb,         // 200 with a picture of 60000 by 60000 pixels in a few bytes
  Many,         // more records than a client keeps: the elements a hundred times over
  WrongCount    // tags left out and doubled, so that their counts do not fit
};

struct Fault {
  std::string path;         // must be equal
  std::string query_piece;  // must occur in the query as it was sent; "" always does
  FaultKind kind = FaultKind::None;
  int first = 1;  // the first matching request that it befalls
  int seen = 0;   // matching requests so far
};

// Reads "PATH=KIND", "PATH?PIECE=KIND" and "...=KIND@N"; raises for anything else.
Fault ReadFault(std::string_view text);

// The faults asked for. Several threads may ask at once.
class FaultBook {
 public:
  void Add(Fault fault) { faults_.push_back(std::move(fault)); }
  // Counts the request; the first fault that befalls it wins.
  FaultKind Befall(std::string_view path, std::string_view query);

 private:
  std::mutex mutex_;
  std::vector<Fault> faults_;
};

// The reply with the faults that are in its content; those of the connection leave it as it is.
Reply Spoil(FaultKind kind, Reply reply);

}  // namespace skyloft::feed
