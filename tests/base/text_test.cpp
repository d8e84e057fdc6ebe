#include "base/text.h"

#include <gtest/gtest.h>

#include <string>

namespace skyloft {
namespace {

TEST(Text, BytesHaveTheirCharacters) {
  EXPECT_EQ(ToUtf8("Plain"), "Plain");
  EXPECT_EQ(ToUtf8("72\xB0"), "72\xC2\xB0");          // degree sign
  EXPECT_EQ(ToUtf8("\x80"), "\xE2\x82\xAC");          // euro sign
  EXPECT_EQ(ToUtf8("\x9F\xFF"), "\xC5\xB8\xC3\xBF");  // capital and small y with diaeresis
  for (const char* byte : {"\x81", "\x8D", "\x8F", "\x90", "\x9D"}) EXPECT_EQ(ToUtf8(byte), "\xEF\xBF\xBD");
}

TEST(Text, EveryCharacterComesBack) {
  for (int i = 0; i < 256; ++i) {
    const bool is_empty = i == 0x81 || i == 0x8D || i == 0x8F || i == 0x90 || i == 0x9D;
    const std::string text(1, static_cast<char>(i));
    EXPECT_EQ(FromUtf8(ToUtf8(text)), is_empty ? "?" : text) << i;
  }
}

TEST(Text, WhatHasNoByteIsAQuestionMark) {
  const struct {
    const char* utf8;
    const char* text;
  } cases[] = {
      {"a\xCE\xB1z", "a?z"},          // Greek alpha
      {"a\xF0\x9F\x8C\xA7z", "a?z"},  // a character of four bytes
      {"\xC2\x81", "?"},              // a control character that is none of the bytes
      {"a\x80z", "a?z"},              // a continuation byte alone
      {"a\xE2\x82", "a?"},            // cut off
      {"\xE2\x82z", "?z"},            // broken off by the next character
      {"\xC0\xAF", "?"},              // longer than need be
      {"\xED\xA0\x80", "?"},          // half of a surrogate pair
      {"\xF4\x90\x80\x80", "?"},      // beyond the last character
      {"\xFFz", "?z"},
      {"\xC3", "?"},
  };
  for (const auto& c : cases) EXPECT_EQ(FromUtf8(c.utf8), c.text);
}

TEST(Text, TellsWellFormedUtf8FromOtherBytes) {
  for (const char* text : {"", "plain", "caf\xC3\xA9", "\xE2\x82\xAC", "\xEF\xBF\xBD"})
    EXPECT_TRUE(IsUtf8(text)) << text;
  for (const char* text : {"caf\xE9", "\x80", "\xC3", "\xE2\x82", "\xC3\x28"})
    EXPECT_FALSE(IsUtf8(text)) << text;
}

TEST(Text, OneByteBeyondAsciiIsFoundAtEveryPlace) {
  EXPECT_TRUE(IsAscii(""));
  for (size_t size = 1; size < 20; ++size) {
    std::string text(size, '\x7F');
    EXPECT_TRUE(IsAscii(text)) << size;
    for (size_t i = 0; i < size; ++i) {
      text[i] = '\x80';
      EXPECT_FALSE(IsAscii(text)) << i << " of " << size;
      text[i] = '\x7F';
    }
  }
}

}  // namespace
}  // namespace skyloft
