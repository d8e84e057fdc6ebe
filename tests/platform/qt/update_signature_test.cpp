#include "platform/qt/update_signature.h"

#include <gtest/gtest.h>

#include "platform/qt/signing_key.h"

namespace skyloft {
namespace {

// RFC 8032, section 7.1, test 2: a message of one byte.
constexpr const char* kPublishedKey = "3d4017c3e843895a92b70aa74d1b7ebc9c982ccf2ec4968cc0cd55f12af4660c";
constexpr const char* kPublishedFile =
    "72"
    "92a009a9f0d4cab8720e820b5f642540a2b27b5416503f8fb3762223ebdb69da"
    "085ac1e43e15996e458f3613d0f11d8c387b2eaeb4302aeeb00d291612bb0c00";

std::string Flipped(std::string bytes, size_t at) {
  bytes[at] = static_cast<char>(bytes[at] ^ 1);
  return bytes;
}

TEST(Signature, OfThePublishedExampleHolds) {
  EXPECT_TRUE(IsSigned(QByteArray::fromHex(kPublishedFile).toStdString(), kPublishedKey));
}

TEST(Signature, HoldsForItsKeyInEitherCase) {
  const SigningKey key;
  const std::string file = key.Sign("an update");
  EXPECT_TRUE(IsSigned(file, key.PublicHex()));
  EXPECT_TRUE(IsSigned(file, QByteArray::fromStdString(key.PublicHex()).toUpper().toStdString()));
}

TEST(Signature, BreaksWithAnyBit) {
  const SigningKey key;
  const std::string file = key.Sign("an update");
  for (size_t at = 0; at < file.size(); ++at)
    EXPECT_FALSE(IsSigned(Flipped(file, at), key.PublicHex())) << at;
}

TEST(Signature, WantsAWholeFile) {
  const SigningKey key;
  const std::string file = key.Sign("an update");
  for (size_t size = 0; size < file.size(); ++size) {
    EXPECT_FALSE(IsSigned(file.substr(0, size), key.PublicHex())) << size;
  }
  EXPECT_FALSE(IsSigned(file + "x", key.PublicHex()));
  EXPECT_FALSE(IsSigned(key.Sign(""), key.PublicHex()));  // a true signature, of nothing
}

TEST(Signature, OfAnotherKeyIsNone) {
  const SigningKey key, other;
  EXPECT_FALSE(IsSigned(key.Sign("an update"), other.PublicHex()));
}

TEST(Signature, WantsAKeyOf64HexDigits) {
  const std::string file = QByteArray::fromHex(kPublishedFile).toStdString();
  const std::string key = kPublishedKey;
  const std::string bad_keys[] = {"",
                                  key.substr(2),
                                  key.substr(1),
                                  key + "00",
                                  key + "0",
                                  " " + key,
                                  key + "\n",
                                  "0x" + key.substr(2),
                                  "z" + key.substr(1),
                                  key.substr(0, 32) + " " + key.substr(32)};
  for (const std::string& bad : bad_keys) EXPECT_FALSE(IsSigned(file, bad)) << bad;
}

}  // namespace
}  // namespace skyloft
