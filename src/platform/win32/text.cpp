// SPDX-License-Identifier: MIT
#include "platform/text.h"

#include <climits>

#include "platform/win32/wide.h"

namespace tovi::platform {

std::optional<std::wstring> toWide(UINT codePage, const std::string& text) {
  if (text.empty()) return std::wstring();
  if (text.size() > INT_MAX) return std::nullopt;
  const int size = static_cast<int>(text.size());
  const int length =
      ::MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, text.data(), size, nullptr, 0);
  if (length <= 0) return std::nullopt;
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  ::MultiByteToWideChar(codePage, MB_ERR_INVALID_CHARS, text.data(), size, wide.data(), length);
  return wide;
}

std::optional<std::string> fromWide(UINT codePage, const std::wstring& wide) {
  if (wide.empty()) return std::string();
  if (wide.size() > INT_MAX) return std::nullopt;
  const int size = static_cast<int>(wide.size());
  // UTF-8 wants another flag than the rest and refuses the question about the substitute.
  const bool toUtf8 = codePage == CP_UTF8;
  const DWORD flags = toUtf8 ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS;
  BOOL substituted = FALSE;
  BOOL* const asked = toUtf8 ? nullptr : &substituted;
  const int length =
      ::WideCharToMultiByte(codePage, flags, wide.data(), size, nullptr, 0, nullptr, asked);
  if (length <= 0 || substituted) return std::nullopt;
  std::string text(static_cast<std::size_t>(length), '\0');
  ::WideCharToMultiByte(codePage, flags, wide.data(), size, text.data(), length, nullptr, nullptr);
  return text;
}

namespace {

constexpr UINT kGbk = 936;

// CP_ACP by its number, because it may be UTF-8.
UINT localCodePage() { return ::GetACP(); }

std::optional<std::string> convert(UINT from, UINT to, const std::string& text) {
  const auto wide = toWide(from, text);
  return wide ? fromWide(to, *wide) : std::nullopt;
}

}  // namespace

std::optional<std::string> localToUtf8(const std::string& text) {
  return convert(localCodePage(), CP_UTF8, text);
}

std::optional<std::string> utf8ToLocal(const std::string& text) {
  return convert(CP_UTF8, localCodePage(), text);
}

std::optional<std::string> utf8ToGbk(const std::string& text) {
  auto wide = toWide(CP_UTF8, text);
  if (!wide) return std::nullopt;
  if (wide->empty() || wide->size() > INT_MAX) return std::string();
  // GBK has no character beyond the first 65,536; as a pair of halves, each would cost a "?".
  std::erase_if(*wide, [](wchar_t c) { return IS_LOW_SURROGATE(c); });
  const int size = static_cast<int>(wide->size());
  const auto convert = [&](char* to, int room) {
    return ::WideCharToMultiByte(kGbk, WC_NO_BEST_FIT_CHARS, wide->data(), size, to, room, "?",
                                 nullptr);
  };
  std::string result(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
  convert(result.data(), static_cast<int>(result.size()));
  return result;
}

std::optional<std::string> gbkToUtf8(const std::string& text) {
  return convert(kGbk, CP_UTF8, text);
}

}  // namespace tovi::platform
