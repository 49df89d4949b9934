#include <tovisdk/codec.h>
#include <tovisdk/protocal_parser.h>

#include <memory>
#include <string>
#include <string_view>

#include "cipher/aes.h"
#include "cipher/des.h"
#include "cipher/md5.h"
#include "cipher/sm4.h"
#include "wire/frame.h"

namespace {

using tovi::cipher::Aes128;
using tovi::cipher::Md5;
using tovi::cipher::Sm4;

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

bool unescape(std::string_view escaped, std::string& plain) {
  plain.reserve(escaped.size());
  for (std::size_t i = 0; i < escaped.size(); ++i) {
    char byte = escaped[i];
    if (byte == ProtocalParser::PACKET_TRANSFER_FLAG &&
        (++i == escaped.size() || !unescapeByte(escaped[i], byte))) {
      return false;
    }
    plain += byte;
  }
  return true;
}

char* newArray(std::string_view bytes) {
  char* array =
      new char[bytes.size() + 1];  // one more, so that an empty array is not a special case
  bytes.copy(array, bytes.size());
  return array;
}

}  // namespace

ProtocalParser::ProtocalParser() = default;

ProtocalParser::ProtocalParser(char* key, int mode) {
  std::unique_ptr<char[]> owned(key);
  if (owned == nullptr) return;
  if (mode == tovi::wire::kDes) {
    desKey = owned.release();
  } else if (mode == tovi::wire::kAes || mode == tovi::wire::kSm4) {
    md5 = new Md5;
    md5->update(owned.get());
    const std::string cipherKey = md5->hexDigest().substr(8, 16);
    if (mode == tovi::wire::kAes) aes = new Aes128(cipherKey);
    if (mode == tovi::wire::kSm4) sm4 = new Sm4(cipherKey);
  }
}

ProtocalParser::~ProtocalParser() {
  delete[] pending;
  delete aes;
  delete md5;
  delete[] desKey;
  delete sm4;
}

char* ProtocalParser::recvProc(char* data, int len, short what) {
  needMore = false;
  std::string work(
      pending == nullptr ? "" : std::string_view(pending, static_cast<std::size_t>(pendingLen)));
  if (data != nullptr && len > 0) work.append(data, static_cast<std::size_t>(len));

  // The bytes are taken to begin inside a frame, whatever the first one is. A frame's bytes always
  // stand together, so it is read in place: from `start`, blockLen bytes.
  rcvState = START_RCV;
  blockSize = DEFLAUT_PARK_BLOCK_SIZE;
  blockLen = 0;
  packageLen = 0;
  std::size_t start = 0;
  for (std::size_t i = 0; i < work.size(); ++i) {
    if (rcvState == NO_START_RCV) {
      if (work[i] != PACKET_START_FLAG) continue;
      rcvState = START_RCV;
      blockSize = DEFLAUT_PARK_BLOCK_SIZE;
      blockLen = 0;
      start = i;
    }
    if (!storeByte(work[i])) continue;
    if (char* package = recvPackage(work.data() + start, blockLen, what)) {
      keep(std::string_view(work).substr(i + 1));
      return package;
    }
  }
  needMore = true;
  if (work.size() > kMaxKept) {
    // No end in sight: only the frame that is still open may yet become a reply.
    work.erase(0, rcvState == NO_START_RCV ? work.size() : start);
    if (work.size() > kMaxKept) work.clear();
  }
  keep(work);
  return nullptr;
}

// Whether the byte completes a frame.
bool ProtocalParser::storeByte(char byte) {
  if (blockLen == blockSize) blockSize += DEFLAUT_PARK_BLOCK_SIZE;
  ++blockLen;
  if (rcvState == START_RCV) {
    if (byte == PACKET_END_FLAG) {
      rcvState = START_RCV_END;
      crcLeft = END_CRC_SIZE;
    }
    return false;
  }
  if (--crcLeft > 0) return false;
  rcvState = NO_START_RCV;
  return true;
}

void ProtocalParser::keep(std::string_view bytes) {
  delete[] pending;
  pending = bytes.empty() ? nullptr : newArray(bytes);
  pendingLen = static_cast<int>(bytes.size());
}

char* ProtocalParser::recvPackage(char* frame, int len, short what) {
  if (len < PACKET_MIN_SIZE) return nullptr;
  const int checked = len - PACKET_CRC_SIZE;
  if (pubCalcCRC(frame, checked) != bytesToShort(frame, checked)) return nullptr;
  std::string plain;
  if (!unescape(std::string_view(frame, static_cast<std::size_t>(checked)), plain)) return nullptr;
  // Escapes in the header can shorten a frame below its smallest size.
  if (plain.size() + PACKET_CRC_SIZE < PACKET_MIN_SIZE) return nullptr;
  const char whatByte = plain[PACKET_WHAT_OFFSET];
  std::string payload = plain.substr(PACKET_DATA_OFFSET, plain.size() - PACKET_DATA_OFFSET - 1);
  if (what > tovi::wire::kExtendedCommand) {
    if (!openExtended(payload, whatByte, what)) return nullptr;
    return newPackage(payload);
  }
  if (static_cast<signed char>(whatByte) != what) return nullptr;
  if (hasCipher() && !payload.empty() && whatByte != tovi::wire::kSecretReply) openPayload(payload);
  return newPackage(whatByte + payload);
}

// Opens the reply to a 16-bit command; false when the payload answers another one.
bool ProtocalParser::openExtended(std::string& payload, char whatByte, short what) const {
  if (payload.size() < kCodeSize) return false;
  short code = bytesToShort(payload.data(), 0);
  if (hasCipher() && whatByte != tovi::wire::kSecretReply && code != tovi::wire::kIsSecret) {
    std::string deciphered = openPayload(payload);
    code = bytesToShort(deciphered.data(), 0);
  }
  return code == what;
}

// Deciphers a payload in place; one that cannot be deciphered stays as it came. Returns what the
// cipher put out in either case, at least a block of it.
std::string ProtocalParser::openPayload(std::string& payload) const {
  std::string plain(payload.size() + kMaxBlock, '\0');
  int length = 0;
  if (desKey != nullptr) {
    length = tovi::cipher::desDecrypt(payload, desKey, plain);
  } else if (aes != nullptr) {
    length = aes->decrypt(payload, plain);
  } else if (sm4 != nullptr) {
    length = sm4->decrypt(payload, plain);
  }
  if (length > 0) payload = plain.substr(0, static_cast<std::size_t>(length));
  return plain;
}

bool ProtocalParser::hasCipher() const {
  return desKey != nullptr || aes != nullptr || sm4 != nullptr;
}

char* ProtocalParser::newPackage(std::string_view bytes) {
  packageLen = static_cast<int>(bytes.size());
  return newArray(bytes);
}
