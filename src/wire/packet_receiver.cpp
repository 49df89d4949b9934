// SPDX-License-Identifier: MIT
#include "wire/packet_receiver.h"

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

#include "cipher/aes.h"
#include "cipher/des.h"
#include "cipher/md5.h"
#include "cipher/sm4.h"
#include "foundation/bytes.h"
#include "foundation/memory.h"
#include "wire/checksum.h"
#include "wire/escaping.h"
#include "wire/frame.h"

namespace tovi::wire {
namespace {

constexpr std::size_t kMaxKept = std::size_t{4} << 20;
constexpr std::size_t kMaxBlock = 16;
constexpr std::size_t kCodeSize = 2;  // a 16-bit command code at the start of a payload

}  // namespace

std::optional<std::string> Receiver::receive(std::string_view bytes, short what) {
  std::optional<std::string> found;
  search(bytes, what, [&](std::string&& package) { found = std::move(package); });
  return found;
}

char* Receiver::receiveArray(std::string_view bytes, short what) {
  char* found = nullptr;
  search(bytes, what, [&](const std::string& package) { found = newArray(package); });
  return found;
}

// Hands over the package that is found before anything else is changed: where there is no memory to
// take it, it is found again.
template <class Take>
void Receiver::search(std::string_view bytes, short what, Take take) {
  // What was searched for the same reply before needs no second look.
  const bool goesOn = mParser.needMore && mParser.pendingLen > 0 && mParser.searchedFor == what;
  mParser.needMore = false;
  mParser.packageLen = 0;
  const std::string_view work = mParser.room == nullptr ? bytes : keptAnd(bytes);

  // The bytes are taken to begin inside a frame, whatever the first one is. A frame's bytes always
  // stand together, so it is read in place: from `start` up to `at`.
  if (!goesOn) beginFrame();
  std::size_t at = goesOn ? static_cast<std::size_t>(mParser.pendingLen) : 0;
  std::size_t start = at - static_cast<std::size_t>(mParser.blockLen);
  while (findFrame(work, start, at)) {
    if (std::optional<std::string> package = open(work.substr(start, at - start), what)) {
      const auto length = static_cast<int>(package->size());
      take(*std::move(package));
      mParser.packageLen = length;
      // A reply in hand is worth more than the bytes behind it.
      if (!tryKeep(work.substr(at))) {
        forget();
        mParser.lostBytes = true;
      }
      return;
    }
  }
  if (!tryKeep(work.size() > kMaxKept ? unfinished(work, start) : work)) throw std::bad_alloc();
  mParser.needMore = true;
  mParser.searchedFor = what;
}

void Receiver::beginFrame() {
  mParser.rcvState = ProtocalParser::START_RCV;
  setBlockLen(0);
}

void Receiver::setBlockLen(std::size_t length) {
  constexpr auto kStep = static_cast<std::size_t>(ProtocalParser::DEFLAUT_PARK_BLOCK_SIZE);
  const std::size_t steps = length == 0 ? 1 : (length + kStep - 1) / kStep;
  mParser.blockLen = static_cast<int>(length);
  mParser.blockSize = static_cast<int>(steps * kStep);
}

// Goes on from `at` behind the next whole frame; false when the bytes end before.
bool Receiver::findFrame(std::string_view work, std::size_t& start, std::size_t& at) {
  if (mParser.rcvState == ProtocalParser::NO_START_RCV) {
    start = at = std::min(work.find(ProtocalParser::PACKET_START_FLAG, at), work.size());
    if (at == work.size()) return false;
    beginFrame();
  }
  if (mParser.rcvState == ProtocalParser::START_RCV) {
    const std::size_t flag = work.find(ProtocalParser::PACKET_END_FLAG, at);
    at = flag == std::string_view::npos ? work.size() : flag + 1;
    if (flag != std::string_view::npos) {
      mParser.rcvState = ProtocalParser::START_RCV_END;
      mParser.crcLeft = ProtocalParser::END_CRC_SIZE;
    }
  }
  if (mParser.rcvState == ProtocalParser::START_RCV_END) {
    for (; mParser.crcLeft > 0 && at < work.size(); ++at) --mParser.crcLeft;
    if (mParser.crcLeft == 0) mParser.rcvState = ProtocalParser::NO_START_RCV;
  }
  setBlockLen(at - start);
  return mParser.rcvState == ProtocalParser::NO_START_RCV;
}

// What is kept of a stream without an end in sight: only the frame that is still open may yet
// become a reply, and not even that once it alone is too long.
std::string_view Receiver::unfinished(std::string_view work, std::size_t start) const {
  if (mParser.rcvState == ProtocalParser::NO_START_RCV) return {};
  work.remove_prefix(start);
  return work.size() > kMaxKept ? std::string_view() : work;
}

// The kept bytes and more behind them, which are not kept by that. Their room grows twofold, so
// that a stream of many pieces is not copied anew for each.
std::string_view Receiver::keptAnd(std::string_view bytes) {
  const auto kept = static_cast<std::size_t>(mParser.pendingLen);
  const std::size_t size = kept + bytes.size();
  const auto before = static_cast<std::size_t>(mParser.pending - mParser.room);
  if (before + size > mParser.roomSize) {
    const std::size_t roomSize = std::max(size, std::min(2 * size, kMaxKept));
    auto room = std::make_unique_for_overwrite<char[]>(roomSize);
    std::copy_n(mParser.pending, kept, room.get());
    takeRoom(room.release(), roomSize);
  }
  bytes.copy(mParser.pending + kept, bytes.size());
  return {mParser.pending, size};
}

// Keeps these bytes and no others. Where some are kept already these are among what keptAnd gave,
// and stay where they are as long as they are a fair part of it. False when memory is out, which
// leaves everything as it was.
bool Receiver::tryKeep(std::string_view bytes) {
  if (bytes.empty()) {
    takeRoom(nullptr, 0);
  } else if (mParser.room == nullptr || bytes.size() < mParser.roomSize / 4) {
    char* room = new (std::nothrow) char[bytes.size()];
    if (room == nullptr) return false;
    bytes.copy(room, bytes.size());
    takeRoom(room, bytes.size());
  } else {
    mParser.pending += bytes.data() - mParser.pending;
  }
  mParser.pendingLen = static_cast<int>(bytes.size());
  return true;
}

void Receiver::takeRoom(char* room, std::size_t size) {
  delete[] std::exchange(mParser.room, room);
  mParser.roomSize = static_cast<unsigned>(size);
  mParser.pending = room;
}

void Receiver::takeKey(char* key, int mode) {
  if (key == nullptr) return;
  if (mode == kDes) {
    mParser.desKey = key;
  } else if (mode == kAes || mode == kSm4) {
    auto digest = std::make_unique<cipher::Md5>();
    digest->update(key);
    const std::string cipherKey = digest->hexDigest().substr(8, 16);
    if (mode == kAes) mParser.aes = new cipher::Aes128(cipherKey);
    if (mode == kSm4) mParser.sm4 = new cipher::Sm4(cipherKey);
    mParser.md5 = digest.release();
  }
}

std::optional<std::string> Receiver::open(std::string_view frame, short what) {
  if (frame.size() < ProtocalParser::PACKET_MIN_SIZE) return std::nullopt;
  const std::size_t checked = frame.size() - ProtocalParser::PACKET_CRC_SIZE;
  if (checksum(frame.substr(0, checked)) != lowFirstAt(frame, checked)) return std::nullopt;
  std::string package(checked, '\0');
  const char* const end = unescape(frame.substr(0, checked), package.data());
  if (end == nullptr) return std::nullopt;
  const auto plain = static_cast<std::size_t>(end - package.data());
  // Escapes in the header can shorten a frame below its smallest size.
  if (plain + ProtocalParser::PACKET_CRC_SIZE < ProtocalParser::PACKET_MIN_SIZE) {
    return std::nullopt;
  }
  package.resize(plain - 1);  // without the end flag
  package.erase(0, ProtocalParser::PACKET_WHAT_OFFSET);
  const char whatByte = package[0];
  if (what > kExtendedCommand) {
    package.erase(0, 1);
    if (!openExtended(package, whatByte, what)) return std::nullopt;
  } else {
    if (static_cast<signed char>(whatByte) != what) return std::nullopt;
    if (hasCipher() && package.size() > 1 && whatByte != kSecretReply) decipher(package, 1);
  }
  return package;
}

// Opens the reply to a 16-bit command; false when the payload answers another one.
bool Receiver::openExtended(std::string& payload, char whatByte, short what) const {
  if (payload.size() < kCodeSize) return false;
  auto code = static_cast<short>(lowFirstAt(payload, 0));
  if (hasCipher() && whatByte != kSecretReply && code != kIsSecret) {
    code = static_cast<short>(lowFirstAt(decipher(payload, 0), 0));
  }
  return code == what;
}

// Deciphers what stands in a text from a place on; what cannot be deciphered stays as it came.
// Returns what the cipher put out in either case, at least a block of it.
std::string Receiver::decipher(std::string& text, std::size_t from) const {
  const std::string_view payload = std::string_view(text).substr(from);
  std::string plain(payload.size() + kMaxBlock, '\0');
  int length = 0;
  if (mParser.desKey != nullptr) {
    length = cipher::desDecrypt(payload, mParser.desKey, plain);
  } else if (mParser.aes != nullptr) {
    length = mParser.aes->decrypt(payload, plain);
  } else if (mParser.sm4 != nullptr) {
    length = mParser.sm4->decrypt(payload, plain);
  }
  if (length > 0) text.replace(from, std::string::npos, plain, 0, static_cast<std::size_t>(length));
  return plain;
}

bool Receiver::hasCipher() const {
  return mParser.desKey != nullptr || mParser.aes != nullptr || mParser.sm4 != nullptr;
}

}  // namespace tovi::wire

using tovi::wire::Receiver;

ProtocalParser::ProtocalParser() = default;

ProtocalParser::ProtocalParser(char* key, int mode) {
  tovi::whereMemoryAllows(false, [&] {
    Receiver(*this).takeKey(key, mode);
    return true;
  });
}

ProtocalParser::~ProtocalParser() {
  delete[] room;
  delete aes;
  delete md5;
  delete[] desKey;
  delete sm4;
}

char* ProtocalParser::recvProc(char* data, int len, short what) {
  char* const none = nullptr;
  return tovi::whereMemoryAllows(
      none, [&] { return Receiver(*this).receiveArray(tovi::viewOf(data, len), what); });
}

int ProtocalParser::getPackageLen() const { return packageLen; }

// Kept: the interface names it.
char* ProtocalParser::recvPackage(char* frame, int len, short what) {
  const auto package = Receiver(*this).open(tovi::viewOf(frame, len), what);
  if (!package) return nullptr;
  packageLen = static_cast<int>(package->size());
  return tovi::newArray(*package);
}
