// Playlists: upload, play, delete, list.
#include <tovisdk/text.h>

#include <cstring>
#include <string>

#include "transfer/transfer.h"

using tovi::device::atLeast;
using tovi::device::bytes;
using tovi::device::Operation;
using tovi::device::Reply;
using tovi::transfer::kMaxText;
using tovi::transfer::Step;
using tovi::transfer::Transfer;
using tovi::wire::command;

namespace {

constexpr int kLastNumber = 999;
constexpr std::size_t kNameSize = sizeof "play000.lst" - 1;

constexpr Step kPlay{command("playListById"), 1, ToviTraffic::PLAY_ID_NO_REPLY,
                     ToviTraffic::PLAY_ID_REJECTED};

// The remainder is of 999 and not of 1000: hosts rely on 1000 being playlist 1.
constexpr int wrapped(int number) { return number > kLastNumber ? number % kLastNumber : number; }

}  // namespace

int ToviTraffic::sendPlayList(int number, const char* text) {
  Transfer transfer(*this, "sendPlayList");
  if (text == nullptr) return transfer.refuse("text is null");
  const std::size_t textLen = std::strlen(text);
  if (textLen > kMaxText) return transfer.refuse("the text is too long");
  number = wrapped(number);
  const std::string name = format_string("play%03d.lst", number);
  if (name.size() != kNameSize) return transfer.refuse("the number has no file name");
  if (!transfer.connect()) return SOCKET_ERROR_CODE;

  int result = sendFileName(transfer.socket(), name.data(), static_cast<int>(name.size()));
  if (result != SUCCESS) return result;
  result = sendContent(transfer.socket(), text, static_cast<int>(textLen), 1);
  if (result != SUCCESS) return result;
  result = recvFileOverRsp(transfer.socket());
  if (result != SUCCESS) return result;
  return sendPlayId(transfer.socket(), number);
}

int ToviTraffic::sendPlayId(std::uint64_t socket, int number) {
  char payload = static_cast<char>(number);
  return transferStep(socket, kPlay, &payload, 1);
}

int ToviTraffic::playListById(int number) {
  return Operation(*this, command("playListById")).set(bytes({number}));
}

bool ToviTraffic::deletePlaylistById(int number) {
  return Operation(*this, command("deletePlaylistById")).set(bytes({number})) == SUCCESS;
}

std::list<int> ToviTraffic::getAllPlaylistId() {
  const Reply reply = Operation(*this, command("getAllPlaylistId")).ask(atLeast(0));
  std::list<int> numbers;
  for (int i = 1; i < reply.size(); ++i) numbers.push_back(reply.signedByte(i));
  return numbers;
}
