#include "tests/support/fake_platform.h"

#include <algorithm>
#include <sstream>

#include "platform/files.h"
#include "platform/system.h"

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
  ++fakePlatform().startUps;
  return fakePlatform().startUp;
}

void cleanUpSockets() { ++fakePlatform().cleanUps; }

Socket openSocket() {
  if (fakePlatform().openFails) return kInvalidSocket;
  ++fakePlatform().opened;
  return kSocket;
}

void closeSocket(Socket) { ++fakePlatform().closed; }

void setTimeouts(Socket, int milliseconds) {
  fakePlatform().socketTimeouts.push_back(milliseconds);
}

int receiveTimeout(Socket) { return fakePlatform().hostReceiveTimeout; }

bool connectSocket(Socket, const char* address, std::uint16_t port, int) {
  if (address == nullptr || fakePlatform().connectFails) return false;
  fakePlatform().connections.push_back(std::string(address) + ":" + std::to_string(port));
  return true;
}

int sendAll(Socket, std::string_view bytes, int timeoutMs) {
  fakePlatform().sendTimeouts.push_back(timeoutMs);
  if (fakePlatform().sendFails) return -1;
  fakePlatform().sent.emplace_back(bytes);
  return static_cast<int>(bytes.size());
}

int receiveSome(Socket, std::span<char> buffer, int timeoutMs) {
  fakePlatform().receiveTimeouts.push_back(timeoutMs);
  fakePlatform().receiveSizes.push_back(buffer.size());
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

int lastSocketError() { return fakePlatform().socketError; }

void pauseFor(int milliseconds) { fakePlatform().pauses.push_back(milliseconds); }

std::time_t now() { return fakePlatform().now; }

std::tm localTime(std::time_t) { return fakePlatform().localTime; }

std::string executableFolder() { return "/host/bin/"; }

const char kPathSeparator = '/';

bool appendText(const std::string& path, std::string_view text) {
  const std::string folder = test::folderOf(path);
  if (fakePlatform().folders.count(folder) == 0) return false;
  fakePlatform().files[path] += text;
  return true;
}

bool makeFolder(const std::string& path) {
  fakePlatform().madeFolders.push_back(path);
  if (!fakePlatform().foldersCanBeMade) return false;
  fakePlatform().folders.insert(path);
  return true;
}

}  // namespace tovi::platform
