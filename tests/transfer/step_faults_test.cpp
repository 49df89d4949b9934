// SPDX-License-Identifier: MIT
// Every step of the two uploads under every way in which its answer can fail.
#include "tests/support/fake_platform_test.h"
#include "tests/support/process_probe.h"
#include "tests/support/wire.h"
#include "tests/transfer/temporary_folder.h"

#include <algorithm>
#include <functional>

#include <tovisdk/tovisdk.h>

namespace {

using tovi::test::FakePlatform;
using tovi::test::fakePlatform;
using tovi::test::FakePlatformTest;
using tovi::test::frame;
using tovi::test::openDescriptors;
using tovi::test::TemporaryFolder;

struct Step {
  const char* what;
  const char* accepted;
  const char* refused;
  int noReply;
  int rejected;
  std::size_t sent;  // frames, with this step's own
  bool asks = true;  // has a frame of its own
};

const std::vector<Step> kFileSteps = {
    {"file name", "12 01", "12 00", -3, -4, 1},
    {"first chunk", "14 01 00 01", "14 01 00 00", -5, -6, 2},
    {"last chunk", "14 02 00 01 00", "14 02 00 02 01", -5, -6, 3},
    {"end of file", "F9 01", "F9 FF", -7, -8, 3, false},
};
const std::vector<Step> kPlaylistSteps = {
    {"list name", "12 01 00", "12 02 01", -3, -4, 1},
    {"list text", "14 01 00 01", "14 01 01 00", -5, -6, 2},
    {"end of list", "F9 01", "F9 00", -7, -8, 2, false},
    {"play", "1C 01", "1C 00", -9, -10, 3},
};

struct Fault {
  const char* what;
  void (*meet)(FakePlatform&, const Step&);
};

const Fault kFaults[] = {
    {"silent", [](FakePlatform&, const Step&) {}},
    {"wrong code",
     [](FakePlatform& fake, const Step& step) {
       // Its own answer comes only when nobody waits for it any more.
       for (int i = 0; i < 3; ++i) fake.arrive(frame("0A 01"));
       fake.arrive(frame(step.accepted));
     }},
};

class StepFaults : public FakePlatformTest {
 protected:
  StepFaults() {
    tovi_set_log_callback(
        [](void* user, int, const char* record) {
          Log& log = *static_cast<Log*>(user);
          log.records.emplace_back(record);
          const bool answer = log.records.back() == "ToviTraffic::recv recv buf end";
          if (answer && --log.answersLeft == 0) fakePlatform().sendFails = true;
        },
        &mLog);
  }
  ~StepFaults() override { tovi_set_log_callback(nullptr, nullptr); }

  using Upload = std::function<int(ToviTraffic&)>;

  // Nothing can be sent any more once so many answers have come.
  void breakAfter(std::size_t answers) {
    mLog.answersLeft = answers;
    fake().sendFails = answers == 0;
  }

  // Runs an upload against what was scripted, and sees that it gives everything back and that the
  // log tells what failed.
  void expect(const Upload& upload, int result, ToviOutcome outcome, std::size_t sent,
              const std::string& what) {
    const std::size_t descriptors = openDescriptors();
    fake().opened = fake().closed = 0;
    fake().sent.clear();
    mLog.records.clear();
    ToviTraffic traffic("127.0.0.1", 5005);
    traffic.setDesKey("no key");  // which ends otherwise
    EXPECT_EQ(upload(traffic), result) << what;
    EXPECT_EQ(traffic.lastOutcome(), outcome) << what;
    EXPECT_EQ(fake().sent.size(), sent) << what;
    EXPECT_EQ(fake().opened, 1) << what;
    EXPECT_EQ(fake().closed, 1) << what;
    EXPECT_EQ(openDescriptors(), descriptors) << what;
    const std::string end = ", result = " + std::to_string(result);
    EXPECT_EQ(std::any_of(mLog.records.begin(), mLog.records.end(),
                          [&](const std::string& record) { return record.ends_with(end); }),
              result < 0)
        << what;
    fake().incoming.clear();
    fake().sendFails = false;
  }

  void failEachStep(const Upload& upload, const std::vector<Step>& steps) {
    for (std::size_t failing = 0; failing < steps.size(); ++failing) {
      const Step& step = steps[failing];
      const auto scriptStepsBefore = [&] {
        for (std::size_t i = 0; i < failing; ++i) fake().arrive(frame(steps[i].accepted));
      };
      for (const Fault& fault : kFaults) {
        scriptStepsBefore();
        fault.meet(fake(), step);
        expect(upload, step.noReply, ToviOutcome::NoReply, step.sent,
               std::string(step.what) + " " + fault.what);
      }
      scriptStepsBefore();
      breakAfter(failing);
      expect(upload, step.noReply, step.asks ? ToviOutcome::SendFailed : ToviOutcome::NoReply,
             step.sent - (step.asks ? 1 : 0), std::string(step.what) + " unsent");
      scriptStepsBefore();
      fake().arrive(frame(step.refused));
      expect(upload, step.rejected, ToviOutcome::Rejected, step.sent,
             std::string(step.what) + " refused");
    }
    for (const Step& step : steps) fake().arrive(frame(step.accepted));
    expect(upload, 1, ToviOutcome::Done, 3, "no fault");
  }

  struct Log {
    std::vector<std::string> records;
    std::size_t answersLeft = 0;
  } mLog;
  TemporaryFolder mFolder;
  const std::string mFile = mFolder.file(std::string(70000, 'x'));
  const Upload mSendFile = [this](ToviTraffic& traffic) {
    return traffic.sendFile(mFile.c_str(), "a.bin");
  };
  const Upload mSendPlayList = [](ToviTraffic& traffic) {
    return traffic.sendPlayList(5, "[all]");
  };
};

TEST_F(StepFaults, OfAFile) { failEachStep(mSendFile, kFileSteps); }
TEST_F(StepFaults, OfAPlaylist) { failEachStep(mSendPlayList, kPlaylistSteps); }

TEST_F(StepFaults, AnAnswerOfNothingButItsCodeAccepts) {
  for (const char* code : {"12", "14", "14", "F9"}) fake().arrive(frame(code));
  expect(mSendFile, 1, ToviOutcome::Done, 3, "file");
  for (const char* code : {"12", "14", "F9", "1C"}) fake().arrive(frame(code));
  expect(mSendPlayList, 1, ToviOutcome::Done, 3, "playlist");
}

TEST_F(StepFaults, AChunkAnswerThatEndsBeforeItsStatusRefuses) {
  for (const char* answer : {"14 01", "14 01 01"}) {
    fake().arrive(frame("12 01"));
    fake().arrive(frame(answer));
    expect(mSendFile, -6, ToviOutcome::Rejected, 2, answer);
  }
}

}  // namespace
