#include "simulator/json.h"

#include <charconv>

#include "simulator/bytes.h"

namespace tovi::sim {
namespace {

class Scanner {
 public:
  explicit Scanner(std::string_view text) : mText(text) {}

  bool take(char c) {
    skipSpace();
    if (mText.empty() || mText.front() != c) return false;
    mText.remove_prefix(1);
    return true;
  }

  std::optional<std::string> takeString() {
    if (!take('"')) return std::nullopt;
    const std::size_t end = mText.find('"');
    const std::string_view text = mText.substr(0, end);
    if (end == std::string_view::npos || text.find('\\') != std::string_view::npos) {
      return std::nullopt;
    }
    mText.remove_prefix(end + 1);
    return std::string(text);
  }

  std::optional<std::string> takeNumber() {
    skipSpace();
    long long number = 0;
    const auto [stop, error] = std::from_chars(mText.data(), mText.data() + mText.size(), number);
    if (error != std::errc{}) return std::nullopt;
    mText.remove_prefix(static_cast<std::size_t>(stop - mText.data()));
    return std::to_string(number);
  }

  bool atEnd() {
    skipSpace();
    return mText.empty();
  }

 private:
  void skipSpace() {
    mText.remove_prefix(std::min(mText.find_first_not_of(" \t\r\n"), mText.size()));
  }

  std::string_view mText;
};

}  // namespace

std::string jsonString(std::string_view text) {
  std::string out = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') {
      out += {'\\', c};
    } else if (static_cast<unsigned char>(c) < 0x20) {
      const auto byte = static_cast<std::uint8_t>(c);
      out += "\\u00" + hex({&byte, 1});
    } else {
      out += c;
    }
  }
  return out + '"';
}

std::string jsonArray(std::span<const std::string> texts) {
  std::string out = "[";
  for (const std::string& text : texts) {
    if (out.size() > 1) out += ',';
    out += jsonString(text);
  }
  return out + ']';
}

std::optional<JsonMembers> jsonMembers(std::string_view text) {
  Scanner scanner(text);
  JsonMembers members;
  if (!scanner.take('{')) return std::nullopt;
  if (!scanner.take('}')) {
    do {
      const auto name = scanner.takeString();
      if (!name || !scanner.take(':')) return std::nullopt;
      auto value = scanner.takeString();
      if (!value) value = scanner.takeNumber();
      if (!value) return std::nullopt;
      members[*name] = *value;
    } while (scanner.take(','));
    if (!scanner.take('}')) return std::nullopt;
  }
  if (!scanner.atEnd()) return std::nullopt;
  return members;
}

std::optional<int> jsonNumber(const JsonMembers& members, std::string_view name, int smallest,
                              int largest) {
  const auto member = members.find(name);
  if (member == members.end()) return std::nullopt;
  const std::string& text = member->second;
  int number = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc{} || stop != text.data() + text.size()) return std::nullopt;
  return number >= smallest && number <= largest ? std::optional(number) : std::nullopt;
}

}  // namespace tovi::sim
