// SPDX-License-Identifier: MIT
// What only POSIX knows: signals, descriptors and non-blocking sockets of a host.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/net_tstamp.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <ctime>
#include <filesystem>
#include <string>
#include <vector>

#include "loopback.h"
#include "platform/files.h"
#include "platform/listener.h"
#include "platform/sockets.h"
#include "platform/system.h"

namespace tovi::platform::test {
namespace {

using PosixSockets = LoopbackTest;

int descriptor(const OwnedSocket& socket) { return static_cast<int>(socket.get()); }

// A signal every 10 ms for as long as the object lives.
class SignalStorm {
 public:
  explicit SignalStorm(int flags) {
    signals = 0;
    struct sigaction action {};
    action.sa_handler = [](int) { signals = signals + 1; };
    action.sa_flags = flags;
    ::sigaction(SIGALRM, &action, &before_);
    setInterval(10000);
  }
  ~SignalStorm() {
    setInterval(0);
    ::sigaction(SIGALRM, &before_, nullptr);
  }
  SignalStorm(const SignalStorm&) = delete;
  SignalStorm& operator=(const SignalStorm&) = delete;

  static int count() { return signals; }

 private:
  static void setInterval(int microseconds) {
    const itimerval timer{{0, microseconds}, {0, microseconds}};
    ::setitimer(ITIMER_REAL, &timer, nullptr);
  }

  inline static volatile std::sig_atomic_t signals = 0;
  struct sigaction before_ {};
};

// Connections that nobody accepts, until the listener answers no more.
std::vector<OwnedSocket> fillQueue(std::uint16_t port) {
  std::vector<OwnedSocket> sockets;
  do {
    sockets.emplace_back(openSocket());
  } while (connectSocket(sockets.back().get(), "127.0.0.1", port, 30) && sockets.size() < 32);
  return sockets;
}

std::size_t openDescriptors() {
  const std::filesystem::directory_iterator all("/proc/self/fd");
  return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

TEST_F(PosixSockets, BoundAConnectThatIsNeverAnswered) {
  OwnedSocket listener(listenOn("127.0.0.1", 0, 0));
  const std::uint16_t port = localPort(listener.get());
  const auto waiting = fillQueue(port);
  ASSERT_LT(waiting.size(), 32U);
  const SignalStorm storm(0);
  OwnedSocket socket(openSocket());
  const Stopwatch watch;
  EXPECT_FALSE(connectSocket(socket.get(), "127.0.0.1", port, 60));
  EXPECT_EQ(lastSocketError(), ETIMEDOUT);
  EXPECT_GE(watch.elapsedMs(), 60);
  EXPECT_LT(watch.elapsedMs(), 800) << "the system's own second attempt comes after a second";
  EXPECT_GT(storm.count(), 2);
}

TEST_F(PosixSockets, WaitTheirTimeUnderSignals) {
  for (const int flags : {0, SA_RESTART}) {
    SCOPED_TRACE(flags == 0 ? "interrupting" : "restarting");
    connectBothEnds();
    setTimeouts(near.get(), 5000);
    char buffer[4];
    const SignalStorm storm(flags);
    Watched waiting[] = {{near.get(), false}};
    const std::string large(kMoreThanFits, 'x');
    const auto timed = [](auto call) {
      const Stopwatch watch;
      call();
      return watch.elapsedMs();
    };
    for (const int elapsed : {timed([&] { EXPECT_EQ(receiveSome(near.get(), buffer, 60), -1); }),
                              timed([&] { EXPECT_FALSE(waitReadable(waiting, 60)); }),
                              timed([&] { EXPECT_EQ(sendAll(near.get(), large, 60), -1); }),
                              timed([&] { pauseFor(60); })}) {
      EXPECT_GE(elapsed, 60);
      EXPECT_LT(elapsed, 2000);
    }
    EXPECT_GT(storm.count(), 8);
  }
}

TEST_F(PosixSockets, TellATimeoutByItsNumber) {
  connectBothEnds();
  char buffer[4];
  errno = 0;
  EXPECT_EQ(receiveSome(near.get(), buffer, 10), -1);
  EXPECT_EQ(lastSocketError(), EAGAIN);
  errno = 0;
  EXPECT_EQ(sendAll(near.get(), std::string(kMoreThanFits, 'x'), 10), -1);
  EXPECT_EQ(lastSocketError(), EAGAIN);
}

TEST_F(PosixSockets, SurviveASendToAPeerThatIsGone) {
  ASSERT_NE(::signal(SIGPIPE, SIG_DFL), SIG_ERR);
  connectBothEnds();
  resetOnClose(far.get());
  far.close();
  char buffer[4];
  EXPECT_EQ(receiveSome(near.get(), buffer, kLongMs), -1);
  EXPECT_EQ(lastSocketError(), ECONNRESET);
  EXPECT_EQ(sendAll(near.get(), "x", kLongMs), -1);
  EXPECT_EQ(lastSocketError(), EPIPE);
}

TEST_F(PosixSockets, LeaveAHostsNonBlockingSocketAsItIs) {
  connectBothEnds();
  const int flags = ::fcntl(descriptor(near), F_GETFL) | O_NONBLOCK;
  ASSERT_EQ(::fcntl(descriptor(near), F_SETFL, flags), 0);
  char buffer[4];
  const Stopwatch watch;
  EXPECT_EQ(receiveSome(near.get(), buffer, 30), -1);
  EXPECT_EQ(sendAll(near.get(), std::string(kMoreThanFits, 'x'), 30), -1);
  EXPECT_GE(watch.elapsedMs(), 60);
  EXPECT_EQ(::fcntl(descriptor(near), F_GETFL), flags);
  EXPECT_EQ(receiveTimeout(near.get()), 0);
}

TEST_F(PosixSockets, AreBlockingOnceAccepted) {
  connectBothEnds();
  EXPECT_EQ(::fcntl(descriptor(far), F_GETFL) & O_NONBLOCK, 0);
}

TEST_F(PosixSockets, WorkAboveTheThousandthDescriptor) {
  rlimit before{};
  ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
  if (before.rlim_max < 2000) GTEST_SKIP() << "the system allows too few descriptors";
  rlimit raised = before;
  raised.rlim_cur = before.rlim_max;
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &raised), 0);
  connectBothEnds();
  const OwnedSocket high(static_cast<Socket>(::fcntl(descriptor(near), F_DUPFD_CLOEXEC, 1500)));
  ASSERT_GE(descriptor(high), 1500);
  char buffer[4];
  EXPECT_EQ(receiveSome(high.get(), buffer, 20), -1);
  EXPECT_EQ(lastSocketError(), EAGAIN);
  EXPECT_EQ(sendAll(far.get(), "high", kLongMs), 4);
  Watched waiting[] = {{high.get(), false}};
  EXPECT_TRUE(waitReadable(waiting, kLongMs));
  EXPECT_EQ(receiveSome(high.get(), buffer, kLongMs), 4);
  EXPECT_EQ(sendAll(high.get(), std::string(kMoreThanFits, 'x'), 20), -1);
  EXPECT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
}

TEST_F(PosixSockets, StayOffTheStandardStreamsOfAProcessWithoutThem) {
  const int saved = ::fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 100);
  ::close(STDIN_FILENO);
  connectBothEnds();
  const OwnedSocket listener(listenOn("127.0.0.1", 0));
  EXPECT_GT(listener.get(), 2U);
  EXPECT_GT(near.get(), 2U);
  EXPECT_GT(far.get(), 2U);
  EXPECT_EQ(::fcntl(STDIN_FILENO, F_GETFD), -1) << "a descriptor was left behind";
  if (saved >= 0) {
    ::dup2(saved, STDIN_FILENO);
    ::close(saved);
  }
}

TEST_F(PosixSockets, AreNeitherInheritedNorLeaked) {
  const std::size_t before = openDescriptors();
  connectBothEnds();
  OwnedSocket listener(listenOn("127.0.0.1", 0));
  for (const OwnedSocket* socket : {&near, &far, &listener}) {
    EXPECT_NE(::fcntl(descriptor(*socket), F_GETFD) & FD_CLOEXEC, 0);
  }
  EXPECT_EQ(listenOn("127.0.0.1", localPort(listener.get())), kInvalidSocket);
  EXPECT_EQ(listenOn("256.1.1.1", 0), kInvalidSocket);
  EXPECT_TRUE(appendText("/dev/null", "x"));
  near.close();
  far.close();
  listener.close();
  EXPECT_EQ(openDescriptors(), before);
}

TEST_F(PosixSockets, DoNotSpinOnAReportThatStays) {
  connectBothEnds();
  // A time stamp of the sent bytes lies in the error queue, and poll reports it until it is read.
  const int stamps = SOF_TIMESTAMPING_TX_SOFTWARE | SOF_TIMESTAMPING_SOFTWARE;
  ASSERT_EQ(::setsockopt(descriptor(near), SOL_SOCKET, SO_TIMESTAMPING, &stamps, sizeof stamps), 0);
  EXPECT_EQ(sendAll(near.get(), "x", kLongMs), 1);
  Watched waiting[] = {{near.get(), false}};
  if (!waitReadable(waiting, 1000)) GTEST_SKIP() << "this system writes no time stamps";

  const auto processorMs = [] {
    timespec spent{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &spent);
    return spent.tv_sec * 1000 + spent.tv_nsec / 1'000'000;
  };
  const auto start = processorMs();
  char buffer[4];
  EXPECT_EQ(receiveSome(near.get(), buffer, 100), -1);
  EXPECT_EQ(lastSocketError(), EAGAIN);
  EXPECT_LT(processorMs() - start, 50);
}

}  // namespace
}  // namespace tovi::platform::test
