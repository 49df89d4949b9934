// Playlists: upload, play, delete, list.
#include <tovisdk/text.h>

#include <string_view>

#include "session/operation.h"
#include "transfer/files.h"
#include "transfer/transfer.h"

using namespace tovi;
using namespace tovi::session;
using namespace tovi::transfer;

namespace {

constexpr int kLastNumber = 999;
constexpr std::size_t kNameSize = sizeof "play000.lst" - 1;

constexpr Step kPlay{"playListById", 1, ToviTraffic::PLAY_ID_NO_REPLY,
                     ToviTraffic::PLAY_ID_REJECTED};

// The remainder is of 999 and not of 1000: hosts rely on 1000 being playlist 1.
constexpr int wrapped(int number) { return number > kLastNumber ? number % kLastNumber : number; }

int play(Session session, std::uint64_t socket, int number) {
  return sendStep(session, socket, kPlay, bytes({number}));
}

}  // namespace

int ToviTraffic::sendPlayList(int number, const char* text) {
  Transfer transfer(*this, "sendPlayList");
  if (text == nullptr) return transfer.refuse("text is null");
  const std::string_view content = text;
  if (content.size() > kMaxText) return transfer.refuse("the text is too long");
  number = wrapped(number);
  const std::string name = format_string("play%03d.lst", number);
  if (name.size() != kNameSize) return transfer.refuse("the number has no file name");
  if (!transfer.connect()) return SOCKET_ERROR_CODE;

  Session session = transfer.session();
  int result = sendName(session, transfer.socket(), name);
  if (result == SUCCESS) result = sendWhole(session, transfer.socket(), content);
  if (result == SUCCESS) result = awaitEnd(session, transfer.socket());
  return result == SUCCESS ? play(session, transfer.socket(), number) : result;
}

// Kept: the interface names it.
int ToviTraffic::sendPlayId(std::uint64_t socket, int number) {
  return play(Session(*this), socket, number);
}

int ToviTraffic::playListById(int number) {
  return Operation(*this, "playListById").set(bytes({number}));
}

bool ToviTraffic::deletePlaylistById(int number) {
  return Operation(*this, "deletePlaylistById").set(bytes({number})) == SUCCESS;
}

std::list<int> ToviTraffic::getAllPlaylistId() {
  const Reply reply = Operation(*this, "getAllPlaylistId").ask(atLeast(0));
  std::list<int> numbers;
  for (int i = 1; i < reply.size(); ++i) numbers.push_back(reply.signedByte(i));
  return numbers;
}
