// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string_view>

namespace tovi::cipher {

// DES in cipher block chaining mode. Every message starts its chain from the 8 key bytes; a key of
// another length is cut, or filled with zero bytes.

// Returns the length with its 1 to 8 padding bytes, or -1 when out is too small for it.
int desEncrypt(std::string_view plain, std::string_view key, std::span<char> out);

// Writes as many bytes as ciphered has, deciphering a ragged tail as if zero bytes followed it.
// Returns that length less the last plaintext byte: the padding goes unchecked, so the result may
// be negative, and the caller judges it. 0 when ciphered is empty, -1 when out is too small.
int desDecrypt(std::string_view ciphered, std::string_view key, std::span<char> out);

}  // namespace tovi::cipher
