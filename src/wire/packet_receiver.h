// SPDX-License-Identifier: MIT
// A session's view of its parser: packages as texts.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <tovisdk/protocal_parser.h>

namespace tovi::wire {

class Receiver {
 public:
  explicit Receiver(ProtocalParser& parser) : mParser(parser) {}

  // Adds bytes and looks for the reply to a command; see ProtocalParser::recvProc.
  std::optional<std::string> receive(std::string_view bytes, short what);

  // The same into a new array.
  char* receiveArray(std::string_view bytes, short what);

  // What the constructor with a key does. Where memory is out the parser stays one for plain
  // replies.
  void takeKey(char* key, int mode);

  // Whether replies are deciphered.
  bool hasCipher() const;

  // Checks, unescapes and deciphers one whole frame.
  std::optional<std::string> open(std::string_view frame, short what);

  // Whether bytes are kept that have not been searched yet.
  bool hasUnread() const { return mParser.pendingLen > 0 && !mParser.needMore; }

  void forget() { tryKeep({}); }

  // Whether there was no memory to keep what came behind a reply.
  bool hasLost() const { return mParser.lostBytes; }
  void forgetLoss() { mParser.lostBytes = false; }

 private:
  template <class Take>
  void search(std::string_view bytes, short what, Take take);
  void beginFrame();
  void setBlockLen(std::size_t length);
  bool findFrame(std::string_view work, std::size_t& start, std::size_t& at);
  std::string_view unfinished(std::string_view work, std::size_t start) const;
  std::string_view keptAnd(std::string_view bytes);
  bool tryKeep(std::string_view bytes);
  void takeRoom(char* room, std::size_t size);
  bool openExtended(std::string& payload, char whatByte, short what) const;
  std::string decipher(std::string& text, std::size_t from) const;

  ProtocalParser& mParser;
};

}  // namespace tovi::wire
