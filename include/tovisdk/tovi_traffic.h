/// @file
/// One controller: the object through which a host sets and reads it.
#ifndef TOVISDK_TOVI_TRAFFIC_H
#define TOVISDK_TOVI_TRAFFIC_H

#include <tovisdk/export.h>

#include <cstdint>
#include <string>

#include <tovisdk/device_type.h>
#include <tovisdk/outcome.h>
#include <tovisdk/protocal_parser.h>
#include <tovisdk/socket_result.h>

namespace tovi::device {
class Operation;
}

/// One display controller.
///
/// In client mode each operation opens a TCP connection of its own and closes it again. In server
/// mode the object uses a socket that the host has accepted from a controller, and never closes it.
///
/// Every operation blocks until it is done. The reply is awaited for at most three reads, each
/// bounded by the time-out, with pauses of 500 ms between them; a silent controller therefore costs
/// up to three time-outs and one second. Nothing is thrown and no signal is raised.
///
/// Operations that return `int` return 1 (SUCCESS), or a negative code:
/// - -11 (SEND_NOT_RECV_ERROR): sent, but no matching reply came
/// - -12 (SEND_RECV_ERROR): the controller refused, its status byte is not 1
/// - -14 (SOCKET_ERROR_CODE): no connection could be obtained
/// - -15 (ARGUMENT_ERROR): an argument was refused; nothing was sent
///
/// Use one object from one thread at a time; distinct objects are independent.
class TOVISDK_API ToviTraffic {
 public:
  static constexpr int TEMP_SIZE = 100;          ///< receive buffer of an ordinary query, in bytes
  static constexpr int BIG_SIZE = 4096;          ///< receive buffer of a large query
  static constexpr int BIG_STRING_SIZE = 8192;   ///< buffer for large text replies
  static constexpr int SCREENSHOT_SIZE = 65535;  ///< receive buffer of a screenshot
  static constexpr int MAX_FAIL_COUNT = 3;       ///< reads before a reply is given up
  static constexpr int SUCCESS = 1;
  static constexpr int SEND_NOT_RECV_ERROR = -11;
  static constexpr int SEND_RECV_ERROR = -12;
  static constexpr int SOCKET_ERROR_CODE = -14;
  static constexpr int ARGUMENT_ERROR = -15;

  /// @name Connection
  /// @{

  /// Client mode. Nothing is connected yet.
  /// @param ip dotted IPv4 text of at most 19 characters; copied. A longer or null one is refused:
  /// an
  ///        error is logged and every operation then ends as "no connection"
  /// @param port TCP port
  ToviTraffic(const char* ip, unsigned short port);

  /// Server mode, on a connected socket that stays the host's own: it is never closed here and its
  /// options are left alone. On POSIX the value is the file descriptor. 0 means client mode without
  /// an address, all bits set an invalid socket; with either every operation ends as "no
  /// connection".
  explicit ToviTraffic(std::uint64_t socket);

  ToviTraffic(const ToviTraffic&) = delete;
  ToviTraffic& operator=(const ToviTraffic&) = delete;
  ~ToviTraffic();

  /// The time-out of each send and each read, in milliseconds, for operations started afterwards;
  /// 20000 from the start. 0 waits without limit; a negative value counts as 0. In server mode a
  /// shorter receive time-out that the host has set on its socket holds instead.
  void setTimeout(int ms);

  /// Why the last operation ended as it did.
  ToviOutcome lastOutcome() const;

  /// Forgets bytes that were kept from earlier replies, so that no late answer is matched to a new
  /// question.
  void discardKeptBytes();

  /// @}
  /// @name Keys
  /// A key is a password of exactly 8 characters; it enciphers the requests and deciphers the
  /// replies of all later operations. With several keys set, DES comes before AES and AES before
  /// SM4. The first reply read on an object fixes how replies are deciphered: set keys before the
  /// first operation.
  ///
  /// A null password empties the setter's own slot. A password of another length is refused: a
  /// warning is logged and nothing changes. Neither a setter nor clearPassword empties the slots of
  /// the other ciphers: a DES key set earlier stays in force after setAesKey. The way back to plain
  /// exchanges is each setter called with null.
  /// @{

  void setDesKey(const char* password);
  void setAesKey(const char* password);
  void setSM4Key(const char* password);

  /// Logs that the key texts are discarded. The slots still count as set; see above for the way
  /// back to plain exchanges.
  void clearPassword();

  /// @}
  /// @name Power, brightness and volume
  /// @{

  /// Switches the screen on or off. Command 0x05, reply 0x06; payload 1 byte: 1 on, 2 off.
  /// @return 1, -11, -12 or -14
  int setPower(bool on);

  /// Sets the brightness by hand. Command 0x07, reply 0x08; payload 2 bytes: 2 (manual), level.
  /// @param level 0 to 255; any other value is sent as 125
  /// @return 1, -11, -12 or -14
  int setBrightness(int level);

  /// Sets the volume. Command 0x45, reply 0x46; payload 1 byte.
  /// @param volume 0 to 255; the low byte of any other value is sent
  /// @return 1, -11, -12 or -14
  int setDeviceVolume(int volume);

  /// Reads the volume. Command and reply 0xA9, no payload; reply byte 1.
  /// @return the volume as a byte, to be read as unsigned 0 to 255; 0xFF without a usable reply
  char getVolumeValue();

  /// @}
  /// @name Identity and status
  /// @{

  /// Names the controller. Command 0x7E, reply 0x7F; payload 0x00 and the bytes of the name.
  /// @param name zero-terminated text, sent as it is (controllers expect UTF-8); may be empty
  /// @return 1, -11, -12, -14, or -15 for null
  int setDeviceName(const char* name);

  /// Reads the controller's name. Command 0x7E, reply 0x7F; payload 0x01; text from reply byte 2.
  /// @return a new zero-terminated text that the caller releases with deleteArry; null when no
  /// reply
  ///         came or it is not longer than 2 bytes
  char* getDeviceName();

  /// Reads the firmware's version. Command 0x23, reply 0x24, no payload; text from reply byte 1.
  /// @return a new zero-terminated text that the caller releases with deleteArry; null when no
  /// reply
  ///         came
  char* getDeviceVersion();

  /// Reads the serial number. Command and reply 0xD5, no payload; text from reply byte 1.
  /// @return the text; empty when no reply came
  std::string getSn();

  /// Reads the status block. Command 0x01, reply 0x02, no payload; the reply must have exactly 19
  /// bytes: 7 date value, 8 door (1 open), 9 screen power (1 on), 10 screen state (signed), 11
  /// temperature sign (1 positive), 12 degrees (signed), 13 input (1 internal), 16 ambient
  /// brightness, 17 brightness mode (signed), 18 screen brightness.
  /// @return a new object that the caller deletes, or releases with deleteObj; null without such a
  ///         reply
  DeviceType* getDeviceType();

  /// @}
  /// @name Maintenance
  /// @{

  /// Restarts the controller. Command 0x0D, reply 0x0E, no payload.
  /// @return 1, -11, -12 or -14
  int restartDevice();

  /// Tells the controller that the host is there. Command 0x00; payload 1 byte: 0; no reply is
  /// awaited.
  void sendHeartBeat();

  /// @}

 protected:
  /// Changes to server mode on another socket, or with 0 back to client mode.
  void setSocket(std::uint64_t socket);

 private:
  friend class tovi::device::Operation;
  friend struct ToviTestAccess;

  std::uint64_t getSocket();
  std::uint64_t connectToController();
  void closeSocket(std::uint64_t socket);

  void storeAesOrSm4Key(const char* password, char*& slot);

  char* makeSendPacket(short what, char* data, int len, int* outLen);
  int sendPacket(std::uint64_t socket, short what, char* data, int len);
  char* recv(std::uint64_t socket, short what, int* outLen);
  char* recv(std::uint64_t socket, short what, int* outLen, int bufSize);
  char* receiveOnce(std::uint64_t socket, short what, char* buffer, int bufSize);
  int receiveTimeout(std::uint64_t socket) const;
  ProtocalParser* newParser() const;

  int normalSet(char what, char rspWhat, char* data, int len);
  SocketResult* getData(short what, short rspWhat, char* data, int len);
  SocketResult* getData(short what, short rspWhat, char* data, int len, int bufSize);
  SocketResult* getData(std::uint64_t socket, short what, short rspWhat, char* data, int len);
  SocketResult* getData(std::uint64_t socket, short what, short rspWhat, char* data, int len,
                        int bufSize);
  SocketResult* getBigData(short what, short rspWhat, char* data, int len);
  char* sendAndReceive(std::uint64_t socket, short what, short rspWhat, char* data, int len,
                       int bufSize, int* outLen);
  SocketResult* newResult(char* package, int len);

  char* mIp;
  unsigned short mPort;
  int mTimeout;
  std::uint64_t mSocket;
  ProtocalParser* mProtocalParser;
  char* mDesKey;
  char* mAesKey;
  char* mSm4Key;
  ToviOutcome mOutcome;
};

#endif
