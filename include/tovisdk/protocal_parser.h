// SPDX-License-Identifier: MIT
/// @file
/// Finding replies in the bytes that arrive on a connection.
#ifndef TOVISDK_PROTOCAL_PARSER_H
#define TOVISDK_PROTOCAL_PARSER_H

#include <tovisdk/export.h>

#include <string>
#include <string_view>

namespace tovi::cipher {
class Aes128;
class Md5;
class Sm4;
}  // namespace tovi::cipher
namespace tovi::wire {
class Receiver;
}

/// Turns received bytes into checked, unescaped, deciphered reply packages. It knows no socket:
/// feed it any slice of the stream. One parser belongs to one connection and keeps the bytes that
/// are not used up yet, at most about 4 MiB of them.
class TOVISDK_API ProtocalParser {
 public:
  static constexpr char PACKET_START_FLAG = static_cast<char>(0xAA);     ///< first byte of a frame
  static constexpr char PACKET_END_FLAG = static_cast<char>(0xCC);       ///< ends the escaped part
  static constexpr char PACKET_TRANSFER_FLAG = static_cast<char>(0xEE);  ///< escape byte
  static constexpr int PACKET_WHAT_OFFSET = 3;            ///< offset of the command byte
  static constexpr int PACKET_DATA_OFFSET = 4;            ///< offset of the first payload byte
  static constexpr int PACKET_MIN_SIZE = 7;               ///< a frame with an empty payload
  static constexpr int PACKET_WITHOUT_DATA_SIZE = 7;      ///< frame bytes that are not payload
  static constexpr int PACKET_WITHOUT_WHAT_AND_DATA = 6;  ///< neither payload nor command byte
  static constexpr int PACKET_CRC_SIZE = 2;               ///< width of the checksum
  static constexpr int END_CRC_SIZE = 2;                  ///< bytes that follow the end flag
  static constexpr char DES_ADD_SIZE = 7;                 ///< slack in the size of a frame's buffer
  static constexpr char WHAT_SECRET_DES_MD5_REQ = 0x70;   ///< command that is never enciphered

  static constexpr int NO_START_RCV = -1;               ///< waiting for a start flag
  static constexpr int START_RCV = 0;                   ///< inside a frame, before its end flag
  static constexpr int START_RCV_END = 1;               ///< reading the checksum
  static constexpr int DEFLAUT_PARK_BLOCK_SIZE = 4096;  ///< step in which room for a frame grows

  /// A parser for plain replies.
  ProtocalParser();

  /// A parser for enciphered replies: mode 1 DES, 2 AES-128, 3 SM4; any other mode is plain, and so
  /// is a null key. Where memory is out, replies stay as they come.
  /// @param key a zero-terminated password. In mode 1 it is an array made with new[], which the
  /// parser keeps and releases; in every other mode it is read here and stays the caller's
  ProtocalParser(char* key, int mode);

  ProtocalParser(const ProtocalParser&) = delete;
  ProtocalParser& operator=(const ProtocalParser&) = delete;
  ~ProtocalParser();

  /// Adds `len` bytes and looks for the reply to command `what`. With `len` 0 the kept bytes are
  /// searched again.
  ///
  /// @param data the bytes; copied. May be null when len is 0
  /// @param len how many; below 0 counts as 0
  /// @param what the awaited code. 8-bit codes of 0x80 and above are passed widened with their
  /// sign; codes above 0xEF are 16-bit commands
  /// @return a new array that the caller releases with deleteArry: the command byte and the plain
  /// payload, or for a 16-bit command the payload alone, which begins with the code, low byte
  /// first. Null when no matching reply is complete; frames with a wrong checksum, a bad escape or
  /// another command are skipped. Null as well when memory is out; the bytes are then not taken and
  /// may be given again.
  char* recvProc(char* data, int len, short what);

  /// Length in bytes of the package that the last recvProc returned; 0 when it returned none.
  int getPackageLen() const;

 private:
  friend class tovi::wire::Receiver;

  char* recvPackage(char* frame, int len, short what);

  int rcvState = NO_START_RCV;
  int blockSize = 0;
  int blockLen = 0;
  int crcLeft = END_CRC_SIZE;
  char* desKey = nullptr;
  tovi::cipher::Md5* md5 = nullptr;
  tovi::cipher::Aes128* aes = nullptr;
  tovi::cipher::Sm4* sm4 = nullptr;
  char* pending = nullptr;
  bool needMore = false;
  bool lostBytes = false;
  int packageLen = 0;
  int pendingLen = 0;
  short searchedFor = 0;
  unsigned roomSize = 0;
  char* room = nullptr;
};

#endif
