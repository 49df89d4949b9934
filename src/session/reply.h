// SPDX-License-Identifier: MIT
// Reading what a controller answered.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tovi::session {

// One reply package, or none. Byte numbers count from 0; byte 0 is the command byte, or bytes 0 and
// 1 the code of a 16-bit command. A byte past the end reads as 0. The release of a package is told
// on standard output: hosts see a line for each query.
class Reply {
 public:
  Reply() = default;
  explicit Reply(std::optional<std::string> package) : mPackage(std::move(package)) {}
  Reply(Reply&& other) noexcept : mPackage(std::exchange(other.mPackage, std::nullopt)) {}
  Reply& operator=(Reply&&) = delete;
  ~Reply();

  explicit operator bool() const { return mPackage.has_value(); }
  int size() const { return mPackage ? static_cast<int>(mPackage->size()) : 0; }

  int unsignedByte(int n) const;
  int signedByte(int n) const { return static_cast<signed char>(unsignedByte(n)); }
  bool isOne(int n) const { return unsignedByte(n) == 1; }

  // Low byte first.
  int unsignedShort(int n) const { return unsignedByte(n) | unsignedByte(n + 1) << 8; }
  int signedShort(int n) const { return static_cast<short>(unsignedShort(n)); }
  int integer(int n) const;

  // The bytes from n on; none past the end.
  std::string_view from(int n) const;

  // The text from byte n up to its first zero byte.
  std::string text(int n) const;

  // The bytes from n on with a closing zero, in an array that the host releases; null past the end.
  char* newText(int n) const;

 private:
  std::optional<std::string> mPackage;
};

}  // namespace tovi::session
