// Files to the controller: the name, numbered chunks, the confirmation of the end.
#include <tovisdk/codec.h>

#include <cstring>
#include <string>
#include <vector>

#include "foundation/log.h"
#include "transfer/local_files.h"
#include "transfer/transfer.h"

using tovi::device::bytes;
using tovi::transfer::FileReader;
using tovi::transfer::kMaxText;
using tovi::transfer::kNumberSize;
using tovi::transfer::Step;
using tovi::transfer::Transfer;
using tovi::wire::command;

namespace {

// An enciphered chunk must fit a frame together with its number and a block of padding.
constexpr int kPlainChunk = 65535;
constexpr int kCipheredChunk = 65517;

constexpr Step kName{command("sendFileName"), 1, ToviTraffic::FILE_NAME_NO_REPLY,
                     ToviTraffic::FILE_NAME_REJECTED};
constexpr Step kChunk{command("sendFileContent"), 3, ToviTraffic::CONTENT_NO_REPLY,
                      ToviTraffic::CONTENT_REJECTED};
constexpr Step kEnd{command("recvFileOverRsp"), 1, ToviTraffic::FILE_END_NO_REPLY,
                    ToviTraffic::FILE_END_REJECTED};

}  // namespace

int ToviTraffic::sendFile(const char* path, const char* name) { return sendFile(path, name, {}); }

int ToviTraffic::sendFile(const char* path, const char* name, const Progress& progress) {
  Transfer transfer(*this, "sendFile");
  if (path == nullptr || name == nullptr) return transfer.refuse("path or name is null");
  const std::size_t nameLen = std::strlen(name);
  if (nameLen > kMaxText) return transfer.refuse("the name is too long");
  if (!transfer.connect()) return tovi::transfer::kNoConnection;

  int result = sendFileName(transfer.socket(), name, static_cast<int>(nameLen));
  if (result != SUCCESS) return result;
  const bool enciphered = mDesKey != nullptr || mAesKey != nullptr || mSm4Key != nullptr;
  const int chunkSize = enciphered ? kCipheredChunk : kPlainChunk;
  int lastLen = 0;
  int nextNumber = 0;
  result = sendFileContent(transfer.socket(), path, chunkSize, &lastLen, &nextNumber, progress);
  if (result != SUCCESS) return result;
  // A controller knows the last chunk by its not being full. Reading sees to that by itself, as a
  // read that fills the chunk has not met the end yet; here it is made sure of.
  if (lastLen == chunkSize) {
    char payload[kNumberSize];
    result = sendChunk(transfer.socket(), payload, 0, nextNumber);
    if (result != SUCCESS) return result;
  }
  return recvFileOverRsp(transfer.socket());
}

int ToviTraffic::sendFileName(std::uint64_t socket, const char* name, int len) {
  std::string payload = bytes({0xFF, 0xFF});
  payload.append(name, static_cast<std::size_t>(len));
  return transferStep(socket, kName, payload.data(), static_cast<int>(payload.size()));
}

int ToviTraffic::sendFileContent(std::uint64_t socket, const char* path, int chunkSize,
                                 int* lastLen, int* nextNumber, const Progress& progress) {
  FileReader file(path);
  std::vector<char> payload(static_cast<std::size_t>(kNumberSize + chunkSize));
  const std::span<char> data = std::span(payload).subspan(kNumberSize);
  *nextNumber = 1;
  do {
    *lastLen = static_cast<int>(file.read(data));
    if (*lastLen < 0) {
      tovi::log::error("ToviTraffic::sendFileContent cannot read %s", path);
      mOutcome = ToviOutcome::LocalFile;
      return LOCAL_FILE_ERROR;
    }
    const int result = sendChunk(socket, payload.data(), *lastLen, (*nextNumber)++);
    if (result != SUCCESS) return result;
    if (progress && !progress(file.position(), file.size())) {
      tovi::log::info("ToviTraffic::sendFileContent stopped by the host");
      return STOPPED_BY_HOST;
    }
  } while (!file.atEnd());
  return SUCCESS;
}

int ToviTraffic::sendContent(std::uint64_t socket, const char* data, int len, int /*number*/) {
  std::string payload(kNumberSize, '\0');
  payload.append(data, static_cast<std::size_t>(len));
  return sendChunk(socket, payload.data(), len, 1);
}

// Numbers and sends the `len` bytes that stand behind the number's room.
int ToviTraffic::sendChunk(std::uint64_t socket, char* payload, int len, int number) {
  // 16 bits that wrap: only files of 4 GiB and more get there.
  shortToBytes(payload, 0, static_cast<short>(number));
  return transferStep(socket, kChunk, payload, kNumberSize + len);
}

int ToviTraffic::recvFileOverRsp(std::uint64_t socket) { return awaitStep(socket, kEnd, true); }
