#include "mutator.h"

#include <algorithm>

namespace skyloft {
namespace {

// What readers are prone to stumble over.
constexpr char kOdd[] = {'\0', '\n', '\r', '\t', ' ', '"', '\'', '<',    '>',    '&',
                         ';',  '=',  '/',  '\\', '-', '0', '9',  '\x7F', '\x80', '\xFF'};

}  // namespace

std::string Mutator::Piece(const std::string& text) {
  const std::size_t begin = Below(text.size() + 1);
  return text.substr(begin, 1 + Below(32));
}

void Mutator::Change(std::string& bytes) {
  const std::size_t at = Below(bytes.size() + 1);
  const char odd = kOdd[Below(std::size(kOdd))];
  if (at == bytes.size()) {
    bytes += odd;
    return;
  }
  switch (Below(7)) {
    case 0: bytes[at] = static_cast<char>(bytes[at] ^ (1 << Below(8))); break;
    case 1: bytes[at] = odd; break;
    case 2: bytes.insert(at, 1 + Below(16), odd); break;
    case 3: bytes.erase(at, 1 + Below(32)); break;
    case 4: bytes.insert(at, Piece(bytes)); break;
    case 5: bytes.insert(at, Piece(AnySeed())); break;
    case 6: bytes.resize(at); break;
  }
}

std::string Mutator::Next() {
  std::string bytes = AnySeed();
  for (std::size_t left = 1 + Below(8); left > 0; --left) Change(bytes);
  bytes.resize(std::min(bytes.size(), kLargest));
  return bytes;
}

}  // namespace skyloft
