// What a fuzz target checks beside the sanitizers.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace skyloft {

// Ends the process with `what` unless `holds`.
inline void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", what);
  std::abort();
}

}  // namespace skyloft

// The entry of every target: any bytes, and nothing may escape.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);
