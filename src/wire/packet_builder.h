// SPDX-License-Identifier: MIT
// Building frames.
#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace tovi::wire {

// "des", "aes" or "sm4", as records have it.
const char* cipherName(int mode);

// The frame of makeSendPacketEx; key may be null.
std::string makeFrame(char what, std::string_view payload, int mode, const char* key);

// Builds one frame after another in the same memory.
class FrameBuilder {
 public:
  // Holds until the next one is built.
  std::string_view build(char what, std::string_view payload, int mode, const char* key);

  std::string frame() && { return std::move(mFrame); }

 private:
  std::string mCiphered;
  std::string mFrame;
};

}  // namespace tovi::wire
