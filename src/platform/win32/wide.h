// SPDX-License-Identifier: MIT
// Between UTF-16 and the code pages.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace tovi::platform {

// Nothing when the text has no counterpart.
std::optional<std::wstring> toWide(UINT codePage, const std::string& text);
std::optional<std::string> fromWide(UINT codePage, const std::wstring& wide);

}  // namespace tovi::platform
