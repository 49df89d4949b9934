// SPDX-License-Identifier: MIT
// Waiting, kept connections and cancelling over real sockets on loopback.
#include <gtest/gtest.h>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

#include <tovisdk/tovisdk.h>

#include "platform/listener.h"
#include "simulator/server.h"
#include "tests/platform/loopback.h"
#include "tests/support/hex.h"
#include "tests/transfer/temporary_folder.h"

namespace {

using tovi::platform::Socket;
using tovi::platform::test::kLongMs;
using tovi::platform::test::OwnedSocket;
using tovi::test::hex;
namespace platform = tovi::platform;

constexpr char kAccepted[] = "AA FF FF 08 01 CC 4E 42";

// A controller whose part the test plays itself, on a thread of its own.
class Controller {
 public:
  explicit Controller(std::function<void(Controller&)> part)
      : mListener(platform::listenOn("127.0.0.1", 0)), mThread([this, part] { part(*this); }) {}
  ~Controller() { mThread.join(); }
  Controller(const Controller&) = delete;
  Controller& operator=(const Controller&) = delete;

  std::uint16_t port() const { return platform::localPort(mListener.get()); }

  // What the part is made of.
  OwnedSocket accept() const {
    platform::Watched waiting{mListener.get(), false};
    platform::waitReadable({&waiting, 1}, kLongMs);
    return OwnedSocket(platform::acceptOne(mListener.get()));
  }
  static bool takeRequest(const OwnedSocket& socket) {
    char request[65536];
    return platform::receiveSome(socket.get(), request, kLongMs) > 0;
  }
  static void answer(const OwnedSocket& socket, const char* bytes) {
    platform::sendAll(socket.get(), hex(bytes), kLongMs);
  }

 private:
  OwnedSocket mListener;
  std::thread mThread;
};

class Signal {
 public:
  void set() {
    const std::lock_guard lock(mMutex);
    mSet = true;
    mChanged.notify_all();
  }
  void await() {
    std::unique_lock lock(mMutex);
    mChanged.wait(lock, [this] { return mSet; });
  }

 private:
  std::mutex mMutex;
  std::condition_variable mChanged;
  bool mSet = false;
};

TEST(RealWaiting, MeetsEveryFault) {
  constexpr int kBriefMs = 80;  // waited out where no reply comes
  struct {
    const char* fault;
    int timeoutMs;
    int result;
    ToviOutcome outcome;
  } const cases[] = {
      {"no-reply", kBriefMs, -11, ToviOutcome::NoReply},
      {"late-reply=60", kLongMs, 1, ToviOutcome::Done},
      {"late-reply=600000", kBriefMs, -11, ToviOutcome::NoReply},
      {"pieces=8", kLongMs, 1, ToviOutcome::Done},
      {"two-replies", kLongMs, 1, ToviOutcome::Done},
      {"garbage", kBriefMs, -11, ToviOutcome::NoReply},  // it begins as if inside a frame
      {"wrong-checksum", kBriefMs, -11, ToviOutcome::NoReply},
      {"bad-escape", kBriefMs, -11, ToviOutcome::NoReply},
      {"wrong-command", kBriefMs, -11, ToviOutcome::NoReply},
      {"wrong-key", kLongMs, -12, ToviOutcome::Rejected},
      {"refuse", kLongMs, -12, ToviOutcome::Rejected},
      {"close-before", kLongMs, -11, ToviOutcome::NoReply},
      {"close-inside", kLongMs, -11, ToviOutcome::NoReply},
      {"close-after", kLongMs, 1, ToviOutcome::Done},
  };
  for (const auto& c : cases) {
    for (const bool kept : {false, true}) {
      SCOPED_TRACE(c.fault);
      tovi::sim::Options options;
      options.faults.push_back(*tovi::sim::parseFault(std::string(c.fault) + ":1"));
      tovi::sim::Simulator simulator(options);
      ASSERT_TRUE(simulator.start());
      ToviTraffic traffic("127.0.0.1", simulator.port());
      traffic.setWaiting(ToviWaiting::UntilTimeout);
      traffic.setKeepConnection(kept);
      traffic.setTimeout(c.timeoutMs);
      EXPECT_EQ(traffic.setBrightness(80), c.result);
      EXPECT_EQ(traffic.lastOutcome(), c.outcome);
      // Whatever it was, the next exchange knows nothing of it.
      traffic.setTimeout(kLongMs);
      int next = traffic.setBrightness(81);
      // Unless a kept connection is closed just as the request goes out.
      if (kept && next == -11) next = traffic.setBrightness(81);
      EXPECT_EQ(next, 1);
      EXPECT_EQ(simulator.state().brightness, 81);
    }
  }
}

TEST(Cancel, EndsWhatWaitsAndNothingElse) {
  const tovi::test::TemporaryFolder folder;
  const std::string file = folder.path("a.bin");
  std::ofstream(file) << "content";
  struct {
    std::function<int(ToviTraffic&)> call;
    int result;
  } const cases[] = {
      {[](ToviTraffic& traffic) { return traffic.setBrightness(80); }, -11},
      {[](ToviTraffic& traffic) { return traffic.getPowerState(); }, -1},
      {[&](ToviTraffic& traffic) { return traffic.sendFile(file.c_str(), "a.bin"); }, -16},
  };
  for (const auto& c : cases) {
    for (const ToviWaiting waiting : {ToviWaiting::ThreeReads, ToviWaiting::UntilTimeout}) {
      Signal asked;
      Controller controller([&](Controller& self) {
        const OwnedSocket silent = self.accept();
        self.takeRequest(silent);
        asked.set();
        const OwnedSocket talkative = self.accept();
        self.takeRequest(talkative);
        self.answer(talkative, kAccepted);
      });
      ToviTraffic traffic("127.0.0.1", controller.port());
      traffic.setWaiting(waiting);
      traffic.setTimeout(kLongMs);
      std::thread other([&] {
        asked.await();
        traffic.cancel();
      });
      EXPECT_EQ(c.call(traffic), c.result);
      EXPECT_EQ(traffic.lastOutcome(), ToviOutcome::Stopped);
      other.join();
      traffic.cancel();  // nothing is running
      EXPECT_EQ(traffic.setBrightness(80), 1);
    }
  }
}

TEST(Cancel, EndsASendThatIsNotTaken) {
  Signal sending;
  Signal over;
  Controller controller([&](Controller& self) {
    const OwnedSocket deaf = self.accept();
    self.takeRequest(deaf);  // its beginning
    sending.set();
    over.await();
  });
  ToviTraffic traffic("127.0.0.1", controller.port());
  traffic.setTimeout(kLongMs);
  std::thread other([&] {
    sending.await();
    traffic.cancel();
  });
  EXPECT_EQ(
      traffic.sendLocalUpdate(1, std::string(tovi::platform::test::kMoreThanFits, 'x').c_str()),
      -11);
  EXPECT_EQ(traffic.lastOutcome(), ToviOutcome::Stopped);
  over.set();
  other.join();
}

}  // namespace
