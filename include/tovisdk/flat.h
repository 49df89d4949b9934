// SPDX-License-Identifier: MIT
/// @file
/// The flat face of ToviSDK: one plain function per device command, for hosts in any language that
/// can call C. Compiles as C99 and as C++.
///
/// Every function takes the controller's dotted IPv4 address and its TCP port first, opens a
/// connection of its own, performs one command and gives a zero-terminated text. Nothing is kept
/// from one call to the next: a call is always plain and always has the default time-out of 20
/// seconds per send and read. Calls on different threads are independent. Nothing is ever thrown.
/// Where a text that is given is null, nothing is sent: "failed", or "success" of the kind that
/// always says so, and a line in the log.
///
/// A function's result is of one of these kinds:
/// - status: "success" or "failed". Static; never free it.
/// - always: "success" whatever happened, even with no controller there. Static.
/// - report: in GBK, labelled lines ending in CR LF, or one text without a line end, and then
///   "interfaceEnd". Without a usable reply "interfaceEnd" alone, unless the function says
///   otherwise. The host releases it with deleteArry. Null only when memory is out.
/// - value: a text without "interfaceEnd" and without a line end. The host releases it with
///   deleteArry. Null only when memory is out.
/// - none: "Interface not implemented"; nothing is sent. Static.
///
/// Cut "interfaceEnd" from the bytes before they are decoded, and decode with replacement: a text
/// of the controller may be no text at all, and half a character of it takes the next byte along.
///
/// In the descriptions of reports N stands for a decimal number, S for a text of the controller
/// (converted from UTF-8 where GBK has all its characters; GBK stays as it came; of other UTF-8 "?"
/// stands for what GBK lacks; anything else stays as it came) and T for a time "Y-M-D h:m:s", its
/// fields as they stand in the record: years since 1900, months from 0. A text ends at its first
/// zero byte. Texts with several tokens separate them by single spaces; numbers in them are
/// decimal, and what is no number counts as 0.
#ifndef TOVISDK_FLAT_H
#define TOVISDK_FLAT_H

#include <tovisdk/export.h>
#include <tovisdk/log_control.h>

#ifdef __cplusplus
extern "C" {
#else
#include <stdbool.h>
#endif

/// Releases a report or a value and sets the host's pointer to null. Safe on null in both levels.
TOVISDK_API void deleteArry(char** array);

/// @name Power and relays
/// @{

/// Status. Switches the screen on or off.
TOVISDK_API const char* setPower(const char* ip, unsigned short port, bool on);

/// Status. Switches the board on or off.
TOVISDK_API const char* setBoardPower(const char* ip, unsigned short port, bool on);

/// Status. Switches board and screen on or off.
TOVISDK_API const char* setBoardPowerAndScreenPower(const char* ip, unsigned short port, bool on);

/// Status. Switches the multi-function card; the low bytes of a and b are sent, numbers of the
/// controller's own.
TOVISDK_API const char* setMultiFunctionCardPower(const char* ip, unsigned short port, int a, int b,
                                                  bool c);

/// Status. Switches the four relays.
TOVISDK_API const char* setRelayPowers(const char* ip, unsigned short port, bool relay1,
                                       bool relay2, bool relay3, bool relay4);

/// Status: "open" or "close"; "failed" without a usable reply. Static.
TOVISDK_API const char* getScreenStatus(const char* ip, unsigned short port);
/// @}

/// @name Brightness and volume
/// @{

/// Status. Sets the brightness by hand, 0 to 255; any other value is sent as 125.
TOVISDK_API const char* setBrightness(const char* ip, unsigned short port, int level);

/// Report: 亮度模式:N 亮度值:N; 1 automatic, 2 by hand, 3 by timetable; 0 to 255. Both -1 without a
/// usable reply.
TOVISDK_API char* getBrightnessInfo(const char* ip, unsigned short port);

/// Status. Sets the automatic curve: pairs "AMBIENT SCREEN", 0 to 255 each, at most 8; what is
/// missing is 0 0.
TOVISDK_API const char* setBrightnessAuto(const char* ip, unsigned short port, const char* points);

/// Report: Per point k from 0 to 7: 第k组: and the lines 环境亮度:N, 屏体亮度:N
TOVISDK_API char* getBrightnessAuto(const char* ip, unsigned short port);

/// Status. Passes on two bytes of the controller's own; neither may be 0.
TOVISDK_API const char* setAutoBrightnessTimeParam(const char* ip, unsigned short port, char first,
                                                   char second);

/// Status. Sets the volume, 0 to 255; the low byte of any other value is sent.
TOVISDK_API const char* setDeviceVolume(const char* ip, unsigned short port, int volume);

/// Value: The volume as a signed decimal, -128 to 127; -1 stands for 255 and for "unknown".
TOVISDK_API char* getVolumeValue(const char* ip, unsigned short port);
/// @}

/// @name Timetables
/// A date-time token is YEAR-MONTH-DAY-HOUR-MINUTE-SECOND. Setters take calendar values, as in
/// "2024-1-2-3-4-5"; reports count years from 1900 and months from 0, so what was read is not what
/// a setter takes. Keep timetables below 256 entries; one of more than 127 is reported as if it had
/// none.
/// @{

/// Status. Pairs "START END": when the screen has power.
TOVISDK_API const char* setDevicePowerByTimeList(const char* ip, unsigned short port,
                                                 const char* entries);

/// Report: Per entry: 开始时间:T 结束时间:T
TOVISDK_API char* getDevicePowerByTimeList(const char* ip, unsigned short port);

/// Status. Triples "START END PLAYID": which program plays when. The low byte of PLAYID is sent.
TOVISDK_API const char* setPlayByTimeList(const char* ip, unsigned short port, const char* entries);

/// Report: Per entry: 开始时间:T 结束时间:T 播放id:N; -128 to 127
TOVISDK_API char* getPlayByTimeList(const char* ip, unsigned short port);

/// Status. Triples "START END BRIGHTNESS": which brightness holds when.
TOVISDK_API const char* setBrightnessByTimeList(const char* ip, unsigned short port,
                                                const char* entries);

/// Report: Per entry: 开始时间:T 结束时间:T 亮度值:N
TOVISDK_API char* getBrightnessByTimeList(const char* ip, unsigned short port);

/// Status. Sends the text, at most 4096 bytes.
TOVISDK_API const char* setAdvanceTiming(const char* ip, unsigned short port, const char* timing);

/// Report: The text, without a line end.
TOVISDK_API char* getAdvanceTiming(const char* ip, unsigned short port);

/// Status. Removes the advance timing.
TOVISDK_API const char* removeAdvanceTiming(const char* ip, unsigned short port);
/// @}

/// @name Clock
/// @{

/// Status. Sets the clock. Unlike the timetables, this token counts years from 1900 and months from
/// 0: "124-0-2-3-4-5" is 2024-01-02 03:04:05.
TOVISDK_API const char* setTime(const char* ip, unsigned short port, const char* time);

/// Status. Sets clock and zone, as in "Asia/Shanghai" and "GMT+08:00"; no spaces. The time counts
/// milliseconds since 1970, of which an int holds the first 24 days: no current time. setTime takes
/// one, and so does the object face.
TOVISDK_API const char* setTimeAndTimeZone(const char* ip, unsigned short port, int time,
                                           const char* zoneId, const char* utcOffset);

/// Report: Lines 时间:N (milliseconds since 1970), 时区ID:S, UTC偏移:S
TOVISDK_API char* getTimeAndTimeZone(const char* ip, unsigned short port);

/// Status. Sets time synchronisation: 0 off, any other byte on.
TOVISDK_API const char* setDeviceNTPParam(const char* ip, unsigned short port,
                                          unsigned char enabled, const char* server);

/// Report: Lines 开启NTP对时:0 or 1, NTP服务器:S
TOVISDK_API char* getDeviceNTPParam(const char* ip, unsigned short port);
/// @}

/// @name Display and video
/// @{

/// Status. Four integers "RESULT WIDTH HEIGHT FIELDRATE"; the first is not sent.
TOVISDK_API const char* setEdidInfo(const char* ip, unsigned short port, const char* info);

/// Report: 错误码:N 宽:N 高:N 帧率:N; 错误码 is 1 when the reply was accepted, otherwise all are 0.
TOVISDK_API char* getEdidInfo(const char* ip, unsigned short port);

/// Status. Selects the video source, a number of the controller's own.
TOVISDK_API const char* setVideoControlInfo(const char* ip, unsigned short port, int videoSource);

/// Report: 错误码:N 视频源:N; 错误码 is 1 when the reply was accepted, otherwise both are 0.
TOVISDK_API char* getVideoControlInfo(const char* ip, unsigned short port);

/// Report: Lines 宽:N, 高:N; pixels. Both -1 without a usable reply.
TOVISDK_API char* getDeviceSize(const char* ip, unsigned short port);

/// Report: 错误码:N 坏点数:N; 错误码 is 1 when the reply was accepted, otherwise both are 0.
TOVISDK_API char* startScreenPointDetect(const char* ip, unsigned short port);

/// Report: What was found, as it came, without a line end.
TOVISDK_API char* getDetectErrorPointInfo(const char* ip, unsigned short port);

/// None.
/// @{
TOVISDK_API const char* setCustomResolution(const char* ip, unsigned short port);
TOVISDK_API const char* getCurrentResolution(const char* ip, unsigned short port);
TOVISDK_API const char* getSupportVideoSource(const char* ip, unsigned short port);
TOVISDK_API const char* setAntiAliasing(const char* ip, unsigned short port);
TOVISDK_API const char* getAntiAliasing(const char* ip, unsigned short port);
TOVISDK_API const char* setSyncPlay(const char* ip, unsigned short port);
TOVISDK_API const char* getSyncPlay(const char* ip, unsigned short port);
TOVISDK_API const char* setFont(const char* ip, unsigned short port);
TOVISDK_API const char* getFontList(const char* ip, unsigned short port);
/// @}
/// @}

/// @name What is playing
/// @{

/// Report: Lines play id:N, play content:S; the item on screen
TOVISDK_API char* getNowPlayContent(const char* ip, unsigned short port);

/// Report: Lines play id:N, play content:S; the whole program
TOVISDK_API char* getNowPlayAllContent(const char* ip, unsigned short port);
/// @}

/// @name Identity and status
/// @{

/// Always. Names the controller. The bytes are sent as they are; controllers expect UTF-8.
TOVISDK_API const char* setDeviceName(const char* ip, unsigned short port, const char* name);

/// Report: The name, without a line end.
TOVISDK_API char* getDeviceName(const char* ip, unsigned short port);

/// Report: The firmware's version, without a line end.
TOVISDK_API char* getDeviceVersion(const char* ip, unsigned short port);

/// Report: The serial number, without a line end.
TOVISDK_API char* getSn(const char* ip, unsigned short port);

/// Report: The MAC address, as in 0:1a:b:0:ff:5, without a line end.
TOVISDK_API char* getMac(const char* ip, unsigned short port);

/// Report: Lines 时间:N年N月N日N 时N分N秒, 亮度模式:N, 环境亮度:N, 屏幕亮度:N, 温度:N
///
/// Controllers send one date value, which stands in all six places. Brightness is 0 to 255, the
/// temperature whole degrees.
TOVISDK_API char* getDeviceType(const char* ip, unsigned short port);

/// Report: Lines 总内存大小:N, 剩余内存大小:N, in a unit of the controller's own. Both -1 without a
/// usable reply.
TOVISDK_API char* getDeviceMemorySize(const char* ip, unsigned short port);

/// Report: 错误码:N CPU使用率:S 硬盘总大小:S 硬盘剩余大小:S
///
/// 错误码 is 1 when the reply was accepted, otherwise 0 and the texts are empty.
TOVISDK_API char* getCpuAndMemoryInfo(const char* ip, unsigned short port);

/// Value: The text as it came, without conversion; empty without a usable reply.
TOVISDK_API char* getSurveil(const char* ip, unsigned short port);

/// None.
/// @{
TOVISDK_API const char* getSystemInfo(const char* ip, unsigned short port);
/// @}
/// @}

/// @name Network
/// @{

/// Always. Sets the network addresses, dotted IPv4.
TOVISDK_API const char* setDeviceNetBasicParam(const char* ip, unsigned short port,
                                               const char* newIp, const char* netmask,
                                               const char* gateway, int devicePort,
                                               const char* serverIp);

/// Always. Back to the factory's addresses.
TOVISDK_API const char* resetDeviceIpToDefault(const char* ip, unsigned short port);

/// Status. Keeps a connection. An interval below 60 is sent as 60, of one above 65535 the low 16
/// bits, which may be less; of the value the low byte.
TOVISDK_API const char* setVirtualConnection(const char* ip, unsigned short port, bool on,
                                             int interval, int value);

/// Report: 是否开启:0 or 1 延时时间:N 节目id:N; 0, -1 and -1 without a usable reply.
TOVISDK_API char* getVirtualConnection(const char* ip, unsigned short port);

/// None.
/// @{
TOVISDK_API const char* setPingIp(const char* ip, unsigned short port);
TOVISDK_API const char* getPingIp(const char* ip, unsigned short port);
TOVISDK_API const char* setServerIPLists(const char* ip, unsigned short port);
TOVISDK_API const char* getServerIPLists(const char* ip, unsigned short port);
TOVISDK_API const char* addWhitelist(const char* ip, unsigned short port);
TOVISDK_API const char* removeWhitelist(const char* ip, unsigned short port);
TOVISDK_API const char* getWhitelist(const char* ip, unsigned short port);
/// @}
/// @}

/// @name Wireless and mobile
/// @{

/// None.
/// @{
TOVISDK_API const char* setWifiState(const char* ip, unsigned short port);
TOVISDK_API const char* getWifiState(const char* ip, unsigned short port);
TOVISDK_API const char* getWifiList(const char* ip, unsigned short port);
TOVISDK_API const char* connectWifi(const char* ip, unsigned short port);
TOVISDK_API const char* setWifiApState(const char* ip, unsigned short port);
TOVISDK_API const char* getWifiApState(const char* ip, unsigned short port);
TOVISDK_API const char* setWifiApConfig(const char* ip, unsigned short port);
TOVISDK_API const char* getWifiApConfig(const char* ip, unsigned short port);
TOVISDK_API const char* getMobileInfo(const char* ip, unsigned short port);
TOVISDK_API const char* getSimInfo(const char* ip, unsigned short port);
TOVISDK_API const char* switchToSoftsim(const char* ip, unsigned short port);
TOVISDK_API const char* setLoraInfo(const char* ip, unsigned short port);
TOVISDK_API const char* getLoraInfo(const char* ip, unsigned short port);
/// @}
/// @}

/// @name Maintenance
/// @{

/// Status. Restarts the controller.
TOVISDK_API const char* restartDevice(const char* ip, unsigned short port);

/// Always. Tells the controller that the host is there.
TOVISDK_API const char* sendHeartBeat(const char* ip, unsigned short port);

/// Status. Sets the temperature at which the screen closes, 0 to 150 degrees.
TOVISDK_API const char* setCloseScreenTemperature(const char* ip, unsigned short port,
                                                  int temperature);

/// Value: 高温关屏温度:N, degrees; -1 without a reply, -11 when it is too short.
TOVISDK_API char* getCloseScreenTemperature(const char* ip, unsigned short port);

/// Status. Removes an application, 1 to 256 bytes.
TOVISDK_API const char* removeAppPageName(const char* ip, unsigned short port, const char* package);

/// None.
/// @{
TOVISDK_API const char* setSSHEnabled(const char* ip, unsigned short port);
TOVISDK_API const char* getSSHEnabled(const char* ip, unsigned short port);
TOVISDK_API const char* getLogZipPath(const char* ip, unsigned short port);
TOVISDK_API const char* setSensorInfo(const char* ip, unsigned short port);
TOVISDK_API const char* getSensorInfo(const char* ip, unsigned short port);
/// @}
/// @}

/// @name Secure mode
/// @{

/// Always. Sets the controller's key, which travels as it is.
TOVISDK_API const char* setDeviceKey(const char* ip, unsigned short port, const char* key);

/// Status. Tokens "LABEL MODE ENABLE KEY SECONDKEY": label 1 to 16 characters, mode a number,
/// enable 1 or true, keys of 8 characters; missing tokens are empty. A controller that is told to
/// encipher locks out every other flat function; "label 0 0  " makes it plain again.
TOVISDK_API const char* setDeviceSecretParam(const char* ip, unsigned short port, const char* param,
                                             bool includeSecondKey);

/// None.
/// @{
TOVISDK_API const char* getIsSecret(const char* ip, unsigned short port);
/// @}
/// @}

/// @name Files
/// @{

/// Status. Sends a local file under a name.
TOVISDK_API const char* sendFile(const char* ip, unsigned short port, const char* path,
                                 const char* name);

/// Report: Every name followed by a comma, without a line end. The types are the controller's own.
TOVISDK_API char* getFileListName(const char* ip, unsigned short port, char type);

/// Status. Cleans up storage: 0 to 3, types of the controller's own; any other value is sent as 1.
TOVISDK_API const char* cleanUpFiles(const char* ip, unsigned short port, int type);

/// None.
/// @{
TOVISDK_API const char* getAllMediaFileName(const char* ip, unsigned short port);
/// @}
/// @}

/// @name Playlists
/// @{

/// Status. Uploads a playlist, 0 to 999, and plays it.
TOVISDK_API const char* sendPlayList(const char* ip, unsigned short port, int number,
                                     const char* text);

/// Status. Plays a playlist. The low byte of its number is sent.
TOVISDK_API const char* playListById(const char* ip, unsigned short port, int id);

/// Status. Deletes a playlist. The low byte of its number is sent.
TOVISDK_API const char* deletePlaylistById(const char* ip, unsigned short port, int id);

/// Report: "[1,2,3],": the numbers of the playlists, -128 to 127, and a comma behind the bracket,
/// without a line end. "[]," when there is none and without a usable reply.
TOVISDK_API char* getAllPlaylistId(const char* ip, unsigned short port);
/// @}

/// @name Updates
/// @{

/// Status. Updates from a path on the controller. The types are the controller's own.
TOVISDK_API const char* sendLocalUpdate(const char* ip, unsigned short port, int type,
                                        const char* text);

/// Status. Removes an update of that type.
TOVISDK_API const char* removeLocalUpdate(const char* ip, unsigned short port, int type);

/// Status. Tells where to download from, 1 to 1024 bytes.
TOVISDK_API const char* sendFtpDownloadaddress(const char* ip, unsigned short port,
                                               const char* address);

/// Status. Names the update, 1 to 1024 bytes.
TOVISDK_API const char* updateFileName(const char* ip, unsigned short port, const char* name);

/// None.
/// @{
TOVISDK_API const char* downloadFiles(const char* ip, unsigned short port);
/// @}
/// @}

/// @name Screenshots
/// @{

/// Status. Fetches a picture of the screen into a local file.
TOVISDK_API const char* getDeviceScreenshot(const char* ip, unsigned short port, const char* path);
/// @}

/// @name Session
/// @{

/// Always. Has no effect on later calls: a key lives in this call's own connection.
TOVISDK_API const char* setDesKey(const char* ip, unsigned short port, const char* key);

/// Always. Has no effect on later calls: a key lives in this call's own connection.
TOVISDK_API const char* setAesKey(const char* ip, unsigned short port, const char* key);

/// Always. Has no effect on later calls.
TOVISDK_API const char* clearPassword(const char* ip, unsigned short port);

/// Always. Has no effect on later calls: a time-out lives in this call's own connection.
TOVISDK_API const char* setTimeout(const char* ip, unsigned short port, int ms);
/// @}

#ifdef __cplusplus
}
#endif

#endif
