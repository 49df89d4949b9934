// SPDX-License-Identifier: MIT
// Frames as hosts build and parse them.
#define OPENSSL_SUPPRESS_DEPRECATED

#include <openssl/des.h>
#include <openssl/evp.h>
#include <tovisdk/packet.h>
#include <tovisdk/protocal_parser.h>
#include <tovisdk/text.h>

#include <algorithm>
#include <cstring>
#include <memory>

#include "material.h"
#include "rows.h"

namespace tovi::bench {
namespace {

constexpr std::size_t kPayload = 65517;  // fits a frame in each mode
constexpr char kCommand = 0x13;
constexpr unsigned char kKey[] = "0123456789abcdef";

auto building(int mode) {
  return [mode](benchmark::State& state) {
    std::string payload = randomBytes(kPayload);
    std::string key = kPassword;
    onBytes(state, kPayload, [&] {
      int size = 0;
      char* frame = makeSendPacketEx(kCommand, payload.data(), static_cast<int>(kPayload), mode,
                                     key.data(), &size);
      deleteArry(&frame);
    });
  };
}

// A reader that gets a frame in pieces.
auto parsing(int mode, std::size_t piece) {
  return [mode, piece](benchmark::State& state) {
    std::string frame = frameOf(kCommand, randomBytes(kPayload), mode);
    char* key = new char[sizeof kPassword];
    std::memcpy(key, kPassword, sizeof kPassword);
    const std::unique_ptr<char[]> kept(mode == 1 ? nullptr : key);  // otherwise the parser's
    ProtocalParser parser(key, mode);
    char* package = nullptr;
    onBytes(state, kPayload, [&] {
      for (std::size_t at = 0; at < frame.size(); at += piece) {
        const std::size_t size = std::min(piece, frame.size() - at);
        package = parser.recvProc(frame.data() + at, static_cast<int>(size), kCommand);
      }
      if (package == nullptr) state.SkipWithError("no package");
      deleteArry(&package);
    });
  };
}

void desAlone(benchmark::State& state, int direction) {
  const std::string in = randomBytes(kPayload / 8 * 8);
  std::string out(in.size(), '\0');
  DES_key_schedule schedule;
  DES_cblock key{'1', '2', '3', '4', '5', '6', '7', '8'};
  DES_set_key_unchecked(&key, &schedule);
  onBytes(state, in.size(), [&] {
    DES_ncbc_encrypt(reinterpret_cast<const unsigned char*>(in.data()),
                     reinterpret_cast<unsigned char*>(out.data()), static_cast<long>(in.size()),
                     &schedule, &key, direction);
  });
}

void evpAlone(benchmark::State& state, const EVP_CIPHER* cipher, int direction) {
  const std::string in = randomBytes(kPayload / 16 * 16);
  std::string out(in.size() + 16, '\0');
  const std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)> context(
      EVP_CIPHER_CTX_new(), EVP_CIPHER_CTX_free);
  EVP_CipherInit_ex(context.get(), cipher, nullptr, kKey, kKey, direction);
  EVP_CIPHER_CTX_set_padding(context.get(), 0);
  onBytes(state, in.size(), [&] {
    int size = 0;
    EVP_CipherUpdate(context.get(), reinterpret_cast<unsigned char*>(out.data()), &size,
                     reinterpret_cast<const unsigned char*>(in.data()),
                     static_cast<int>(in.size()));
  });
}

const bool kAdded = [] {
  constexpr int kDes = 1;
  constexpr int kAes = 2;
  constexpr int kSm4 = 3;
  constexpr std::size_t kWhole = SIZE_MAX;
  add("build, AES", "ours", building(kAes));
  add("build, AES", "the same in plain", building(0));
  add("build, AES", "EVP alone", [](auto& state) { evpAlone(state, EVP_aes_128_ecb(), 1); });
  add("build, DES", "ours", building(kDes));
  add("build, DES", "DES alone", [](auto& state) { desAlone(state, DES_ENCRYPT); });
  add("build, SM4", "ours", building(kSm4));
  add("build, SM4", "EVP alone", [](auto& state) { evpAlone(state, EVP_sm4_cbc(), 1); });
  add("parse, AES", "ours", parsing(kAes, kWhole));
  add("parse, AES", "the same in plain", parsing(0, kWhole));
  add("parse, DES", "ours", parsing(kDes, kWhole));
  add("parse, DES", "DES alone", [](auto& state) { desAlone(state, DES_DECRYPT); });
  add("parse, SM4", "ours", parsing(kSm4, kWhole));
  add("parse, SM4", "EVP alone", [](auto& state) { evpAlone(state, EVP_sm4_cbc(), 0); });
  for (const std::size_t piece : {std::size_t{4096}, std::size_t{100}}) {
    const std::string row = "parse, reads of " + std::to_string(piece) + " bytes";
    add(row, "ours", parsing(0, piece));
    add(row, "in one piece", parsing(0, kWhole));
  }
  return true;
}();

}  // namespace
}  // namespace tovi::bench
