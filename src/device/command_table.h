// Every command of the protocol, one row each: all methods, the simulator and the tools take their
// codes from here.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string_view>

namespace tovi::device {

// How a command's exchange goes.
enum class Exchange {
  Set,      // one request; a status byte answers
  Get,      // one request; the reply fits the ordinary receive buffer
  GetBig,   // one request; the reply wants the 4096-byte receive buffer
  GetHuge,  // one request; the reply wants room for a long link
  Step,     // one step of an operation that takes several on one connection
};

inline constexpr std::uint16_t kNoReply = 0xFF;      // reply code of commands that await no reply
inline constexpr std::uint16_t kNoRequest = 0xFFFF;  // the controller speaks first

struct Command {
  std::string_view method;  // the method that sends it; for a step, the method of that step
  Exchange exchange;
  std::uint16_t request;
  std::uint16_t reply;
};

// 8-bit codes come first, then the 16-bit codes from 0x101 on, which are their own reply codes.
inline constexpr Command kCommands[] = {
    {"sendHeartBeat", Exchange::Set, 0x00, kNoReply},
    {"getDeviceType", Exchange::GetBig, 0x01, 0x02},
    {"setPower", Exchange::Set, 0x05, 0x06},
    {"setBrightness", Exchange::Set, 0x07, 0x08},
    {"setTime", Exchange::Set, 0x09, 0x0A},
    {"startScreenPointDetect", Exchange::Get, 0x0B, 0x0C},
    {"restartDevice", Exchange::Set, 0x0D, 0x0E},
    {"sendFileName", Exchange::Step, 0x11, 0x12},
    {"sendFileContent", Exchange::Step, 0x13, 0x14},
    {"setCloseScreenTemperature", Exchange::Set, 0x15, 0x16},
    {"setBrightnessAuto", Exchange::Set, 0x17, 0x18},
    {"setDeviceNetBasicParam", Exchange::Set, 0x19, kNoReply},
    {"playListById", Exchange::Set, 0x1B, 0x1C},
    {"resetDeviceIpToDefault", Exchange::Set, 0x21, kNoReply},
    {"getDeviceVersion", Exchange::Get, 0x23, 0x24},
    {"setBoardPowerAndScreenPower", Exchange::Set, 0x25, 0x26},
    {"getCloseScreenTemperature", Exchange::Get, 0x29, 0x2A},
    {"getBrightnessAuto", Exchange::GetBig, 0x2B, 0x2C},
    {"getNowPlayContent", Exchange::GetBig, 0x2D, 0x2E},
    {"getDetectErrorPointData", Exchange::Step, 0x36, 0x37},
    {"getNowPlayAllContent", Exchange::GetBig, 0x3A, 0x3B},
    {"setPlayByTimeList", Exchange::Set, 0x41, 0x42},
    {"setBrightnessByTimeList", Exchange::Set, 0x43, 0x44},
    {"setDeviceVolume", Exchange::Set, 0x45, 0x46},
    {"getDeviceMemorySize", Exchange::Get, 0x47, 0x48},
    {"sendFtpDownloadaddress", Exchange::Set, 0x49, 0x50},
    {"getBrightnessByTimeList", Exchange::GetBig, 0x51, 0x51},
    {"getDevicePowerByTimeList", Exchange::GetBig, 0x52, 0x52},
    {"getPlayByTimeList", Exchange::GetBig, 0x53, 0x53},
    {"setDeviceSecretParam", Exchange::Set, 0x70, 0x71},
    {"cleanUpFiles", Exchange::Set, 0x7C, 0x7D},
    {"setDeviceName", Exchange::Set, 0x7E, 0x7F},
    {"getDeviceName", Exchange::Get, 0x7E, 0x7F},
    {"getDeviceScreenshot", Exchange::Step, 0x80, 0x81},
    {"getDeviceSize", Exchange::Get, 0x82, 0x83},
    {"setBoardPower", Exchange::Set, 0x84, 0x85},
    {"setMultiFunctionCardPower", Exchange::Set, 0x86, 0x87},
    {"sendLocalUpdate", Exchange::Set, 0x88, 0x89},
    {"sendTestLocalUpdate", Exchange::Set, 0x88, 0x89},
    {"removeLocalUpdate", Exchange::Set, 0x88, 0x89},
    {"setDevicePowerByTimeList", Exchange::Set, 0x8A, 0x8B},
    {"updateFileName", Exchange::Set, 0x90, 0x91},
    {"setTimeAndTimeZone", Exchange::Set, 0x95, 0x95},
    {"getTimeAndTimeZone", Exchange::Get, 0x96, 0x96},
    {"setDeviceNTPParam", Exchange::Set, 0x97, 0x97},
    {"getDeviceNTPParam", Exchange::Get, 0x98, 0x98},
    {"setRDSRoad", Exchange::Set, 0x99, 0x99},
    {"getRDSRoad", Exchange::Get, 0x9A, 0x9A},
    {"getWifiApState", Exchange::Get, 0x9B, 0x9B},
    {"setRelayPowers", Exchange::Set, 0x9E, 0x9E},
    {"removeAppPageName", Exchange::Set, 0x9F, 0x9F},
    {"getSurveil", Exchange::GetBig, 0xA0, 0xA0},
    {"getVideoControlInfo", Exchange::GetBig, 0xA1, 0xA1},
    {"getEdidInfo", Exchange::GetBig, 0xA2, 0xA2},
    {"setVideoControlInfo", Exchange::Set, 0xA3, 0xA3},
    {"setEdidInfo", Exchange::Set, 0xA4, 0xA4},
    {"setCustomResolution", Exchange::Set, 0xA5, 0xA5},
    {"getCurrentResolution", Exchange::Get, 0xA6, 0xA6},
    {"getAllPlaylistId", Exchange::Get, 0xA7, 0xA7},
    {"getVolumeValue", Exchange::Get, 0xA9, 0xA9},
    {"setAutoBrightnessTimeParam", Exchange::Get, 0xAA, 0xAA},
    {"downloadFiles", Exchange::Step, 0xAB, 0xAB},
    {"deletePlaylistById", Exchange::Set, 0xAE, 0xAE},
    {"getCpuAndMemoryInfo", Exchange::Get, 0xAF, 0xAF},
    {"getAllMediaFileName", Exchange::GetBig, 0xB0, 0xB0},
    {"getMac", Exchange::Get, 0xB3, 0xB3},
    {"getFileListName", Exchange::Get, 0xB9, 0xB9},
    {"getScreenStatus", Exchange::Get, 0xBA, 0xBA},
    {"setSyncPlay", Exchange::Set, 0xBC, 0xBC},
    {"getSyncPlay", Exchange::Set, 0xBD, 0xBD},
    {"getSystemInfo", Exchange::GetBig, 0xC2, 0xC2},
    {"getBrightnessInfo", Exchange::Get, 0xC3, 0xC3},
    {"getWifiApConfig", Exchange::Get, 0xC4, 0xC4},
    {"setWifiApState", Exchange::Set, 0xC5, 0xC5},
    {"setWifiApConfig", Exchange::Set, 0xC6, 0xC6},
    {"getSensorInfo", Exchange::GetBig, 0xC7, 0xC7},
    {"setSensorInfo", Exchange::Set, 0xC8, 0xC8},
    {"getMobileInfo", Exchange::GetBig, 0xC9, 0xC9},
    {"getWifiState", Exchange::Get, 0xCA, 0xCA},
    {"setWifiState", Exchange::Set, 0xCB, 0xCB},
    {"getWifiList", Exchange::GetBig, 0xCE, 0xCE},
    {"connectWifi", Exchange::Set, 0xCF, 0xCF},
    {"getFontList", Exchange::GetBig, 0xD1, 0xD1},
    {"setFont", Exchange::Set, 0xD2, 0xD2},
    {"getVirtualConnection", Exchange::Get, 0xD3, 0xD3},
    {"getSn", Exchange::Get, 0xD5, 0xD5},
    {"getLoraInfo", Exchange::Get, 0xD6, 0xD6},
    {"setLoraInfo", Exchange::Set, 0xD7, 0xD7},
    {"setAdvanceTiming", Exchange::Set, 0xDC, 0xDC},
    {"getAdvanceTiming", Exchange::Get, 0xDD, 0xDD},
    {"removeAdvanceTiming", Exchange::Set, 0xDE, 0xDE},
    {"setAntiAliasing", Exchange::Set, 0xE5, kNoReply},
    {"getAntiAliasing", Exchange::Get, 0xE6, 0xE6},
    {"getSupportVideoSource", Exchange::GetBig, 0xE7, 0xE7},
    {"setVirtualConnection", Exchange::Set, 0xF3, 0xF4},
    {"recvFileOverRsp", Exchange::Step, kNoRequest, 0xF9},
    {"setPingIp", Exchange::Get, 0x101, 0x101},
    {"getPingIp", Exchange::Get, 0x102, 0x102},
    {"setDeviceKey", Exchange::Get, 0x103, 0x103},
    {"switchToSoftsim", Exchange::Get, 0x105, 0x105},
    {"getSimInfo", Exchange::Get, 0x108, 0x108},
    {"getWhitelist", Exchange::Get, 0x109, 0x109},
    {"addWhitelist", Exchange::Get, 0x10A, 0x10A},
    {"removeWhitelist", Exchange::Get, 0x10B, 0x10B},
    {"getIsSecret", Exchange::Get, 0x10C, 0x10C},
    {"setServerIPLists", Exchange::Get, 0x10D, 0x10D},
    {"getServerIPLists", Exchange::Get, 0x10E, 0x10E},
    {"getLogZipPath", Exchange::GetHuge, 0x10F, 0x10F},
    {"setSSHEnabled", Exchange::Get, 0x110, 0x110},
    {"getSSHEnabled", Exchange::Get, 0x110, 0x110},
    {"backups", Exchange::Get, 0x111, 0x111},
    {"getBackupsTimes", Exchange::Get, 0x111, 0x111},
    {"setPreStoredScreenEnabled", Exchange::Get, 0x112, 0x112},
    {"getPreStoredScreenEnabled", Exchange::Get, 0x112, 0x112},
    {"solidify", Exchange::Get, 0x113, 0x113},
    {"getPowerState", Exchange::Get, 0x114, 0x114},
    {"clearCache", Exchange::Get, 0x115, 0x115},
};

// The row of a method. A name that the table lacks does not compile.
consteval const Command& command(std::string_view method) {
  for (const Command& row : kCommands) {
    if (row.method == method) return row;
  }
  throw std::logic_error("no such row");
}

}  // namespace tovi::device
