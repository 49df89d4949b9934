// SPDX-License-Identifier: MIT
#include "tests/support/fake_platform.h"

#include <algorithm>
#include <sstream>

#include "platform/files.h"
#include "platform/system.h"
#include "tests/support/failing_memory.h"

namespace tovi::test {
namespace {

std::string folderOf(const std::string& path) { return path.substr(0, path.rfind('/') + 1); }

}  // namespace

FakePlatform& fakePlatform() {
  static FakePlatform fake;
  return fake;
}

std::vector<std::string> FakePlatform::log() const {
  constexpr std::size_t kStamp = sizeof "2024-01-05 09:03:07";
  std::vector<std::string> records;
  for (const auto& [path, text] : files) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
      if (line.size() > kStamp) records.push_back(line.substr(kStamp));
    }
  }
  return records;
}

bool FakePlatform::logged(const std::string& record) const {
  const std::vector<std::string> records = log();
  return std::find(records.begin(), records.end(), record) != records.end();
}

}  // namespace tovi::test

namespace tovi::platform {
namespace {

using test::Incoming;

constexpr Socket kSocket = 7;

// The platform, for one expression; what it records costs the library no memory.
struct Fake : test::OwnMemory {
  test::FakePlatform* operator->() const { return &test::fakePlatform(); }
};

}  // namespace

StartUp startUpSockets() {
  ++Fake()->startUps;
  return Fake()->startUp;
}
void cleanUpSockets() { ++Fake()->cleanUps; }

Socket openSocket() {
  if (Fake()->openFails) return kInvalidSocket;
  ++Fake()->opened;
  return kSocket;
}
void closeSocket(Socket) { ++Fake()->closed; }

void setTimeouts(Socket, int milliseconds) { Fake()->socketTimeouts.push_back(milliseconds); }
int receiveTimeout(Socket) { return Fake()->hostReceiveTimeout; }

bool connectSocket(Socket, const char* address, std::uint16_t port, int timeoutMs, Stop) {
  const Fake fake;
  fake->connectTimeouts.push_back(timeoutMs);
  if (address == nullptr || fake->connectFails) return false;
  fake->connections.push_back(std::string(address) + ":" + std::to_string(port));
  return true;
}

bool isQuiet(Socket) { return Fake()->quiet; }

int sendAll(Socket, std::string_view bytes, int timeoutMs, Stop) {
  const Fake fake;
  fake->sendTimeouts.push_back(timeoutMs);
  if (fake->sendFails) return -1;
  fake->sent.emplace_back(bytes);
  return static_cast<int>(bytes.size());
}

int receiveSome(Socket, std::span<char> buffer, int timeoutMs, Stop) {
  const Fake fake;
  fake->receiveTimeouts.push_back(timeoutMs);
  fake->receiveSizes.push_back(buffer.size());
  fake->steadyMs += fake->msPerRead;
  if (fake->incoming.empty()) return -1;
  Incoming& next = fake->incoming.front();
  int result = 0;
  if (next.kind == Incoming::Kind::Bytes) {
    const std::size_t count = next.bytes.copy(buffer.data(), buffer.size());
    next.bytes.erase(0, count);
    result = static_cast<int>(count);
    if (!next.bytes.empty()) return result;
  }
  if (next.kind != Incoming::Kind::Closed) fake->incoming.pop_front();
  return result;
}

int lastSocketError() { return Fake()->socketError; }

void pauseFor(int milliseconds, Stop) { Fake()->pauses.push_back(milliseconds); }
long long steadyMs() { return Fake()->steadyMs; }
std::time_t now() { return Fake()->now; }
std::tm localTime(std::time_t) { return Fake()->localTime; }
std::string executableFolder() { return Fake()->executableFolder; }

const char kPathSeparator = '/';
bool endsWithSeparator(const char* path) { return std::string_view(path).ends_with('/'); }

bool appendText(const char* path, std::string_view text) {
  const Fake fake;
  if (fake->folders.count(test::folderOf(path)) == 0) return false;
  fake->files[path] += text;
  return true;
}

bool makeFolder(const char* path) {
  const Fake fake;
  fake->madeFolders.emplace_back(path);
  if (fake->foldersCanBeMade) fake->folders.insert(path);
  return fake->foldersCanBeMade;
}

long long fileSize(const char* path) { return static_cast<long long>(Fake()->files[path].size()); }

bool renameFile(const char* from, const char* to) {
  const Fake fake;
  fake->files[to] = std::move(fake->files[from]);
  return fake->files.erase(from) == 1;
}

}  // namespace tovi::platform
