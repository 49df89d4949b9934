// SPDX-License-Identifier: MIT
// Conversions between text encodings.
#pragma once

#include <optional>
#include <string>

namespace tovi::platform {

// Between the local code page and UTF-8; nothing when the text cannot be converted.
std::optional<std::string> localToUtf8(const std::string& text);
std::optional<std::string> utf8ToLocal(const std::string& text);

// From UTF-8 to GBK, with "?" for each character that GBK lacks; nothing when the text is no UTF-8.
std::optional<std::string> utf8ToGbk(const std::string& text);
// From GBK to UTF-8; nothing when the text is no GBK.
std::optional<std::string> gbkToUtf8(const std::string& text);

}  // namespace tovi::platform
