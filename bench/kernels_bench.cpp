// SPDX-License-Identifier: MIT
// What is inside, beside its plain twin and memcpy; and frames beside the kernels they are made of.
#include <tovisdk/packet.h>
#include <tovisdk/protocal_parser.h>
#include <tovisdk/text.h>

#include <cstring>
#include <functional>

#include "material.h"
#include "rows.h"
#include "wire/checksum.h"
#include "wire/escaping.h"

namespace tovi::bench {
namespace {

using Copy = char* (*)(std::string_view bytes, char* out);

char* plainCopy(std::string_view bytes, char* out) {
  std::memcpy(out, bytes.data(), bytes.size());
  return out + bytes.size();
}

auto copying(const std::string& bytes, Copy copy) {
  return [bytes, copy](benchmark::State& state) {
    std::string room(2 * bytes.size() + 1, '\0');
    onBytes(state, bytes.size(), [&] {
      benchmark::DoNotOptimize(copy(bytes, room.data()));
      benchmark::ClobberMemory();
    });
  };
}

auto summing(std::function<std::uint16_t(std::string_view)> checksum) {
  return [checksum](benchmark::State& state) {
    const std::string bytes = randomBytes(kChunk);
    onBytes(state, bytes.size(), [&] { benchmark::DoNotOptimize(checksum(bytes)); });
  };
}

std::string escaped(const std::string& payload) {
  std::string bytes(2 * payload.size() + 1, '\0');
  bytes.resize(static_cast<std::size_t>(wire::escape(payload, bytes.data()) - bytes.data()));
  return bytes;
}

char* escapeAndSum(std::string_view payload, char* out) {
  char* const end = wire::escape(payload, out);
  benchmark::DoNotOptimize(wire::checksum({out, static_cast<std::size_t>(end - out)}));
  return end;
}

char* sumAndUnescape(std::string_view bytes, char* out) {
  benchmark::DoNotOptimize(wire::checksum(bytes));
  return wire::unescape(bytes, out);
}

void build(benchmark::State& state) {
  std::string payload = randomBytes(kChunk);
  onBytes(state, kChunk, [&] {
    int size = 0;
    char* frame = makeSendPacketEx(0x13, payload.data(), kChunk, 0, nullptr, &size);
    deleteArry(&frame);
  });
}

void parse(benchmark::State& state) {
  std::string frame = frameOf(0x13, randomBytes(kChunk));
  ProtocalParser parser;
  onBytes(state, frame.size(), [&] {
    char* package = parser.recvProc(frame.data(), static_cast<int>(frame.size()), 0x13);
    deleteArry(&package);
  });
}

const bool kAdded = [] {
  const std::string random = randomBytes(kChunk);
  const std::string flags(kChunk, '\xAA');
  add("checksum, 64 KiB", "ours", summing(wire::checksum));
  add("checksum, 64 KiB", "one byte after another",
      summing([](std::string_view bytes) { return wire::checksumByBytes(bytes); }));
  const auto addCopies = [](const std::string& row, const std::string& bytes, Copy ours,
                            Copy byBytes) {
    add(row, "ours", copying(bytes, ours));
    add(row, "one byte after another", copying(bytes, byBytes));
    add(row, "memcpy", copying(bytes, plainCopy));
  };
  addCopies("escape, random", random, wire::escape, wire::by_bytes::escape);
  addCopies("escape, flags only", flags, wire::escape, wire::by_bytes::escape);
  addCopies("unescape, random", escaped(random), wire::unescape, wire::by_bytes::unescape);
  addCopies("unescape, flags only", escaped(flags), wire::unescape, wire::by_bytes::unescape);
  add("build a frame, 64 KiB", "ours", build);
  add("build a frame, 64 KiB", "escape and checksum", copying(random, escapeAndSum));
  add("parse a frame, 64 KiB", "ours", parse);
  add("parse a frame, 64 KiB", "checksum and unescape", copying(escaped(random), sumAndUnescape));
  return true;
}();

}  // namespace
}  // namespace tovi::bench
