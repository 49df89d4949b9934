// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"

#include <algorithm>
#include <cstring>
#include <set>
#include <string_view>

#include "tests/support/fake_platform_test.h"
#include "tests/support/hex.h"
#include "tests/support/wire.h"
#include "wire/command_table.h"

namespace tovi::test {

Answers setting(const std::string& code) {
  return {"-11", {{code + " 01", "1"}, {code, "1"}, {code + " 02", "-12", Rejected}}};
}

Answers flag(const std::string& code) {
  return {"false", {{code + " 01", "true"}, {code, "true"}, {code + " 00", "false", Rejected}}};
}

Answers confirmation(const std::string& code) {
  return {"-1", {{code + " 01", "1"}, {code + " 02", "0", Rejected}, {code, "0", Rejected}}};
}

Answers question(const std::string& code) {
  return {"-1", {{code + " 01", "1"}, {code + " 00", "0"}, {code, "0", BadReply}}};
}

Answers signedByte(const std::string& code) {
  return {"-1", {{code + " FE 07", "-2"}, {code, "-1", BadReply}}};
}

Answers text(const std::string& code) {
  return {"",
          {{code + " 01 61 62 00 63", "ab"},
           {code + " 01 00", ""},
           {code + " 02 61", "", Rejected},
           {code + " 00", "", Rejected},
           {code + " 01", "", BadReply}}};
}

Answers unanswered() { return {"", {{"", ""}}}; }

std::string with(const std::string& bytes, const std::string& text) {
  return bytes + " " + toHex(text);
}

std::string show(char* text) {
  const std::string copy = text == nullptr ? "null" : text;
  deleteArry(&text);
  return copy;
}

namespace {

std::vector<Call> allCalls() {
  std::vector<Call> calls;
  for (const auto* table :
       {&kPowerCalls, &kBrightnessCalls, &kTimetablesCalls, &kClockCalls, &kDisplayCalls,
        &kNowPlayingCalls, &kIdentityCalls, &kNetworkCalls, &kWirelessCalls, &kMaintenanceCalls,
        &kSecureModeCalls, &kTransferCalls}) {
    calls.insert(calls.end(), table->begin(), table->end());
  }
  return calls;
}

std::string methodOf(const Call& call) {
  return std::string(call.what, std::strcspn(call.what, "( "));
}

bool isRefused(const Call& call) { return call.request.empty(); }
bool awaitsReply(const Call& call) { return !call.answers.each.front().reply.empty(); }

// How much of a reply one read of a method takes, in bytes.
std::size_t bufferOf(const std::string& method) {
  static const std::set<std::string> big = {"getDeviceType",
                                            "getBrightnessAuto",
                                            "getNowPlayContent",
                                            "getNowPlayAllContent",
                                            "getDevicePowerByTimeList",
                                            "getPlayByTimeList",
                                            "getSurveil",
                                            "getBrightnessByTimeList",
                                            "getVideoControlInfo",
                                            "getEdidInfo",
                                            "getAllMediaFileName",
                                            "getSystemInfo",
                                            "getSensorInfo",
                                            "getMobileInfo",
                                            "getWifiList",
                                            "getSupportVideoSource",
                                            "getFontList"};
  // As long as what their setters take.
  static const std::set<std::string> texts = {
      "getAdvanceTiming", "getServerIPLists", "getWifiApConfig", "getLoraInfo",        "getPingIp",
      "getSimInfo",       "getWhitelist",     "getFileListName", "getCpuAndMemoryInfo"};
  if (method == "getLogZipPath") return 120000;
  return big.contains(method) ? 4096 : texts.contains(method) ? 8192 : 100;
}

class Calls : public FakePlatformTest {
 protected:
  static void arrive(const std::string& replies) {
    fake().incoming.clear();
    if (replies.empty()) return;
    for (const std::string& reply : split(replies, " | ")) fake().arrive(frame(reply));
  }

  static std::string sent() {
    std::string text;
    for (const std::string& frame : fake().sent)
      text += (text.empty() ? "" : " | ") + unframe(frame);
    return text;
  }

  // Carries out a call behind one that ended otherwise.
  static void expectEnd(const Call& call, const std::string& result, ToviOutcome outcome) {
    ToviTraffic traffic("127.0.0.1", 5005);
    if (outcome != RefusedArgument) traffic.setDesKey("no key");
    fake().sent.clear();
    fake().files.clear();
    fake().receiveSizes.clear();
    fake().opened = fake().closed = 0;
    EXPECT_EQ(call.call(traffic), result);
    EXPECT_STREQ(toviOutcomeText(traffic.lastOutcome()), toviOutcomeText(outcome));
    EXPECT_EQ(fake().closed, fake().opened);
  }

  static bool logged(const std::string& beginning) {
    const std::vector<std::string> log = fake().log();
    return std::any_of(log.begin(), log.end(),
                       [&](const std::string& record) { return record.starts_with(beginning); });
  }
};

TEST_F(Calls, SendAndDecodeWhatTheirRowsSay) {
  for (const Call& call : allCalls()) {
    SCOPED_TRACE(call.what);
    for (const Answer& answer : call.answers.each) {
      SCOPED_TRACE(answer.reply);
      arrive(answer.reply);
      expectEnd(call, answer.result, answer.outcome);
      EXPECT_EQ(sent(), call.request);
      EXPECT_TRUE(logged("info " + methodOf(call) + " start"));
    }
    if (!isRefused(call)) continue;
    expectEnd(call, call.answers.failure, RefusedArgument);
    EXPECT_EQ(fake().opened, 0);
    EXPECT_TRUE(logged("error " + methodOf(call) + " refused: "));
  }
}

TEST_F(Calls, FailInTheirOwnWayWithTheReasonBeside) {
  for (const Call& call : allCalls()) {
    if (isRefused(call)) continue;
    SCOPED_TRACE(call.what);
    fake().incoming.clear();
    const std::string& failure = call.answers.failure;
    // Settings tell a lack of connection and of a reply apart; the others have one value for both.
    fake().connectFails = true;
    expectEnd(call, failure == "-11" ? "-14" : failure, NoConnection);
    fake().connectFails = false;
    fake().sendFails = true;
    expectEnd(call, failure, SendFailed);
    fake().sendFails = false;
    const bool awaits = awaitsReply(call);
    expectEnd(call, failure, awaits ? NoReply : Done);
    EXPECT_EQ(call.request.find(sent()), 0u);
    EXPECT_EQ(fake().receiveSizes,
              std::vector<std::size_t>(awaits ? 3 : 0, bufferOf(methodOf(call))));
  }
}

TEST_F(Calls, OfTwoRequestsMayLoseTheConnectionBetweenThem) {
  for (const Call& call : allCalls()) {
    if (call.request.find('|') == std::string::npos) continue;
    SCOPED_TRACE(call.what);
    arrive(split(call.answers.each.front().reply, " | ").front());
    fake().sendFails = false;
    tovi_set_log_callback(
        [](void*, int, const char* record) {
          if (std::strstr(record, "recv buf end") != nullptr) fakePlatform().sendFails = true;
        },
        nullptr);
    expectEnd(call, call.answers.failure, SendFailed);
  }
}

// A method that nobody wrote a row for is a method that nobody tested.
TEST_F(Calls, CoverTheWholeCommandTable) {
  std::set<std::string> covered = {"getDeviceScreenshot"};
  for (const Call& call : allCalls()) {
    if (!isRefused(call)) covered.insert(methodOf(call));
  }
  for (const wire::Command& row : wire::kCommands) {
    EXPECT_TRUE(wire::isStep(row) || covered.contains(std::string(row.method))) << row.method;
  }
}

}  // namespace
}  // namespace tovi::test
