// SPDX-License-Identifier: MIT
#include "platform/text.h"

#include <iconv.h>
#include <langinfo.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <string_view>

namespace tovi::platform {

namespace {

// A program that never calls setlocale runs in the "C" locale, whose code set is ASCII; the text it
// handles is UTF-8 all the same.
bool isTakenAsUtf8(std::string_view codeSet) {
  constexpr std::string_view kNames[] = {"",      "UTF-8",   "utf8", "ANSI_X3.4-1968",
                                         "ASCII", "US-ASCII"};
  return std::find(std::begin(kNames), std::end(kNames), codeSet) != std::end(kNames);
}

// The length of the well-formed character that text starts with; 0 when there is none. Overlong
// forms, surrogates and values past U+10FFFF are ill-formed.
std::size_t utf8CharacterLength(std::string_view text) {
  const auto byteAt = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
  const std::uint8_t lead = byteAt(0);
  if (lead < 0x80) return 1;
  if (lead < 0xC2 || lead > 0xF4) return 0;
  const std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  if (text.size() < length) return 0;
  const std::uint8_t lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  const std::uint8_t highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  if (byteAt(1) < lowest || byteAt(1) > highest) return 0;
  for (std::size_t i = 2; i < length; ++i) {
    if ((byteAt(i) & 0xC0) != 0x80) return 0;
  }
  return length;
}

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = utf8CharacterLength(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

class Converter {
 public:
  Converter(const char* to, const char* from) : handle_(::iconv_open(to, from)) {}
  ~Converter() {
    if (isOpen()) ::iconv_close(handle_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  // iconv_open fails with -1 in place of a pointer.
  bool isOpen() const { return reinterpret_cast<std::intptr_t>(handle_) != -1; }

  std::optional<std::string> convert(std::string text) {
    if (!isOpen()) return std::nullopt;
    std::string result;
    char* input = text.data();
    std::size_t inputLeft = text.size();
    if (!run(&input, &inputLeft, result)) return std::nullopt;
    // Code sets that shift between states want to be led back to the first one.
    if (!run(nullptr, nullptr, result)) return std::nullopt;
    return result;
  }

 private:
  bool run(char** input, std::size_t* inputLeft, std::string& result) {
    for (;;) {
      char piece[512];
      char* output = piece;
      std::size_t outputLeft = sizeof piece;
      const std::size_t replaced = ::iconv(handle_, input, inputLeft, &output, &outputLeft);
      const int error = errno;
      result.append(piece, output);
      if (replaced == 0) return true;
      // Characters replaced by similar ones (a positive count) are no conversion either.
      if (replaced != static_cast<std::size_t>(-1) || error != E2BIG) return false;
    }
  }

  iconv_t handle_;
};

}  // namespace

std::optional<std::string> localToUtf8(const std::string& text) {
  const char* codeSet = ::nl_langinfo(CODESET);
  if (isTakenAsUtf8(codeSet)) return isUtf8(text) ? std::optional(text) : std::nullopt;
  return Converter("UTF-8", codeSet).convert(text);
}

std::optional<std::string> utf8ToLocal(const std::string& text) {
  if (!isUtf8(text)) return std::nullopt;
  const char* codeSet = ::nl_langinfo(CODESET);
  if (isTakenAsUtf8(codeSet)) return text;
  return Converter(codeSet, "UTF-8").convert(text);
}

std::optional<std::string> utf8ToGbk(const std::string& text) {
  Converter converter("GBK", "UTF-8");
  if (!converter.isOpen() || !isUtf8(text)) return std::nullopt;
  // Character by character, because one that GBK lacks must not cost the others.
  std::string result;
  for (std::string_view rest = text; !rest.empty();) {
    const std::string character(rest.substr(0, utf8CharacterLength(rest)));
    rest.remove_prefix(character.size());
    result += character.size() == 1 ? character : converter.convert(character).value_or("?");
  }
  return result;
}

std::optional<std::string> gbkToUtf8(const std::string& text) {
  return Converter("UTF-8", "GBK").convert(text);
}

}  // namespace tovi::platform
