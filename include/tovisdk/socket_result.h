// SPDX-License-Identifier: MIT
/// @file
/// The reply to one query.
#ifndef TOVISDK_SOCKET_RESULT_H
#define TOVISDK_SOCKET_RESULT_H

#include <tovisdk/export.h>

#include <string>

/// One reply package: the command byte followed by the payload, or for a 16-bit command the payload
/// alone. Byte numbers count from 0.
class TOVISDK_API SocketResult {
 public:
  static constexpr int SUCCESS = 1;

  /// Takes ownership of `data`, `len` bytes made with new[].
  SocketResult(char* data, int len);

  /// Copies member by member: both objects then refer to the same bytes, and only one of them may
  /// be destroyed. For that reason copies are not made silently.
  SocketResult& operator=(const SocketResult&) = default;
  SocketResult(const SocketResult&) = delete;

  /// Releases the bytes and writes the line "SocketResult delete" to standard output.
  ~SocketResult();

  /// Length of the package in bytes.
  int getLen() const;

  /// The package itself, still owned by this object; may be null.
  char* getOrgChar() const;

  /// Whether the controller accepted: at least 3 bytes, and byte 2 is 1.
  bool isSetSuccess() const;

  /// The bytes from `from` on with a closing zero, as a new array that the caller releases with
  /// deleteArry. Null when the package is shorter than `from` or `from` is negative.
  char* toStrChar(int from) const;

  /// The text from byte `from` up to the first zero byte; empty when toStrChar gives null.
  std::string toStr(int from) const;

  /// The bytes from `from` on (a negative `from` counts as 0), each as two upper-case hexadecimal
  /// digits, nothing between; empty when `from` is not inside the package.
  std::string toStrT(int from) const;

  /// Upper-case hexadecimal text without leading zeros; "0" for 0 and for negative numbers.
  std::string DecIntToHexStr(int n) const;

 private:
  bool isSuccesed(int n) const;

  int len;
  char* data;
};

#endif
