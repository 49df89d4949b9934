// SPDX-License-Identifier: MIT
// Payload ciphers of the controller, all through libcrypto's EVP.
//
//   des  single DES in CBC; the 8 characters of the text are key and initialisation vector
//   aes  AES-128 in ECB; the key is characters 8 to 23 of the text's MD5 in lower-case hexadecimal
//   sm4  SM4 in CBC; key as for aes, and also the initialisation vector
//
// Every message is padded by 1 to a whole block of bytes that tell their own number.
#pragma once

#include <optional>

#include "simulator/wire.h"
#include "tools/key.h"

namespace tovi::sim {

using tools::Cipher;
using tools::Key;
using tools::parseKey;

Bytes encipher(const Key& key, View plain);

// Nothing when the bytes are no whole blocks or the padding is wrong: most likely another key.
std::optional<Bytes> decipher(const Key& key, View ciphered);

// Whether a payload stays as it is: without a key, when empty, and in the exchanges that settle the
// key itself (0x70 with its reply 0x71, and 0x010C).
bool sentPlain(const Key& key, const Message& message);
bool receivedPlain(const Key& key, std::uint8_t what, View body);

}  // namespace tovi::sim
