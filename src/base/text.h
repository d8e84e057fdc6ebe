// Texts in memory are windows-1252, one byte a character; these convert at the edges.
#pragma once

#include <string>
#include <string_view>

namespace skyloft {

// Windows-1252 to UTF-8. The five bytes without a character become U+FFFD.
std::string ToUtf8(std::string_view text);
// UTF-8 to windows-1252; '?' for every character without a byte and for every malformed sequence.
std::string FromUtf8(std::string_view utf8);

// Whether a text has ASCII alone, which is the same in both.
bool IsAscii(std::string_view text);
// Whether a text is well-formed UTF-8.
bool IsUtf8(std::string_view text);

}  // namespace skyloft
