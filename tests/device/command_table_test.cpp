#include <gtest/gtest.h>

#include <fstream>
#include <iomanip>
#include <iterator>
#include <set>
#include <sstream>

#include "device/command_table.h"
#include "foundation/frame.h"

namespace {

using tovi::device::Command;
using tovi::device::Exchange;
using tovi::device::kCommands;

TEST(CommandTable, RowsAreWellFormed) {
  std::set<std::string_view> methods;
  for (const Command& row : kCommands) {
    EXPECT_TRUE(methods.insert(row.method).second) << row.method << " stands twice";
    const bool wide = row.request > 0xFF && row.request != tovi::device::kNoRequest;
    if (wide) {
      EXPECT_EQ(row.reply, row.request) << row.method;
      EXPECT_TRUE(row.exchange == Exchange::Get || row.exchange == Exchange::GetHuge) << row.method;
      EXPECT_TRUE(row.request >= 0x101 && row.request <= 0x115) << row.method;
    } else {
      EXPECT_LE(row.reply, 0xFF) << row.method;
    }
    // Only settings go without an answer.
    EXPECT_TRUE(row.reply != tovi::device::kNoReply || row.exchange == Exchange::Set) << row.method;
  }
}

TEST(CommandTable, EightBitCodesWidenWithTheirSign) {
  EXPECT_EQ(tovi::wideCode(0x01), 0x0001);
  EXPECT_EQ(tovi::wideCode(0x7F), 0x007F);
  EXPECT_EQ(tovi::wideCode(0x80), static_cast<short>(0xFF80));
  EXPECT_EQ(tovi::wideCode(0xDD), static_cast<short>(0xFFDD));
  EXPECT_EQ(tovi::wideCode(0xFF), -1);
  EXPECT_EQ(tovi::wideCode(0x0101), 0x0101);
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
                             code(row.request, tovi::device::kNoRequest) + " | " +
                             code(row.reply, tovi::device::kNoReply) + " |\n";
    EXPECT_NE(document.find(line), std::string::npos) << line;
  }
}

}  // namespace
