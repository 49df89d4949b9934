// SPDX-License-Identifier: MIT
/// @file
/// One controller: the object through which a host sets and reads it.
#ifndef TOVISDK_TOVI_TRAFFIC_H
#define TOVISDK_TOVI_TRAFFIC_H

#include <tovisdk/export.h>

#include <atomic>
#include <cstdint>
#include <ctime>
#include <functional>
#include <list>
#include <string>

#include <tovisdk/device_type.h>
#include <tovisdk/outcome.h>
#include <tovisdk/protocal_parser.h>
#include <tovisdk/records.h>
#include <tovisdk/socket_result.h>
#include <tovisdk/waiting.h>

namespace tovi::session {
class Session;
}

/// One display controller.
///
/// In client mode each operation opens a TCP connection of its own and closes it again, unless
/// setKeepConnection says otherwise. In server mode the object uses a socket that the host has
/// accepted from a controller, and never closes it.
///
/// Every operation blocks until it is done, or cancel ends it. The reply is awaited for at most
/// three reads, each bounded by the time-out, with pauses of 500 ms between them; a silent
/// controller therefore costs up to three time-outs and one second. With setWaiting it costs one.
/// Nothing is thrown and no signal is raised: where memory is out, the connection is closed, an
/// operation gives the value with which it fails (-11 for settings) and lastOutcome is OutOfMemory.
///
/// Any length of text goes out plain. With a key set, the payload of a request has at most 65527
/// bytes with DES and 65519 with AES and SM4, the code of a 16-bit command included; what does not
/// fit such a frame is refused.
///
/// Operations that return `int` return 1 (SUCCESS), or a negative code:
/// - -11 (SEND_NOT_RECV_ERROR): sent, but no matching reply came
/// - -12 (SEND_RECV_ERROR): the controller refused, its status byte is not 1
/// - -14 (SOCKET_ERROR_CODE): no connection could be obtained
/// - -15 (ARGUMENT_ERROR): an argument was refused; nothing was sent
///
/// Use one object from one thread at a time, but for cancel; distinct objects are independent.
class TOVISDK_API ToviTraffic {
 public:
  static constexpr int TEMP_SIZE = 100;          ///< receive buffer of an ordinary query, in bytes
  static constexpr int BIG_SIZE = 4096;          ///< receive buffer of a large query
  static constexpr int BIG_STRING_SIZE = 8192;   ///< receive buffer of texts and lists of names
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
  /// an error is logged and every operation then ends as "no connection"
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

  /// How replies are waited for in operations started afterwards; ThreeReads from the start.
  void setWaiting(ToviWaiting waiting);

  /// Client mode: whether the connection of an operation that is done stays open for the next one;
  /// it does not from the start. Before a request goes out, a kept connection that the controller
  /// has closed, or on which something came that nobody asked for, is replaced by a new one. One
  /// that breaks afterwards ends the operation as NoReply: no request is sent twice. An operation
  /// that fails closes its connection, and so does `false` here the one that is kept.
  void setKeepConnection(bool keep);

  /// Ends the operation that is running, as Stopped: within 100 ms, with the value of an operation
  /// whose reply did not come, -14 while it still connects, and -16 from sendFile. Where none is
  /// running nothing happens, now or later. The only method that may be called from another thread
  /// while one is running, or from a signal handler.
  void cancel();

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
  /// warning is logged, nothing changes and lastOutcome is RefusedArgument. Neither a setter nor
  /// clearPassword empties the slots of the other ciphers: a DES key set earlier stays in force
  /// after setAesKey. The way back to plain exchanges is each setter called with null.
  /// @{

  void setDesKey(const char* password);
  void setAesKey(const char* password);
  void setSM4Key(const char* password);

  /// Logs that the key texts are discarded. The slots still count as set; see above for the way
  /// back to plain exchanges.
  void clearPassword();

  /// @}
  /// @name Power and relays
  /// @{

  /// Switches the screen on or off. Command 0x05, reply 0x06; payload 1 byte: 1 on, 2 off.
  /// @return 1, -11, -12 or -14
  int setPower(bool on);

  /// Switches the board. Command 0x84, reply 0x85; payload 1 byte: 1 on, 2 off.
  /// @return 1, -11, -12 or -14
  int setBoardPower(bool on);

  /// Switches board and screen. Command 0x25, reply 0x26; payload 1 byte: 1 on, 0 off (not 2).
  /// @return 1, -11, -12 or -14
  int setBoardPowerAndScreenPower(bool on);

  /// Switches the multi-function card. Command 0x86, reply 0x87; payload: low bytes of a and b,
  /// then c as 1 or 0.
  /// @return 1, -11, -12 or -14
  int setMultiFunctionCardPower(int a, int b, bool c);

  /// Switches the four relays. Command and reply 0x9E; payload 4 bytes: 1 on, 2 off each.
  /// @return 1, -11, -12 or -14
  int setRelayPowers(bool relay1, bool relay2, bool relay3, bool relay4);

  /// Whether the power is on. Command and reply 0x0114, no payload.
  /// @return 1 on, 0 off, -1 no reply
  int getPowerState();

  /// Whether the screen is on. Command and reply 0xBA, no payload; reply byte 1.
  /// @return 1 on, 2 off, -1 no usable reply
  int getScreenStatus();

  /// @}
  /// @name Brightness and volume
  /// @{

  /// Sets the brightness by hand. Command 0x07, reply 0x08; payload 2 bytes: 2 (manual), level.
  /// @param level 0 to 255; any other value is sent as 125
  /// @return 1, -11, -12 or -14
  int setBrightness(int level);

  /// Mode and level. Command and reply 0xC3, no payload; reply byte 1 mode (signed), byte 2 level.
  /// @return -1, -1 without a usable reply
  BrightnessInfo getBrightnessInfo();

  /// Switches to automatic brightness (command 0x07, payload 01 00), then sets its curve: command
  /// 0x17, reply 0x18; payload 24 bytes, of each point the ambient and the screen brightness and a
  /// zero.
  /// @param item the caller's own; null is refused
  /// @return 1, -11, -12 or -14 of the step that failed, or -15
  int setBrightnessAuto(BrightnessItem* item);

  /// The automatic brightness curve. Command 0x2B, reply 0x2C, no payload; exactly 25 bytes, point
  /// k in bytes 3k + 1 and 3k + 2.
  /// @return a new record that the caller releases; null without such a reply
  BrightnessItem* getBrightnessAuto();

  /// Passes the two bytes on. Command and reply 0xAA.
  /// @return whether the controller accepted; false, with nothing sent, when either is 0
  bool setAutoBrightnessTimeParam(char first, char second);

  /// Sets the volume. Command 0x45, reply 0x46; payload 1 byte.
  /// @param volume 0 to 255; the low byte of any other value is sent
  /// @return 1, -11, -12 or -14
  int setDeviceVolume(int volume);

  /// Reads the volume. Command and reply 0xA9, no payload; reply byte 1.
  /// @return the volume as a byte, to be read as unsigned 0 to 255; 0xFF without a usable reply
  char getVolumeValue();

  /// @}
  /// @name Timetables
  /// A list goes out as its count in one byte, then its entries: day, month, year (2 bytes, low
  /// byte first), second, minute, hour of the start, the same of the end, then what the timetable
  /// adds. Keep lists below 256 entries; one of more than 127 reads as empty. Fields are sent as
  /// they stand: year and month are calendar values.
  ///
  /// Getters give a new list that the caller releases, or null when no reply of at least 2 bytes
  /// came; an entry that the reply does not hold whole ends the list. There, years count from 1900
  /// and months from 0.
  /// @{

  /// When the screen has power. Command 0x8A, reply 0x8B; entries of 14 bytes.
  /// @return 1, -11, -12 or -14
  int setDevicePowerByTimeList(std::list<DevicePowerByTimeParam> list);
  /// That timetable. Command and reply 0x52, no payload.
  /// @return a new list that the caller releases, or null
  std::list<DevicePowerByTimeParam>* getDevicePowerByTimeList();

  /// Which program plays when. Command 0x41, reply 0x42; entries of 16 bytes: playId's low byte and
  /// a zero.
  /// @return 1, -11, -12 or -14
  int setPlayByTimeList(std::list<PlayByTimeParam> list);
  /// That timetable. Command and reply 0x53, no payload.
  /// @return a new list that the caller releases, or null
  std::list<PlayByTimeParam>* getPlayByTimeList();

  /// Switches to brightness by timetable (command 0x07, payload 03 00), then sets it: command 0x43,
  /// reply 0x44; entries of 15 bytes: the brightness.
  /// @return 1, -11, -12 or -14 of the step that failed
  int setBrightnessByTimeList(std::list<BrightnessByTimeParam> list);
  /// That timetable. Command and reply 0x51, no payload.
  /// @return a new list that the caller releases, or null
  std::list<BrightnessByTimeParam>* getBrightnessByTimeList();

  /// Sets the advance timing. Command and reply 0xDC; payload: the text, at most 4096 bytes.
  /// @return 1, -11, -12, -14, or -15 for a longer text
  int setAdvanceTiming(const std::string& timing);
  /// The advance timing. Command and reply 0xDD; payload 01; text from byte 2 when byte 1 is 1.
  /// @return empty without a usable reply
  std::string getAdvanceTiming();
  /// Removes the advance timing. Command and reply 0xDE; payload 01.
  /// @return 1, -11, -12 or -14
  int removeAdvanceTiming();

  /// @}
  /// @name Clock
  /// @{

  /// Sets the clock. Command 0x09, reply 0x0A; payload 7 bytes: year (tm_year + 1900, low byte
  /// first), month (tm_mon + 1), day, hour, minute, second.
  /// @param time the caller's own; null is refused
  /// @return 1, -11, -12, -14 or -15
  int setTime(std::tm* time);

  /// Sets clock and time zone. Command and reply 0x95; payload: the text "time,zoneId,utcOffset",
  /// which ends at its first white space. The time counts milliseconds since 1970.
  /// @return 1, -11, -12 or -14
  int setTimeAndTimeZone(TimeZoneParam param);

  /// Clock and time zone. Command and reply 0x96, no payload; text from byte 1.
  /// @return a new record that the caller releases; null without a reply of three parts
  TimeZoneParam* getTimeAndTimeZone();

  /// Sets time synchronisation. Command and reply 0x97; payload: 1 or 0, then the server text.
  /// @return 1, -11, -12 or -14
  int setDeviceNTPParam(DeviceNTPParam param);

  /// Time synchronisation. Command and reply 0x98, no payload; at least 3 bytes: byte 1 the flag,
  /// text from byte 2.
  /// @return a new record that the caller releases; null without a usable reply
  DeviceNTPParam* getDeviceNTPParam();

  /// @}
  /// @name Display and video
  /// Replies of JSON are accepted when longer than 2 bytes with byte 1 equal to 1; the JSON stands
  /// from byte 2 on. Without an accepted reply every field is 0 or empty.
  /// @{

  /// Sets the output resolution, in pixels and Hz. Command and reply 0xA5; payload
  /// {"displayMode":1,"width":…,"height":…,"refreshRate":…}.
  /// @return 1, -11, -12 or -14
  int setCustomResolution(int width, int height, int refreshRate);
  /// The output resolution. Command and reply 0xA6, no payload; member "value".
  ResolutionInfo getCurrentResolution();

  /// Sets the EDID timing. Command and reply 0xA4; payload {"fieldRate":…,"width":…,"height":…}.
  /// @return 1, -11, -12 or -14
  int setEdidInfo(EdidInfo info);
  /// The EDID timing. Command and reply 0xA2, no payload.
  EdidInfo getEdidInfo();

  /// Selects the video source. Command and reply 0xA3; payload
  /// {"isScale":"false","offsetX":0,"offsetY":0,"videoMode":1,"videoSource":…}.
  /// @return 1, -11, -12 or -14
  int setVideoControlInfo(int videoSource);
  /// The video source. Command and reply 0xA1, no payload.
  VideoControlInfo getVideoControlInfo();
  /// The sources to choose from. Command and reply 0xE7, no payload; text from byte 2 when byte 1
  /// is 1.
  /// @return empty without a usable reply
  std::string getSupportVideoSource();

  /// Size of the display in pixels. Command 0x82, reply 0x83, no payload; bytes 1-2 width, 3-4
  /// height, low byte first.
  /// @return -1, -1 without a usable reply
  DeviceSize getDeviceSize();

  /// Smooths texts, by three flags. Command 0xE5, no reply; payload 3 bytes: 1 or 0.
  void setAntiAliasing(bool first, bool second, bool third);
  /// The three flags. Command and reply 0xE6, no payload; bytes 1 to 3, 1 is true.
  /// @return all false without a reply of at least 4 bytes
  TextAttr getAntiAliasing();

  /// Makes controllers play in step. Command and reply 0xBC; payload 1 or 0.
  /// @return whether the controller accepted
  bool setSyncPlay(bool on);
  /// Whether the controller acknowledges the question. Command and reply 0xBD, no payload. It tells
  /// nothing of a stored state.
  bool getSyncPlay();

  /// Switches the pre-stored screen. Command and reply 0x0112; payload 01 and 1 or 0.
  /// @return reply byte 3, signed; -1 without a reply longer than 3 bytes
  int setPreStoredScreenEnabled(bool on);
  /// The pre-stored screen's two flags. Command and reply 0x0112; payload 00; reply bytes 3 and 4,
  /// signed.
  /// @return first -1 without a reply longer than 4 bytes
  PreStoredScreenEnabled getPreStoredScreenEnabled();

  /// Chooses a font. Command and reply 0xD2; payload: the text, at most 1024 bytes.
  /// @return 1, -11, -12, -14, or -15 for a longer text
  int setFont(const std::string& font);
  /// Fonts on the controller. Command and reply 0xD1, no payload; text from byte 2 when byte 1 is
  /// 1.
  /// @return empty without a usable reply
  std::string getFontList();

  /// Looks for broken pixels. Command 0x0B, reply 0x0C, no payload; at least 6 bytes and byte 1
  /// equal to 1: bytes 2-5 their number, low byte first.
  /// @return 0, 0 without such a reply
  ScreenPointDetect startScreenPointDetect();

  /// Looks for broken pixels and fetches what was found, on one connection. Command 0x0B, reply
  /// 0x0C; then command 0x36, reply 0x37: its first reply's bytes 2-3 tell how many parts follow,
  /// at most 4096 are taken.
  /// @return the parts' payloads one after another; empty when none came
  std::string getDetectErrorPointInfo();

  /// @}
  /// @name What is playing
  /// @{

  /// The item on screen. Command 0x2D, reply 0x2E, no payload; more than 3 bytes: byte 1 running
  /// (1), byte 3 identifier (signed), text from byte 4.
  /// @return a new object that the caller releases; null without a usable reply
  DeviceNowPlayItem* getNowPlayContent();

  /// The whole program. Command 0x3A, reply 0x3B, no payload; more than 1 byte: byte 1 identifier
  /// (signed), text from byte 2.
  /// @return a new object that the caller releases; null without a usable reply
  DeviceNowPlayList* getNowPlayAllContent();

  /// @}
  /// @name Identity and status
  /// @{

  /// Names the controller. Command 0x7E, reply 0x7F; payload 0x00 and the bytes of the name.
  /// @param name zero-terminated text, sent as it is (controllers expect UTF-8); may be empty
  /// @return 1, -11, -12, -14, or -15 for null
  int setDeviceName(const char* name);

  /// Reads the controller's name. Command 0x7E, reply 0x7F; payload 0x01; text from reply byte 2.
  /// @return a new zero-terminated text that the caller releases with deleteArry; null when no
  /// reply came or it is not longer than 2 bytes
  char* getDeviceName();

  /// Reads the firmware's version. Command 0x23, reply 0x24, no payload; text from reply byte 1.
  /// @return a new zero-terminated text that the caller releases with deleteArry; null when no
  /// reply came
  char* getDeviceVersion();

  /// Reads the serial number. Command and reply 0xD5, no payload; text from reply byte 1.
  /// @return the text; empty when no reply came
  std::string getSn();

  /// Reads the MAC address. Command and reply 0xB3, no payload; exactly 7 bytes.
  /// @return bytes 1 to 6 in lower-case hexadecimal without leading zeros, ":" between, as in
  /// "0:1a:b:0:ff:5"; empty without such a reply
  std::string getMac();

  /// Reads the status block. Command 0x01, reply 0x02, no payload; the reply must have exactly 19
  /// bytes: 7 date value, 8 door (1 open), 9 screen power (1 on), 10 screen state (signed), 11
  /// temperature sign (1 positive), 12 degrees (signed), 13 input (1 internal), 16 ambient
  /// brightness, 17 brightness mode (signed), 18 screen brightness.
  /// @return a new object that the caller deletes, or releases with deleteObj; null without such a
  /// reply
  DeviceType* getDeviceType();

  /// Memory, as the controller counts it. Command 0x47, reply 0x48, no payload; bytes 1-4 total,
  /// 5-8 free, low byte first.
  /// @return -1, -1 without a usable reply
  DeviceMemorySize getDeviceMemorySize();

  /// Processor and storage. Command and reply 0xAF, no payload; byte 1 is 1, JSON from byte 2 with
  /// "cpuUsage", "diskTotal" and "diskFree".
  CpuAndMemoryInfo getCpuAndMemoryInfo();

  /// The system's data. Command and reply 0xC2, no payload; text from byte 2 when byte 1 is 1.
  /// @return empty without a usable reply
  std::string getSystemInfo();  ///< command 0xC2

  /// Monitoring data. Command and reply 0xA0, no payload; text from byte 2 when byte 1 is 1.
  /// @return empty without a usable reply
  std::string getSurveil();  ///< command 0xA0

  /// @}
  /// @name Network
  /// @{

  /// Sets the network addresses. Command 0x19, no reply; payload 26 bytes: ip, netmask and gateway
  /// (4 bytes each, first field first), port (low byte first), server, zeros.
  void setDeviceNetBasicParam(DeviceNetBasicParam param);

  /// Back to the factory's addresses. Command 0x21, no reply, no payload.
  void resetDeviceIpToDefault();

  /// Keeps a connection. Command 0xF3, reply 0xF4; payload 4 bytes: 1 or 0, interval (low byte
  /// first), low byte of value.
  /// @param interval below 60 is sent as 60; above 65535 its low 16 bits are sent, which may be
  /// less
  /// @return 1, -11, -12 or -14
  int setVirtualConnection(bool on, int interval, int value);
  /// The kept connection. Command and reply 0xD3, no payload; at least 5 bytes: flag, interval
  /// (bytes 2-3), value.
  /// @return false, -1, -1 without a usable reply
  VirtualParam getVirtualConnection();

  /// Sets the address that the controller pings. Command and reply 0x0101; payload: the text.
  /// @return 1 accepted, 0 not, -1 no reply, or -15 for a text that fits no frame
  int setPingIp(const std::string& address);
  /// That address. Command and reply 0x0102, no payload; text from byte 3 when byte 2 is 1.
  /// @return empty without a usable reply
  std::string getPingIp();  ///< command 0x0102

  /// Sets the servers' addresses. Command and reply 0x010D; payload: the text.
  /// @return 1 accepted, 0 not, -1 no reply, or -15 for a text that fits no frame
  int setServerIPLists(const std::string& lists);
  /// The servers' addresses. Command and reply 0x010E, no payload; text from byte 3 when byte 2 is
  /// 1.
  /// @return empty without a usable reply
  std::string getServerIPLists();  ///< command 0x010E

  /// Adds to the whitelist. Command and reply 0x010A; payload: the text.
  /// @return 1 accepted, 0 not, -1 no reply, or -15 for a text that fits no frame
  int addWhitelist(const std::string& entry);
  /// Takes from the whitelist. Command and reply 0x010B; payload: the text.
  /// @return 1 accepted, 0 not, -1 no reply, or -15 for a text that fits no frame
  int removeWhitelist(const std::string& entry);
  /// The whitelist. Command and reply 0x0109, no payload; text from byte 3 when byte 2 is 1.
  /// @return empty without a usable reply
  std::string getWhitelist();  ///< command 0x0109

  /// @}
  /// @name Wireless and mobile
  /// @{

  /// Switches the wireless client. Command and reply 0xCB; payload 1 or 0.
  /// @return whether the controller accepted
  bool setWifiState(bool on);
  /// The wireless client's state. Command and reply 0xCA, no payload.
  /// @return reply byte 1, signed; -1 without a usable reply
  int getWifiState();

  /// The networks in reach. Command and reply 0xCE, no payload; text from byte 2 when byte 1 is 1.
  /// @return empty without a usable reply
  std::string getWifiList();  ///< command 0xCE

  /// Joins a wireless network. Command and reply 0xCF; payload: the text, at most 1024 bytes.
  /// @return 1, -11, -12, -14, or -15 for a longer text
  int connectWifi(const std::string& connection);

  /// Switches the access point. Command and reply 0xC5; payload 1 or 0.
  /// @return 1, -11, -12 or -14
  int setWifiApState(bool on);
  /// The access point's state. Command and reply 0x9B, no payload.
  /// @return reply byte 1, signed; -1 without a usable reply
  int getWifiApState();

  /// Configures the access point. Command and reply 0xC6; payload: the text, at most 1024 bytes.
  /// @return 1, -11, -12, -14, or -15 for a longer text
  int setWifiApConfig(const std::string& config);
  /// The access point's configuration. Command and reply 0xC4, no payload; text from byte 2 when
  /// byte 1 is 1.
  /// @return empty without a usable reply
  std::string getWifiApConfig();  ///< command 0xC4

  /// The mobile network's state. Command and reply 0xC9, no payload; text from byte 2 when byte 1
  /// is 1.
  /// @return empty without a usable reply
  std::string getMobileInfo();  ///< command 0xC9

  /// The SIM card's data. Command and reply 0x0108, no payload; text from byte 3 when byte 2 is 1.
  /// @return empty without a usable reply
  std::string getSimInfo();  ///< command 0x0108

  /// Changes to the software SIM. Command and reply 0x0105, no payload.
  /// @return 1 accepted, 0 not, -1 no reply
  int switchToSoftsim();

  /// Configures the LoRa radio. Command and reply 0xD7; payload: the text, at most 4096 bytes.
  /// @return 1, -11, -12, -14, or -15 for a longer text
  int setLoraInfo(const std::string& info);
  /// The LoRa radio's configuration, with the acceptance beside the text. Command and reply 0xD6,
  /// no payload; text from byte 2 when byte 1 is 1.
  /// @return result 0 and an empty text without a usable reply
  ResultParam getLoraInfo();

  /// Sets the radio's road. Command and reply 0x99; payload: of each character its distance to "0".
  /// @return 1, -11, -12, -14, or -15 for a text that fits no frame
  int setRDSRoad(const std::string& digits);
  /// The radio's road. Command and reply 0x9A; payload 01. Every byte of the reply, the command
  /// byte too, is shown as a character after "0".
  /// @return empty without a usable reply
  std::string getRDSRoad();

  /// @}
  /// @name Maintenance
  /// @{

  /// Restarts the controller. Command 0x0D, reply 0x0E, no payload.
  /// @return 1, -11, -12 or -14
  int restartDevice();

  /// Tells the controller that the host is there. Command 0x00, no reply; payload 1 byte: 0.
  void sendHeartBeat();

  /// Sets the temperature at which the screen closes. Command 0x15, reply 0x16; payload 6 bytes,
  /// the last is the temperature.
  /// @param temperature 0 to 150 degrees
  /// @return 1, -11, -12, -14, or -15 for any other value
  int setCloseScreenTemperature(int temperature);
  /// The temperature at which the screen closes. Command 0x29, reply 0x2A, no payload; byte 6.
  /// @return degrees, signed; -1 without a reply, -11 when it has 6 bytes or fewer
  int getCloseScreenTemperature();

  /// Makes settings permanent. Command and reply 0x0113; payload 1 byte.
  /// @return 1 accepted, 0 not, -1 no reply
  int solidify(unsigned char value);

  /// Makes a backup. Command and reply 0x0111; payload 01.
  /// @return reply byte 3, signed; -1 without a reply longer than 3 bytes
  int backups();
  /// How the last backup went. Command and reply 0x0111; payload 00; byte 3 the state, the rest
  /// from byte 4.
  /// @return a new record that the caller releases; never null
  BackUpsInfo* getBackupsTimes();

  /// Switches remote shell access. Command and reply 0x0110; payload 01 and 1 or 0.
  /// @return 1 accepted, 0 not, -1 no reply
  int setSSHEnabled(bool on);
  /// Whether remote shell access is on. Command and reply 0x0110; payload 00; byte 2 must be 0,
  /// byte 3 is the flag.
  /// @return 1 on, 0 off, -1 without a usable reply
  int getSSHEnabled();

  /// Where the log archive is. Command and reply 0x010F, no payload; text from byte 3 when byte 2
  /// is 1. One read takes up to 120000 bytes.
  /// @return empty without a usable reply
  std::string getLogZipPath();  ///< command 0x010F; a reply of up to 120000 bytes per read

  /// Configures the sensors. Command and reply 0xC8; payload: the text, at most 4096 bytes.
  /// @return 1, -11, -12, -14, or -15 for a longer text
  int setSensorInfo(const std::string& info);
  /// The sensors. Command and reply 0xC7, no payload; text from byte 2 when byte 1 is 1.
  /// @return empty without a usable reply
  std::string getSensorInfo();  ///< command 0xC7

  /// Removes an application. Command and reply 0x9F; payload: the text, its name, 1 to 256 bytes.
  /// @return 1, -11, -12, -14, or -15 for a name of any other length
  int removeAppPageName(const std::string& package);

  /// Empties the cache. Command and reply 0x0115, no payload.
  /// @return 1 accepted, 0 not, -1 no reply
  int clearCache();

  /// @}
  /// @name Secure mode
  /// The controller's own: whether it expects enciphered traffic, and with which key.
  /// @{

  /// Whether the controller expects enciphered traffic. Command and reply 0x010C, no payload; plain
  /// in both directions whatever key is set.
  /// @return 1 secure, 0 not, -1 no reply
  int getIsSecret();

  /// Sets the controller's key. Command and reply 0x0103; payload: the text, enciphered like any
  /// other.
  /// @return whether the controller accepted
  bool setDeviceKey(const std::string& key);

  /// Configures secure mode. Command 0x70, reply 0x71, always plain; payload: mode, enable (1 or
  /// 0), the label, 0x91 0x21, the key when mode is not 0, and with includeSecondKey 0x91 0x21 and
  /// secondKey. Once accepted, the next reply is deciphered with the keys that are set then.
  /// @return 1, -11, -12, -14, or -15 when label is not 1 to 16 characters or a key that is sent
  /// not 8
  int setDeviceSecretParam(DeviceSecretParam param, bool includeSecondKey);

  /// @}
  /// @name Files
  /// A transfer uses one connection: the name is announced, the bytes follow in numbered chunks,
  /// each acknowledged, and the controller confirms the end. The first step that fails ends it;
  /// nothing is retried, and the connection and the file are closed on every path.
  /// @{

  static constexpr int FILE_NAME_NO_REPLY = -3;
  static constexpr int FILE_NAME_REJECTED = -4;
  static constexpr int CONTENT_NO_REPLY = -5;
  static constexpr int CONTENT_REJECTED = -6;
  static constexpr int FILE_END_NO_REPLY = -7;
  static constexpr int FILE_END_REJECTED = -8;
  static constexpr int PLAY_ID_NO_REPLY = -9;
  static constexpr int PLAY_ID_REJECTED = -10;
  static constexpr int LOCAL_FILE_ERROR = -13;
  static constexpr int STOPPED_BY_HOST = -16;

  /// Hears of a transfer's progress after each chunk: bytes acknowledged, and bytes in all (the
  /// file's size when it was opened, -1 when that is not known, as of a pipe). False stops the
  /// transfer there, after the last chunk too: nothing more is sent or awaited. It is called on the
  /// caller's thread and must not use the same object; what it throws passes through, with the
  /// connection and the file closed.
  using Progress = std::function<bool(long long sent, long long total)>;

  /// Sends a file. Command 0x11, reply 0x12: the name behind 0xFF 0xFF. Command 0x13, reply 0x14:
  /// the chunk's number from 1, low byte first, and up to 65535 bytes, or 65517 while a key is set.
  /// At last reply 0xF9.
  /// @param path the local file, in the local code page
  /// @param name the name under which the controller stores it
  /// @return 1; -1 no connection; -3, -4 the name was not answered or refused; -5, -6 a chunk; -7,
  /// -8 the end; -13 the file cannot be opened or read, or became shorter meanwhile: the name has
  /// been announced by then; -15 a null argument or a name that fits no frame
  int sendFile(const char* path, const char* name);
  /// The same, told to the host as it goes.
  /// @return as above, and -16 when the host stopped it
  int sendFile(const char* path, const char* name, const Progress& progress);

  /// Names of all media on the controller. Command and reply 0xB0, no payload; byte 1 is 1, a JSON
  /// array of texts from byte 2.
  /// @return empty without a usable reply
  std::list<std::string> getAllMediaFileName();
  /// Names of the files of one type. Command and reply 0xB9; payload 1 byte: the type; reply as
  /// above. Elements of either array that are no texts are left out.
  std::list<std::string> getFileListName(char type);

  /// Cleans up storage. Command 0x7C, reply 0x7D; payload 1 byte.
  /// @param type 0 to 3; any other value is sent as 1
  /// @return 1, -11, -12 or -14
  int cleanUpFiles(int type);

  /// @}
  /// @name Playlists
  /// @{

  /// Uploads a playlist as "playNNN.lst" and plays it: the steps of sendFile with the text as one
  /// chunk, then command 0x1B, reply 0x1C with the number's low byte.
  /// @param number above 999 it is taken modulo 999; below -99 the name is cut to its 11 characters
  /// @param text zero-terminated, sent as it is
  /// @return 1; -14 no connection; -3 to -8 as sendFile; -9, -10 playing was not answered or
  /// refused; -15 for null or a text that fits no frame
  int sendPlayList(int number, const char* text);

  /// Plays a playlist. Command 0x1B, reply 0x1C; payload 1 byte: the number.
  /// @return 1, -11, -12 or -14
  int playListById(int number);

  /// Deletes a playlist. Command and reply 0xAE; payload 1 byte: the number.
  /// @return whether the controller accepted
  bool deletePlaylistById(int number);

  /// The playlists on the controller. Command and reply 0xA7, no payload; a signed byte each from
  /// byte 1.
  /// @return empty without a usable reply
  std::list<int> getAllPlaylistId();

  /// @}
  /// @name Updates
  /// @{

  /// Updates from a local path on the controller. Command 0x88, reply 0x89; payload 01, low byte of
  /// the type, the text.
  /// @return 1, -11, -12, -14, or -15 for null or a text that fits no frame
  int sendLocalUpdate(int type, const char* text);
  /// The same for trial. Command 0x88, reply 0x89; payload: low byte of the type, FE, the text.
  /// @return as above
  int sendTestLocalUpdate(int type, const char* text);
  /// Removes an update. Command 0x88, reply 0x89; payload 00, low byte of the type.
  /// @return 1, -11, -12 or -14
  int removeLocalUpdate(int type);

  /// Tells where to download from. Command 0x49, reply 0x50; payload: the text, 1 to 1024 bytes.
  /// @return 1, -11, -12, -14, or -15 for any other length
  int sendFtpDownloadaddress(const std::string& address);
  /// Names the update. Command 0x90, reply 0x91; payload: the text, 1 to 1024 bytes.
  /// @return 1, -11, -12, -14, or -15 for any other length
  int updateFileName(const std::string& name);

  /// Lets the controller download files and waits until it is done. Command and reply 0xAB;
  /// payload: the list, a JSON array. Replies of status 2 mean that it goes on; at most 100000
  /// replies are waited for. Without a connection the line "socket == NULL" goes to the standard
  /// output, "send SOCKET_ERROR" when sending fails.
  /// @return whether status 1 came; false for a list that fits no frame
  bool downloadFiles(const std::string& list);

  /// @}
  /// @name Screenshots
  /// @{

  /// Fetches a picture of the screen. Command 0x80, reply 0x81; payload FF FF. The picture stands
  /// from byte 3 on, in pieces of 65535 bytes until a shorter one, at most 4096 pieces.
  /// @param path the local file, emptied first; a transfer that fails leaves it empty or cut short
  /// @return 1; -15 when path is empty or cannot be made; -1 no connection; -11 when a piece did
  /// not come or the last one is full, too; -13 when the file cannot be written
  int getDeviceScreenshot(std::string path);

  /// @}

 protected:
  /// Changes to server mode on another socket, or with 0 back to client mode.
  void setSocket(std::uint64_t socket);

 private:
  friend class tovi::session::Session;

  std::uint64_t getSocket();
  void closeSocket(std::uint64_t socket);
  void closeKept();

  char* makeSendPacket(short what, char* data, int len, int* outLen);
  char* recv(std::uint64_t socket, short what, int* outLen);
  char* recv(std::uint64_t socket, short what, int* outLen, int bufSize);

  int normalSet(char what, char rspWhat, char* data, int len);
  SocketResult* getData(short what, short rspWhat, char* data, int len);
  SocketResult* getData(short what, short rspWhat, char* data, int len, int bufSize);
  SocketResult* getData(std::uint64_t socket, short what, short rspWhat, char* data, int len);
  SocketResult* getData(std::uint64_t socket, short what, short rspWhat, char* data, int len,
                        int bufSize);
  SocketResult* getBigData(short what, short rspWhat, char* data, int len);
  SocketResult* getDetectErrorPointData(std::uint64_t socket, char what, char rspWhat,
                                        char partWhat, char* data, int len, int bufSize = BIG_SIZE);

  int sendFileName(std::uint64_t socket, const char* name, int len);
  int sendFileContent(std::uint64_t socket, const char* path, int chunkSize, int* lastLen,
                      int* nextNumber);
  int sendContent(std::uint64_t socket, const char* data, int len, int number);
  int recvFileOverRsp(std::uint64_t socket);
  int sendPlayId(std::uint64_t socket, int number);

  char mAddress[20];  // a dotted IPv4 text and its closing zero, with room to spare
  char* mIp;          // that, or null in server mode
  unsigned short mPort;
  int mTimeout;
  std::uint64_t mSocket;
  ProtocalParser* mProtocalParser;
  char* mDesKey;
  char* mAesKey;
  char* mSm4Key;
  ToviOutcome mOutcome;
  ToviWaiting mWaiting;
  bool mKeepsConnection;
  std::atomic<bool> mCancelled;
  std::uint64_t mKeptSocket;  // 0: none
  long long mExchangeEnds;    // by the steady clock; 0: no exchange is under way
};

#endif
