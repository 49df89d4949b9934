// SPDX-License-Identifier: MIT
#include "platform/sockets.h"

#include <gtest/gtest.h>

#include <atomic>
#include <climits>
#include <string>
#include <thread>
#include <vector>

#include "loopback.h"
#include "platform/listener.h"
#include "platform/system.h"

namespace tovi::platform::test {
namespace {

using Sockets = LoopbackTest;

TEST_F(Sockets, CarryBytesBothWaysAndKnowTheirNames) {
  connectBothEnds();
  char buffer[16];
  EXPECT_EQ(sendAll(near.get(), "question", kLongMs), 8);
  ASSERT_EQ(receiveSome(far.get(), buffer, kLongMs), 8);
  EXPECT_EQ(std::string(buffer, 8), "question");
  EXPECT_EQ(sendAll(far.get(), std::string_view("\0\xFF", 2), kLongMs), 2);
  ASSERT_EQ(receiveSome(near.get(), std::span(buffer, 1), kLongMs), 1);
  EXPECT_EQ(receiveSome(near.get(), buffer, kLongMs), 1);
  EXPECT_EQ(buffer[0], '\xFF');
  EXPECT_EQ(sendAll(near.get(), "", kLongMs), 0);
  EXPECT_EQ(peerName(far.get()), "127.0.0.1:" + std::to_string(localPort(near.get())));
}

// Hosts write addresses as they always did, with fields filled up and blanks behind.
TEST_F(Sockets, ReadAddressesAsTheyWereAlwaysRead) {
  OwnedSocket listener(listenOn("127.0.0.1", 0));
  const std::uint16_t port = localPort(listener.get());
  for (const char* address : {"256.1.1.1", "localhost", "", " ", "127.0.0.1:80", "127.0.0.1.1",
                              "::1", static_cast<const char*>(nullptr)}) {
    SCOPED_TRACE(address == nullptr ? "null" : address);
    const OwnedSocket socket(openSocket());
    EXPECT_FALSE(connectSocket(socket.get(), address, port, kLongMs));
    EXPECT_NE(lastSocketError(), 0);
    EXPECT_EQ(listenOn(address == nullptr ? "" : address, 0), kInvalidSocket);
  }
  Watched waiting[] = {{listener.get(), true}};
  EXPECT_FALSE(waitReadable(waiting, 0)) << "an attempt reached the listener";
  for (const char* address : {"127.000.000.001", "127.0.0.1 ", "127.1", "0x7f.1"}) {
    EXPECT_TRUE(connectSocket(OwnedSocket(openSocket()).get(), address, port, kLongMs)) << address;
  }
}

TEST_F(Sockets, ReportAClosedPort) {
  connectBothEnds();
  // Nobody listens at the port of a connection, and nobody else can take it.
  const OwnedSocket socket(openSocket());
  EXPECT_FALSE(connectSocket(socket.get(), "127.0.0.1", localPort(near.get()), kLongMs));
  EXPECT_NE(lastSocketError(), 0);
}

TEST_F(Sockets, KeepTheirTimeouts) {
  // Systems count in ticks of some milliseconds, so that a little more may come back.
  for (const auto& [set, expected] :
       std::vector<std::pair<int, int>>{{1500, 1500}, {20000, 20000}, {1, 1}, {0, 0}, {-5, 0}}) {
    SCOPED_TRACE(set);
    OwnedSocket socket(openSocket());
    setTimeouts(socket.get(), 700);
    setTimeouts(socket.get(), set);
    EXPECT_GE(receiveTimeout(socket.get()), expected);
    EXPECT_LE(receiveTimeout(socket.get()), expected == 0 ? 0 : expected + 20);
  }
}

TEST_F(Sockets, BoundTheWaitForASilentPeer) {
  connectBothEnds();
  char buffer[16];
  const Stopwatch watch;
  EXPECT_EQ(receiveSome(near.get(), buffer, 30), -1);
  EXPECT_NE(lastSocketError(), 0);
  EXPECT_GE(watch.elapsedMs(), 30);
  EXPECT_EQ(sendAll(near.get(), std::string(kMoreThanFits, 'x'), 30), -1);
  EXPECT_NE(lastSocketError(), 0);
  EXPECT_GE(watch.elapsedMs(), 60);
  EXPECT_LT(watch.elapsedMs(), kLongMs);
}

TEST_F(Sockets, DoNotLetASlowReaderStretchASend) {
  connectBothEnds();
  std::atomic<bool> done = false;
  std::thread reader([&] {
    std::vector<char> buffer(16384);
    while (!done && receiveSome(far.get(), buffer, kLongMs) > 0) pauseFor(2);
  });
  const Stopwatch watch;
  EXPECT_EQ(sendAll(near.get(), std::string(kMoreThanFits, 'x'), 60), -1);
  const int elapsed = watch.elapsedMs();
  done = true;
  near.close();
  reader.join();
  // At the reader's pace the whole would take eight seconds.
  EXPECT_LT(elapsed, 3000);
}

TEST_F(Sockets, DeliverALargeTextWholeToASlowReader) {
  connectBothEnds();
  std::string sent(std::size_t{16} << 20, '\0');
  for (std::size_t i = 0; i < sent.size(); ++i) sent[i] = static_cast<char>(i * 2654435761U >> 13);
  int taken = 0;
  std::thread sender([&] {
    taken = sendAll(near.get(), sent, kLongMs);
    near.close();
  });
  std::string received;
  std::vector<char> buffer(50000);
  for (;;) {
    const int count = receiveSome(far.get(), buffer, kLongMs);
    if (count <= 0) break;
    received.append(buffer.data(), static_cast<std::size_t>(count));
    if (received.size() < 1000000) pauseFor(1);
  }
  sender.join();
  EXPECT_EQ(taken, static_cast<int>(sent.size()));
  EXPECT_TRUE(received == sent) << received.size() << " bytes came";
}

TEST_F(Sockets, WaitWithoutLimitForZeroAndLess) {
  for (const int timeout : {0, -1, INT_MIN}) {
    SCOPED_TRACE(timeout);
    connectBothEnds();
    std::thread sender([&] {
      pauseFor(20);
      EXPECT_EQ(sendAll(far.get(), "late", timeout), 4);
    });
    char buffer[4];
    EXPECT_EQ(receiveSome(near.get(), buffer, timeout), 4);
    sender.join();
  }
}

TEST_F(Sockets, TakeWhatAPeerSentBeforeItClosed) {
  char buffer[4];
  connectBothEnds();
  EXPECT_EQ(sendAll(far.get(), "end", kLongMs), 3);
  far.close();
  EXPECT_EQ(receiveSome(near.get(), buffer, kLongMs), 3);
  EXPECT_EQ(receiveSome(near.get(), buffer, kLongMs), 0);
  // The first bytes are taken before the peer's refusal comes back.
  const Stopwatch watch;
  int result = 0;
  while (result >= 0 && watch.elapsedMs() < kLongMs) result = sendAll(near.get(), "x", kLongMs);
  EXPECT_EQ(result, -1);
}

// A kept connection on which anything came, even its end, is not asked again.
TEST_F(Sockets, AreQuietUntilAnythingArrives) {
  for (const bool closes : {false, true}) {
    connectBothEnds();
    EXPECT_TRUE(isQuiet(near.get()));
    if (closes) far.close();
    if (!closes) sendAll(far.get(), "x", kLongMs);
    Watched waiting[] = {{near.get(), false}};
    EXPECT_TRUE(waitReadable(waiting, kLongMs));
    EXPECT_FALSE(isQuiet(near.get()));
  }
}

TEST_F(Sockets, TellAReset) {
  connectBothEnds();
  char buffer[8];
  resetOnClose(far.get());
  far.close();
  EXPECT_EQ(receiveSome(near.get(), buffer, kLongMs), -1);
}

TEST_F(Sockets, RefuseWhatNoCallCanDo) {
  connectBothEnds();
  char buffer[4];
  // The part that exists is enough for a faulty send to get something through.
  const std::string part(std::size_t{1} << 20, 'x');
  const std::string_view tooMuch(part.data(), static_cast<std::size_t>(INT_MAX) + 1);
  EXPECT_EQ(sendAll(near.get(), tooMuch, 20), -1);
  // A handle whose low half is the number of a live socket is not that socket.
  for (const Socket socket : {kInvalidSocket, near.get() | Socket{1} << 40}) {
    EXPECT_EQ(sendAll(socket, "x", 20), -1);
    EXPECT_EQ(receiveSome(socket, buffer, 20), -1);
    EXPECT_FALSE(connectSocket(socket, "127.0.0.1", 1, 20));
    EXPECT_EQ(acceptOne(socket), kInvalidSocket);
    EXPECT_EQ(peerName(socket), "");
    EXPECT_EQ(localPort(socket), 0);
    EXPECT_EQ(receiveTimeout(socket), 0);
  }
  Watched waiting[] = {{far.get(), true}};
  EXPECT_FALSE(waitReadable(waiting, 0)) << "something was sent";

  EXPECT_EQ(sendAll(near.get(), "x", kLongMs), 1);
  EXPECT_TRUE(waitReadable(waiting, kLongMs));
  EXPECT_EQ(receiveSome(far.get(), std::span<char>(), 20), -1) << "0 would read as the peer's end";
}

TEST_F(Sockets, WaitForWhicheverIsReadable) {
  connectBothEnds();
  OwnedSocket listener(listenOn("127.0.0.1", 0));
  Watched watched[] = {{kInvalidSocket, true}, {near.get(), true}, {listener.get(), true}};
  EXPECT_FALSE(waitReadable(watched, 0));
  EXPECT_FALSE(watched[0].readable || watched[1].readable || watched[2].readable);

  const Stopwatch watch;
  EXPECT_FALSE(waitReadable(watched, 20));
  EXPECT_GE(watch.elapsedMs(), 20);

  far.close();
  EXPECT_TRUE(waitReadable(watched, -1));
  EXPECT_TRUE(watched[1].readable);
  EXPECT_FALSE(watched[0].readable || watched[2].readable);
}

TEST_F(Sockets, ListenOnAPortOfTheirOwn) {
  OwnedSocket listener(listenOn("127.0.0.1", 0));
  ASSERT_NE(localPort(listener.get()), 0);
  EXPECT_EQ(acceptOne(listener.get()), kInvalidSocket) << "nobody is waiting";
  EXPECT_EQ(listenOn("127.0.0.1", localPort(listener.get())), kInvalidSocket);
}

}  // namespace
}  // namespace tovi::platform::test
