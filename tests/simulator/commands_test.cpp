// SPDX-License-Identifier: MIT
// What the controller answers to each command, and that getters tell what setters set.
#include <gtest/gtest.h>

#include <random>

#include "tests/simulator/asked_controller.h"
#include "wire/command_table.h"

namespace tovi::sim {
namespace {

struct Step {
  std::uint16_t code;
  std::string payload;
  std::string replies;
};

// Something is set, and asked for.
struct Talk {
  const char* about;
  std::vector<std::vector<Step>> rows;
};

// Status 1, the text, a zero byte.
std::string told(std::string_view text) { return "01 " + words(text) + " 00"; }

const std::string kEntry = "02 01 E8 07 05 04 03 1F 0C E9 07 3A 3B 17";
const std::string kCurve =
    "00 10 00 01 11 00 02 12 00 03 13 00 04 14 00 05 15 00 06 16 00 07 17 00";

// By theme.
const Talk kTalks[] = {
    {"power",
     {{{0x05, "02", "06: 01"}, {0x114, "", "01 14: 00"}, {0xBA, "", "BA: 02"}},
      {{0x25, "01", "26: 01"}, {0x114, "", "01 14: 01"}, {0xBA, "", "BA: 01"}},
      {{0x84, "02", "85: 01"}, {0x114, "", "01 14: 01"}}}},
    {"brightness",
     {{{0xC3, "", "C3: 02 50"}},
      {{0x07, "03 00", "08: 01"}, {0xC3, "", "C3: 03 50"}},
      {{0x17, kCurve, "18: 01"}, {0x2B, "", "2C: " + kCurve}},
      {{0xA9, "", "A9: 32"}},
      {{0x45, "07", "46: 01"}, {0xA9, "", "A9: 07"}}}},
    {"timetables",
     {{{0x52, "", "52: 00"}},
      {{0x8A, "02 " + kEntry + " " + kEntry, "8B: 01"},
       {0x52, "", "52: 02 " + kEntry + " " + kEntry}},
      {{0x8A, "00", "8B: 01"}, {0x52, "", "52: 00"}},
      {{0x41, "01 " + kEntry + " 2C 00", "42: 01"}, {0x53, "", "53: 01 " + kEntry + " 2C 00"}},
      {{0x41, "01 " + kEntry + " 2C", "42: 00"}},
      {{0x43, "01 " + kEntry + " FF", "44: 01"}, {0x51, "", "51: 01 " + kEntry + " FF"}},
      {{0x43, "01 " + kEntry, "44: 00"}},
      {{0xDE, "01", "DE: 00"}},
      {{0xDC, words("t"), "DC: 01"}, {0xDD, "01", "DD: " + told("t")}},
      {{0xDE, "01", "DE: 01"}, {0xDD, "01", "DD: 01 00"}}}},
    {"clock",
     {{{0x96, "", "96: " + words("1700000000000,UTC,GMT+00:00") + " 00"}},
      {{0x95, words("1706745540000,Asia/Shanghai,GMT+08:00"), "95: 01"},
       {0x96, "", "96: " + words("1706745540000,Asia/Shanghai,GMT+08:00") + " 00"}},
      // 2024-02-29 12:00:01 where the controller stands.
      {{0x09, "E8 07 02 1D 0C 00 01", "0A: 01"},
       {0x96, "", "96: " + words("1709179201000,Asia/Shanghai,GMT+08:00") + " 00"}},
      {{0x09, "E7 07 02 1D 0C 00 01", "0A: 00"}},  // no such day in 2023
      {{0x95, words("1,A"), "95: 00"}},
      {{0x95, words("x,A,B"), "95: 00"}},
      {{0x95, words("1,,B"), "95: 00"}},
      {{0x95, words("9223372036854775807,A,GMT+08:00"), "95: 00"},
       {0x96, "", "96: " + words("1709179201000,Asia/Shanghai,GMT+08:00") + " 00"}},
      {{0x95, words("1,A,GMT-05:30"), "95: 01"}},
      // The first midnight of 1970.
      {{0x09, "B2 07 01 01 00 00 00", "0A: 01"},
       {0x96, "", "96: " + words("19800000,A,GMT-05:30") + " 00"}},
      {{0x97, "01 " + words("n.tp"), "97: 01"}, {0x98, "", "98: 01 " + words("n.tp") + " 00"}},
      {{0x97, "00", "97: 01"}, {0x98, "", "98: 00 00"}}}},
    {"display",
     {{{0xA6, "", "A6: " + told(R"({"value":"256x128"})")}},
      {{0xA5, words(R"({"displayMode":1,"width":1920,"height":1080,"refreshRate":60})"), "A5: 01"},
       {0xA6, "", "A6: " + told(R"({"value":"1920x1080"})")},
       {0x82, "", "83: 80 07 38 04"}},
      {{0xA5, words(R"({"displayMode":1,"width":1920,"height":-1,"refreshRate":60})"), "A5: 00"}},
      {{0xA5, words(R"({"displayMode":1,"width":16385,"height":1,"refreshRate":60})"), "A5: 00"}},
      {{0xA5, words(R"({"displayMode":1,"width":1,"height":1})"), "A5: 00"},
       {0x82, "", "83: 80 07 38 04"}},
      {{0xA4, words(R"({"fieldRate":59,"width":800,"height":600})"), "A4: 01"},
       {0xA2, "", "A2: " + told(R"({"width":800,"height":600,"fieldRate":59})")}},
      {{0xA1, "", "A1: " + told(R"({"videoSource":0})")}},
      {{0xA3, words(R"({"isScale":"false","offsetX":0,"offsetY":0,"videoMode":1,"videoSource":3})"),
        "A3: 01"},
       {0xA1, "", "A1: " + told(R"({"videoSource":3})")}},
      {{0xA3, words(R"({"videoSource":4})"), "A3: 00"}},
      {{0xA3, words(R"({"a":"\","videoSource":1})"), "A3: 00"}},
      {{0xA3, words(R"( { "a" : "" , "videoSource" : "2" } )"), "A3: 01"},
       {0xA1, "", "A1: " + told(R"({"videoSource":2})")}},
      {{0xE7, "",
        "E7: " + told(R"([{"id":0,"name":"internal"},{"id":1,"name":"hdmi1"},)"
                      R"({"id":2,"name":"hdmi2"},{"id":3,"name":"dvi"}])")}},
      {{0xE5, "01 00 01", ""}, {0xE6, "", "E6: 01 00 01"}},
      {{0xE5, "01 00", ""}, {0xE6, "", "E6: 01 00 01"}, {0xBD, "", "BD: 01 00"}},
      {{0xBC, "01", "BC: 01"}, {0xBD, "", "BD: 01 01"}},
      {{0xD2, words("Bold \"A\""), "D2: 01"},
       {0xD1, "", "D1: " + told(R"({"current":"Bold \"A\"","fonts":["Sans","Serif","Mono"]})")},
       {0x112, "00", "01 12: 00 01 00"}},
      {{0x112, "01 01", "01 12: 01 01"}, {0x112, "00", "01 12: 00 01 01"}}}},
    {"identity",
     {{{0x23, "", "24: " + words("SIM-1.0.0")}, {0xD5, "", "D5: " + words("SIM0000000001")}},
      {{0x0D, "", "0E: 01"}},
      {{0xB3, "", "B3: 02 00 5E 00 53 01"}},
      // Neither UTF-8 nor printable.
      {{0x7E, "00 C3 FB 0A 1F 22 7F", "7F: 01"},
       {0x7E, "01", "7F: 01 C3 FB 0A 1F 22 7F"},
       {0xC2, "",
        "C2: " + told("{\"name\":\"\xC3\xFB\\u000A\\u001F\\\"\x7F\",\"version\":\"SIM-1.0.0\","
                      R"("serial":"SIM0000000001","restarts":1,)"
                      R"("apps":["player","settings"]})")}},
      {{0xA0, "",
        "A0: " + told(R"({"temperature":25,"humidity":40,)"
                      R"("environmentBrightness":120,"doorOpen":false})")}}}},
    {"network",
     {{{0xF3, "01 3C 00 FF", "F4: 01"}, {0xD3, "", "D3: 01 3C 00 FF"}},
      {{0xF3, "00 34 12 03", "F4: 01"}, {0xD3, "", "D3: 00 34 12 03"}},
      {{0x101, words("10.0.0.9"), "01 01: 01"}, {0x102, "", "01 02: " + told("10.0.0.9")}},
      {{0x10D, words("[\"a\"]"), "01 0D: 01"},
       {0x10E, "", "01 0E: " + told("[\"a\"]")},
       {0x109, "", "01 09: " + told("[]")}},
      {{0x10A, words("10.0.0.1"), "01 0A: 01"}},
      {{0x10A, words("10.0.0.2"), "01 0A: 01"}},
      {{0x10A, words("10.0.0.1"), "01 0A: 01"},
       {0x109, "", "01 09: " + told(R"(["10.0.0.1","10.0.0.2"])")}},
      {{0x10B, words("10.0.0.1"), "01 0B: 01"}},
      {{0x10B, words("10.0.0.1"), "01 0B: 00"}, {0x109, "", "01 09: " + told(R"(["10.0.0.2"])")}},
      {{0x21, "", ""}}}},
    {"wireless",
     {{{0xCA, "", "CA: 00"}},
      {{0xCB, "01", "CB: 01"}, {0xCA, "", "CA: 01"}, {0x9B, "", "9B: 00"}},
      {{0xC5, "01", "C5: 01"}, {0x9B, "", "9B: 01"}},
      {{0xC6, words("ap"), "C6: 01"}, {0xC4, "", "C4: " + told("ap")}},
      {{0xCF, words("home,\x01"), "CF: 01"},
       {0xCE, "",
        "CE: " + told(R"({"connected":"home,\u0001","networks":[{"ssid":"workshop","signal":-51},)"
                      R"({"ssid":"roadside","signal":-74}]})")}},
      {{0xD7, words("lo"), "D7: 01"},
       {0xD6, "", "D6: " + told("lo")},
       {0x108, "", "01 08: " + told(R"({"sim":"card"})")}},
      {{0x105, "", "01 05: 01"}, {0x108, "", "01 08: " + told(R"({"sim":"soft"})")}},
      {{0xC9, "", "C9: " + told(R"({"operator":"simulated","network":"4G","signal":-67})")},
       {0x9A, "01", "9A:"}},
      {{0x99, "01 00 09", "99: 01"}, {0x9A, "01", "9A: 01 00 09"}}}},
    {"maintenance",
     {{{0x15, "00 00 00 00 00 96", "16: 01"},
       {0x29, "", "2A: 00 00 00 00 00 96"},
       {0x110, "00", "01 10: 00 00"}},
      {{0x110, "01 01", "01 10: 01"},
       {0x110, "00", "01 10: 00 01"},
       {0x111, "00", "01 11: 00 00 00 00 00 00 00 00 00 00"}},
      {{0x111, "01", "01 11: 01 01"}, {0x111, "00", "01 11: 00 01 00 68 E5 CF 8B 01 00 00"}},
      {{0x115, "", "01 15: 01"}},
      {{0x9F, words("player"), "9F: 01"}},
      {{0x9F, words("player"), "9F: 00"}},
      {{0xC8, words("{\"a\":1}"), "C8: 01"}, {0xC7, "", "C7: " + told("{\"a\":1}")}},
      {{0x10F, "", "01 0F: " + told("/log/tovisim.zip")}}}},
    {"secure mode",
     {{{0x10C, "", "01 0C: 00"}},
      {{0x103, words("abcdefgh"), "01 03: 01"}, {0x10C, "", "01 0C: 00"}},
      // Label and des key; mode 4; key too short; label of 17; none; enabled by 2.
      {{0x70, "01 01 6C 91 21 " + words("12345678"), "71: 01"}, {0x10C, "", "01 0C: 01"}},
      {{0x103, words("abcdefg"), "01 03: 00"}},
      {{0x70, "04 01 6C 91 21 " + words("12345678"), "71: 00"}},
      {{0x70, "01 01 6C 91 21 " + words("1234567"), "71: 00"}},
      {{0x70, "00 01 " + words("0123456789abcdefg") + " 91 21", "71: 00"},
       {0x10C, "", "01 0C: 01"}},
      // A label that holds the separator.
      {{0x70, "00 01 6C 91 21 6C 91 21", "71: 01"}, {0x10C, "", "01 0C: 00"}},
      {{0x70, "03 00 6C 91 21 " + words("12345678") + " 91 21 " + words("abcdefgh"), "71: 01"},
       {0x10C, "", "01 0C: 00"}},
      {{0x70, "00 01 " + words("0123456789abcdef") + " 91 21 91 21 " + words("abcdefgh"),
        "71: 01"}}}},
    {"updates",
     {{{0x88, "00 03", "89: 00"}},
      {{0x88, "01 03 " + words("pack"), "89: 01"}},
      {{0x88, "00 03", "89: 01"}},
      {{0x88, "00 03", "89: 00"}},
      {{0x88, "02 03 " + words("pack"), "89: 00"}},
      {{0xAB, words("[]"), "AB: 02 | AB: 02 | AB: 02 | AB: 01"}},
      {{0xAB, words("{}"), "AB: 00"}}}},
};

struct Refused {
  std::uint16_t code;
  std::string reply;
  std::vector<std::string> payloads;
};

// Too short, too long, or a value that there is not.
const Refused kRefused[] = {
    {0x05, "06: 00", {"", "00", "03", "01 01"}},
    {0x07, "08: 00", {"", "02", "00 50", "04 50", "02 50 00"}},
    {0x7E, "7F: 00", {"", "02 41"}},
    {0x86, "87: 00", {"02 FF 02"}},
    {0x9E, "9E: 00", {"01 02 00 01", "01 02 02"}},
    {0xAA, "AA: 00", {"00 05"}},
    {0xDC, "DC: 00", {""}},
    {0x97, "97: 00", {"02"}},
    {0xBC, "BC: 00", {"02"}},
    {0x112, "01 12: 01 00", {"01 02"}},
    {0xF3, "F4: 00", {"01 3B 00 03", "02 3C 00 03"}},
    {0x10A, "01 0A: 00", {"0A"}},
    {0x99, "99: 00", {"01 0A"}},
    {0x15, "16: 00", {"00 00 00 00 00 97", "96"}},
    {0x110, "01 10: 00", {"01", "02"}},
    {0x115, "01 15: 00", {"00"}},
    {0x70,
     "71: 00",
     {"00 01 91 21 00", "00 02 6C 91 21", "00 01 6C 91 21 91 21 61 62 63 64 65 66 67 68 69"}},
    {0x88, "89: 00", {"01 03"}},
    {0xAB, "AB: 00", {""}},
    // Each field out of its range: day, month, a year counted from 1900, second, minute, hour.
    {0x8A,
     "8B: 00",
     {"01", "", "01 " + kEntry + " 00", "01 00 01 E8 07 05 04 03 1F 0C E9 07 3A 3B 17",
      "01 02 00 E8 07 05 04 03 1F 0C E9 07 3A 3B 17",
      "01 02 01 7C 00 05 04 03 1F 0C E9 07 3A 3B 17",
      "01 02 01 E8 07 3C 04 03 1F 0C E9 07 3A 3B 17",
      "01 02 01 E8 07 05 3C 03 1F 0C E9 07 3A 3B 17",
      "01 02 01 E8 07 05 04 03 1F 0C E9 07 3A 3B 18"}},
};

class CommandsTest : public testing::Test, protected AskedController {};

TEST_F(CommandsTest, AreAnsweredByteForByte) {
  for (const Talk& talk : kTalks) {
    mController.change([](State& state) { state = {}; });
    for (const std::vector<Step>& row : talk.rows) {
      for (const Step& step : row) {
        ASSERT_EQ(ask(step.code, step.payload), step.replies)
            << talk.about << ", " << mAnswer.method << " " << step.payload;
      }
    }
  }
}

TEST_F(CommandsTest, AreRefusedUnlessTheyCanBeRead) {
  for (const auto& [code, reply, payloads] : kRefused) {
    for (const std::string& payload : payloads) EXPECT_EQ(ask(code, payload), reply) << payload;
  }
  EXPECT_EQ(ask(0x01), "02: 00 00 00 00 00 00 01 00 01 01 01 19 01 00 00 78 02 50");
  EXPECT_EQ(ask(0xD3), "D3: 00 3C 00 00");
  EXPECT_EQ(ask(0x7E, "01"), "7F: 01 " + words("tovisim"));
  EXPECT_EQ(ask(0x29), "2A: 00 00 00 00 00 55");
}

TEST_F(CommandsTest, ReachTheState) {
  ask(0x19, "C0 A8 01 0A FF FF FF 00 C0 A8 01 01 8D 13 0A 00 00 02 00 00 00 00 00 00 00 00");
  EXPECT_EQ(mAnswer.asked,
            "192.168.1.10 mask 255.255.255.0 gateway 192.168.1.1 port 5005 server 10.0.0.2");
  ask(0x19, "C0 A8 01");
  EXPECT_EQ(mAnswer.told, "refused, no reply");
  ask(0x9E, "01 02 02 01");
  EXPECT_EQ(mController.state().power.relays, (std::array{true, false, false, true}));
  ask(0x88, "03 FE 41");
  EXPECT_EQ(mController.state().content.testUpdates.at(3), "A");
  EXPECT_TRUE(mController.state().content.updates.empty());
  ask(0x95, words("1706831940000,A,GMT+08:00"));  // the first of the month, but over there
  ask(0xA3, words(R"({"videoSource":1})"));
  ask(0x25, "00");
  EXPECT_EQ(ask(0x01), "02: 00 00 00 00 00 00 02 00 00 02 01 19 00 00 00 78 02 50");
}

TEST_F(CommandsTest, FillTheWhitelistAndNoMore) {
  for (int entry = 100; entry < 200; ++entry) {
    EXPECT_EQ(ask(0x10A, words(std::to_string(entry))), "01 0A: 01");
  }
  EXPECT_EQ(ask(0x10A, words("200")), "01 0A: 00");
  EXPECT_EQ(ask(0x10A, words("199")), "01 0A: 01");  // which is there
}

// With no payload and with any: never another command's reply, and nothing outside the payload is
// read.
TEST_F(CommandsTest, AllKnowTheirReplyWhateverIsAsked) {
  std::mt19937 random(20240607);
  for (const wire::Command& command : wire::kCommands) {
    if (command.request == wire::kNoRequest) continue;
    ask(command.request);
    EXPECT_NE(mAnswer.asked.substr(0, 2), "0x") << command.method << " is not known";
    for (std::size_t size = 0; size <= 64; ++size) {
      Bytes payload(size);
      for (std::uint8_t& byte : payload) byte = static_cast<std::uint8_t>(random() % 4);
      ask(command.request, payload);
      const bool quiet = command.reply == wire::kNoReply;
      ASSERT_EQ(mAnswer.replies.empty(), quiet) << command.method << " " << hex(payload);
      for (const Message& reply : mAnswer.replies) ASSERT_EQ(reply.code, command.reply);
      mController.change([](State& state) { state.content.downloadSteps = 0; });
    }
  }
}

TEST_F(CommandsTest, RefuseWithTheStatusWhereItBelongsAndChangeNothing) {
  const std::tuple<std::uint16_t, std::string_view, std::uint16_t, std::string_view> kRefusals[] = {
      {0x13, "07 01 41", 0x14, "07 01 00"}, {0x13, "07", 0x14, "07 00 00"},
      {0x111, "01", 0x111, "01 00"},        {0x112, "01 01", 0x112, "01 00"},
      {0x36, "", 0x37, "00 00 00"},         {0x110, "01 01", 0x110, "00"},
  };
  for (const auto& [code, payload, replyCode, reply] : kRefusals) {
    const Answer answer = mController.refuse({code, literal(payload)});
    ASSERT_EQ(answer.replies.size(), 1U);
    EXPECT_EQ(answer.replies[0].code, replyCode) << answer.method;
    EXPECT_EQ(hex(answer.replies[0].payload), reply) << answer.method;
  }
  EXPECT_TRUE(mController.refuse({0x00, {0}}).replies.empty());
  EXPECT_FALSE(mController.state().display.preStoredScreen);
}

}  // namespace
}  // namespace tovi::sim
