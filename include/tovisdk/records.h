// SPDX-License-Identifier: MIT
/// @file
/// What settings take and queries give, beyond single numbers and texts.
///
/// Records are passed by value. Those that a method returns by pointer are the caller's: delete
/// them, or release them with deleteObj, which also sets the caller's pointer to null and is safe
/// on null.
#ifndef TOVISDK_RECORDS_H
#define TOVISDK_RECORDS_H

#include <tovisdk/export.h>

#include <ctime>
#include <list>
#include <string>

/// @name Timetables
/// Setters send the fields of each `tm` as they stand, so year and month are calendar values (2024,
/// 3). Getters give them as `tm` has them: years since 1900, months from 0.
/// @{

/// The screen has power from startTime to endTime.
struct DevicePowerByTimeParam {
  std::tm startTime = {}, endTime = {};
};

/// A program plays from startTime to endTime.
struct PlayByTimeParam {
  std::tm startTime = {}, endTime = {};
  int playId = 0;  ///< its low byte is sent; read back as -128 to 127
};

/// A brightness holds from startTime to endTime.
struct BrightnessByTimeParam {
  std::tm startTime = {}, endTime = {};
  int brightness = 0;  ///< 0 to 255
};

/// @}

/// One point of the automatic brightness curve.
struct BrightnessPoint {
  int environmentBrightness = 0;  ///< ambient reading, 0 to 255
  int screenBrightness = 0;       ///< brightness at that reading, 0 to 255
};

/// The automatic brightness curve.
struct BrightnessItem {
  BrightnessPoint points[8] = {};
};

/// How the last backup went.
struct BackUpsInfo {
  int state = -1;     ///< as the controller reports it; -1: no usable reply
  std::string times;  ///< hexadecimal text of the reply's rest; empty unless the state is 1
};

/// The pre-stored screen's two flags.
struct PreStoredScreenEnabled {
  int first = -1;  ///< -1: no usable reply
  int second = 0;
};

struct ResolutionInfo {
  int result = 0;          ///< 1: the reply was accepted
  std::string resolution;  ///< as the controller writes it
};

struct EdidInfo {
  int result = 0;  ///< 1: the reply was accepted; not sent
  int width = 0;   ///< pixels
  int height = 0;  ///< pixels
  int fieldRate = 0;
};

struct VideoControlInfo {
  int result = 0;       ///< 1: the reply was accepted
  int videoSource = 0;  ///< identifier of the selected source
};

struct TimeZoneParam {
  long long time = 0;     ///< milliseconds since 1970-01-01 00:00 UTC
  std::string zoneId;     ///< as in "Asia/Shanghai"; without spaces
  std::string utcOffset;  ///< as in "GMT+08:00"; without spaces
};

struct DeviceNTPParam {
  bool enabled = false;
  std::string server;  ///< host name or address
};

/// The controller's own secure mode.
struct DeviceSecretParam {
  std::string label;  ///< 1 to 16 characters
  int mode = 0;       ///< low byte is sent; non-zero makes the key part of the request
  bool enable = false;
  std::string key;        ///< exactly 8 characters when mode is not 0
  std::string secondKey;  ///< exactly 8 characters when it is included
};

struct DeviceSize {
  int width = -1;   ///< pixels; -1: no usable reply
  int height = -1;  ///< pixels; -1: no usable reply
};

struct DeviceMemorySize {
  int total = -1;  ///< as the controller counts it; -1: no usable reply
  int free = -1;
};

struct BrightnessInfo {
  int mode = -1;        ///< 1 automatic, 2 manual, 3 timetable; -1: no usable reply
  int brightness = -1;  ///< 0 to 255; -1: no usable reply
};

struct CpuAndMemoryInfo {
  int result = 0;  ///< 1: the reply was accepted
  std::string cpuUsage, diskTotal, diskFree;
};

struct VirtualParam {
  bool enabled = false;
  int interval = -1;  ///< -1: no usable reply
  int value = -1;     ///< -1: no usable reply
};

/// The three anti-aliasing flags.
struct TextAttr {
  bool first = false, second = false, third = false;
};

struct ResultParam {
  int result = 0;  ///< 1: the reply was accepted
  std::string text;
};

struct ScreenPointDetect {
  int result = 0;  ///< 1: the reply was accepted
  int badPoints = 0;
};

/// Addresses are dotted IPv4 texts.
struct DeviceNetBasicParam {
  std::string ip, netmask, gateway;
  int port = 0;
  std::string serverIp;
};

/// The item on screen.
class TOVISDK_API DeviceNowPlayItem {
 public:
  /// Takes ownership of `content`, a zero-terminated array made with new[], or null.
  DeviceNowPlayItem(bool playOpen, int playId, char* content);
  /// Copies member by member: both then own one array, and only one of them may be destroyed. For
  /// that reason copies are not made silently.
  DeviceNowPlayItem& operator=(const DeviceNowPlayItem&) = default;
  DeviceNowPlayItem(const DeviceNowPlayItem&) = delete;
  ~DeviceNowPlayItem();

  bool playIsOpen() const;   ///< playback is running
  int getPlayId() const;     ///< -128 to 127
  char* getContent() const;  ///< still owned by this object; null when there is none

 private:
  bool playOpen;
  int playId;
  char* content;
};

/// The whole running program.
class TOVISDK_API DeviceNowPlayList {
 public:
  /// Takes ownership of `content`, a zero-terminated array made with new[], or null.
  DeviceNowPlayList(int playId, char* content);
  /// Copies member by member: both then own one array, and only one of them may be destroyed. For
  /// that reason copies are not made silently.
  DeviceNowPlayList& operator=(const DeviceNowPlayList&) = default;
  DeviceNowPlayList(const DeviceNowPlayList&) = delete;
  ~DeviceNowPlayList();

  int getPlayId() const;     ///< -128 to 127
  char* getContent() const;  ///< still owned by this object; null when there is none

 private:
  int playId;
  char* content;
};

TOVISDK_API void deleteObj(BackUpsInfo** object);
TOVISDK_API void deleteObj(BrightnessItem** object);
TOVISDK_API void deleteObj(TimeZoneParam** object);
TOVISDK_API void deleteObj(DeviceNTPParam** object);
TOVISDK_API void deleteObj(DeviceNowPlayItem** object);
TOVISDK_API void deleteObj(DeviceNowPlayList** object);
TOVISDK_API void deleteObj(std::list<DevicePowerByTimeParam>** object);
TOVISDK_API void deleteObj(std::list<PlayByTimeParam>** object);
TOVISDK_API void deleteObj(std::list<BrightnessByTimeParam>** object);

#endif
