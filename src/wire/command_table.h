// SPDX-License-Identifier: MIT
// Every command of the protocol, one row each: all methods, the simulator, the tools and the
// documents take their numbers from here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string_view>

#include "wire/frame.h"

namespace tovi::wire {

inline constexpr std::uint16_t kNoReply = 0xFF;      // reply code of commands that await no reply
inline constexpr std::uint16_t kNoRequest = 0xFFFF;  // the controller speaks first

// Receive buffers: how much of a reply one read takes, in bytes.
inline constexpr int kShortReply = 100;
inline constexpr int kBigReply = 4096;
inline constexpr int kTextReply = 8192;
inline constexpr int kPictureReply = 65535;
inline constexpr int kLinkReply = 120000;  // a download link to a log archive may be long

// How long the text may be that a host gives a command, in bytes. Without an end of its own, it is
// what fits a frame.
struct TextSize {
  std::size_t least = 0;
  std::size_t most = SIZE_MAX;
};

struct Command {
  std::string_view method;  // the method that sends it; for a step, the method of that step
  std::uint16_t request;
  std::uint16_t reply;
  int buffer = kShortReply;
  TextSize text = {};
};

// 8-bit codes come first, then the 16-bit codes from 0x101 on, which are their own reply codes.
inline constexpr Command kCommands[] = {
    {"sendHeartBeat", 0x00, kNoReply},
    {"getDeviceType", 0x01, 0x02, kBigReply},
    {"setPower", 0x05, 0x06},
    {"setBrightness", 0x07, 0x08},
    {"setTime", 0x09, 0x0A},
    {"startScreenPointDetect", 0x0B, 0x0C},
    {"restartDevice", 0x0D, 0x0E},
    {"sendFileName", 0x11, 0x12},
    {"sendFileContent", 0x13, 0x14},
    {"setCloseScreenTemperature", 0x15, 0x16},
    {"setBrightnessAuto", 0x17, 0x18},
    {"setDeviceNetBasicParam", 0x19, kNoReply},
    {"playListById", 0x1B, 0x1C},
    {"resetDeviceIpToDefault", 0x21, kNoReply},
    {"getDeviceVersion", 0x23, 0x24},
    {"setBoardPowerAndScreenPower", 0x25, 0x26},
    {"getCloseScreenTemperature", 0x29, 0x2A},
    {"getBrightnessAuto", 0x2B, 0x2C, kBigReply},
    {"getNowPlayContent", 0x2D, 0x2E, kBigReply},
    {"getDetectErrorPointData", 0x36, 0x37, kBigReply},
    {"getNowPlayAllContent", 0x3A, 0x3B, kBigReply},
    {"setPlayByTimeList", 0x41, 0x42},
    {"setBrightnessByTimeList", 0x43, 0x44},
    {"setDeviceVolume", 0x45, 0x46},
    {"getDeviceMemorySize", 0x47, 0x48},
    {"sendFtpDownloadaddress", 0x49, 0x50, kShortReply, {1, 1024}},
    {"getBrightnessByTimeList", 0x51, 0x51, kBigReply},
    {"getDevicePowerByTimeList", 0x52, 0x52, kBigReply},
    {"getPlayByTimeList", 0x53, 0x53, kBigReply},
    {"setDeviceSecretParam", 0x70, 0x71},
    {"cleanUpFiles", 0x7C, 0x7D},
    {"setDeviceName", 0x7E, 0x7F},
    {"getDeviceName", 0x7E, 0x7F},
    {"getDeviceScreenshot", 0x80, 0x81, kPictureReply},
    {"getDeviceSize", 0x82, 0x83},
    {"setBoardPower", 0x84, 0x85},
    {"setMultiFunctionCardPower", 0x86, 0x87},
    {"sendLocalUpdate", 0x88, 0x89},
    {"sendTestLocalUpdate", 0x88, 0x89},
    {"removeLocalUpdate", 0x88, 0x89},
    {"setDevicePowerByTimeList", 0x8A, 0x8B},
    {"updateFileName", 0x90, 0x91, kShortReply, {1, 1024}},
    {"setTimeAndTimeZone", 0x95, 0x95},
    {"getTimeAndTimeZone", 0x96, 0x96},
    {"setDeviceNTPParam", 0x97, 0x97},
    {"getDeviceNTPParam", 0x98, 0x98},
    {"setRDSRoad", 0x99, 0x99},
    {"getRDSRoad", 0x9A, 0x9A},
    {"getWifiApState", 0x9B, 0x9B},
    {"setRelayPowers", 0x9E, 0x9E},
    {"removeAppPageName", 0x9F, 0x9F, kShortReply, {1, 256}},
    {"getSurveil", 0xA0, 0xA0, kBigReply},
    {"getVideoControlInfo", 0xA1, 0xA1, kBigReply},
    {"getEdidInfo", 0xA2, 0xA2, kBigReply},
    {"setVideoControlInfo", 0xA3, 0xA3},
    {"setEdidInfo", 0xA4, 0xA4},
    {"setCustomResolution", 0xA5, 0xA5},
    {"getCurrentResolution", 0xA6, 0xA6},
    {"getAllPlaylistId", 0xA7, 0xA7},
    {"getVolumeValue", 0xA9, 0xA9},
    {"setAutoBrightnessTimeParam", 0xAA, 0xAA},
    {"downloadFiles", 0xAB, 0xAB},
    {"deletePlaylistById", 0xAE, 0xAE},
    {"getCpuAndMemoryInfo", 0xAF, 0xAF, kTextReply},
    {"getAllMediaFileName", 0xB0, 0xB0, kBigReply},
    {"getMac", 0xB3, 0xB3},
    {"getFileListName", 0xB9, 0xB9, kTextReply},
    {"getScreenStatus", 0xBA, 0xBA},
    {"setSyncPlay", 0xBC, 0xBC},
    {"getSyncPlay", 0xBD, 0xBD},
    {"getSystemInfo", 0xC2, 0xC2, kBigReply},
    {"getBrightnessInfo", 0xC3, 0xC3},
    {"getWifiApConfig", 0xC4, 0xC4, kTextReply},
    {"setWifiApState", 0xC5, 0xC5},
    {"setWifiApConfig", 0xC6, 0xC6, kShortReply, {0, 1024}},
    {"getSensorInfo", 0xC7, 0xC7, kBigReply},
    {"setSensorInfo", 0xC8, 0xC8, kShortReply, {0, 4096}},
    {"getMobileInfo", 0xC9, 0xC9, kBigReply},
    {"getWifiState", 0xCA, 0xCA},
    {"setWifiState", 0xCB, 0xCB},
    {"getWifiList", 0xCE, 0xCE, kBigReply},
    {"connectWifi", 0xCF, 0xCF, kShortReply, {0, 1024}},
    {"getFontList", 0xD1, 0xD1, kBigReply},
    {"setFont", 0xD2, 0xD2, kShortReply, {0, 1024}},
    {"getVirtualConnection", 0xD3, 0xD3},
    {"getSn", 0xD5, 0xD5},
    {"getLoraInfo", 0xD6, 0xD6, kTextReply},
    {"setLoraInfo", 0xD7, 0xD7, kShortReply, {0, 4096}},
    {"setAdvanceTiming", 0xDC, 0xDC, kShortReply, {0, 4096}},
    {"getAdvanceTiming", 0xDD, 0xDD, kTextReply},
    {"removeAdvanceTiming", 0xDE, 0xDE},
    {"setAntiAliasing", 0xE5, kNoReply},
    {"getAntiAliasing", 0xE6, 0xE6},
    {"getSupportVideoSource", 0xE7, 0xE7, kBigReply},
    {"setVirtualConnection", 0xF3, 0xF4},
    {"recvFileOverRsp", kNoRequest, 0xF9},
    {"setPingIp", 0x101, 0x101},
    {"getPingIp", 0x102, 0x102, kTextReply},
    {"setDeviceKey", 0x103, 0x103},
    {"switchToSoftsim", 0x105, 0x105},
    {"getSimInfo", 0x108, 0x108, kTextReply},
    {"getWhitelist", 0x109, 0x109, kTextReply},
    {"addWhitelist", 0x10A, 0x10A},
    {"removeWhitelist", 0x10B, 0x10B},
    {"getIsSecret", 0x10C, 0x10C},
    {"setServerIPLists", 0x10D, 0x10D},
    {"getServerIPLists", 0x10E, 0x10E, kTextReply},
    {"getLogZipPath", 0x10F, 0x10F, kLinkReply},
    {"setSSHEnabled", 0x110, 0x110},
    {"getSSHEnabled", 0x110, 0x110},
    {"backups", 0x111, 0x111},
    {"getBackupsTimes", 0x111, 0x111},
    {"setPreStoredScreenEnabled", 0x112, 0x112},
    {"getPreStoredScreenEnabled", 0x112, 0x112},
    {"solidify", 0x113, 0x113},
    {"getPowerState", 0x114, 0x114},
    {"clearCache", 0x115, 0x115},
};

// Rows that are steps of a public method and no method of their own for hosts.
constexpr bool isStep(const Command& row) {
  for (const std::string_view step :
       {"sendFileName", "sendFileContent", "recvFileOverRsp", "getDetectErrorPointData"}) {
    if (row.method == step) return true;
  }
  return false;
}

// The row of a method. A name that the table lacks does not compile.
consteval const Command& command(std::string_view method) {
  for (const Command& row : kCommands) {
    if (row.method == method) return row;
  }
  throw std::logic_error("no such row");
}

// A row as an argument, given by its method's name.
struct Row {
  consteval Row(const char* method) : command(wire::command(method)) {}
  const Command& command;
};

}  // namespace tovi::wire
