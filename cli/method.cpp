// SPDX-License-Identifier: MIT
#include "cli/method.h"

#include <cctype>
#include <cstdio>

namespace tovi::cli {
namespace {

// 16-bit codes are written with all their digits.
std::string codeText(std::uint16_t code) {
  char text[8];
  std::snprintf(text, sizeof text, code > 0xFF ? "0x%04X" : "0x%02X", static_cast<unsigned>(code));
  return text;
}

std::string codesOf(const wire::Command& row) {
  if (row.request == wire::kNoRequest) return "reply " + codeText(row.reply);
  const std::string command = "command " + codeText(row.request);
  if (row.reply == wire::kNoReply) return command + "; no reply is awaited";
  return command + ", reply " + codeText(row.reply);
}

}  // namespace

std::string Method::command() const {
  std::string command;
  const auto isUpper = [this](std::size_t i) {
    return i < mName.size() && std::isupper(static_cast<unsigned char>(mName[i])) != 0;
  };
  for (std::size_t i = 0; i < mName.size(); ++i) {
    // The last letter of "SSHE" begins a word, those before it are one.
    const bool endsWord = i + 1 < mName.size() && !isUpper(i + 1);
    if (isUpper(i) && (!isUpper(i - 1) || endsWord)) command += '-';
    command += static_cast<char>(std::tolower(static_cast<unsigned char>(mName[i])));
  }
  return command;
}

std::string Method::textSizeInWords() const {
  const auto [least, most] = textSize();
  if (most == wire::TextSize{}.most) return "";
  const std::string end = std::to_string(most) + " bytes";
  return least == 0 ? "at most " + end : std::to_string(least) + " to " + end;
}

std::string Method::onTheWire() const {
  std::string text;
  for (std::size_t i = 0; i < mCount; ++i) text += (i == 0 ? "" : "; then ") + codesOf(*mSteps[i]);
  const std::string size = textSizeInWords();
  return size.empty() ? text : text + "; text of " + size;
}

}  // namespace tovi::cli
