// SPDX-License-Identifier: MIT
// Building frames.
#pragma once

#include <string>
#include <string_view>

namespace tovi::wire {

// "des", "aes" or "sm4", as records have it.
const char* cipherName(int mode);

// The frame of makeSendPacketEx; key may be null.
std::string makeFrame(char what, std::string_view payload, int mode, const char* key);

}  // namespace tovi::wire
