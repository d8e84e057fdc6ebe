#include "platform/qt/update_signature.h"

#include <openssl/evp.h>

#include <memory>

#include <QByteArray>

namespace skyloft {
namespace {

constexpr size_t kKeySize = 32;
constexpr size_t kSignatureSize = 64;

using Key = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;
using Verifier = std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)>;

const unsigned char* BytesOf(std::string_view text) {
  return reinterpret_cast<const unsigned char*>(text.data());
}

// Null unless the text is the hex digits of a key and nothing else.
Key ReadKey(std::string_view hex) {
  const QByteArray text = QByteArray(hex.data(), static_cast<qsizetype>(hex.size())).toLower();
  const QByteArray key = QByteArray::fromHex(text);
  const bool whole = key.size() == kKeySize && key.toHex() == text;  // fromHex passes over what is no digit
  return {whole
              ? EVP_PKEY_new_raw_public_key(EVP_PKEY_ED25519, nullptr,
                                            reinterpret_cast<const unsigned char*>(key.constData()), kKeySize)
              : nullptr,
          EVP_PKEY_free};
}

}  // namespace

bool IsSigned(std::string_view bytes, std::string_view key_hex) {
  const Key key = ReadKey(key_hex);
  if (!key || bytes.size() <= kSignatureSize) return false;
  const std::string_view body = bytes.substr(0, bytes.size() - kSignatureSize);
  const std::string_view signature = bytes.substr(body.size());
  const Verifier verifier(EVP_MD_CTX_new(), EVP_MD_CTX_free);
  return verifier && EVP_DigestVerifyInit(verifier.get(), nullptr, nullptr, nullptr, key.get()) == 1 &&
         EVP_DigestVerify(verifier.get(), BytesOf(signature), signature.size(), BytesOf(body), body.size()) ==
             1;
}

}  // namespace skyloft
