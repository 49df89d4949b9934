// Reading what a controller answered.
#pragma once

#include <memory>
#include <string>

#include <tovisdk/socket_result.h>

namespace tovi::device {

// One reply package, or none. Byte numbers count from 0; byte 0 is the command byte, or bytes 0 and
// 1 the code of a 16-bit command. A byte past the end reads as 0.
class Reply {
 public:
  explicit Reply(SocketResult* result = nullptr) : mResult(result) {}

  explicit operator bool() const { return mResult != nullptr; }
  int size() const { return mResult == nullptr ? 0 : mResult->getLen(); }

  int unsignedByte(int n) const;
  int signedByte(int n) const { return static_cast<signed char>(unsignedByte(n)); }
  bool isOne(int n) const { return unsignedByte(n) == 1; }

  // Low byte first.
  int unsignedShort(int n) const { return unsignedByte(n) | unsignedByte(n + 1) << 8; }
  int signedShort(int n) const { return static_cast<short>(unsignedShort(n)); }
  int integer(int n) const;

  // The text from byte n up to its first zero byte.
  std::string text(int n) const { return mResult == nullptr ? "" : mResult->toStr(n); }

  // The bytes from n on as upper-case hexadecimal digits.
  std::string hexText(int n) const { return mResult == nullptr ? "" : mResult->toStrT(n); }

  // The bytes from n on with a closing zero, in an array that the host releases; null past the end.
  char* newText(int n) const { return mResult == nullptr ? nullptr : mResult->toStrChar(n); }

 private:
  std::unique_ptr<SocketResult> mResult;
};

}  // namespace tovi::device
