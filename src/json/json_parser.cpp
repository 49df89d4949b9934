// SPDX-License-Identifier: MIT
#include "json/json_parser.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

namespace tovi::json {
namespace {

constexpr std::string_view kDigits = "0123456789";

// Controllers write control characters as they are.
bool isPlain(char c) { return c != '"' && c != '\\'; }

// The whole of the text as a number; independent of the host's locale, unlike strtod and streams.
template <typename Number>
std::errc convert(std::string_view text, Number& value) {
  return std::from_chars(text.data(), text.data() + text.size(), value).ec;
}

// Whether a number that no double holds is too small, not too large. Only its order of magnitude
// matters: the decimal place of its first significant digit.
bool isTooSmall(std::string_view number) {
  const auto mantissaSize = std::min(number.find_first_of("eE"), number.size());
  const auto mantissa = number.substr(0, mantissaSize);
  const auto point = std::min(mantissa.find('.'), mantissa.size());
  const auto significant = mantissa.find_first_of("123456789");
  const auto place = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(significant);

  std::int32_t exponent = 0;
  if (mantissaSize < number.size()) {
    auto text = number.substr(mantissaSize + 1);
    if (text.front() == '+') text.remove_prefix(1);
    if (convert(text, exponent) != std::errc{}) return text.front() == '-';
  }
  return place + exponent < 0;
}

bool setInteger(Node& node, std::string_view number) {
  if (number.front() == '-') {
    if (convert(number, node.integer) != std::errc{}) return false;
    node.isSigned = true;
  } else {
    std::uint64_t value = 0;
    if (convert(number, value) != std::errc{}) return false;
    node.integer = static_cast<std::int64_t>(value);
    node.isSigned = value <= std::numeric_limits<std::int32_t>::max();
  }
  node.type = NodeType::Integer;
  return true;
}

bool setDouble(Node& node, std::string_view number) {
  node.type = NodeType::Double;
  if (convert(number, node.number) == std::errc{}) return true;
  node.number = 0;
  return isTooSmall(number);
}

void appendUtf8(std::string& out, std::uint32_t code) {
  const auto tail = [&](int shift) { out += static_cast<char>(0x80U | ((code >> shift) & 0x3FU)); };
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += static_cast<char>(0xC0U | (code >> 6));
    tail(0);
  } else if (code < 0x10000) {
    out += static_cast<char>(0xE0U | (code >> 12));
    tail(6);
    tail(0);
  } else {
    out += static_cast<char>(0xF0U | (code >> 18));
    tail(12);
    tail(6);
    tail(0);
  }
}

// Every step returns false on an error and then leaves mPos at the failing point.
class Parser {
 public:
  explicit Parser(std::string_view text) : mText(text) {}

  ParseResult run() {
    auto root = std::make_unique<Node>();
    bool good = parseValue(*root);
    if (good) {
      skipSpace();
      good = mPos == mText.size();
    }
    if (!good) root.reset();
    return {std::move(root), mPos};
  }

 private:
  char peek() const { return mPos < mText.size() ? mText[mPos] : '\0'; }

  bool take(char expected) {
    if (mPos == mText.size() || mText[mPos] != expected) return false;
    ++mPos;
    return true;
  }

  bool takeDigits() {
    const auto begin = mPos;
    mPos = std::min(mText.find_first_not_of(kDigits, mPos), mText.size());
    return mPos > begin;
  }

  void skipSpace() { mPos = std::min(mText.find_first_not_of(" \t\r\n", mPos), mText.size()); }

  bool parseValue(Node& node) {
    skipSpace();
    switch (peek()) {
      case 'n':
        return parseLiteral(node, "null", NodeType::Null);
      case 'f':
        return parseLiteral(node, "false", NodeType::False);
      case 't':
        return parseLiteral(node, "true", NodeType::True);
      case '"':
        node.type = NodeType::String;
        return parseString(node.text);
      case '[':
        return parseChildren(node, NodeType::Array, ']');
      case '{':
        return parseChildren(node, NodeType::Object, '}');
      default:
        return parseNumber(node);
    }
  }

  bool parseLiteral(Node& node, std::string_view literal, NodeType type) {
    if (mText.substr(mPos, literal.size()) != literal) return false;
    mPos += literal.size();
    node.type = type;
    return true;
  }

  bool parseChildren(Node& node, NodeType type, char close) {
    if (mDepth == kMaxDepth) return false;
    ++mDepth;
    ++mPos;
    node.type = type;
    skipSpace();
    if (!take(close)) {
      do {
        Node& child = *node.children.emplace_back(std::make_unique<Node>());
        if (type == NodeType::Object && !parseKey(child.key)) return false;
        if (!parseValue(child)) return false;
        skipSpace();
      } while (take(','));
      if (!take(close)) return false;
    }
    --mDepth;
    return true;
  }

  bool parseKey(std::string& key) {
    skipSpace();
    if (!parseString(key)) return false;
    skipSpace();
    return take(':');
  }

  bool parseString(std::string& out) {
    if (!take('"')) return false;
    while (!take('"')) {
      const auto begin = mPos;
      while (mPos < mText.size() && isPlain(mText[mPos])) ++mPos;
      out.append(mText, begin, mPos - begin);
      if (peek() != '"' && !parseEscape(out)) return false;
    }
    return true;
  }

  bool parseEscape(std::string& out) {
    constexpr std::string_view kNames = "\"\\/bfnrt";
    constexpr std::string_view kValues = "\"\\/\b\f\n\r\t";
    if (mText.size() - mPos < 2 || mText[mPos] != '\\') return false;
    if (mText[mPos + 1] == 'u') return parseUnicodeEscape(out);
    const auto index = kNames.find(mText[mPos + 1]);
    if (index == std::string_view::npos) return false;
    out += kValues[index];
    mPos += 2;
    return true;
  }

  bool parseUnicodeEscape(std::string& out) {
    const auto unit = unicodeEscapeAt(mPos);
    if (!unit || (*unit >= 0xDC00 && *unit < 0xE000)) return false;
    std::uint32_t code = *unit;
    std::size_t size = kUnicodeEscapeSize;
    if (code >= 0xD800 && code < 0xDC00) {
      const auto low = unicodeEscapeAt(mPos + size);
      if (!low || *low < 0xDC00 || *low >= 0xE000) return false;
      code = 0x10000 + ((code - 0xD800) << 10) + (*low - 0xDC00);
      size += kUnicodeEscapeSize;
    }
    appendUtf8(out, code);
    mPos += size;
    return true;
  }

  std::optional<std::uint32_t> unicodeEscapeAt(std::size_t at) const {
    const auto escape = mText.substr(at, kUnicodeEscapeSize);
    if (escape.size() < kUnicodeEscapeSize || !escape.starts_with("\\u")) return std::nullopt;
    std::uint32_t unit = 0;
    const char* end = escape.data() + escape.size();
    if (std::from_chars(escape.data() + 2, end, unit, 16).ptr != end) return std::nullopt;
    return unit;
  }

  bool parseNumber(Node& node) {
    const auto begin = mPos;
    take('-');
    if (!take('0') && !takeDigits()) return false;
    bool whole = true;
    if (take('.')) {
      whole = false;
      if (!takeDigits()) return false;
    }
    if (take('e') || take('E')) {
      whole = false;
      if (!take('+')) take('-');
      if (!takeDigits()) return false;
    }
    const auto number = mText.substr(begin, mPos - begin);
    if ((whole && setInteger(node, number)) || setDouble(node, number)) return true;
    mPos = begin;
    return false;
  }

  static constexpr std::size_t kUnicodeEscapeSize = 6;  // \uXXXX

  std::string_view mText;
  std::size_t mPos = 0;
  int mDepth = 0;
};

}  // namespace

ParseResult parse(std::string_view text) { return Parser(text).run(); }

}  // namespace tovi::json
