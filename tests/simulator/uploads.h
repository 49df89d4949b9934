// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include "tests/simulator/asked_controller.h"

namespace tovi::sim {

inline constexpr std::size_t kFull = 65535;

// Sends files, up to the controller.
class Uploads : public testing::Test, protected AskedController {
 protected:
  Uploads() : AskedController({"", 300'000}) {}

  std::string name(std::string_view name) { return ask(0x11, "FF FF " + words(name)); }

  // The replies; after the last chunk of a file the controller's word on it, too.
  std::string chunk(std::uint16_t number, std::size_t size, std::uint8_t fill = 'x') {
    Bytes payload(2 + size, fill);
    payload[0] = static_cast<std::uint8_t>(number & 0xFF);
    payload[1] = static_cast<std::uint8_t>(number >> 8);
    const std::string taken = ask(0x13, payload);
    return taken + (mController.hasWholeFile(mSession) ? " | F9: " + end() : "");
  }

  // A file of one chunk, to its end.
  void upload(const std::string& file, std::string_view text = "[all]") {
    ASSERT_EQ(name(file), "12: 01");
    ASSERT_EQ(ask(0x13, "01 00 " + words(text)), "14: 01 00 01");
    ASSERT_EQ(end(), "01");
  }

  std::string end() { return hex(mController.confirmFile(mSession).replies.at(0).payload); }

  std::string content(const std::string& name) {
    return textOf(mController.files().read(name).value_or(bytesOf("none")));
  }
};

}  // namespace tovi::sim
