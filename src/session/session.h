// SPDX-License-Identifier: MIT
// What the layers above need of a ToviTraffic: a connection, requests and replies, the exchange
// patterns, the outcome.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <tovisdk/tovi_traffic.h>

#include "platform/stop.h"
#include "wire/frame.h"
#include "wire/packet_builder.h"

namespace tovi::session {

// A handle on the object that it is made of; costs nothing to copy. Codes are wide: see
// wire::wideCode.
class Session {
 public:
  explicit Session(ToviTraffic& traffic) : mTraffic(traffic) {}

  // A connection for one operation, 0 without one; in server mode the host's own, which
  // closeSocket leaves open. Connection pairs the two.
  std::uint64_t getSocket() { return mTraffic.getSocket(); }
  void closeSocket(std::uint64_t socket) { mTraffic.closeSocket(socket); }

  // The same after an operation that is done: where connections are kept, it stays open.
  void keepSocket(std::uint64_t socket);

  // One request: the number of bytes sent, or -1.
  int send(std::uint64_t socket, short what, std::string_view payload);

  // The same in two steps: a frame that is built in memory of the caller's, and sent when its turn
  // has come, which is when the log tells of it.
  std::string_view build(wire::FrameBuilder& builder, short what, std::string_view payload) const;
  int sendBuilt(std::uint64_t socket, short what, std::string_view frame);

  // The reply to one command, for which the socket is read at most MAX_FAIL_COUNT times, up to
  // bufferSize bytes each: the command byte and the payload, or for a 16-bit command the payload
  // alone.
  std::optional<std::string> receive(std::uint64_t socket, short what, int bufferSize);

  // A setting on a connection of its own: SUCCESS or the negative code.
  int set(short what, short rspWhat, std::string_view payload);

  // A query, on a connection of its own or on one that is open already.
  std::optional<std::string> ask(short what, short rspWhat, std::string_view payload,
                                 int bufferSize);
  std::optional<std::string> askOn(std::uint64_t socket, short what, short rspWhat,
                                   std::string_view payload, int bufferSize);

  // The request as it goes out, enciphered with the key that is set.
  std::string frameOf(short what, std::string_view payload) const;
  bool isEnciphered() const;

  // The longest payload that a request can carry now.
  std::size_t mostPayload(short what) const;

  // The next reply is deciphered with the keys that are set then.
  void renewParser();

  // What setAesKey and setSM4Key have in common.
  void setAesOrSm4Key(const char* password, char*& slot);

  // A call begins: whatever the one before it left is over.
  void begin();

  // The time-out of the next wait, where each wait alone would have `timeoutMs`; nothing once the
  // time of the exchange is over. The first wait of an exchange begins it, receive ends it.
  std::optional<int> waitLeft(int timeoutMs);
  platform::Stop stop() const { return &mTraffic.mCancelled; }

  // How an operation ends: notes why, and gives its result.
  void end(ToviOutcome outcome);
  template <class Result>
  Result end(ToviOutcome outcome, Result result) {
    end(outcome);
    return result;
  }
  ToviOutcome outcome() const { return mTraffic.mOutcome; }

 private:
  // A key as the builder of frames wants it.
  struct Key {
    wire::CipherMode mode;
    const char* text;
  };

  Key keyFor(short what) const;
  void tellCipher(short what) const;
  int sendFrame(std::uint64_t socket, std::string_view frame);
  std::optional<std::string> exchange(std::uint64_t socket, short what, short rspWhat,
                                      std::string_view payload, int bufferSize);
  std::optional<std::string> receiveInThreeReads(std::uint64_t socket, short what,
                                                 std::string& buffer);
  std::optional<std::string> receiveUntilTimeout(std::uint64_t socket, short what,
                                                 std::string& buffer);
  std::optional<std::string> searchKept(short what);
  int readOnce(std::uint64_t socket, short what, std::string& buffer,
               std::optional<std::string>& package);
  bool hasUnread() const;
  bool waitsUntilTimeout() const { return mTraffic.mWaiting == ToviWaiting::UntilTimeout; }
  std::optional<std::string> toldOf(std::optional<std::string> package) const;
  int receiveTimeout(std::uint64_t socket) const;
  ProtocalParser* newParser() const;

  ToviTraffic& mTraffic;
};

// A connection that is closed at the end of its scope, unless it is released before. One whose
// exchange came to its end may serve the next operation, too.
class Connection {
 public:
  explicit Connection(Session session) : Connection(session, session.getSocket()) {}
  Connection(Session session, std::uint64_t socket) : mSession(session), mSocket(socket) {}
  ~Connection() { close(); }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  explicit operator bool() const { return mSocket != 0; }
  std::uint64_t socket() const { return mSocket; }

  void keep() { mKeep = true; }
  void close() { mKeep ? mSession.keepSocket(release()) : mSession.closeSocket(release()); }
  std::uint64_t release() { return std::exchange(mSocket, 0); }

 private:
  Session mSession;
  std::uint64_t mSocket;
  bool mKeep = false;
};

// The line on standard output that hosts know from every reply that is released.
void tellRelease();

}  // namespace tovi::session
