// SPDX-License-Identifier: MIT
// The checksum of eight bytes at once.
//
// A checksum is what a division leaves over, and the next one depends on the quotient's last 16
// bits alone. The quotient of eight bytes, the first bit of each first, is their product with the
// inverse of P = 1 + x^4 + x^11 + x^16. As far as 64 bits reach, P^16 is 1, and the inverse
// therefore P^15 = P * P^2 * P^4 * P^8: four rounds of shifts.
//
// The quotient shows as well where a byte meets the altered entry of the table. What the entry adds
// comes to the same as if it had been added to the two bytes behind.
#include <array>
#include <bit>

#include "wire/checksum.h"

namespace tovi::wire {
namespace {

using Word = std::uint64_t;

constexpr std::size_t kWordSize = sizeof(Word);
constexpr Word kEachByte = 0x0101010101010101;
constexpr Word kLowBits = kEachByte * 0x7F;

constexpr Word kAdded = kAlteredEntry ^ kPolynomialEntry;
// A byte of the quotient is the table's index with its low half added to its high one.
constexpr Word kAlteredQuotient = (kAlteredIndex ^ kAlteredIndex << 4) & 0xFF;

constexpr Word quotient(Word bytes) {
  bytes ^= bytes << 4 ^ bytes << 11 ^ bytes << 16;
  bytes ^= bytes << 8 ^ bytes << 22 ^ bytes << 32;
  bytes ^= bytes << 16 ^ bytes << 44;
  return bytes ^ bytes << 32;
}

// The checksum after a quotient that ends in these 16 bits.
constexpr Word remainder(Word last) { return last ^ last >> 5 ^ last >> 12; }

// What one of the last two bytes of a quotient adds to the quotient of the next eight bytes.
constexpr std::array<Word, 256> addedToNext(int shift) {
  std::array<Word, 256> table{};
  for (Word byte = 0; byte < table.size(); ++byte) table[byte] = quotient(remainder(byte << shift));
  return table;
}

constexpr std::array<Word, 256> kByLastButOne = addedToNext(0);
constexpr std::array<Word, 256> kByLast = addedToNext(8);

// The first byte lowest, on every machine.
Word wordAt(const char* bytes) {
  const auto byte = [bytes](int at) { return Word{static_cast<unsigned char>(bytes[at])}; };
  return byte(0) | byte(1) << 8 | byte(2) << 16 | byte(3) << 24 | byte(4) << 32 | byte(5) << 40 |
         byte(6) << 48 | byte(7) << 56;
}

// The highest bit of each byte that meets the altered entry.
constexpr Word altered(Word result) {
  const Word zeros = result ^ kEachByte * kAlteredQuotient;
  return ~(((zeros & kLowBits) + kLowBits) | zeros | kLowBits);
}

// Adds to a quotient what its altered bytes add, each of which changes those behind it; gives what
// reaches beyond it.
Word correct(Word& result) {
  Word beyond = 0;
  Word unseen = ~Word{0};
  for (Word found; (found = altered(result) & unseen) != 0;) {
    const int next = std::countr_zero(found) + 1;
    beyond ^= kAdded >> (64 - next);
    if (next == 64) break;
    result ^= quotient(kAdded) << next;
    unseen = ~Word{0} << next;
  }
  return beyond;
}

}  // namespace

std::uint16_t checksum(std::string_view bytes) {
  Word last = 0;  // the quotient of the last eight bytes
  Word beyond = kChecksumStart;
  for (; bytes.size() >= kWordSize; bytes.remove_prefix(kWordSize)) {
    last = quotient(wordAt(bytes.data()) ^ beyond) ^ kByLastButOne[last >> 48 & 0xFF] ^
           kByLast[last >> 56];
    beyond = 0;
    if (altered(last) != 0) [[unlikely]]
      beyond = correct(last);
  }
  return checksumByBytes(bytes, static_cast<std::uint16_t>(remainder(last >> 48) ^ beyond));
}

}  // namespace tovi::wire
