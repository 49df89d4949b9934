// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>

#include "tests/support/fake_platform_test.h"
#include "tests/support/hex.h"
#include "tests/support/wire.h"
#include "wire/command_table.h"

namespace tovi::test {

std::string show(char* text) {
  const std::string copy = text == nullptr ? "null" : text;
  deleteArry(&text);
  return copy;
}

std::string jsonHex(const std::string& text) { return text.empty() ? "" : " " + toHex(text); }

namespace {

std::vector<Call> allCalls() {
  std::vector<Call> calls;
  for (const auto& table : {kPowerCalls, kBrightnessCalls, kTimetablesCalls, kClockCalls,
                            kDisplayCalls, kNowPlayingCalls, kIdentityCalls, kNetworkCalls,
                            kWirelessCalls, kMaintenanceCalls, kSecureModeCalls, kTransferCalls}) {
    calls.insert(calls.end(), table.begin(), table.end());
  }
  return calls;
}

std::string methodOf(const Call& call) {
  const std::string what = call.what;
  return what.substr(0, what.find(' '));
}

std::string joined(const std::vector<std::string>& sent) {
  std::string text;
  for (const std::string& frame : sent) text += (text.empty() ? "" : " | ") + unframe(frame);
  return text;
}

class Calls : public FakePlatformTest {
 protected:
  static bool loggedRefusal(const std::string& method) {
    const std::vector<std::string> log = fake().log();
    return std::any_of(log.begin(), log.end(), [&](const std::string& record) {
      return record.starts_with("error " + method + " refused: ");
    });
  }

  // What a method makes of a controller that `meet` arranges for.
  template <class Meet>
  static std::string resultOf(const Call& call, ToviTraffic& traffic, Meet meet) {
    fake() = FakePlatform{};
    meet(fake());
    std::string result = call.call(traffic);
    EXPECT_EQ(fake().closed, fake().opened) << call.what;
    return result;
  }
};

TEST_F(Calls, SendAndDecodeWhatTheirRowsSay) {
  for (const Call& call : allCalls()) {
    ToviTraffic traffic("127.0.0.1", 5005);
    fake().sent.clear();
    fake().incoming.clear();
    fake().files.clear();
    if (*call.reply != '\0') {
      for (const std::string& reply : split(call.reply, " | ")) fake().arrive(frame(reply));
    }
    EXPECT_EQ(call.call(traffic), call.result) << call.what;
    EXPECT_EQ(joined(fake().sent), call.request) << call.what;
    EXPECT_TRUE(fake().logged("info " + methodOf(call) + " start")) << call.what;
    EXPECT_EQ(fake().closed, fake().opened) << call.what;
    EXPECT_EQ(traffic.lastOutcome(), call.outcome) << call.what;
    if (call.outcome == RefusedArgument) {
      EXPECT_TRUE(loggedRefusal(methodOf(call))) << call.what;
    }
  }
}

// The first row of each method that tells of success.
std::vector<Call> methods() {
  std::vector<Call> first;
  std::set<std::string> seen;
  for (const Call& call : allCalls()) {
    if (call.outcome == Done && seen.insert(methodOf(call)).second) first.push_back(call);
  }
  return first;
}

TEST_F(Calls, FailInTheirOwnWayWithTheReasonBeside) {
  const std::vector<Call> calls = methods();
  EXPECT_GT(calls.size(), 95u);
  for (const Call& call : calls) {
    ToviTraffic traffic("127.0.0.1", 5005);
    const std::string unconnected =
        resultOf(call, traffic, [](FakePlatform& fake) { fake.connectFails = true; });
    EXPECT_EQ(traffic.lastOutcome(), NoConnection) << call.what;
    const std::string unsent =
        resultOf(call, traffic, [](FakePlatform& fake) { fake.sendFails = true; });
    EXPECT_EQ(traffic.lastOutcome(), SendFailed) << call.what;
    const std::string silent = resultOf(call, traffic, [](FakePlatform&) {});
    const bool awaitsReply = *call.reply != '\0';
    EXPECT_EQ(traffic.lastOutcome(), awaitsReply ? NoReply : Done) << call.what;
    EXPECT_EQ(unsent, silent) << call.what;
    EXPECT_EQ(silent == call.result, !awaitsReply) << call.what;
    // Settings tell a lack of connection and of a reply apart; the others have one value for both.
    EXPECT_EQ(unconnected, silent == "-11" ? "-14" : silent) << call.what;
  }
}

// A row that awaits a reply, under every reply that its code can carry.
void feedEveryLength(const Call& call, unsigned& seed) {
  const std::vector<std::string> replies = split(call.reply, " | ");
  const std::string last = hex(replies.back());
  const std::size_t codeSize = last[0] == '\xEF' ? 3 : 1;
  for (std::size_t length = 0; length <= 64; ++length) {
    std::string content = last.substr(0, codeSize);
    for (std::size_t i = 0; i < length; ++i) {
      seed = seed * 1103515245u + 12345u;
      // Small numbers are the ones that decoders look at.
      content += static_cast<char>((seed >> 16 & 3) == 0 ? seed >> 20 : seed >> 18 & 3);
    }
    fakePlatform().incoming.clear();
    for (std::size_t i = 0; i + 1 < replies.size(); ++i) fakePlatform().arrive(frame(replies[i]));
    fakePlatform().arrive(frame(toHex(content)));
    ToviTraffic traffic("127.0.0.1", 5005);
    call.call(traffic);
  }
}

TEST_F(Calls, SurviveRepliesOfEveryLength) {
  tovi_set_log_level(4);
  unsigned seed = 1;
  std::map<std::string, int> fed;
  for (const Call& call : allCalls()) {
    if (*call.reply == '\0' || fed[methodOf(call)]++ > 0) continue;
    feedEveryLength(call, seed);
  }
  EXPECT_GT(fed.size(), 80u);
}

// A method that nobody wrote a row for is a method that nobody tested.
TEST_F(Calls, CoverTheWholeCommandTable) {
  const std::vector<Call> calls = allCalls();
  for (const wire::Command& row : wire::kCommands) {
    const bool covered = std::any_of(
        calls.begin(), calls.end(), [&](const Call& call) { return methodOf(call) == row.method; });
    EXPECT_TRUE(covered || wire::isStep(row) || row.method == "getDeviceScreenshot") << row.method;
  }
}

}  // namespace
}  // namespace tovi::test
