#include <gtest/gtest.h>

#include <fstream>
#include <iomanip>
#include <iterator>
#include <sstream>

#include "wire/command_table.h"
#include "wire/frame.h"

namespace {

using tovi::wire::Command;
using tovi::wire::kCommands;

TEST(CommandTable, EightBitCodesWidenWithTheirSign) {
  EXPECT_EQ(tovi::wire::wideCode(0x01), 0x0001);
  EXPECT_EQ(tovi::wire::wideCode(0x7F), 0x007F);
  EXPECT_EQ(tovi::wire::wideCode(0x80), static_cast<short>(0xFF80));
  EXPECT_EQ(tovi::wire::wideCode(0xDD), static_cast<short>(0xFFDD));
  EXPECT_EQ(tovi::wire::wideCode(0xFF), -1);
  EXPECT_EQ(tovi::wire::wideCode(0x0101), 0x0101);
}

// The table that readers see is the table that the code uses.
TEST(CommandTable, StandsInTheProtocolDocument) {
  std::ifstream file(TOVI_SOURCE_FOLDER "/docs/protocol.md");
  ASSERT_TRUE(file.is_open());
  const std::string document(std::istreambuf_iterator<char>(file), {});
  const auto code = [](unsigned value, unsigned none) {
    std::ostringstream text;
    text << std::hex << std::uppercase << std::setfill('0') << "0x"
         << std::setw(value > 0xFF ? 3 : 2) << value;
    return value == none ? "none" : text.str();
  };
  for (const Command& row : kCommands) {
    const std::string line = "| `" + std::string(row.method) + "` | " +
                             code(row.request, tovi::wire::kNoRequest) + " | " +
                             code(row.reply, tovi::wire::kNoReply) + " |\n";
    EXPECT_NE(document.find(line), std::string::npos) << line;
  }
}

}  // namespace
