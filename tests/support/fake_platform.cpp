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

using test::fakePlatform;
using test::Incoming;

namespace {

constexpr Socket kSocket = 7;

}  // namespace

StartUp startUpSockets() {
  const test::OwnMemory own;
  ++fakePlatform().startUps;
  return fakePlatform().startUp;
}

void cleanUpSockets() {
  const test::OwnMemory own;
  ++fakePlatform().cleanUps;
}

Socket openSocket() {
  const test::OwnMemory own;
  if (fakePlatform().openFails) return kInvalidSocket;
  ++fakePlatform().opened;
  return kSocket;
}

void closeSocket(Socket) {
  const test::OwnMemory own;
  ++fakePlatform().closed;
}

void setTimeouts(Socket, int milliseconds) {
  const test::OwnMemory own;
  fakePlatform().socketTimeouts.push_back(milliseconds);
}

int receiveTimeout(Socket) {
  const test::OwnMemory own;
  return fakePlatform().hostReceiveTimeout;
}

bool connectSocket(Socket, const char* address, std::uint16_t port, int, Stop) {
  const test::OwnMemory own;
  if (address == nullptr || fakePlatform().connectFails) return false;
  fakePlatform().connections.push_back(std::string(address) + ":" + std::to_string(port));
  return true;
}

bool isQuiet(Socket) {
  const test::OwnMemory own;
  return fakePlatform().quiet;
}

int sendAll(Socket, std::string_view bytes, int timeoutMs, Stop) {
  const test::OwnMemory own;
  fakePlatform().sendTimeouts.push_back(timeoutMs);
  if (fakePlatform().sendFails) return -1;
  fakePlatform().sent.emplace_back(bytes);
  return static_cast<int>(bytes.size());
}

int receiveSome(Socket, std::span<char> buffer, int timeoutMs, Stop) {
  const test::OwnMemory own;
  fakePlatform().receiveTimeouts.push_back(timeoutMs);
  fakePlatform().receiveSizes.push_back(buffer.size());
  fakePlatform().steadyMs += fakePlatform().msPerRead;
  if (fakePlatform().incoming.empty()) return -1;
  Incoming& next = fakePlatform().incoming.front();
  int result = next.kind == Incoming::Kind::Failure ? -1 : 0;
  if (next.kind == Incoming::Kind::Bytes) {
    const std::size_t count = next.bytes.copy(buffer.data(), buffer.size());
    next.bytes.erase(0, count);
    result = static_cast<int>(count);
    if (!next.bytes.empty()) return result;
  }
  if (next.kind != Incoming::Kind::Closed) fakePlatform().incoming.pop_front();
  return result;
}

int lastSocketError() {
  const test::OwnMemory own;
  return fakePlatform().socketError;
}

void pauseFor(int milliseconds, Stop) {
  const test::OwnMemory own;
  fakePlatform().pauses.push_back(milliseconds);
}

long long steadyMs() {
  const test::OwnMemory own;
  return fakePlatform().steadyMs;
}

std::time_t now() {
  const test::OwnMemory own;
  return fakePlatform().now;
}

std::tm localTime(std::time_t) {
  const test::OwnMemory own;
  return fakePlatform().localTime;
}

std::string executableFolder() {
  const test::OwnMemory own;
  return fakePlatform().executableFolder;
}

const char kPathSeparator = '/';

bool endsWithSeparator(const char* path) {
  const test::OwnMemory own;
  return std::string_view(path).ends_with('/');
}

bool appendText(const char* path, std::string_view text) {
  const test::OwnMemory own;
  const std::string folder = test::folderOf(path);
  if (fakePlatform().folders.count(folder) == 0) return false;
  fakePlatform().files[path] += text;
  return true;
}

bool makeFolder(const char* path) {
  const test::OwnMemory own;
  fakePlatform().madeFolders.emplace_back(path);
  if (!fakePlatform().foldersCanBeMade) return false;
  fakePlatform().folders.insert(path);
  return true;
}

long long fileSize(const char* path) {
  const test::OwnMemory own;
  return static_cast<long long>(fakePlatform().files[path].size());
}

bool renameFile(const char* from, const char* to) {
  const test::OwnMemory own;
  fakePlatform().files[to] = std::move(fakePlatform().files[from]);
  return fakePlatform().files.erase(from) == 1;
}

}  // namespace tovi::platform
