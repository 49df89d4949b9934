// SPDX-License-Identifier: MIT
// Escaping: a flag in a payload travels as the escape flag and the flag's lower half.
#pragma once

#include <cstddef>
#include <string_view>

namespace tovi::wire {

// How many bytes of a payload are flags; each makes the escaped payload longer by one.
std::size_t countFlags(std::string_view payload);

// Writes the payload escaped, and gives the end of it. One byte more than that must have room.
char* escape(std::string_view payload, char* out);

// Writes what was escaped, for which there must be as much room, and gives the end. Null when
// something else than the lower half of a flag follows an escape flag.
char* unescape(std::string_view escaped, char* out);

// The same one byte after another, for machines without instructions for more.
namespace by_bytes {
std::size_t countFlags(std::string_view payload);
char* escape(std::string_view payload, char* out);
char* unescape(std::string_view escaped, char* out);
}  // namespace by_bytes

}  // namespace tovi::wire
