// SPDX-License-Identifier: MIT
#include "flat/grammar.h"

#include <tovisdk/codec.h>
#include <tovisdk/text.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "foundation/text.h"

namespace tovi::flat {
namespace {

// The tokens of a text; asking for one that is not there gives an empty one.
class Tokens {
 public:
  Tokens(const std::string& text, const char* separator) : mTokens(fieldsOf(text, separator)) {}

  std::size_t size() const { return mTokens.size(); }
  std::string text(std::size_t n) const { return n < mTokens.size() ? mTokens[n] : ""; }
  int number(std::size_t n) const { return std::atoi(text(n).c_str()); }
  std::tm time(std::size_t n) const { return parseDateTime(text(n)); }

 private:
  std::vector<std::string> mTokens;
};

Tokens tokensOf(const char* text) { return Tokens(text, " "); }

// One entry for each whole group of tokens; `make` gets the number of the group's first.
template <class Entry, class Make>
std::list<Entry> groups(const Tokens& tokens, std::size_t size, Make make) {
  std::list<Entry> entries;
  for (std::size_t n = 0; n + size <= tokens.size(); n += size) entries.push_back(make(n));
  return entries;
}

}  // namespace

std::tm parseDateTime(const std::string& token) {
  const Tokens fields(token, "-");
  return getTm(fields.number(0), fields.number(1), fields.number(2), fields.number(3),
               fields.number(4), fields.number(5));
}

std::list<DevicePowerByTimeParam> parsePowerEntries(const char* text) {
  const Tokens tokens = tokensOf(text);
  return groups<DevicePowerByTimeParam>(tokens, 2, [&](std::size_t n) {
    return DevicePowerByTimeParam{tokens.time(n), tokens.time(n + 1)};
  });
}

std::list<PlayByTimeParam> parsePlayEntries(const char* text) {
  const Tokens tokens = tokensOf(text);
  return groups<PlayByTimeParam>(tokens, 3, [&](std::size_t n) {
    return PlayByTimeParam{tokens.time(n), tokens.time(n + 1), tokens.number(n + 2)};
  });
}

std::list<BrightnessByTimeParam> parseBrightnessEntries(const char* text) {
  const Tokens tokens = tokensOf(text);
  return groups<BrightnessByTimeParam>(tokens, 3, [&](std::size_t n) {
    return BrightnessByTimeParam{tokens.time(n), tokens.time(n + 1), tokens.number(n + 2)};
  });
}

BrightnessItem parseCurve(const char* text) {
  const Tokens tokens = tokensOf(text);
  BrightnessItem item;
  const std::size_t points = std::min(tokens.size() / 2, std::size(item.points));
  for (std::size_t k = 0; k < points; ++k) {
    item.points[k] = {tokens.number(2 * k), tokens.number(2 * k + 1)};
  }
  return item;
}

EdidInfo parseEdidInfo(const char* text) {
  const Tokens tokens = tokensOf(text);
  return {tokens.number(0), tokens.number(1), tokens.number(2), tokens.number(3)};
}

DeviceSecretParam parseSecretParam(const char* text) {
  const Tokens tokens = tokensOf(text);
  return {tokens.text(0), tokens.number(1), string_To_Bool(tokens.text(2)), tokens.text(3),
          tokens.text(4)};
}

}  // namespace tovi::flat
