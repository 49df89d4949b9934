// SPDX-License-Identifier: MIT
// What is built, parsed and sent.
#pragma once

#include <string>
#include <string_view>

namespace tovi::bench {

constexpr std::size_t kChunk = 65535;  // what a frame carries of a file

// Bytes without a pattern, the same in each run.
std::string randomBytes(std::size_t size);

// "AA FF 10" as three bytes.
std::string hex(std::string_view text);

// A plain frame with this payload, of the library's own making.
std::string frameOf(char what, std::string payload, int mode = 0);

constexpr char kPassword[] = "12345678";

// The frames of setBrightness(80) and of the answer that accepts it.
constexpr char kRequest[] = "AA FF FF 07 02 50 CC 38 4A";
constexpr char kAccepted[] = "AA FF FF 08 01 CC 4E 42";

}  // namespace tovi::bench
