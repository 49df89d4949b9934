// SPDX-License-Identifier: MIT
// What takes many bytes at once, against its twin that takes one after another.
#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <string>
#include <vector>

#include "tests/support/hex.h"
#include "wire/checksum.h"
#include "wire/escaping.h"

namespace tovi::wire {
namespace {

using test::toHex;

constexpr std::size_t kLongest = 70;
constexpr std::size_t kOffsets = 17;

// Texts of up to kLongest bytes are cut out of these, at any offset.
std::vector<std::string> materials() {
  constexpr std::size_t kSize = kLongest + kOffsets;
  std::mt19937 random(1);
  const auto drawn = [&random](std::string_view from) {
    std::string text;
    while (text.size() < kSize) text += from[random() % from.size()];
    return text;
  };
  std::string every;
  for (int byte = 0; byte < 256; ++byte) every += static_cast<char>(byte);
  const std::string_view flags = "\xAA\xCC\xEE";
  std::vector<std::string> texts{drawn(every), drawn(every), drawn(flags),
                                 drawn(std::string("\xEE\x0A\x0C\x0E\xEE\x0B").append(5, 'x')),
                                 drawn(std::string("\xCC").append(20, 'x'))};
  for (const char byte : every) texts.emplace_back(kSize, byte);
  for (const std::string_view pair : {"\xEE\x0A", "\xEE\x0C", "\xEE\x0E", "\xEE\x0F"}) {
    std::string& text = texts.emplace_back();
    while (text.size() < kSize) text += pair;
  }
  return texts;
}

// Bytes that each meet the altered entry of the checksum's table where the mask has its bit set.
std::string meeting(unsigned mask, std::size_t size) {
  std::string text;
  for (std::size_t i = 0; i < size; ++i) {
    const auto meets = static_cast<char>(checksumByBytes(text) ^ kAlteredIndex);
    text += (mask >> i % 8 & 1) != 0 ? meets : static_cast<char>(~meets);
  }
  return text;
}

// Memory of exactly this size, so that AddressSanitizer sees a step past it.
class Exact {
 public:
  explicit Exact(std::size_t size) : mBytes(new char[size]), mSize(size) {}
  explicit Exact(std::string_view bytes) : Exact(bytes.size()) { bytes.copy(data(), mSize); }
  char* data() { return mBytes.get(); }
  std::string upTo(const char* end) const {
    const char* const begin = mBytes.get();
    return {begin, end};
  }
  operator std::string_view() const { return {mBytes.get(), mSize}; }

 private:
  std::unique_ptr<char[]> mBytes;
  std::size_t mSize;
};

template <class Check>
void onEveryPiece(Check check) {
  for (const std::string& material : materials()) {
    for (std::size_t size = 0; size <= kLongest; ++size) {
      const std::size_t offset = size % kOffsets;
      check(Exact(std::string_view(material).substr(offset, size)));
    }
  }
}

TEST(Kernels, ChecksumIsThatOfOneByteAfterAnother) {
  onEveryPiece([](const Exact& bytes) {
    ASSERT_EQ(checksum(bytes), checksumByBytes(bytes)) << toHex(bytes);
  });
  for (unsigned mask = 0; mask < 256; ++mask) {
    const std::string text = meeting(mask, kLongest);
    for (std::size_t size = 0; size <= kLongest; ++size) {
      const Exact bytes(std::string_view(text).substr(0, size));
      ASSERT_EQ(checksum(bytes), checksumByBytes(bytes)) << mask << " " << size;
    }
  }
}

TEST(Kernels, UnalignedBytesAreTheSame) {
  const std::string material = materials().front();
  for (std::size_t offset = 0; offset < kOffsets; ++offset) {
    const std::string_view bytes = std::string_view(material).substr(offset, kLongest);
    EXPECT_EQ(checksum(bytes), checksumByBytes(bytes));
    Exact many(2 * kLongest + 1 + offset);
    Exact one(2 * kLongest + 1 + offset);
    EXPECT_EQ(many.upTo(escape(bytes, many.data() + offset)).substr(offset),
              one.upTo(by_bytes::escape(bytes, one.data() + offset)).substr(offset));
  }
}

TEST(Kernels, EscapesAreThoseOfOneByteAfterAnother) {
  onEveryPiece([](const Exact& bytes) {
    const std::size_t flags = countFlags(bytes);
    const std::string_view plain = bytes;
    ASSERT_EQ(flags, by_bytes::countFlags(plain)) << toHex(plain);
    Exact many(plain.size() + flags + 1);
    Exact one(plain.size() + flags + 1);
    const std::string escaped = many.upTo(escape(plain, many.data()));
    ASSERT_EQ(escaped, one.upTo(by_bytes::escape(plain, one.data()))) << toHex(plain);
    ASSERT_EQ(escaped.size(), plain.size() + flags);

    const Exact whole(escaped);
    Exact back(escaped.size());
    const char* const end = unescape(whole, back.data());
    ASSERT_NE(end, nullptr) << toHex(plain);
    ASSERT_EQ(back.upTo(end), plain);
  });
}

TEST(Kernels, UnescapesAreThoseOfOneByteAfterAnother) {
  int broken = 0;
  int whole = 0;
  onEveryPiece([&](const Exact& bytes) {
    const std::string_view escaped = bytes;
    Exact many(escaped.size());
    Exact one(escaped.size());
    const char* const end = unescape(escaped, many.data());
    const char* const otherEnd = by_bytes::unescape(escaped, one.data());
    ASSERT_EQ(end == nullptr, otherEnd == nullptr) << toHex(escaped);
    ++(end == nullptr ? broken : whole);
    if (end != nullptr) {
      ASSERT_EQ(many.upTo(end), one.upTo(otherEnd)) << toHex(escaped);
    }
  });
  EXPECT_GT(broken, 100);
  EXPECT_GT(whole, 100);
}

}  // namespace
}  // namespace tovi::wire
