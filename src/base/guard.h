// Run-time errors and the one place where they end silently.
#pragma once

#include <exception>
#include <stdexcept>
#include <utility>

namespace skyloft {

// What a procedure throws when it cannot go on: a strict conversion of a text that is no number, reading or
// arithmetic on what is no date, an index out of bounds, division by zero, the root of a negative number, a
// missing file or picture, a loop over an empty LocationIndexMax.
struct RuntimeError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Runs `body`; a run-time error in it (or memory trouble) ends it silently. Returns whether it came to its
// end. Nothing else in the program catches.
template <class Body>
bool Guarded(Body&& body) {
  try {
    std::forward<Body>(body)();
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace skyloft
