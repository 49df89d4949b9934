// SPDX-License-Identifier: MIT
// Files to the controller and their names: a file's name, numbered chunks, the confirmation of the
// end.
#include "transfer/files.h"

#include <string>
#include <utility>

#include "foundation/bytes.h"
#include "foundation/log.h"
#include "json/json_object.h"
#include "session/operation.h"
#include "transfer/local_files.h"
#include "transfer/transfer.h"

using namespace tovi;
using namespace tovi::session;
using namespace tovi::transfer;

namespace {

// An enciphered chunk must fit a frame together with its number and a block of padding.
constexpr int kPlainChunk = 65535;
constexpr int kCipheredChunk = 65517;
constexpr std::size_t kNumberSize = 2;

constexpr Step kName{"sendFileName", 1, ToviTraffic::FILE_NAME_NO_REPLY,
                     ToviTraffic::FILE_NAME_REJECTED};
constexpr Step kChunk{"sendFileContent", 3, ToviTraffic::CONTENT_NO_REPLY,
                      ToviTraffic::CONTENT_REJECTED};
constexpr Step kEnd{"recvFileOverRsp", 1, ToviTraffic::FILE_END_NO_REPLY,
                    ToviTraffic::FILE_END_REJECTED};

constexpr unsigned kLastCleanUp = 3;
constexpr int kSubstituteCleanUp = 1;

// Both a name and a chunk stand behind two bytes.
bool fits(Session session, const Step& step, std::size_t size) {
  return size + kNumberSize <= session.mostPayload(wire::wideCode(step.row.command.request));
}

// How far a file got: the bytes of the last chunk, and the number that the next would carry.
struct Sent {
  int lastLen = 0;
  int nextNumber = 1;
};

constexpr short kChunkRequest = wire::wideCode(kChunk.row.command.request);

// The chunks of a file, one after another in the same memory.
class Chunks {
 public:
  Chunks(Session session, const char* path, int size)
      : mSession(session),
        mFile(path),
        mPayload(kNumberSize + static_cast<std::size_t>(size), '\0') {}

  // Reads the next chunk and frames it.
  void next() {
    mLength = static_cast<int>(mFile.read(std::span(mPayload).subspan(kNumberSize)));
    if (mLength < 0) return;
    // 16 bits that wrap: only files of 4 GiB and more get there.
    mPayload.replace(0, kNumberSize, lowFirst(++mNumber));
    const std::size_t size = kNumberSize + static_cast<std::size_t>(mLength);
    mFrame = mSession.build(mBuilder, kChunkRequest, std::string_view(mPayload).substr(0, size));
  }

  // A file that has meanwhile lost what was read of it cannot be read any more.
  void checkFile() {
    if (mLength > 0 && mFile.hasShrunk()) mLength = -1;
  }

  int length() const { return mLength; }  // -1: the file cannot be read
  std::string_view frame() const { return mFrame; }
  const FileReader& file() const { return mFile; }

 private:
  Session mSession;
  FileReader mFile;
  std::string mPayload;
  wire::FrameBuilder mBuilder;
  std::string_view mFrame;
  int mLength = 0;
  int mNumber = 0;
};

// A controller knows the last chunk by its not being full. A read that fills the chunk has not met
// the file's end yet, so a file of whole chunks is followed by one that holds its number alone.
// While the controller takes in a chunk, the next one is made ready.
int sendChunks(Session session, std::uint64_t socket, const char* path, int chunkSize, Sent& sent,
               const ToviTraffic::Progress& progress) {
  Chunks chunks(session, path, chunkSize);
  chunks.next();
  for (bool last = false; !last;) {
    sent.lastLen = chunks.length();
    if (sent.lastLen < 0) {
      log::error("ToviTraffic::sendFileContent cannot read %s", path);
      return session.end(ToviOutcome::LocalFile, ToviTraffic::LOCAL_FILE_ERROR);
    }
    ++sent.nextNumber;
    const bool wentOut = session.sendBuilt(socket, kChunkRequest, chunks.frame()) >= 0;
    const long long position = chunks.file().position();
    last = chunks.file().atEnd();
    if (!last) chunks.next();
    const int result = awaitStep(session, socket, kChunk, wentOut);
    if (result != ToviTraffic::SUCCESS) return result;
    if (!progress) continue;
    if (!progress(position, chunks.file().size())) {
      log::info("ToviTraffic::sendFileContent stopped by the host");
      return session.end(ToviOutcome::Stopped, ToviTraffic::STOPPED_BY_HOST);
    }
    chunks.checkFile();
  }
  return ToviTraffic::SUCCESS;
}

// The texts of a JSON array; what else stands in it is passed over.
template <class... Parts>
std::list<std::string> askNames(Operation operation, const Parts&... parts) {
  return operation.guarded(std::list<std::string>(), [&] {
    std::list<std::string> names;
    const CJsonObject array(operation.askText(parts...));
    if (!array.isArray() && operation.outcome() == ToviOutcome::Done) {
      operation.end(ToviOutcome::BadReply);
    }
    for (std::uint32_t i = 0; i < array.arraySize(); ++i) {
      std::string name;
      if (array.getArrayText(i, name)) names.push_back(std::move(name));
    }
    return names;
  });
}

}  // namespace

namespace tovi::transfer {

int sendName(Session session, std::uint64_t socket, std::string_view name) {
  return sendStep(session, socket, kName, bytes({0xFF, 0xFF}).append(name));
}

int sendWhole(Session session, std::uint64_t socket, std::string_view content) {
  return sendStep(session, socket, kChunk, lowFirst(1).append(content));
}

bool isName(Session session, std::string_view name) { return fits(session, kName, name.size()); }

bool isContent(Session session, std::string_view content) {
  return fits(session, kChunk, content.size());
}

int awaitEnd(Session session, std::uint64_t socket) { return awaitStep(session, socket, kEnd); }

}  // namespace tovi::transfer

int ToviTraffic::sendFile(const char* path, const char* name) { return sendFile(path, name, {}); }

int ToviTraffic::sendFile(const char* path, const char* name, const Progress& progress) {
  Transfer transfer(*this, "sendFile");
  if (path == nullptr || name == nullptr) return transfer.refuse("path or name is null");
  Session session = transfer.session();
  if (!isName(session, name)) return transfer.refuse("the name is too long");
  const int result = transfer.guarded(kNoConnection, [&] {
    if (!transfer.connect()) return kNoConnection;
    const int named = sendName(session, transfer.socket(), name);
    if (named != SUCCESS) return named;
    Sent sent;
    const int chunk = session.isEnciphered() ? kCipheredChunk : kPlainChunk;
    const int content = sendChunks(session, transfer.socket(), path, chunk, sent, progress);
    return content == SUCCESS ? awaitEnd(session, transfer.socket()) : content;
  });
  return transfer.outcome() == ToviOutcome::Stopped ? STOPPED_BY_HOST : result;
}

// Kept: the interface names it.
int ToviTraffic::sendFileName(std::uint64_t socket, const char* name, int len) {
  return sendName(Session(*this), socket, viewOf(name, len));
}

// Kept: the interface names it.
int ToviTraffic::sendFileContent(std::uint64_t socket, const char* path, int chunkSize,
                                 int* lastLen, int* nextNumber) {
  Sent sent;
  const int result = sendChunks(Session(*this), socket, path, chunkSize, sent, {});
  *lastLen = sent.lastLen;
  *nextNumber = sent.nextNumber;
  return result;
}

// Kept: the interface names it.
int ToviTraffic::sendContent(std::uint64_t socket, const char* data, int len, int /*number*/) {
  return sendWhole(Session(*this), socket, viewOf(data, len));
}

// Kept: the interface names it.
int ToviTraffic::recvFileOverRsp(std::uint64_t socket) { return awaitEnd(Session(*this), socket); }

std::list<std::string> ToviTraffic::getAllMediaFileName() {
  return askNames(Operation(*this, "getAllMediaFileName"));
}

std::list<std::string> ToviTraffic::getFileListName(char type) {
  return askNames(Operation(*this, "getFileListName"), type);
}

int ToviTraffic::cleanUpFiles(int type) {
  const bool known = static_cast<unsigned>(type) <= kLastCleanUp;
  return Operation(*this, "cleanUpFiles").set(known ? type : kSubstituteCleanUp);
}
