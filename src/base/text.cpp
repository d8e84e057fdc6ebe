#include "base/text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace skyloft {
namespace {

constexpr char32_t kNoCharacter = 0xFFFD;

// The characters of the bytes 0x80 to 0x9F; all other bytes are the character of the same number.
// Source: Unicode Consortium, mapping table CP1252.TXT.
constexpr std::array<char32_t, 32> kHighCharacters = {
    0x20AC,       kNoCharacter, 0x201A, 0x0192, 0x201E, 0x2026,       0x2020, 0x2021,        // 80
    0x02C6,       0x2030,       0x0160, 0x2039, 0x0152, kNoCharacter, 0x017D, kNoCharacter,  // 88
    kNoCharacter, 0x2018,       0x2019, 0x201C, 0x201D, 0x2022,       0x2013, 0x2014,        // 90
    0x02DC,       0x2122,       0x0161, 0x203A, 0x0153, kNoCharacter, 0x017E, 0x0178};       // 98

char32_t CharacterOf(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? kHighCharacters[byte - 0x80u] : byte;
}

char ByteOf(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
  if (character == kNoCharacter) return '?';
  const auto* found = std::find(kHighCharacters.begin(), kHighCharacters.end(), character);
  return found == kHighCharacters.end() ? '?' : static_cast<char>(0x80 + (found - kHighCharacters.begin()));
}

// Takes one character off the front of `utf8`, or a malformed sequence, which is kNoCharacter: a first byte
// and those of its continuation bytes that are there.
char32_t TakeCharacter(std::string_view& utf8) {
  const auto first = static_cast<unsigned char>(utf8.front());
  utf8.remove_prefix(1);
  if (first < 0x80) return first;
  const int wanted = first >= 0xF0 && first < 0xF8 ? 3 : first >= 0xE0 ? 2 : 1;
  if (first < 0xC0 || first >= 0xF8) return kNoCharacter;

  char32_t character = first & (0x3Fu >> wanted);
  for (int i = 0; i < wanted; ++i) {
    if (utf8.empty() || (static_cast<unsigned char>(utf8.front()) & 0xC0u) != 0x80) return kNoCharacter;
    character = (character << 6) | (static_cast<unsigned char>(utf8.front()) & 0x3Fu);
    utf8.remove_prefix(1);
  }
  constexpr std::array<char32_t, 4> kSmallest = {0, 0x80, 0x800, 0x10000};
  const bool is_surrogate = character >= 0xD800 && character <= 0xDFFF;
  const bool is_overlong = character < kSmallest[static_cast<std::size_t>(wanted)];
  return is_surrogate || is_overlong || character > 0x10FFFF ? kNoCharacter : character;
}

// None of the characters of windows-1252 needs more than three bytes.
void AppendUtf8(std::string& utf8, char32_t character) {
  if (character < 0x80) {
    utf8 += static_cast<char>(character);
    return;
  }
  if (character < 0x800) {
    utf8 += static_cast<char>(0xC0 | (character >> 6));
  } else {
    utf8 += static_cast<char>(0xE0 | (character >> 12));
    utf8 += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
  }
  utf8 += static_cast<char>(0x80 | (character & 0x3F));
}

}  // namespace

bool IsAscii(std::string_view text) {
  std::uint64_t word = 0;  // eight bytes at a time
  for (; text.size() >= sizeof word; text.remove_prefix(sizeof word)) {
    std::memcpy(&word, text.data(), sizeof word);
    if ((word & 0x8080808080808080u) != 0) return false;
  }
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string ToUtf8(std::string_view text) {
  if (IsAscii(text)) return std::string(text);
  std::string utf8;
  utf8.reserve(text.size());
  for (const char c : text) AppendUtf8(utf8, CharacterOf(static_cast<unsigned char>(c)));
  return utf8;
}

std::string FromUtf8(std::string_view utf8) {
  if (IsAscii(utf8)) return std::string(utf8);
  std::string text;
  text.reserve(utf8.size());
  while (!utf8.empty()) text += ByteOf(TakeCharacter(utf8));
  return text;
}

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const bool told = text.starts_with("\xEF\xBF\xBD");  // the replacement character itself
    if (TakeCharacter(text) == kNoCharacter && !told) return false;
  }
  return true;
}

}  // namespace skyloft
