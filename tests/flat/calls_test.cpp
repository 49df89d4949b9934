// SPDX-License-Identifier: MIT
// What each flat function sends, and the text that it makes of the answer.
#include <tovisdk/flat.h>
#include <tovisdk/text.h>

#include <functional>
#include <set>
#include <utility>

#include "platform/text.h"
#include "tests/support/fake_platform_test.h"
#include "tests/support/hex.h"
#include "tests/support/wire.h"
#include "tests/transfer/temporary_folder.h"

// Of byte_flags.c
extern "C" {
const char* setPowerByByte(const char* ip, unsigned short port, int on);
const char* setBothPowersByByte(const char* ip, unsigned short port, int on);
const char* setLinkByByte(const char* ip, unsigned short port, int on);
const char* setNtpByByte(const char* ip, unsigned short port, int on);
const char* setSecretByByte(const char* ip, unsigned short port, int withSecondKey);
void redactByByte(int redact);
}

namespace {

using tovi::test::frame;
using tovi::test::toHex;
using tovi::test::unframe;

constexpr char kIp[] = "127.0.0.1";
constexpr unsigned short kPort = 5005;

// What the host reads, once it has decoded and released it.
std::string read(char* text) {
  if (text == nullptr) return "null";
  const std::string copy = text;
  deleteArry(&text);
  return tovi::platform::gbkToUtf8(copy).value_or("no GBK: " + toHex(copy));
}
std::string read(const char* text) { return text; }

template <class Text, class... Parameters, class... Arguments>
std::function<std::string()> call(Text* (*function)(const char*, unsigned short, Parameters...),
                                  Arguments... arguments) {
  return [=] { return read(function(kIp, kPort, static_cast<Parameters>(arguments)...)); };
}

struct Call {
  std::string what;  // the function, then what is particular about the case
  std::function<std::string()> call;
  std::string request;  // command byte and payload; "|" between requests; empty: nothing is sent
  std::string reply;    // command byte and payload; "|" between replies; empty: silence
  std::string text;     // UTF-8; what the host gets in GBK
};

const std::string kTimes = "02 03 E8 07 05 04 03 1F 0C E9 07 3A 3B 17";
const std::string kTimesText = "开始时间:124-2-2 3:4:5 结束时间:125-11-31 23:59:58";

const Call kCalls[] = {
    {"setPower", call(setPower, true), "05 01", "06 01", "success"},
    {"setPower refused", call(setPower, false), "05 02", "06 00", "failed"},
    {"setBoardPower", call(setBoardPower, false), "84 02", "85 01", "success"},
    {"setBoardPowerAndScreenPower", call(setBoardPowerAndScreenPower, false), "25 00", "26 01",
     "success"},
    {"setMultiFunctionCardPower", call(setMultiFunctionCardPower, 1, 2, true), "86 01 02 01",
     "87 01", "success"},
    {"setRelayPowers", call(setRelayPowers, true, true, false, true), "9E 01 01 02 01", "9E 01",
     "success"},
    {"getScreenStatus open", call(getScreenStatus), "BA", "BA 01", "open"},
    {"getScreenStatus close", call(getScreenStatus), "BA", "BA 00", "close"},
    {"setBrightness", call(setBrightness, 256), "07 02 7D", "08 01", "success"},
    {"setBrightnessAuto", call(setBrightnessAuto, "10 20 30"),
     "07 01 00 | 17 0A 14 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00",
     "08 01 | 18 01", "success"},
    {"setBrightnessAuto nine pairs",
     call(setBrightnessAuto, "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18"),
     "07 01 00 | 17 01 02 00 03 04 00 05 06 00 07 08 00 09 0A 00 0B 0C 00 0D 0E 00 0F 10 00",
     "08 01 | 18 01", "success"},
    {"setAutoBrightnessTimeParam", call(setAutoBrightnessTimeParam, 5, 6), "AA 05 06", "AA 01",
     "success"},
    {"setDeviceVolume", call(setDeviceVolume, 200), "45 C8", "46 01", "success"},
    // What is missing or no number is 0; of two blanks an empty token is between; the last is left
    // over.
    {"setDevicePowerByTimeList",
     call(setDevicePowerByTimeList, "2024-1-2-3-4-5 2025-12-31-23-59-58-7 2024-01 x-1-y 1--3  x"),
     "8A 03 02 01 E8 07 05 04 03 1F 0C E9 07 3A 3B 17 00 01 E8 07 00 00 00 00 01 00 00 00 00 00 "
     "03 00 01 00 00 00 00 00 00 00 00 00 00 00",
     "8B 01", "success"},
    {"setPlayByTimeList", call(setPlayByTimeList, "1-2-3-4-5-6 1-2-3-4-5-6 7 x y z"),
     "41 02 03 02 01 00 06 05 04 03 02 01 00 06 05 04 07 00 "
     "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00",
     "42 01", "success"},
    {"setBrightnessByTimeList too few", call(setBrightnessByTimeList, "a b"), "07 03 00 | 43 00",
     "08 01 | 44 01", "success"},
    {"setAdvanceTiming", call(setAdvanceTiming, "t"), "DC 74", "DC 01", "success"},
    {"removeAdvanceTiming", call(removeAdvanceTiming), "DE 01", "DE 01", "success"},
    {"setTime", call(setTime, "124-0-2-3-4-5"), "09 E8 07 01 02 03 04 05", "0A 01", "success"},
    {"setTimeAndTimeZone", call(setTimeAndTimeZone, 17, "U", "G"), "95 31 37 2C 55 2C 47", "95 01",
     "success"},
    {"setDeviceNTPParam", call(setDeviceNTPParam, 1, "n"), "97 01 6E", "97 01", "success"},
    {"setEdidInfo", call(setEdidInfo, "9 8 7 6"),
     "A4 " + toHex(R"({"fieldRate":6,"width":8,"height":7})"), "A4 01", "success"},
    {"setVideoControlInfo", call(setVideoControlInfo, 3),
     "A3 " + toHex(R"({"isScale":"false","offsetX":0,"offsetY":0,"videoMode":1,"videoSource":3})"),
     "A3 01", "success"},
    {"playListById", call(playListById, 5), "1B 05", "1C 01", "success"},
    {"deletePlaylistById", call(deletePlaylistById, 5), "AE 05", "AE 01", "success"},
    {"sendPlayList", call(sendPlayList, 5, "ab"),
     "11 FF FF 70 6C 61 79 30 30 35 2E 6C 73 74 | 13 01 00 61 62 | 1B 05",
     "12 01 | 14 01 00 01 | F9 01 | 1C 01", "success"},
    {"sendFile missing", call(sendFile, "/nowhere/file", "n"), "11 FF FF 6E", "12 01", "failed"},
    {"cleanUpFiles", call(cleanUpFiles, 7), "7C 01", "7D 01", "success"},
    {"sendLocalUpdate", call(sendLocalUpdate, 2, "p"), "88 01 02 70", "89 01", "success"},
    {"removeLocalUpdate", call(removeLocalUpdate, 2), "88 00 02", "89 01", "success"},
    {"sendFtpDownloadaddress", call(sendFtpDownloadaddress, "f"), "49 66", "50 01", "success"},
    {"updateFileName", call(updateFileName, "u"), "90 75", "91 01", "success"},
    {"removeAppPageName", call(removeAppPageName, "a"), "9F 61", "9F 01", "success"},
    {"getDeviceScreenshot without path", call(getDeviceScreenshot, ""), "", "", "failed"},
    {"setDeviceName", call(setDeviceName, "n"), "7E 00 6E", "7F 00", "success"},
    {"setDeviceKey", call(setDeviceKey, "k"), "EF 03 01 6B", "", "success"},
    {"setDeviceSecretParam", call(setDeviceSecretParam, "l 2 TRUE 12345678 abcdefgh", true),
     "70 02 01 6C 91 21 31 32 33 34 35 36 37 38 91 21 61 62 63 64 65 66 67 68", "71 01", "success"},
    {"setDeviceSecretParam of one key",
     call(setDeviceSecretParam, "l 0 0 12345678 abcdefgh", false), "70 00 00 6C 91 21", "71 01",
     "success"},
    {"setDeviceNetBasicParam",
     call(setDeviceNetBasicParam, "1.2.3.4", "255.0.0.0", "1.0.0.1", 258, "9.8.7.6"),
     "19 01 02 03 04 FF 00 00 00 01 00 00 01 02 01 09 08 07 06 00 00 00 00 00 00 00 00", "",
     "success"},
    {"resetDeviceIpToDefault", call(resetDeviceIpToDefault), "21", "", "success"},
    {"setVirtualConnection", call(setVirtualConnection, true, 10, 3), "F3 01 3C 00 03", "F4 01",
     "success"},
    {"restartDevice", call(restartDevice), "0D", "0E 01", "success"},
    {"sendHeartBeat", call(sendHeartBeat), "00 00", "", "success"},
    {"setCloseScreenTemperature", call(setCloseScreenTemperature, 150), "15 00 00 00 00 00 96",
     "16 01", "success"},
    {"setDesKey", call(setDesKey, "12345678"), "", "", "success"},
    {"setAesKey", call(setAesKey, "12345678"), "", "", "success"},
    {"clearPassword", call(clearPassword), "", "", "success"},
    {"setTimeout", call(setTimeout, 5), "", "", "success"},

    {"getBrightnessInfo", call(getBrightnessInfo), "C3", "C3 02 50",
     "亮度模式:2 亮度值:80\r\ninterfaceEnd"},
    {"getBrightnessAuto", call(getBrightnessAuto), "2B",
     "2C 01 02 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 FE FF 00",
     "第0组:\r\n环境亮度:1\r\n屏体亮度:2\r\n第1组:\r\n环境亮度:0\r\n屏体亮度:0\r\n"
     "第2组:\r\n环境亮度:0\r\n屏体亮度:0\r\n第3组:\r\n环境亮度:0\r\n屏体亮度:0\r\n"
     "第4组:\r\n环境亮度:0\r\n屏体亮度:0\r\n第5组:\r\n环境亮度:0\r\n屏体亮度:0\r\n"
     "第6组:\r\n环境亮度:0\r\n屏体亮度:0\r\n第7组:\r\n环境亮度:254\r\n屏体亮度:255\r\n"
     "interfaceEnd"},
    {"getVolumeValue", call(getVolumeValue), "A9", "A9 C8", "-56"},
    {"getDevicePowerByTimeList", call(getDevicePowerByTimeList), "52", "52 01 " + kTimes,
     kTimesText + "\r\ninterfaceEnd"},
    {"getPlayByTimeList", call(getPlayByTimeList), "53", "53 01 " + kTimes + " 07 00",
     kTimesText + " 播放id:7\r\ninterfaceEnd"},
    {"getBrightnessByTimeList", call(getBrightnessByTimeList), "51",
     "51 02 " + kTimes + " 50 " + kTimes + " FF",
     kTimesText + " 亮度值:80\r\n" + kTimesText + " 亮度值:255\r\ninterfaceEnd"},
    {"getAdvanceTiming", call(getAdvanceTiming), "DD 01", "DD 01 61", "ainterfaceEnd"},
    {"getTimeAndTimeZone", call(getTimeAndTimeZone), "96", "96 31 37 2C 55 2C 47",
     "时间:17\r\n时区ID:U\r\nUTC偏移:G\r\ninterfaceEnd"},
    {"getDeviceNTPParam", call(getDeviceNTPParam), "98", "98 01 6E",
     "开启NTP对时:1\r\nNTP服务器:n\r\ninterfaceEnd"},
    {"getDeviceSize", call(getDeviceSize), "82", "83 80 07 38 04",
     "宽:1920\r\n高:1080\r\ninterfaceEnd"},
    {"getEdidInfo", call(getEdidInfo), "A2",
     "A2 01 " + toHex(R"({"width":8,"height":7,"fieldRate":6})"),
     "错误码:1 宽:8 高:7 帧率:6\r\ninterfaceEnd"},
    {"getVideoControlInfo", call(getVideoControlInfo), "A1",
     "A1 01 " + toHex(R"({"videoSource":3})"), "错误码:1 视频源:3\r\ninterfaceEnd"},
    {"startScreenPointDetect", call(startScreenPointDetect), "0B", "0C 01 07 00 00 00",
     "错误码:1 坏点数:7\r\ninterfaceEnd"},
    {"getNowPlayContent", call(getNowPlayContent), "2D", "2E 01 00 05 E9 99 90",
     "play id:5\r\nplay content:限\r\ninterfaceEnd"},
    {"getNowPlayAllContent null", call(getNowPlayAllContent), "3A", "3B 05",
     "play id:5\r\nplay content:\r\ninterfaceEnd"},
    {"getAllPlaylistId", call(getAllPlaylistId), "A7", "A7 01 02 FF", "[1,2,-1],interfaceEnd"},
    {"getFileListName", call(getFileListName, 2), "B9 02", "B9 01 " + toHex(R"(["a.jpg","b.png"])"),
     "a.jpg,b.png,interfaceEnd"},
    // A text ends at a zero byte for a host, and the mark must come before that.
    {"getFileListName with a zero byte", call(getFileListName, 2), "B9 02",
     "B9 01 " + toHex(R"(["a\u0000b","c"])"), "ainterfaceEnd"},
    {"getDeviceType", call(getDeviceType), "01",
     "02 34 12 00 00 00 00 05 01 01 01 00 19 01 00 00 C8 02 50",
     "时间:5年5月5日5 时5分5秒\r\n亮度模式:2\r\n环境亮度:200\r\n屏幕亮度:80\r\n温度:-25\r\n"
     "interfaceEnd"},
    // UTF-8 becomes GBK, with "?" for what GBK lacks.
    {"getDeviceName", call(getDeviceName), "7E 01", "7F 01 E9 99 90 F0 9F 98 80 41",
     "限?AinterfaceEnd"},
    {"getDeviceName silent", call(getDeviceName), "7E 01", "", "interfaceEnd"},
    // What is no UTF-8 stays as it came: these are the GBK bytes of the same character.
    {"getDeviceVersion", call(getDeviceVersion), "23", "24 CF DE", "限interfaceEnd"},
    // Bytes of GBK that pass for UTF-8 of characters which GBK lacks, too.
    {"getDeviceName in GBK", call(getDeviceName), "7E 01", "7F 01 7F D2 80 D1 A7 D4 BA",
     "\x7F襽学院interfaceEnd"},
    {"getSn", call(getSn), "D5", "D5 53 4E", "SNinterfaceEnd"},
    {"getMac", call(getMac), "B3", "B3 00 1A 0B 00 FF 05", "0:1a:b:0:ff:5interfaceEnd"},
    {"getCpuAndMemoryInfo", call(getCpuAndMemoryInfo), "AF",
     "AF 01 " + toHex(R"({"cpuUsage":"7%","diskTotal":"9G","diskFree":"8G"})"),
     "错误码:1 CPU使用率:7% 硬盘总大小:9G 硬盘剩余大小:8G\r\ninterfaceEnd"},
    {"getDeviceMemorySize", call(getDeviceMemorySize), "47", "48 01 00 00 00 02 00 00 00",
     "总内存大小:1\r\n剩余内存大小:2\r\ninterfaceEnd"},
    {"getSurveil", call(getSurveil), "A0", "A0 01 61", "a"},
    {"getVirtualConnection", call(getVirtualConnection), "D3", "D3 01 3C 00 07",
     "是否开启:1 延时时间:60 节目id:7\r\ninterfaceEnd"},
    {"getCloseScreenTemperature", call(getCloseScreenTemperature), "29", "", "高温关屏温度:-1"},
};

class FlatCalls : public tovi::test::FakePlatformTest {
 protected:
  void arrive(const std::string& replies) {
    fake().sent.clear();
    fake().incoming.clear();
    fake().files.clear();
    for (const std::string& reply : split(replies, " | ")) fake().arrive(frame(reply));
  }

  std::string sent() {
    std::string text;
    for (const std::string& bytes : fake().sent)
      text += (text.empty() ? "" : " | ") + unframe(bytes);
    return text;
  }
};

TEST_F(FlatCalls, SendAndAnswerWhatTheirRowsSay) {
  std::set<std::string> functions;
  for (const Call& row : kCalls) {
    arrive(row.reply);
    const std::string name = split(row.what, " ")[0];
    EXPECT_EQ(row.call(), row.text) << row.what;
    EXPECT_EQ(sent(), row.request) << row.what;
    EXPECT_EQ(fake().closed, fake().opened) << row.what;
    const std::string logged = name == "getScreenStatus" ? "getScreenState" : name;
    EXPECT_EQ(fake().log().front(), "info " + logged + " start") << row.what;
    EXPECT_EQ(fake().log().back(), "info ToviTraffic::~ToviTraffic end") << row.what;
    functions.insert(name);
  }
  EXPECT_EQ(functions.size(), 71u);  // and one more below; the others are not implemented
}

TEST_F(FlatCalls, PassWhatWasFoundOnAsItCame) {
  arrive("0C 01 | 37 01 01 00 | 37 E9 99 90 00 31");
  char* text = getDetectErrorPointInfo(kIp, kPort);
  EXPECT_STREQ(text, "\xE9\x99\x90interfaceEnd");
  EXPECT_EQ(sent(), "0B | 36");
  deleteArry(&text);
}

TEST_F(FlatCalls, ThatAreNotImplementedSaySoAndSendNothing) {
  std::set<std::string> started;
  for (const auto function : {addWhitelist,          connectWifi,
                              downloadFiles,         getAllMediaFileName,
                              getAntiAliasing,       getCurrentResolution,
                              getFontList,           getIsSecret,
                              getLogZipPath,         getLoraInfo,
                              getMobileInfo,         getPingIp,
                              getSSHEnabled,         getSensorInfo,
                              getServerIPLists,      getSimInfo,
                              getSupportVideoSource, getSyncPlay,
                              getSystemInfo,         getWhitelist,
                              getWifiApConfig,       getWifiApState,
                              getWifiList,           getWifiState,
                              removeWhitelist,       setAntiAliasing,
                              setCustomResolution,   setFont,
                              setLoraInfo,           setPingIp,
                              setSSHEnabled,         setSensorInfo,
                              setServerIPLists,      setSyncPlay,
                              setWifiApConfig,       setWifiApState,
                              setWifiState,          switchToSoftsim}) {
    fake().files.clear();
    EXPECT_STREQ(function(kIp, kPort), "Interface not implemented");
    started.insert(fake().log().front());
    // A session comes and goes all the same.
    EXPECT_EQ(fake().log().back(), "info ToviTraffic::~ToviTraffic end");
  }
  EXPECT_EQ(started.size(), 38u);
  EXPECT_EQ(fake().opened, 0);
}

// Several languages have a byte of ones for true.
TEST_F(FlatCalls, TakeAnyByteButZeroForTrue) {
  for (const int byte : {1, 2, 0x80, 0xFF}) {
    for (const auto& [function, request] :
         {std::pair{&setPowerByByte, "05 01"},
          {&setBothPowersByByte, "25 01"},
          {&setLinkByByte, "F3 01 3C 00 03"},
          {&setNtpByByte, "97 01 6E"},
          {&setSecretByByte, "70 00 00 6C 91 21 91 21 61 62 63 64 65 66 67 68"}}) {
      arrive("");
      function(kIp, kPort, byte);
      EXPECT_EQ(sent(), request) << byte;
    }
    redactByByte(byte);
    arrive("");
    setDesKey(kIp, kPort, "12345678");
    EXPECT_TRUE(fake().logged("info ToviTraffic::setDesKey set encrypted key, key = ********"));
    tovi_set_log_redaction(false);
  }
}

TEST_F(FlatCalls, WriteTheirOwnRecordsOfTimetables) {
  for (const auto& [function, record] :
       {std::pair{&getBrightnessByTimeList, "warn getBrightnessByTimeList list is null"},
        {&getDevicePowerByTimeList, "warn getDevicePowerByTimeList list is null"},
        {&getPlayByTimeList, "warn getPlayByTimeList list is null"}}) {
    arrive("");
    EXPECT_EQ(read(function(kIp, kPort)), "interfaceEnd") << record;
    EXPECT_TRUE(fake().logged(record)) << record;
  }
  arrive("51 00");
  EXPECT_EQ(read(getBrightnessByTimeList(kIp, kPort)), "interfaceEnd");
  EXPECT_TRUE(fake().logged("info getBrightnessByTimeList result = interfaceEnd"));
}

TEST_F(FlatCalls, FetchAScreenshotIntoAFile) {
  const tovi::test::TemporaryFolder folder;
  arrive("81 00 00 61 62 63");
  EXPECT_STREQ(getDeviceScreenshot(kIp, kPort, folder.path("shot").c_str()), "success");
  EXPECT_EQ(sent(), "80 FF FF");
  EXPECT_EQ(folder.content("shot"), "abc");
}

}  // namespace
