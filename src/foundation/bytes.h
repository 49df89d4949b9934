// SPDX-License-Identifier: MIT
// Bytes inside the library, and on their way out of it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace tovi {

// Of each number its low byte.
std::string bytes(std::initializer_list<int> values);

// Two bytes, low byte first.
std::string lowFirst(int value);
std::uint16_t lowFirstAt(std::string_view bytes, std::size_t at);

// Each byte as two upper-case hexadecimal digits, nothing between.
std::string hexText(std::string_view bytes);

// The pointer and the length of an argument; null and a length below 0 stand for no bytes.
std::string_view viewOf(const char* data, int len);

// A copy that a host releases with deleteArry. One zero byte follows it, so that texts are
// terminated.
char* newArray(std::string_view bytes);

}  // namespace tovi
