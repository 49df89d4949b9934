// SPDX-License-Identifier: MIT
#include "wire/packet_receiver.h"

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
#include "wire/frame.h"

namespace tovi::wire {
namespace {

constexpr std::size_t kMaxKept = std::size_t{4} << 20;
constexpr std::size_t kMaxBlock = 16;
constexpr std::size_t kCodeSize = 2;  // a 16-bit command code at the start of a payload

// The byte that an escaped one stands for; nothing else may follow the escape flag.
bool unescapeByte(char escaped, char& byte) {
  switch (escaped) {
    case 0x0A:
      byte = ProtocalParser::PACKET_START_FLAG;
      return true;
    case 0x0C:
      byte = ProtocalParser::PACKET_END_FLAG;
      return true;
    case 0x0E:
      byte = ProtocalParser::PACKET_TRANSFER_FLAG;
      return true;
    default:
      return false;
  }
}

std::optional<std::string> unescape(std::string_view escaped) {
  std::string plain;
  plain.reserve(escaped.size());
  for (std::size_t i = 0; i < escaped.size(); ++i) {
    char byte = escaped[i];
    if (byte == ProtocalParser::PACKET_TRANSFER_FLAG &&
        (++i == escaped.size() || !unescapeByte(escaped[i], byte))) {
      return std::nullopt;
    }
    plain += byte;
  }
  return plain;
}

}  // namespace

std::optional<std::string> Receiver::receive(std::string_view bytes, short what) {
  mParser.needMore = false;
  mParser.packageLen = 0;
  std::string work(viewOf(mParser.pending, mParser.pendingLen));
  work += bytes;

  // The bytes are taken to begin inside a frame, whatever the first one is. A frame's bytes always
  // stand together, so it is read in place: from `start`, blockLen bytes.
  beginFrame();
  std::size_t start = 0;
  for (std::size_t i = 0; i < work.size(); ++i) {
    if (mParser.rcvState == ProtocalParser::NO_START_RCV) {
      if (work[i] != ProtocalParser::PACKET_START_FLAG) continue;
      beginFrame();
      start = i;
    }
    if (!store(work[i])) continue;
    const std::string_view frame = std::string_view(work).substr(start, i + 1 - start);
    if (std::optional<std::string> package = open(frame, what)) {
      // A reply in hand is worth more than the bytes behind it.
      if (!tryKeep(std::string_view(work).substr(i + 1))) forget();
      return package;
    }
  }
  keep(work.size() > kMaxKept ? unfinished(work, start) : work);
  mParser.needMore = true;
  return std::nullopt;
}

void Receiver::beginFrame() {
  mParser.rcvState = ProtocalParser::START_RCV;
  mParser.blockSize = ProtocalParser::DEFLAUT_PARK_BLOCK_SIZE;
  mParser.blockLen = 0;
}

// Whether the byte completes a frame.
bool Receiver::store(char byte) {
  if (mParser.blockLen == mParser.blockSize) {
    mParser.blockSize += ProtocalParser::DEFLAUT_PARK_BLOCK_SIZE;
  }
  ++mParser.blockLen;
  if (mParser.rcvState == ProtocalParser::START_RCV) {
    if (byte == ProtocalParser::PACKET_END_FLAG) {
      mParser.rcvState = ProtocalParser::START_RCV_END;
      mParser.crcLeft = ProtocalParser::END_CRC_SIZE;
    }
    return false;
  }
  if (--mParser.crcLeft > 0) return false;
  mParser.rcvState = ProtocalParser::NO_START_RCV;
  return true;
}

// What is kept of a stream without an end in sight: only the frame that is still open may yet
// become a reply, and not even that once it alone is too long.
std::string_view Receiver::unfinished(std::string_view work, std::size_t start) const {
  if (mParser.rcvState == ProtocalParser::NO_START_RCV) return {};
  work.remove_prefix(start);
  return work.size() > kMaxKept ? std::string_view() : work;
}

void Receiver::keep(std::string_view bytes) {
  if (!tryKeep(bytes)) throw std::bad_alloc();
}

// False when memory is out, which leaves everything as it was.
bool Receiver::tryKeep(std::string_view bytes) {
  char* kept = nullptr;
  if (!bytes.empty()) {
    kept = new (std::nothrow) char[bytes.size()];
    if (kept == nullptr) return false;
    bytes.copy(kept, bytes.size());
  }
  delete[] std::exchange(mParser.pending, kept);
  mParser.pendingLen = static_cast<int>(bytes.size());
  return true;
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
  const std::optional<std::string> plain = unescape(frame.substr(0, checked));
  // Escapes in the header can shorten a frame below its smallest size.
  if (!plain || plain->size() + ProtocalParser::PACKET_CRC_SIZE < ProtocalParser::PACKET_MIN_SIZE) {
    return std::nullopt;
  }
  const char whatByte = (*plain)[ProtocalParser::PACKET_WHAT_OFFSET];
  std::string payload = plain->substr(ProtocalParser::PACKET_DATA_OFFSET,
                                      plain->size() - ProtocalParser::PACKET_DATA_OFFSET - 1);
  if (what > kExtendedCommand) {
    if (!openExtended(payload, whatByte, what)) return std::nullopt;
  } else {
    if (static_cast<signed char>(whatByte) != what) return std::nullopt;
    if (hasCipher() && !payload.empty() && whatByte != kSecretReply) decipher(payload);
    payload.insert(payload.begin(), whatByte);
  }
  mParser.packageLen = static_cast<int>(payload.size());
  return payload;
}

// Opens the reply to a 16-bit command; false when the payload answers another one.
bool Receiver::openExtended(std::string& payload, char whatByte, short what) const {
  if (payload.size() < kCodeSize) return false;
  auto code = static_cast<short>(lowFirstAt(payload, 0));
  if (hasCipher() && whatByte != kSecretReply && code != kIsSecret) {
    code = static_cast<short>(lowFirstAt(decipher(payload), 0));
  }
  return code == what;
}

// Deciphers a payload in place; one that cannot be deciphered stays as it came. Returns what the
// cipher put out in either case, at least a block of it.
std::string Receiver::decipher(std::string& payload) const {
  std::string plain(payload.size() + kMaxBlock, '\0');
  int length = 0;
  if (mParser.desKey != nullptr) {
    length = cipher::desDecrypt(payload, mParser.desKey, plain);
  } else if (mParser.aes != nullptr) {
    length = mParser.aes->decrypt(payload, plain);
  } else if (mParser.sm4 != nullptr) {
    length = mParser.sm4->decrypt(payload, plain);
  }
  if (length > 0) payload = plain.substr(0, static_cast<std::size_t>(length));
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
  delete[] pending;
  delete aes;
  delete md5;
  delete[] desKey;
  delete sm4;
}

char* ProtocalParser::recvProc(char* data, int len, short what) {
  char* const none = nullptr;
  return tovi::whereMemoryAllows(none, [&] {
    const auto package = Receiver(*this).receive(tovi::viewOf(data, len), what);
    return package ? tovi::newArray(*package) : nullptr;
  });
}

int ProtocalParser::getPackageLen() const { return packageLen; }

// Kept: the interface names it.
char* ProtocalParser::recvPackage(char* frame, int len, short what) {
  const auto package = Receiver(*this).open(tovi::viewOf(frame, len), what);
  return package ? tovi::newArray(*package) : nullptr;
}
