// SPDX-License-Identifier: MIT
// A scripted platform in place of the operating system: tests say what each call meets, and read
// afterwards what was asked of it.
#pragma once

#include <ctime>
#include <deque>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/sockets.h"

namespace tovi::test {

// What one read meets.
struct Incoming {
  enum class Kind { Bytes, Closed };  // Closed holds for every later read
  Kind kind = Kind::Bytes;
  std::string bytes;
};

struct FakePlatform {
  // The script.
  platform::StartUp startUp = platform::StartUp::Ready;
  bool openFails = false;
  bool connectFails = false;
  bool sendFails = false;
  int socketError = 11;           // what lastSocketError gives
  int hostReceiveTimeout = 0;     // what the socket's options say
  bool quiet = true;              // whether an open connection has nothing to read
  std::deque<Incoming> incoming;  // when it runs out, reads time out
  std::string executableFolder = "/host/bin/";
  bool foldersCanBeMade = true;
  std::set<std::string> folders;  // those that exist, with their closing separator
  std::tm localTime{};            // what the clock shows
  std::time_t now = 0;
  long long steadyMs = 1;
  int msPerRead = 0;  // how far each read moves that clock

  // The record.
  int startUps = 0;
  int cleanUps = 0;
  int opened = 0;
  int closed = 0;
  std::vector<std::string> connections;  // "address:port"
  std::vector<int> connectTimeouts;
  std::vector<int> socketTimeouts;
  std::vector<std::string> sent;
  std::vector<int> sendTimeouts;
  std::vector<int> receiveTimeouts;
  std::vector<std::size_t> receiveSizes;
  std::vector<int> pauses;
  std::vector<std::string> madeFolders;
  std::map<std::string, std::string> files;

  void arrive(std::string bytes) { incoming.push_back({Incoming::Kind::Bytes, std::move(bytes)}); }
  void close() { incoming.push_back({Incoming::Kind::Closed, {}}); }

  // The messages of all records, "level message" each.
  std::vector<std::string> log() const;
  bool logged(const std::string& record) const;
};

// The one in use. A test begins with a fresh one: see FakePlatformTest.
FakePlatform& fakePlatform();

}  // namespace tovi::test
