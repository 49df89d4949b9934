// SPDX-License-Identifier: MIT
#include "material.h"

#include <tovisdk/packet.h>
#include <tovisdk/text.h>

#include <random>

namespace tovi::bench {

std::string randomBytes(std::size_t size) {
  std::mt19937 random(1);
  std::string bytes(size, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random());
  return bytes;
}

std::string hex(std::string_view text) {
  std::string bytes;
  for (std::size_t at = 0; at + 1 < text.size(); at += 3) {
    bytes += static_cast<char>(std::stoi(std::string(text.substr(at, 2)), nullptr, 16));
  }
  return bytes;
}

std::string frameOf(char what, std::string payload, int mode) {
  char key[] = "12345678";
  int size = 0;
  char* frame =
      makeSendPacketEx(what, payload.data(), static_cast<int>(payload.size()), mode, key, &size);
  std::string bytes(frame, static_cast<std::size_t>(size));
  deleteArry(&frame);
  return bytes;
}

}  // namespace tovi::bench
