// SPDX-License-Identifier: MIT
// Which key the controller holds. A change takes hold with the next request.
//
//   secret parameters = mode, enable, label, 91 21 [, key] [, 91 21, second key]
//   mode              = 0 plain, 1 des, 2 aes, 3 sm4; with any but 0 the key is there
#include <algorithm>

#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

constexpr std::size_t kKeySize = 8;
constexpr std::size_t kMaxLabel = 16;
constexpr std::size_t kLabelOffset = 2;
constexpr std::uint8_t kSeparator[] = {0x91, 0x21};
constexpr Cipher kModes[] = {Cipher::None, Cipher::Des, Cipher::Aes, Cipher::Sm4};

bool startsWithSeparator(View bytes) {
  return bytes.size() >= 2 && std::equal(bytes.begin(), bytes.begin() + 2, kSeparator);
}

struct Tail {
  std::string key;
  std::string secondKey;
};

// What follows the label's separator.
std::optional<Tail> readTail(View bytes, bool withKey) {
  Tail tail;
  if (withKey) {
    if (bytes.size() < kKeySize) return std::nullopt;
    tail.key = textOf(bytes.first(kKeySize));
    bytes = bytes.subspan(kKeySize);
  }
  if (bytes.empty()) return tail;
  if (!startsWithSeparator(bytes) || bytes.size() != 2 + kKeySize) return std::nullopt;
  tail.secondKey = textOf(bytes.subspan(2));
  return tail;
}

Answer setDeviceSecretParam(const Request& request) {
  const View payload = request.payload;
  const std::uint8_t mode = payload[0];
  if (mode >= std::size(kModes) || payload[1] > 1) return request.refuse();

  // The label may hold the separator's bytes: the one that counts has a proper tail behind it.
  const View rest = payload.subspan(kLabelOffset);
  for (std::size_t length = 1; length <= kMaxLabel && length < rest.size(); ++length) {
    if (!startsWithSeparator(rest.subspan(length))) continue;
    const auto tail = readTail(rest.subspan(length + 2), mode != 0);
    if (!tail) continue;
    const bool ciphered = mode != 0 && payload[1] == 1;
    Security& security = request.state.security;
    security.key = ciphered ? Key{kModes[mode], tail->key} : Key{};
    security.label = textOf(rest.first(length));
    security.secondKey = tail->secondKey;
    return request.accept(inQuotes(security.label) + ", " +
                          std::string(tools::cipherName(kModes[mode])) + " " +
                          onOff(payload[1] == 1));
  }
  return request.refuse();
}

// Another key for the cipher in use.
Answer setDeviceKey(const Request& request) {
  Security& security = request.state.security;
  const bool ciphered = security.key.cipher != Cipher::None;
  (ciphered ? security.key.text : security.deviceKey) = textOf(request.payload);
  return request.accept(ciphered ? "for " + std::string(tools::cipherName(security.key.cipher))
                                 : "unused in plain mode");
}

Answer getIsSecret(const Request& request) {
  const bool secret = request.state.security.key.cipher != Cipher::None;
  return request.tell(secret ? "secure mode" : "plain mode", {byteOf(secret)});
}

constexpr Row kRows[] = {
    {command("getIsSecret"), getIsSecret},
    {command("setDeviceKey"), setDeviceKey, exactly(kKeySize)},
    {command("setDeviceSecretParam"), setDeviceSecretParam, atLeast(5)},
};

}  // namespace

std::span<const Row> secureModeRows() { return kRows; }

}  // namespace tovi::sim
