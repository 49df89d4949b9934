// Conversions between text encodings.
#pragma once

#include <optional>
#include <string>

namespace tovi::platform {

// Between the local code page and UTF-8; nothing when the text cannot be converted.
std::optional<std::string> localToUtf8(const std::string& text);
std::optional<std::string> utf8ToLocal(const std::string& text);

}  // namespace tovi::platform
