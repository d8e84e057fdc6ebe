// Reads the files of data/, which are parts of the program.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace skyloft::feed {

// Reads what a script of data/ packed, from front to back.
class Unpacker {
 public:
  explicit Unpacker(std::span<const unsigned char> bytes) : bytes_(bytes) {}

  // A little-endian number.
  template <class Number>
  Number Next() {
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < sizeof(Number); ++i) bits |= std::uint32_t{bytes_[i]} << (8 * i);
    bytes_ = bytes_.subspan(sizeof(Number));
    return static_cast<Number>(bits);
  }
  // A number in as few bytes as it needs: seven bits to each, the lowest first; of all the lowest is the
  // sign.
  int NextShort() {
    std::uint32_t bits = 0;
    for (int shift = 0;; shift += 7) {
      const auto byte = Next<std::uint8_t>();
      bits |= std::uint32_t{byte & 127u} << shift;
      if (byte < 128) return static_cast<int>(bits >> 1 ^ (0 - (bits & 1)));
    }
  }
  std::span<const unsigned char> Rest() const { return bytes_; }

 private:
  std::span<const unsigned char> bytes_;
};

// What a file holds: it is the size of that and then that, compressed by zlib. Raises when it is damaged.
std::vector<unsigned char> Inflated(std::span<const unsigned char> file);

}  // namespace skyloft::feed
