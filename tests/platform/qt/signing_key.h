// A new pair of keys that signs updates.
#pragma once

#include <openssl/evp.h>

#include <memory>
#include <string>

#include <QByteArray>

namespace skyloft {

class SigningKey {
 public:
  std::string PublicHex() const {
    unsigned char raw[32];
    size_t size = sizeof raw;
    EVP_PKEY_get_raw_public_key(key_.get(), raw, &size);
    return QByteArray(reinterpret_cast<const char*>(raw), sizeof raw).toHex().toStdString();
  }

  // The body and behind it its signature.
  std::string Sign(const std::string& body) const {
    unsigned char signature[64];
    size_t size = sizeof signature;
    const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> signer(EVP_MD_CTX_new(), EVP_MD_CTX_free);
    EVP_DigestSignInit(signer.get(), nullptr, nullptr, nullptr, key_.get());
    EVP_DigestSign(signer.get(), signature, &size, reinterpret_cast<const unsigned char*>(body.data()),
                   body.size());
    return body + std::string(reinterpret_cast<const char*>(signature), size);
  }

 private:
  std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> key_{EVP_PKEY_Q_keygen(nullptr, nullptr, "ED25519"),
                                                           EVP_PKEY_free};
};

}  // namespace skyloft
