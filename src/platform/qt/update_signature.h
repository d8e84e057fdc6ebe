// Whether an update comes from the makers: an Ed25519 signature (RFC 8032), its last 64 bytes, of all the
// bytes before them.
#pragma once

#include <string_view>

namespace skyloft {

// `key_hex` is the public key, 32 bytes as 64 hex digits. False for any other text, "" too, and for bytes
// with nothing before the signature.
bool IsSigned(std::string_view bytes, std::string_view key_hex);

}  // namespace skyloft
