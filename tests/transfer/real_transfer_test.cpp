// SPDX-License-Identifier: MIT
// Files over real sockets on loopback.
#include <gtest/gtest.h>

#include <array>
#include <thread>

#include <tovisdk/tovisdk.h>

#include "platform/listener.h"
#include "tests/support/heap_probe.h"
#include "tests/support/hex.h"
#include "tests/support/process_probe.h"
#include "tests/transfer/temporary_folder.h"

namespace {

using tovi::platform::Socket;
using tovi::test::hex;
using tovi::test::TemporaryFolder;
namespace platform = tovi::platform;

constexpr int kTimeoutMs = 10000;
constexpr std::size_t kFullChunk = 65535;

// A controller that stores one file after another, each on a connection of its own, with a reader
// of its own.
class Storage {
 public:
  explicit Storage(int files)
      : mListener(platform::listenOn("127.0.0.1", 0)), mThread([this, files] {
          for (int i = 0; i < files; ++i) serveOne();
        }) {}
  ~Storage() {
    finish();
    platform::closeSocket(mListener);
  }
  Storage(const Storage&) = delete;
  Storage& operator=(const Storage&) = delete;

  ToviTraffic traffic() const { return ToviTraffic("127.0.0.1", platform::localPort(mListener)); }

  // Waits for the last file; what is read below holds only afterwards.
  void finish() {
    if (mThread.joinable()) mThread.join();
  }

  std::string name;
  std::string content;  // of all files
  bool numbered = true;

 private:
  void serveOne() {
    platform::Watched waiting[] = {{mListener, false}};
    if (!platform::waitReadable(waiting, kTimeoutMs)) return;
    const Socket socket = platform::acceptOne(mListener);
    std::string bytes;
    std::array<char, 65536> room;
    mNumber = 0;
    for (int got = 0; (got = platform::receiveSome(socket, room, kTimeoutMs)) > 0;) {
      bytes.append(room.data(), static_cast<std::size_t>(got));
      takeFrames(socket, bytes);
    }
    platform::closeSocket(socket);
  }

  void takeFrames(Socket socket, std::string& bytes) {
    // Payloads are escaped: this byte only ever ends a frame, and two bytes of checksum follow.
    for (std::size_t end; (end = bytes.find('\xCC')) != std::string::npos && end + 2 < bytes.size();
         bytes.erase(0, end + 3)) {
      take(socket, bytes[3], unescaped(bytes.substr(4, end - 4)));
    }
  }

  static std::string unescaped(const std::string& payload) {
    std::string plain;
    for (std::size_t i = 0; i < payload.size(); ++i) {
      plain += payload[i] == '\xEE' ? static_cast<char>(payload[++i] * 0x11) : payload[i];
    }
    return plain;
  }

  void take(Socket socket, char command, const std::string& payload) {
    std::string answer = hex("AA FF FF 12 01 CC A1 B4");
    if (command == 0x11) {
      name = payload.substr(2);
    } else {
      const unsigned number = static_cast<unsigned char>(payload[0]) |
                              static_cast<unsigned>(static_cast<unsigned char>(payload[1])) << 8;
      numbered = numbered && number == (++mNumber & 0xFFFF);
      content += payload.substr(2);
      answer = hex("AA FF FF 14 01 00 01 CC 91 C4");
      if (payload.size() < 2 + kFullChunk) answer += hex("AA FF FF F9 01 CC A6 94");
    }
    platform::sendAll(socket, answer, kTimeoutMs);
  }

  Socket mListener;
  unsigned mNumber = 0;
  std::thread mThread;
};

std::string pattern(std::size_t size) {
  std::string content(size, '\0');
  for (std::size_t i = 0; i < size; ++i) content[i] = static_cast<char>(i ^ i >> 8 ^ i >> 16);
  return content;
}

TEST(RealTransfer, FilesOfMegabytesArriveWholeAndLeaveNothingBehind) {
  constexpr int kFiles = 4;
  const TemporaryFolder folder;
  const std::string content = pattern(3'000'000);
  const std::string path = folder.file(content);
  Storage storage(kFiles);
  ToviTraffic traffic = storage.traffic();
  EXPECT_EQ(traffic.sendFile(path.c_str(), "限速.mp4"), 1);  // what is made once is made now
  const long blocks = tovi::test::heapBlocksOfThisThread();
  const std::size_t descriptors = tovi::test::openDescriptors();
  for (int i = 1; i < kFiles; ++i) ASSERT_EQ(traffic.sendFile(path.c_str(), "限速.mp4"), 1);
  EXPECT_EQ(tovi::test::heapBlocksOfThisThread(), blocks);
  storage.finish();
  EXPECT_LE(tovi::test::openDescriptors(), descriptors);
  EXPECT_EQ(storage.name, "限速.mp4");
  EXPECT_TRUE(storage.numbered);
  EXPECT_TRUE(storage.content == content + content + content + content);
}

}  // namespace
