// SPDX-License-Identifier: MIT
#include "cipher/sm4.h"

#include <openssl/err.h>
#include <openssl/evp.h>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <memory>
#include <new>

namespace tovi::cipher {
namespace {

constexpr std::size_t kBlockSize = 16;
constexpr std::size_t kMaxSize = std::numeric_limits<int>::max() - kBlockSize;

struct FreeContext {
  void operator()(EVP_CIPHER_CTX* context) const { EVP_CIPHER_CTX_free(context); }
};

// Keeps our failures out of the thread's OpenSSL error queue, which the host may use itself.
class ErrorScope {
 public:
  ErrorScope() { ERR_set_mark(); }
  ~ErrorScope() { ERR_pop_to_mark(); }
  ErrorScope(const ErrorScope&) = delete;
  ErrorScope& operator=(const ErrorScope&) = delete;
};

// Looked up once: given by its name alone, it would be looked up anew for each message. Never given
// back, for a host may encipher until its very end.
const EVP_CIPHER* sm4Cbc() {
  static const EVP_CIPHER* const found = EVP_CIPHER_fetch(nullptr, "SM4-CBC", nullptr);
  return found != nullptr ? found : EVP_sm4_cbc();
}

const unsigned char* bytes(std::string_view text) {
  return reinterpret_cast<const unsigned char*>(text.data());
}

unsigned char* bytes(std::span<char> buffer) {
  return reinterpret_cast<unsigned char*>(buffer.data());
}

// What we ask of libcrypto fails for want of memory alone. A message must not go out for the one
// that was meant.
void mustHaveMemory(bool has) {
  if (!has) throw std::bad_alloc();
}

}  // namespace

Sm4::Sm4(std::string_view key16) {
  std::copy_n(key16.data(), std::min(key16.size(), mKey.size()), mKey.data());
}

int Sm4::encrypt(std::string_view plain, std::span<char> out) const {
  if (plain.size() > kMaxSize) return -1;
  if (out.size() < plain.size() - plain.size() % kBlockSize + kBlockSize) return -1;
  const ErrorScope errors;
  const std::unique_ptr<EVP_CIPHER_CTX, FreeContext> context(EVP_CIPHER_CTX_new());
  int updated = 0;
  int finished = 0;
  mustHaveMemory(context != nullptr);
  mustHaveMemory(EVP_EncryptInit_ex(context.get(), sm4Cbc(), nullptr, mKey.data(), mKey.data()) ==
                 1);
  mustHaveMemory(EVP_EncryptUpdate(context.get(), bytes(out), &updated, bytes(plain),
                                   static_cast<int>(plain.size())) == 1);
  mustHaveMemory(EVP_EncryptFinal_ex(context.get(), bytes(out) + updated, &finished) == 1);
  return updated + finished;
}

int Sm4::decrypt(std::string_view ciphered, std::span<char> out) const {
  if (ciphered.size() > kMaxSize || out.size() < ciphered.size() + kBlockSize) return -1;
  const ErrorScope errors;
  const std::unique_ptr<EVP_CIPHER_CTX, FreeContext> context(EVP_CIPHER_CTX_new());
  int updated = 0;
  int finished = 0;
  mustHaveMemory(context != nullptr);
  mustHaveMemory(EVP_DecryptInit_ex(context.get(), sm4Cbc(), nullptr, mKey.data(), mKey.data()) ==
                 1);
  EVP_DecryptUpdate(context.get(), bytes(out), &updated, bytes(ciphered),
                    static_cast<int>(ciphered.size()));
  EVP_DecryptFinal_ex(context.get(), bytes(out) + updated, &finished);
  return updated + finished;
}

}  // namespace tovi::cipher
