// SPDX-License-Identifier: MIT
// Sixteen bytes at once: most hold no flag, and are copied as they are.
#ifdef __SSE2__

#include <emmintrin.h>
#include <tovisdk/protocal_parser.h>

#include "wire/escaping.h"

namespace tovi::wire {
namespace {

constexpr std::size_t kBlockSize = sizeof(__m128i);

__m128i load(std::string_view bytes) {
  return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes.data()));
}

char* store(__m128i block, char* out) {
  _mm_storeu_si128(reinterpret_cast<__m128i*>(out), block);
  return out + kBlockSize;
}

// All bits of each byte that is the one given.
__m128i equal(__m128i block, char byte) { return _mm_cmpeq_epi8(block, _mm_set1_epi8(byte)); }

__m128i flags(__m128i block) {
  return _mm_or_si128(equal(block, ProtocalParser::PACKET_TRANSFER_FLAG),
                      _mm_or_si128(equal(block, ProtocalParser::PACKET_START_FLAG),
                                   equal(block, ProtocalParser::PACKET_END_FLAG)));
}

unsigned maskOf(__m128i bytes) { return static_cast<unsigned>(_mm_movemask_epi8(bytes)); }

bool any(__m128i bytes) { return maskOf(bytes) != 0; }

// A block that holds flags: whichever a byte is, two are written and one or both of them count.
char* escapeBlock(__m128i block, __m128i flags, char* out) {
  alignas(__m128i) char firsts[kBlockSize];
  alignas(__m128i) char seconds[kBlockSize];
  const __m128i escape = _mm_set1_epi8(ProtocalParser::PACKET_TRANSFER_FLAG);
  store(_mm_or_si128(block, _mm_and_si128(flags, escape)), firsts);  // it has all bits of a flag
  store(_mm_and_si128(block, _mm_set1_epi8(0x0F)), seconds);
  for (unsigned at = 0, left = maskOf(flags); at < kBlockSize; ++at, left >>= 1) {
    out[0] = firsts[at];
    out[1] = seconds[at];
    out += 1 + (left & 1);
  }
  return out;
}

// Halves of flags, and what they stand for: both halves of a flag are alike.
__m128i halves(__m128i block) {
  return _mm_or_si128(equal(block, 0x0A), _mm_or_si128(equal(block, 0x0C), equal(block, 0x0E)));
}
__m128i flagsOf(__m128i halves) { return _mm_or_si128(halves, _mm_slli_epi16(halves, 4)); }

// The first bytes of a block that holds escape flags, none of which is the last of them.
char* unescapeBlock(__m128i block, __m128i escapes, std::size_t size, char* out) {
  const __m128i after = _mm_slli_si128(escapes, 1);
  if (any(_mm_andnot_si128(halves(block), after))) return nullptr;
  alignas(__m128i) char plain[kBlockSize];
  store(_mm_or_si128(_mm_andnot_si128(after, block), flagsOf(_mm_and_si128(after, block))), plain);
  for (unsigned at = 0, left = maskOf(escapes); at < size; ++at, left >>= 1) {
    *out = plain[at];
    out += ~left & 1;
  }
  return out;
}

}  // namespace

std::size_t countFlags(std::string_view payload) {
  // Two sums of eight bytes each. A flag counts as all bits set, which is -1.
  __m128i sums = _mm_setzero_si128();
  for (; payload.size() >= kBlockSize; payload.remove_prefix(kBlockSize)) {
    const __m128i ones = _mm_sub_epi8(_mm_setzero_si128(), flags(load(payload)));
    sums = _mm_add_epi64(sums, _mm_sad_epu8(ones, _mm_setzero_si128()));
  }
  const __m128i sum = _mm_add_epi64(sums, _mm_srli_si128(sums, 8));
  return static_cast<std::size_t>(_mm_cvtsi128_si32(sum)) + by_bytes::countFlags(payload);
}

char* escape(std::string_view payload, char* out) {
  for (; payload.size() >= kBlockSize; payload.remove_prefix(kBlockSize)) {
    const __m128i block = load(payload);
    const __m128i found = flags(block);
    out = any(found) ? escapeBlock(block, found, out) : store(block, out);
  }
  return by_bytes::escape(payload, out);
}

char* unescape(std::string_view escaped, char* out) {
  while (escaped.size() > kBlockSize) {
    const __m128i block = load(escaped);
    const __m128i escapes = equal(block, ProtocalParser::PACKET_TRANSFER_FLAG);
    std::size_t taken = kBlockSize;
    if (!any(escapes)) {
      out = store(block, out);
    } else {
      // An escape flag is never parted from what follows it.
      if (escaped[kBlockSize - 1] == ProtocalParser::PACKET_TRANSFER_FLAG) --taken;
      out = unescapeBlock(block, escapes, taken, out);
      if (out == nullptr) return nullptr;
    }
    escaped.remove_prefix(taken);
  }
  return by_bytes::unescape(escaped, out);
}

}  // namespace tovi::wire

#endif
