#include "feedserver/unpacker.h"

#include <zlib.h>

#include "base/guard.h"

namespace skyloft::feed {

std::vector<unsigned char> Inflated(std::span<const unsigned char> file) {
  Unpacker unpacker(file);
  auto size = static_cast<uLongf>(unpacker.Next<std::uint32_t>());
  std::vector<unsigned char> bytes(size);
  const auto packed = unpacker.Rest();
  if (uncompress(bytes.data(), &size, packed.data(), packed.size()) != Z_OK || size != bytes.size())
    throw RuntimeError("a file within the program is damaged");
  return bytes;
}

}  // namespace skyloft::feed
