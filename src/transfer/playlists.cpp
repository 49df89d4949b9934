// SPDX-License-Identifier: MIT
// Playlists: upload, play, delete, list.
#include <cstdio>
#include <string_view>

#include "session/operation.h"
#include "transfer/files.h"
#include "transfer/transfer.h"

using namespace tovi;
using namespace tovi::session;
using namespace tovi::transfer;

namespace {

constexpr int kLastNumber = 999;

constexpr Step kPlay{"playListById", 1, ToviTraffic::PLAY_ID_NO_REPLY,
                     ToviTraffic::PLAY_ID_REJECTED};

// The remainder is of 999 and not of 1000: hosts rely on 1000 being playlist 1.
constexpr int wrapped(int number) { return number > kLastNumber ? number % kLastNumber : number; }

// Always 11 characters: what a number below -99 has more is cut off.
std::string fileName(int number) {
  char name[32];
  std::snprintf(name, sizeof name, "play%03d.lst", number);
  return std::string(name).substr(0, sizeof "play000.lst" - 1);
}

int play(Session session, std::uint64_t socket, int number) {
  return sendStep(session, socket, kPlay, bytes({number}));
}

}  // namespace

int ToviTraffic::sendPlayList(int number, const char* text) {
  Transfer transfer(*this, "sendPlayList");
  if (text == nullptr) return transfer.refuse("text is null");
  Session session = transfer.session();
  if (!isContent(session, text)) return transfer.refuse("the text is too long");
  return transfer.guarded(SOCKET_ERROR_CODE, [&] {
    const int wrappedNumber = wrapped(number);
    if (!transfer.connect()) return SOCKET_ERROR_CODE;
    int result = sendName(session, transfer.socket(), fileName(wrappedNumber));
    if (result == SUCCESS) result = sendWhole(session, transfer.socket(), text);
    if (result == SUCCESS) result = awaitEnd(session, transfer.socket());
    return result == SUCCESS ? play(session, transfer.socket(), wrappedNumber) : result;
  });
}

// Kept: the interface names it.
int ToviTraffic::sendPlayId(std::uint64_t socket, int number) {
  return play(Session(*this), socket, number);
}

int ToviTraffic::playListById(int number) { return Operation(*this, "playListById").set(number); }

bool ToviTraffic::deletePlaylistById(int number) {
  return Operation(*this, "deletePlaylistById").set(number) == SUCCESS;
}

std::list<int> ToviTraffic::getAllPlaylistId() {
  const auto decode = [](const Reply& reply) {
    std::list<int> numbers;
    for (int i = 1; i < reply.size(); ++i) numbers.push_back(reply.signedByte(i));
    return numbers;
  };
  return Operation(*this, "getAllPlaylistId").ask(atLeast(0), std::list<int>(), decode);
}
