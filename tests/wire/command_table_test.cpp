// SPDX-License-Identifier: MIT
#include "wire/command_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>

namespace tovi::wire {
namespace {

TEST(CommandTable, EightBitCodesWidenWithTheirSign) {
  EXPECT_EQ(wideCode(0x01), 0x0001);
  EXPECT_EQ(wideCode(0x7F), 0x007F);
  EXPECT_EQ(wideCode(0x80), static_cast<short>(0xFF80));
  EXPECT_EQ(wideCode(0xDD), static_cast<short>(0xFFDD));
  EXPECT_EQ(wideCode(0xFF), -1);
  EXPECT_EQ(wideCode(0x0101), 0x0101);
}

// The comment above each method of the object face, in lower case and on one line.
std::map<std::string, std::string> comments() {
  std::ifstream header(TOVI_SOURCE_FOLDER "/include/tovisdk/tovi_traffic.h");
  EXPECT_TRUE(header.is_open());
  const std::regex method(R"((\w+)\([^)]*\)?.*;?)");
  std::map<std::string, std::string> found;
  std::string comment;
  for (std::string line; std::getline(header, line);) {
    line.erase(0, line.find_first_not_of(' '));
    std::smatch match;
    if (line.starts_with("///")) {
      std::transform(line.begin(), line.end(), line.begin(),
                     [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
      comment += line.substr(3);
    } else if (!comment.empty() && std::regex_search(line, match, method)) {
      found[match[1]] += comment;
      comment.clear();
    } else {
      comment.clear();
    }
  }
  return found;
}

std::string code(unsigned value) {
  char text[8];
  std::snprintf(text, sizeof text, value > 0xFF ? "0x%04x" : "0x%02x", value);
  return text;
}

std::string codes(const Command& row) {
  if (row.request == kNoRequest) return "reply " + code(row.reply);
  if (row.reply == row.request) return "command and reply " + code(row.request);
  const std::string request = "command " + code(row.request);
  return request + (row.reply == kNoReply ? ", no reply" : ", reply " + code(row.reply));
}

std::string limits(const TextSize& text) {
  const std::string most = std::to_string(text.most) + " bytes";
  return text.least == 0 ? "at most " + most : std::to_string(text.least) + " to " + most;
}

// Steps stand with the methods that take them.
std::string documentedBy(std::string_view method) {
  if (method == "getDetectErrorPointData") return "getDetectErrorPointInfo";
  return method.starts_with("sendFile") || method == "recvFileOverRsp" ? "sendFile"
                                                                       : std::string(method);
}

TEST(CommandTable, IsWhatTheHeaderTells) {
  std::map<std::string, std::string> told = comments();
  ASSERT_GT(told.size(), 100u);
  std::set<std::string> known;
  for (const Command& row : kCommands) {
    known.insert({codes(row), "command " + code(row.request)});
    const std::string& comment = told[documentedBy(row.method)];
    EXPECT_NE(comment.find(codes(row)), std::string::npos) << row.method << ": " << codes(row);
    const std::regex anyLimits(R"(the text,[^.;]*?((at most|\d+ to) \d+ bytes))");
    std::smatch match;
    const bool limited = std::regex_search(comment, match, anyLimits);
    EXPECT_EQ(limited, row.text.most != TextSize{}.most) << row.method;
    if (limited) {
      EXPECT_EQ(match[1], limits(row.text)) << row.method;
    }
  }
  const std::regex anyCode(R"(command (and reply )?0x[0-9a-f]+(, reply 0x[0-9a-f]+|, no reply)?)");
  for (const auto& [method, comment] : told) {
    for (std::sregex_iterator i(comment.begin(), comment.end(), anyCode), end; i != end; ++i) {
      EXPECT_TRUE(known.contains(i->str())) << method << ": " << i->str();
    }
  }
}

}  // namespace
}  // namespace tovi::wire
