// SPDX-License-Identifier: MIT
#include "simulator/cipher.h"

#include <openssl/evp.h>

#include <array>
#include <cctype>
#include <memory>

namespace tovi::sim {
namespace {

constexpr std::uint8_t kSecretParamRequest = 0x70;
constexpr std::uint8_t kSecretParamReply = 0x71;
constexpr std::uint16_t kIsSecret = 0x010C;

Bytes halfOfDigestText(const std::string& text) {
  std::array<std::uint8_t, EVP_MAX_MD_SIZE> digest{};
  unsigned length = 0;
  if (EVP_Digest(text.data(), text.size(), digest.data(), &length, EVP_md5(), nullptr) != 1) {
    return {};
  }
  // Characters 8 to 23 of the text are digest bytes 4 to 11.
  Bytes key;
  for (std::size_t i = 4; i < 12; ++i) {
    for (const char digit : hex({&digest[i], 1})) {
      key.push_back(static_cast<std::uint8_t>(std::tolower(digit)));
    }
  }
  return key;
}

struct Method {
  const EVP_CIPHER* cipher;
  Bytes key;
  Bytes vector;
};

Method methodOf(const Key& key) {
  const Bytes text = bytesOf(key.text);
  switch (key.cipher) {
    case Cipher::None:
      break;
    case Cipher::Des: {
      // Triple DES with one key three times over is single DES, without the legacy provider.
      Bytes thrice = text;
      thrice.insert(thrice.end(), text.begin(), text.end());
      thrice.insert(thrice.end(), text.begin(), text.end());
      return {EVP_des_ede3_cbc(), std::move(thrice), text};
    }
    case Cipher::Aes:
      return {EVP_aes_128_ecb(), halfOfDigestText(key.text), {}};
    case Cipher::Sm4: {
      const Bytes derived = halfOfDigestText(key.text);
      return {EVP_sm4_cbc(), derived, derived};
    }
  }
  return {nullptr, {}, {}};
}

enum Direction : int { Decrypt = 0, Encrypt = 1 };

std::optional<Bytes> transform(const Key& key, View input, Direction direction) {
  const Method method = methodOf(key);
  const std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)> context(
      EVP_CIPHER_CTX_new(), &EVP_CIPHER_CTX_free);
  if (method.key.empty() || context == nullptr) return std::nullopt;

  const std::uint8_t* vector = method.vector.empty() ? nullptr : method.vector.data();
  if (EVP_CipherInit_ex(context.get(), method.cipher, nullptr, method.key.data(), vector,
                        direction) != 1) {
    return std::nullopt;
  }
  Bytes output(input.size() + EVP_MAX_BLOCK_LENGTH);
  int head = 0;
  int tail = 0;
  if (EVP_CipherUpdate(context.get(), output.data(), &head, input.data(),
                       static_cast<int>(input.size())) != 1 ||
      EVP_CipherFinal_ex(context.get(), output.data() + head, &tail) != 1) {
    return std::nullopt;
  }
  output.resize(static_cast<std::size_t>(head) + static_cast<std::size_t>(tail));
  return output;
}

}  // namespace

Bytes encipher(const Key& key, View plain) { return transform(key, plain, Encrypt).value(); }

std::optional<Bytes> decipher(const Key& key, View ciphered) {
  return transform(key, ciphered, Decrypt);
}

bool sentPlain(const Key& key, const Message& message) {
  return key.cipher == Cipher::None || message.code == kSecretParamReply ||
         message.code == kIsSecret || pack(message).empty();
}

bool receivedPlain(const Key& key, std::uint8_t what, View body) {
  if (key.cipher == Cipher::None || what == kSecretParamRequest || body.empty()) return true;
  // Ciphertext may happen to begin like the exempt code, but only in whole blocks, which the bare
  // query is not.
  const auto query = unpack(what, body);
  return query && query->code == kIsSecret && body.size() % 8 != 0;
}

}  // namespace tovi::sim
