// The start of an update, for the key that is asked for.
#pragma once

#include <string>

namespace skyloft {

// StartUpdate with the makers' public key, 32 bytes as 64 hex digits; with "" no file is started.
void StartUpdateWithKey(const std::string& path, const std::string& key_hex);

}  // namespace skyloft
