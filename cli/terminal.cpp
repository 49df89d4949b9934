#include "cli/terminal.h"

#include "platform/console.h"

namespace tovi::cli {

std::string harmless(std::string text) {
  const auto at = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  for (std::size_t i = 0; i < text.size(); ++i) {
    if ((at(i) < 0x20 && text[i] != '\n' && text[i] != '\t') || at(i) == 0x7F) text[i] = '?';
    // U+0080 to U+009F
    if (i > 0 && at(i - 1) == 0xC2 && at(i) >= 0x80 && at(i) < 0xA0) text.replace(--i, 2, "?");
  }
  return text;
}

void printLine(std::FILE* results, const std::string& text) {
  const std::string line = (platform::isTerminal(results) ? harmless(text) : text) + '\n';
  std::fwrite(line.data(), 1, line.size(), results);  // texts may hold zero bytes
}

}  // namespace tovi::cli
