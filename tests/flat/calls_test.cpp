// SPDX-License-Identifier: MIT
// What each flat function sends, and the text that it makes of the answer.
#include <tovisdk/flat.h>
#include <tovisdk/text.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <utility>

#include "platform/text.h"
#include "tests/support/fake_platform_test.h"
#include "tests/support/hex.h"
#include "tests/support/wire.h"

// Of byte_flags.c
extern "C" {
const char* setPowerByByte(const char* ip, unsigned short port, int on);
const char* setBothPowersByByte(const char* ip, unsigned short port, int on);
const char* setLinkByByte(const char* ip, unsigned short port, int on);
void redactByByte(int redact);
}

namespace {

using tovi::test::frame;
using tovi::test::unframe;

constexpr char kIp[] = "127.0.0.1";
constexpr unsigned short kPort = 5005;

struct Call {
  const char* what;  // the function, then what is particular about the case
  std::string (*call)();
  const char* request;  // command byte and payload; "|" between requests; empty: nothing is sent
  const char* reply;    // command byte and payload; "|" between replies; empty: silence
  const char* text;     // UTF-8; what the host gets in GBK
};

// What the host reads, once it has decoded and released it.
std::string read(char* text) {
  if (text == nullptr) return "null";
  const std::string copy = text;
  deleteArry(&text);
  return tovi::platform::gbkToUtf8(copy).value_or("no GBK: " + tovi::test::toHex(copy));
}

class FlatCalls : public tovi::test::FakePlatformTest {
 protected:
  void arrive(const char* replies) {
    fake().sent.clear();
    fake().incoming.clear();
    fake().files.clear();
    if (*replies == '\0') return;
    for (const std::string& reply : split(replies, " | ")) fake().arrive(frame(reply));
  }

  std::string sent() {
    std::string text;
    for (const std::string& bytes : fake().sent)
      text += (text.empty() ? "" : " | ") + unframe(bytes);
    return text;
  }
};

const Call kStatus[] = {
    {"setPower", [] { return std::string(setPower(kIp, kPort, true)); }, "05 01", "06 01",
     "success"},
    {"setPower refused", [] { return std::string(setPower(kIp, kPort, false)); }, "05 02", "06 00",
     "failed"},
    {"setPower silent", [] { return std::string(setPower(kIp, kPort, false)); }, "05 02", "",
     "failed"},
    {"setBoardPower", [] { return std::string(setBoardPower(kIp, kPort, false)); }, "84 02",
     "85 01", "success"},
    {"setBoardPowerAndScreenPower",
     [] { return std::string(setBoardPowerAndScreenPower(kIp, kPort, false)); }, "25 00", "26 01",
     "success"},
    {"setMultiFunctionCardPower",
     [] { return std::string(setMultiFunctionCardPower(kIp, kPort, 1, 2, true)); }, "86 01 02 01",
     "87 01", "success"},
    {"setRelayPowers",
     [] { return std::string(setRelayPowers(kIp, kPort, true, false, true, false)); },
     "9E 01 02 01 02", "9E 01", "success"},
    {"getScreenStatus open", [] { return std::string(getScreenStatus(kIp, kPort)); }, "BA", "BA 01",
     "open"},
    {"getScreenStatus close", [] { return std::string(getScreenStatus(kIp, kPort)); }, "BA",
     "BA 00", "close"},
    {"getScreenStatus silent", [] { return std::string(getScreenStatus(kIp, kPort)); }, "BA", "",
     "failed"},
    {"setBrightness", [] { return std::string(setBrightness(kIp, kPort, 256)); }, "07 02 7D",
     "08 01", "success"},
    {"setBrightnessAuto", [] { return std::string(setBrightnessAuto(kIp, kPort, "10 20 30 40")); },
     "07 01 00 | 17 0A 14 00 1E 28 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00",
     "08 01 | 18 01", "success"},
    {"setAutoBrightnessTimeParam",
     [] { return std::string(setAutoBrightnessTimeParam(kIp, kPort, 5, 6)); }, "AA 05 06", "AA 01",
     "success"},
    {"setAutoBrightnessTimeParam zero",
     [] { return std::string(setAutoBrightnessTimeParam(kIp, kPort, 0, 6)); }, "", "", "failed"},
    {"setDeviceVolume", [] { return std::string(setDeviceVolume(kIp, kPort, 200)); }, "45 C8",
     "46 01", "success"},
    {"setDevicePowerByTimeList",
     [] {
       return std::string(
           setDevicePowerByTimeList(kIp, kPort, "2024-1-2-3-4-5 2025-12-31-23-59-58 x"));
     },
     "8A 01 02 01 E8 07 05 04 03 1F 0C E9 07 3A 3B 17", "8B 01", "success"},
    {"setPlayByTimeList seven tokens",
     [] { return std::string(setPlayByTimeList(kIp, kPort, "1-2-3-4-5-6 1-2-3-4-5-6 7 x y z 9")); },
     "41 02 03 02 01 00 06 05 04 03 02 01 00 06 05 04 07 00 "
     "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00",
     "42 01", "success"},
    {"setBrightnessByTimeList two tokens",
     [] { return std::string(setBrightnessByTimeList(kIp, kPort, "a b")); }, "07 03 00 | 43 00",
     "08 01 | 44 01", "success"},
    {"setAdvanceTiming", [] { return std::string(setAdvanceTiming(kIp, kPort, "t")); }, "DC 74",
     "DC 01", "success"},
    {"removeAdvanceTiming", [] { return std::string(removeAdvanceTiming(kIp, kPort)); }, "DE 01",
     "DE 01", "success"},
    {"setTime", [] { return std::string(setTime(kIp, kPort, "124-0-2-3-4-5")); },
     "09 E8 07 01 02 03 04 05", "0A 01", "success"},
    {"setTimeAndTimeZone", [] { return std::string(setTimeAndTimeZone(kIp, kPort, 17, "U", "G")); },
     "95 31 37 2C 55 2C 47", "95 01", "success"},
    {"setDeviceNTPParam", [] { return std::string(setDeviceNTPParam(kIp, kPort, 1, "n")); },
     "97 01 6E", "97 01", "success"},
    {"setEdidInfo", [] { return std::string(setEdidInfo(kIp, kPort, "9 8 7 6")); },
     "A4 7B 22 66 69 65 6C 64 52 61 74 65 22 3A 36 2C 22 77 69 64 74 68 22 3A 38 2C 22 68 65 69 67 "
     "68 74 22 "
     "3A 37 7D",
     "A4 01", "success"},
    {"setVideoControlInfo silent",
     [] { return std::string(setVideoControlInfo(kIp, kPort, 3)).substr(0, 3); },
     "A3 7B 22 69 73 53 63 61 6C 65 22 3A 22 66 61 6C 73 65 22 2C 22 6F 66 66 73 65 74 58 22 3A 30 "
     "2C 22 6F "
     "66 66 73 65 74 59 22 3A 30 2C 22 76 69 64 65 6F 4D 6F 64 65 22 3A 31 2C 22 76 69 64 65 6F 53 "
     "6F 75 72 "
     "63 65 22 3A 33 7D",
     "", "fai"},
    {"playListById", [] { return std::string(playListById(kIp, kPort, 5)); }, "1B 05", "1C 01",
     "success"},
    {"deletePlaylistById", [] { return std::string(deletePlaylistById(kIp, kPort, 5)); }, "AE 05",
     "AE 01", "success"},
    {"sendPlayList", [] { return std::string(sendPlayList(kIp, kPort, 5, "ab")); },
     "11 FF FF 70 6C 61 79 30 30 35 2E 6C 73 74 | 13 01 00 61 62 | 1B 05",
     "12 01 | 14 01 00 01 | F9 01 | 1C 01", "success"},
    {"sendFile missing", [] { return std::string(sendFile(kIp, kPort, "/nowhere/file", "n")); },
     "11 FF FF 6E", "12 01", "failed"},
    {"cleanUpFiles", [] { return std::string(cleanUpFiles(kIp, kPort, 7)); }, "7C 01", "7D 01",
     "success"},
    {"sendLocalUpdate", [] { return std::string(sendLocalUpdate(kIp, kPort, 2, "p")); },
     "88 01 02 70", "89 01", "success"},
    {"removeLocalUpdate", [] { return std::string(removeLocalUpdate(kIp, kPort, 2)); }, "88 00 02",
     "89 01", "success"},
    {"sendFtpDownloadaddress", [] { return std::string(sendFtpDownloadaddress(kIp, kPort, "f")); },
     "49 66", "50 01", "success"},
    {"sendFtpDownloadaddress empty",
     [] { return std::string(sendFtpDownloadaddress(kIp, kPort, "")); }, "", "", "failed"},
    {"updateFileName", [] { return std::string(updateFileName(kIp, kPort, "u")); }, "90 75",
     "91 01", "success"},
    {"removeAppPageName", [] { return std::string(removeAppPageName(kIp, kPort, "a")); }, "9F 61",
     "9F 01", "success"},
    {"getDeviceScreenshot without path",
     [] { return std::string(getDeviceScreenshot(kIp, kPort, "")); }, "", "", "failed"},
    {"setDeviceName", [] { return std::string(setDeviceName(kIp, kPort, "n")); }, "7E 00 6E",
     "7F 00", "success"},
    {"setDeviceKey", [] { return std::string(setDeviceKey(kIp, kPort, "k")); }, "EF 03 01 6B", "",
     "success"},
    {"setDeviceSecretParam",
     [] {
       return std::string(setDeviceSecretParam(kIp, kPort, "l 2 TRUE 12345678 abcdefgh", true));
     },
     "70 02 01 6C 91 21 31 32 33 34 35 36 37 38 91 21 61 62 63 64 65 66 67 68", "71 01", "success"},
    {"setDeviceSecretParam label alone",
     [] { return std::string(setDeviceSecretParam(kIp, kPort, "l", false)); }, "70 00 00 6C 91 21",
     "71 01", "success"},
    {"setDeviceNetBasicParam",
     [] {
       return std::string(
           setDeviceNetBasicParam(kIp, kPort, "1.2.3.4", "255.0.0.0", "1.0.0.1", 258, "9.8.7.6"));
     },
     "19 01 02 03 04 FF 00 00 00 01 00 00 01 02 01 09 08 07 06 00 00 00 00 00 00 00 00", "",
     "success"},
    {"resetDeviceIpToDefault", [] { return std::string(resetDeviceIpToDefault(kIp, kPort)); }, "21",
     "", "success"},
    {"setVirtualConnection",
     [] { return std::string(setVirtualConnection(kIp, kPort, true, 10, 3)); }, "F3 01 3C 00 03",
     "F4 01", "success"},
    {"restartDevice", [] { return std::string(restartDevice(kIp, kPort)); }, "0D", "0E 01",
     "success"},
    {"sendHeartBeat", [] { return std::string(sendHeartBeat(kIp, kPort)); }, "00 00", "",
     "success"},
    {"setCloseScreenTemperature",
     [] { return std::string(setCloseScreenTemperature(kIp, kPort, 151)); }, "", "", "failed"},
    {"setDesKey", [] { return std::string(setDesKey(kIp, kPort, "12345678")); }, "", "", "success"},
    {"setAesKey", [] { return std::string(setAesKey(kIp, kPort, "12345678")); }, "", "", "success"},
    {"clearPassword", [] { return std::string(clearPassword(kIp, kPort)); }, "", "", "success"},
    {"setTimeout", [] { return std::string(setTimeout(kIp, kPort, 5)); }, "", "", "success"},
};

const Call kTexts[] = {
    {"getBrightnessInfo", [] { return read(getBrightnessInfo(kIp, kPort)); }, "C3", "C3 02 50",
     "亮度模式:2 亮度值:80\r\ninterfaceEnd"},
    {"getBrightnessInfo silent", [] { return read(getBrightnessInfo(kIp, kPort)); }, "C3", "",
     "亮度模式:-1 亮度值:-1\r\ninterfaceEnd"},
    {"getBrightnessAuto", [] { return read(getBrightnessAuto(kIp, kPort)); }, "2B",
     "2C 01 02 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 FE FF 00",
     "第0组:\r\n环境亮度:1\r\n屏体亮度:2\r\n第1组:\r\n环境亮度:0\r\n屏体亮度:0\r\n"
     "第2组:\r\n环境亮度:0\r\n屏体亮度:0\r\n第3组:\r\n环境亮度:0\r\n屏体亮度:0\r\n"
     "第4组:\r\n环境亮度:0\r\n屏体亮度:0\r\n第5组:\r\n环境亮度:0\r\n屏体亮度:0\r\n"
     "第6组:\r\n环境亮度:0\r\n屏体亮度:0\r\n第7组:\r\n环境亮度:254\r\n屏体亮度:"
     "255\r\ninterfaceEnd"},
    {"getBrightnessAuto silent", [] { return read(getBrightnessAuto(kIp, kPort)); }, "2B", "",
     "interfaceEnd"},
    {"getVolumeValue", [] { return read(getVolumeValue(kIp, kPort)); }, "A9", "A9 C8", "-56"},
    {"getVolumeValue silent", [] { return read(getVolumeValue(kIp, kPort)); }, "A9", "", "-1"},
    {"getDevicePowerByTimeList", [] { return read(getDevicePowerByTimeList(kIp, kPort)); }, "52",
     "52 01 02 03 E8 07 05 04 03 1F 0C E9 07 3A 3B 17",
     "开始时间:124-2-2 3:4:5 结束时间:125-11-31 23:59:58\r\ninterfaceEnd"},
    {"getDevicePowerByTimeList silent", [] { return read(getDevicePowerByTimeList(kIp, kPort)); },
     "52", "", "interfaceEnd"},
    {"getPlayByTimeList", [] { return read(getPlayByTimeList(kIp, kPort)); }, "53",
     "53 01 02 03 E8 07 05 04 03 1F 0C E9 07 3A 3B 17 07 00",
     "开始时间:124-2-2 3:4:5 结束时间:125-11-31 23:59:58 播放id:7\r\ninterfaceEnd"},
    {"getBrightnessByTimeList", [] { return read(getBrightnessByTimeList(kIp, kPort)); }, "51",
     "51 02 02 03 E8 07 05 04 03 1F 0C E9 07 3A 3B 17 50 02 03 E8 07 05 04 03 1F 0C E9 07 3A 3B 17 "
     "FF",
     "开始时间:124-2-2 3:4:5 结束时间:125-11-31 23:59:58 亮度值:80\r\n"
     "开始时间:124-2-2 3:4:5 结束时间:125-11-31 23:59:58 亮度值:255\r\ninterfaceEnd"},
    {"getBrightnessByTimeList empty", [] { return read(getBrightnessByTimeList(kIp, kPort)); },
     "51", "51 00", "interfaceEnd"},
    {"getAdvanceTiming", [] { return read(getAdvanceTiming(kIp, kPort)); }, "DD 01", "DD 01 61",
     "ainterfaceEnd"},
    {"getTimeAndTimeZone", [] { return read(getTimeAndTimeZone(kIp, kPort)); }, "96",
     "96 31 37 2C 55 2C 47", "时间:17\r\n时区ID:U\r\nUTC偏移:G\r\ninterfaceEnd"},
    {"getDeviceNTPParam", [] { return read(getDeviceNTPParam(kIp, kPort)); }, "98", "98 01 6E",
     "开启NTP对时:1\r\nNTP服务器:n\r\ninterfaceEnd"},
    {"getDeviceSize", [] { return read(getDeviceSize(kIp, kPort)); }, "82", "83 80 07 38 04",
     "宽:1920\r\n高:1080\r\ninterfaceEnd"},
    {"getEdidInfo", [] { return read(getEdidInfo(kIp, kPort)); }, "A2",
     "A2 01 7B 22 77 69 64 74 68 22 3A 38 7D", "错误码:1 宽:8 高:0 帧率:0\r\ninterfaceEnd"},
    {"getVideoControlInfo", [] { return read(getVideoControlInfo(kIp, kPort)); }, "A1", "",
     "错误码:0 视频源:0\r\ninterfaceEnd"},
    {"startScreenPointDetect", [] { return read(startScreenPointDetect(kIp, kPort)); }, "0B",
     "0C 01 07 00 00 00", "错误码:1 坏点数:7\r\ninterfaceEnd"},
    {"getDetectErrorPointInfo", [] { return read(getDetectErrorPointInfo(kIp, kPort)); }, "0B | 36",
     "0C 01 | 37 01 01 00 | 37 61", "ainterfaceEnd"},
    {"getNowPlayContent", [] { return read(getNowPlayContent(kIp, kPort)); }, "2D",
     "2E 01 00 05 E9 99 90", "play id:5\r\nplay content:限\r\ninterfaceEnd"},
    {"getNowPlayAllContent null", [] { return read(getNowPlayAllContent(kIp, kPort)); }, "3A",
     "3B 05", "play id:5\r\nplay content:\r\ninterfaceEnd"},
    {"getAllPlaylistId", [] { return read(getAllPlaylistId(kIp, kPort)); }, "A7", "A7 01 02 FF",
     "[1,2,-1],interfaceEnd"},
    {"getAllPlaylistId none", [] { return read(getAllPlaylistId(kIp, kPort)); }, "A7", "A7",
     "[],interfaceEnd"},
    {"getFileListName", [] { return read(getFileListName(kIp, kPort, 2)); }, "B9 02",
     "B9 01 5B 22 61 2E 6A 70 67 22 2C 22 62 2E 70 6E 67 22 5D", "a.jpg,b.png,interfaceEnd"},
    // A text ends at a zero byte for a host, and the mark must come before that.
    {"getFileListName with a zero byte", [] { return read(getFileListName(kIp, kPort, 2)); },
     "B9 02", "B9 01 5B 22 61 5C 75 30 30 30 30 62 22 2C 22 63 22 5D", "ainterfaceEnd"},
    {"getFileListName none", [] { return read(getFileListName(kIp, kPort, 2)); }, "B9 02", "",
     "interfaceEnd"},
    {"getDeviceType", [] { return read(getDeviceType(kIp, kPort)); }, "01",
     "02 34 12 00 00 00 00 05 01 01 01 00 19 01 00 00 C8 02 50",
     "时间:5年5月5日5 "
     "时5分5秒\r\n亮度模式:2\r\n环境亮度:200\r\n屏幕亮度:80\r\n温度:-25\r\ninterfaceEnd"},
    {"getDeviceType silent", [] { return read(getDeviceType(kIp, kPort)); }, "01", "",
     "interfaceEnd"},
    // UTF-8 becomes GBK, with "?" for what GBK lacks.
    {"getDeviceName", [] { return read(getDeviceName(kIp, kPort)); }, "7E 01",
     "7F 01 E9 99 90 F0 9F 98 80 41", "限?AinterfaceEnd"},
    {"getDeviceName silent", [] { return read(getDeviceName(kIp, kPort)); }, "7E 01", "",
     "interfaceEnd"},
    // What is no UTF-8 stays as it came: these are the GBK bytes of the same character.
    {"getDeviceVersion", [] { return read(getDeviceVersion(kIp, kPort)); }, "23", "24 CF DE",
     "限interfaceEnd"},
    // Bytes of GBK that pass for UTF-8 of characters which GBK lacks, too.
    {"getDeviceName in GBK", [] { return read(getDeviceName(kIp, kPort)); }, "7E 01",
     "7F 01 D1 A7 D4 BA", "学院interfaceEnd"},
    {"getSn", [] { return read(getSn(kIp, kPort)); }, "D5", "D5 53 4E", "SNinterfaceEnd"},
    {"getMac", [] { return read(getMac(kIp, kPort)); }, "B3", "B3 00 1A 0B 00 FF 05",
     "0:1a:b:0:ff:5interfaceEnd"},
    {"getCpuAndMemoryInfo", [] { return read(getCpuAndMemoryInfo(kIp, kPort)); }, "AF",
     "AF 01 7B 7D", "错误码:1 CPU使用率: 硬盘总大小: 硬盘剩余大小:\r\ninterfaceEnd"},
    {"getDeviceMemorySize", [] { return read(getDeviceMemorySize(kIp, kPort)); }, "47",
     "48 01 00 00 00 02 00 00 00", "总内存大小:1\r\n剩余内存大小:2\r\ninterfaceEnd"},
    {"getSurveil", [] { return read(getSurveil(kIp, kPort)); }, "A0", "A0 01 61", "a"},
    {"getVirtualConnection", [] { return read(getVirtualConnection(kIp, kPort)); }, "D3",
     "D3 01 3C 00 07", "是否开启:1 延时时间:60 节目id:7\r\ninterfaceEnd"},
    {"getCloseScreenTemperature", [] { return read(getCloseScreenTemperature(kIp, kPort)); }, "29",
     "", "高温关屏温度:-1"},
};

TEST_F(FlatCalls, SendAndAnswerWhatTheirRowsSay) {
  std::vector<Call> calls(std::begin(kStatus), std::end(kStatus));
  calls.insert(calls.end(), std::begin(kTexts), std::end(kTexts));
  std::set<std::string> functions;
  for (const Call& call : calls) {
    arrive(call.reply);
    const std::string name = split(call.what, " ")[0];
    EXPECT_EQ(call.call(), call.text) << call.what;
    EXPECT_EQ(sent(), call.request) << call.what;
    EXPECT_EQ(fake().closed, fake().opened) << call.what;
    const std::string logged = name == "getScreenStatus" ? "getScreenState" : name;
    EXPECT_EQ(fake().log().front(), "info " + logged + " start") << call.what;
    EXPECT_EQ(fake().log().back(), "info ToviTraffic::~ToviTraffic end") << call.what;
    functions.insert(name);
  }
  EXPECT_EQ(functions.size(), 72u);  // the others answer that they are not implemented
}

TEST_F(FlatCalls, PassWhatWasFoundOnAsItCame) {
  arrive("0C 01 | 37 01 01 00 | 37 E9 99 90 00 31");
  char* text = getDetectErrorPointInfo(kIp, kPort);
  EXPECT_STREQ(text, "\xE9\x99\x90interfaceEnd");
  deleteArry(&text);
}

TEST_F(FlatCalls, SendNothingForATextThatIsNull) {
  struct {
    const char* name;
    const char* answer;
    std::function<const char*()> call;
  } const cases[] = {
      {"setBrightnessAuto", "failed", [] { return setBrightnessAuto(kIp, kPort, nullptr); }},
      {"setDevicePowerByTimeList", "failed",
       [] { return setDevicePowerByTimeList(kIp, kPort, nullptr); }},
      {"setPlayByTimeList", "failed", [] { return setPlayByTimeList(kIp, kPort, nullptr); }},
      {"setBrightnessByTimeList", "failed",
       [] { return setBrightnessByTimeList(kIp, kPort, nullptr); }},
      {"setAdvanceTiming", "failed", [] { return setAdvanceTiming(kIp, kPort, nullptr); }},
      {"setTime", "failed", [] { return setTime(kIp, kPort, nullptr); }},
      {"setTimeAndTimeZone", "failed",
       [] { return setTimeAndTimeZone(kIp, kPort, 1, nullptr, "G"); }},
      {"setTimeAndTimeZone", "failed",
       [] { return setTimeAndTimeZone(kIp, kPort, 1, "U", nullptr); }},
      {"setDeviceNTPParam", "failed", [] { return setDeviceNTPParam(kIp, kPort, 1, nullptr); }},
      {"setEdidInfo", "failed", [] { return setEdidInfo(kIp, kPort, nullptr); }},
      {"getDeviceScreenshot", "failed", [] { return getDeviceScreenshot(kIp, kPort, nullptr); }},
      {"sendPlayList", "failed", [] { return sendPlayList(kIp, kPort, 1, nullptr); }},
      {"sendFile", "failed", [] { return sendFile(kIp, kPort, nullptr, "n"); }},
      {"sendFile", "failed", [] { return sendFile(kIp, kPort, "/dev/null", nullptr); }},
      {"sendLocalUpdate", "failed", [] { return sendLocalUpdate(kIp, kPort, 1, nullptr); }},
      {"sendFtpDownloadaddress", "failed",
       [] { return sendFtpDownloadaddress(kIp, kPort, nullptr); }},
      {"updateFileName", "failed", [] { return updateFileName(kIp, kPort, nullptr); }},
      {"removeAppPageName", "failed", [] { return removeAppPageName(kIp, kPort, nullptr); }},
      {"setDeviceSecretParam", "failed",
       [] { return setDeviceSecretParam(kIp, kPort, nullptr, false); }},
      {"setDeviceName", "success", [] { return setDeviceName(kIp, kPort, nullptr); }},
      {"setDeviceKey", "success", [] { return setDeviceKey(kIp, kPort, nullptr); }},
      {"setDeviceNetBasicParam", "success",
       [] {
         return setDeviceNetBasicParam(kIp, kPort, nullptr, "1.1.1.1", "1.1.1.1", 1, "1.1.1.1");
       }},
      {"setDeviceNetBasicParam", "success",
       [] {
         return setDeviceNetBasicParam(kIp, kPort, "1.1.1.1", "1.1.1.1", "1.1.1.1", 1, nullptr);
       }},
      {"setDesKey", "success", [] { return setDesKey(kIp, kPort, nullptr); }},
      {"setAesKey", "success", [] { return setAesKey(kIp, kPort, nullptr); }},
  };
  for (const auto& c : cases) {
    arrive("");
    EXPECT_STREQ(c.call(), c.answer) << c.name;
    EXPECT_EQ(fake().opened, 0) << c.name;
    EXPECT_TRUE(fake().logged("error " + std::string(c.name) + " refused: a text is null"))
        << c.name;
  }
}

// Several languages have a byte of ones for true.
TEST_F(FlatCalls, TakeAnyByteButZeroForTrue) {
  for (const int byte : {1, 2, 0x80, 0xFF}) {
    for (const auto& [call, request] : {std::pair{&setPowerByByte, "05 01"},
                                        {&setBothPowersByByte, "25 01"},
                                        {&setLinkByByte, "F3 01 3C 00 03"}}) {
      arrive("");
      call(kIp, kPort, byte);
      EXPECT_EQ(sent(), request) << byte;
    }
    redactByByte(byte);
    arrive("");
    setAesKey(kIp, kPort, "12345678");
    setDesKey(kIp, kPort, "12345678");
    EXPECT_TRUE(fake().logged("info ToviTraffic::setDesKey set encrypted key, key = ********"));
    tovi_set_log_redaction(false);
  }
}

TEST_F(FlatCalls, WriteTheirOwnRecordsOfTimetables) {
  arrive("");
  read(getBrightnessByTimeList(kIp, kPort));
  EXPECT_TRUE(fake().logged("warn getBrightnessByTimeList list is null"));
  read(getDevicePowerByTimeList(kIp, kPort));
  EXPECT_TRUE(fake().logged("warn getDevicePowerByTimeList list is null"));
  read(getPlayByTimeList(kIp, kPort));
  EXPECT_TRUE(fake().logged("warn getPlayByTimeList list is null"));
  arrive("51 00");
  read(getBrightnessByTimeList(kIp, kPort));
  EXPECT_TRUE(fake().logged("info getBrightnessByTimeList result = interfaceEnd"));
}

TEST_F(FlatCalls, FetchAScreenshotIntoAFile) {
  const std::filesystem::path path =
      std::filesystem::temp_directory_path() / "tovi_flat_screenshot.bin";
  arrive("81 00 00 61 62 63");
  EXPECT_STREQ(getDeviceScreenshot(kIp, kPort, path.string().c_str()), "success");
  EXPECT_EQ(sent(), "80 FF FF");
  std::ifstream file(path, std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "abc");
  file.close();
  std::filesystem::remove(path);
}

}  // namespace
