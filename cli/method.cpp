#include "cli/method.h"

#include <cctype>

namespace tovi::cli {

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
  if (most == wire::kMaxPayload) return "";
  const std::string end = std::to_string(most) + " bytes";
  return least == 0 ? "at most " + end : std::to_string(least) + " to " + end;
}

}  // namespace tovi::cli
