// SPDX-License-Identifier: MIT
// What only POSIX knows: signals, descriptors and non-blocking sockets of a host.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/net_tstamp.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

#include "loopback.h"
#include "platform/files.h"
#include "platform/listener.h"
#include "platform/sockets.h"
#include "platform/system.h"
#include "tests/support/process_probe.h"

namespace {

// What a host has set as a socket's receive time-out, where a test says so: this system's clock
// ticks too slowly for fractions of a millisecond.
const timeval* shownTimeout = nullptr;

}  // namespace

// In place of the system library's.
extern "C" int getsockopt(int socket, int level, int option, void* __restrict value,
                          socklen_t* __restrict size) noexcept {
  if (option == SO_RCVTIMEO && shownTimeout != nullptr) {
    *static_cast<timeval*>(value) = *shownTimeout;
    return 0;
  }
  return static_cast<int>(::syscall(SYS_getsockopt, socket, level, option, value, size));
}

namespace tovi::platform::test {
namespace {

using PosixSockets = LoopbackTest;

int descriptor(const OwnedSocket& socket) { return static_cast<int>(socket.get()); }

// A signal every 10 ms for as long as the object lives.
class SignalStorm {
 public:
  SignalStorm() {
    count = 0;
    struct sigaction action {};
    action.sa_handler = [](int) { count = count + 1; };
    ::sigaction(SIGALRM, &action, &before_);
    setInterval(10000);
  }
  ~SignalStorm() {
    setInterval(0);
    ::sigaction(SIGALRM, &before_, nullptr);
  }
  SignalStorm(const SignalStorm&) = delete;
  SignalStorm& operator=(const SignalStorm&) = delete;

  inline static volatile std::sig_atomic_t count = 0;

 private:
  static void setInterval(int microseconds) {
    const itimerval timer{{0, microseconds}, {0, microseconds}};
    ::setitimer(ITIMER_REAL, &timer, nullptr);
  }

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

TEST_F(PosixSockets, BoundAConnectThatIsNeverAnswered) {
  OwnedSocket listener(listenOn("127.0.0.1", 0, 0));
  const std::uint16_t port = localPort(listener.get());
  const auto waiting = fillQueue(port);
  ASSERT_LT(waiting.size(), 32U);
  const SignalStorm storm;
  OwnedSocket socket(openSocket());
  const Stopwatch watch;
  EXPECT_FALSE(connectSocket(socket.get(), "127.0.0.1", port, 60));
  EXPECT_EQ(lastSocketError(), ETIMEDOUT);
  EXPECT_GE(watch.elapsedMs(), 60);
  EXPECT_LT(watch.elapsedMs(), 800) << "the system's own second attempt comes after a second";
  EXPECT_GT(SignalStorm::count, 2);
}

TEST_F(PosixSockets, WaitTheirTimeUnderSignals) {
  connectBothEnds();
  setTimeouts(near.get(), 5000);
  char buffer[4];
  Watched waiting[] = {{near.get(), false}};
  const std::string large(kMoreThanFits, 'x');
  const SignalStorm storm;
  const std::function<void()> waits[] = {
      [&] { EXPECT_EQ(receiveSome(near.get(), buffer, 60), -1); },
      [&] { EXPECT_FALSE(waitReadable(waiting, 60)); },
      [&] { EXPECT_EQ(sendAll(near.get(), large, 60), -1); },
      [] { pauseFor(60); },
  };
  for (const auto& wait : waits) {
    const Stopwatch watch;
    wait();
    EXPECT_GE(watch.elapsedMs(), 60);
    EXPECT_LT(watch.elapsedMs(), 2000);
  }
  EXPECT_GT(SignalStorm::count, 8);
}

TEST_F(PosixSockets, LeaveAHostsNonBlockingSocketAsItIs) {
  connectBothEnds();
  const int flags = ::fcntl(descriptor(near), F_GETFL) | O_NONBLOCK;
  ASSERT_EQ(::fcntl(descriptor(near), F_SETFL, flags), 0);
  char buffer[4];
  const Stopwatch watch;
  EXPECT_EQ(receiveSome(near.get(), buffer, 30), -1);
  EXPECT_EQ(lastSocketError(), EAGAIN);
  EXPECT_EQ(sendAll(near.get(), std::string(kMoreThanFits, 'x'), 30), -1);
  EXPECT_EQ(lastSocketError(), EAGAIN);
  EXPECT_GE(watch.elapsedMs(), 60);
  EXPECT_EQ(::fcntl(descriptor(near), F_GETFL), flags);
  EXPECT_EQ(receiveTimeout(near.get()), 0);
}

// Both of them, and a fraction of a millisecond is not "none".
TEST_F(PosixSockets, HaveTheirTimeoutsSetToTheFraction) {
  const OwnedSocket socket(openSocket());
  setTimeouts(socket.get(), 1500);
  timeval value{};
  socklen_t size = sizeof value;
  ASSERT_EQ(::getsockopt(descriptor(socket), SOL_SOCKET, SO_SNDTIMEO, &value, &size), 0);
  EXPECT_EQ(value.tv_sec, 1);
  EXPECT_GE(value.tv_usec, 500'000);
  const timeval fraction{2, 1};
  shownTimeout = &fraction;
  EXPECT_EQ(receiveTimeout(socket.get()), 2001);
  shownTimeout = nullptr;
}

TEST_F(PosixSockets, WorkAboveTheThousandthDescriptor) {
  rlimit before{};
  ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
  if (before.rlim_max < 2000) GTEST_SKIP() << "the system allows too few descriptors";
  const rlimit raised{before.rlim_max, before.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &raised), 0);
  connectBothEnds();
  const OwnedSocket high(static_cast<Socket>(::fcntl(descriptor(near), F_DUPFD_CLOEXEC, 1500)));
  EXPECT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
  char buffer[4];
  EXPECT_EQ(receiveSome(high.get(), buffer, 20), -1);
  EXPECT_EQ(lastSocketError(), EAGAIN);
  EXPECT_EQ(sendAll(far.get(), "high", kLongMs), 4);
  Watched waiting[] = {{high.get(), false}};
  EXPECT_TRUE(waitReadable(waiting, kLongMs));
  EXPECT_EQ(receiveSome(high.get(), buffer, kLongMs), 4);
}

TEST_F(PosixSockets, StayOffTheStandardStreamsOfAProcessWithoutThem) {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    const int saved = ::fcntl(stream, F_DUPFD_CLOEXEC, 100);
    ::close(stream);
    near = OwnedSocket(openSocket());
    const OwnedSocket listener(listenOn("127.0.0.1", 0));
    const int flags = ::fcntl(descriptor(near), F_GETFD);
    const bool leftBehind = ::fcntl(stream, F_GETFD) != -1;
    ::dup2(saved, stream);
    ::close(saved);
    EXPECT_GT(near.get(), 2U) << stream;
    EXPECT_GT(listener.get(), 2U) << stream;
    EXPECT_EQ(flags, FD_CLOEXEC) << stream;
    EXPECT_FALSE(leftBehind) << stream;
  }
}

TEST_F(PosixSockets, AreNeitherInheritedNorLeakedAndBlockOnlyOnceAccepted) {
  const std::size_t before = tovi::test::openDescriptors();
  connectBothEnds();
  OwnedSocket listener(listenOn("127.0.0.1", 0));
  for (const OwnedSocket* socket : {&near, &far, &listener}) {
    EXPECT_NE(::fcntl(descriptor(*socket), F_GETFD) & FD_CLOEXEC, 0);
    EXPECT_EQ(::fcntl(descriptor(*socket), F_GETFL) & O_NONBLOCK, socket == &far ? 0 : O_NONBLOCK);
  }
  EXPECT_EQ(listenOn("127.0.0.1", localPort(listener.get())), kInvalidSocket);
  EXPECT_TRUE(appendText("/dev/null", "x"));
  near.close();
  far.close();
  listener.close();
  EXPECT_EQ(tovi::test::openDescriptors(), before);
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
