// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"

namespace tovi::test {
namespace {

using T = ToviTraffic;

std::string shown(ResolutionInfo i) { return show(i.result, i.resolution); }
std::string shown(EdidInfo i) { return show(i.result, i.width, i.height, i.fieldRate); }
std::string shown(VideoControlInfo i) { return show(i.result, i.videoSource); }
std::string shown(DeviceSize s) { return show(s.width, s.height); }
std::string shown(TextAttr a) { return show(int{a.first}, int{a.second}, int{a.third}); }
std::string shown(ScreenPointDetect d) { return show(d.result, d.badPoints); }
std::string flags(PreStoredScreenEnabled enabled) { return show(enabled.first, enabled.second); }

const std::string kResolutionSet =
    "A5" + jsonHex(R"({"displayMode":1,"width":1920,"height":-1,"refreshRate":60})");
const std::string kEdidSet = "A4" + jsonHex(R"({"fieldRate":60,"width":800,"height":600})");
const std::string kVideoSet =
    "A3" + jsonHex(R"({"isScale":"false","offsetX":0,"offsetY":0,"videoMode":1,"videoSource":3})");
const std::string kResolution = "A6 01" + jsonHex(R"({"value":"1920x1080"})") + " 00 41";
const std::string kEdid = "A2 01" + jsonHex(R"({"width":800,"height":"600","fieldRate":59.9})");
const std::string kEdidWithoutHeight = "A2 01" + jsonHex(R"({"fieldRate":60,"width":800})");
const std::string kVideo = "A1 01" + jsonHex(R"({"videoSource":"2"})");

const Call kCalls[] = {
    {"setCustomResolution", [](T& t) { return show(t.setCustomResolution(1920, -1, 60)); },
     kResolutionSet.c_str(), "A5 01", "1"},
    {"getCurrentResolution", [](T& t) { return shown(t.getCurrentResolution()); }, "A6",
     kResolution.c_str(), "1 1920x1080"},
    {"getCurrentResolution refused", [](T& t) { return shown(t.getCurrentResolution()); }, "A6",
     "A6 00 7B 7D", "0 ", Rejected},
    {"getCurrentResolution of two bytes", [](T& t) { return shown(t.getCurrentResolution()); },
     "A6", "A6 01", "0 ", BadReply},
    {"getCurrentResolution no JSON", [](T& t) { return shown(t.getCurrentResolution()); }, "A6",
     "A6 01 7B 7B", "1 ", BadReply},
    {"setEdidInfo",
     [](T& t) {
       return show(t.setEdidInfo({7, 800, 600, 60}));
     },
     kEdidSet.c_str(), "A4 01", "1"},
    {"getEdidInfo", [](T& t) { return shown(t.getEdidInfo()); }, "A2", kEdid.c_str(),
     "1 800 600 59"},
    {"getEdidInfo without height", [](T& t) { return shown(t.getEdidInfo()); }, "A2",
     kEdidWithoutHeight.c_str(), "1 800 0 60"},
    {"getEdidInfo silent", [](T& t) { return shown(t.getEdidInfo()); }, "A2", "", "0 0 0 0",
     NoReply},
    {"setVideoControlInfo", [](T& t) { return show(t.setVideoControlInfo(3)); }, kVideoSet.c_str(),
     "A3 01", "1"},
    {"getVideoControlInfo", [](T& t) { return shown(t.getVideoControlInfo()); }, "A1",
     kVideo.c_str(), "1 2"},
    {"getSupportVideoSource", [](T& t) { return t.getSupportVideoSource(); }, "E7", "E7 01 61",
     "a"},
    {"getDeviceSize", [](T& t) { return shown(t.getDeviceSize()); }, "82", "83 80 07 38 F4",
     "1920 62520"},
    {"getDeviceSize short", [](T& t) { return shown(t.getDeviceSize()); }, "82", "83 80 07 38",
     "-1 -1", BadReply},
    {"setAntiAliasing", [](T& t) { return t.setAntiAliasing(true, false, true), std::string("-"); },
     "E5 01 00 01", "", "-"},
    {"getAntiAliasing", [](T& t) { return shown(t.getAntiAliasing()); }, "E6", "E6 01 02 01",
     "1 0 1"},
    {"getAntiAliasing short", [](T& t) { return shown(t.getAntiAliasing()); }, "E6", "E6 01 01",
     "0 0 0", BadReply},
    {"setSyncPlay", [](T& t) { return show(t.setSyncPlay(true)); }, "BC 01", "BC 01", "true"},
    {"getSyncPlay", [](T& t) { return show(t.getSyncPlay()); }, "BD", "BD 01", "true"},
    {"getSyncPlay refused", [](T& t) { return show(t.getSyncPlay()); }, "BD", "BD 00", "false",
     Rejected},
    {"setPreStoredScreenEnabled", [](T& t) { return show(t.setPreStoredScreenEnabled(true)); },
     "EF 12 01 01 01", "EF 12 01 00 01", "1"},
    {"setPreStoredScreenEnabled short",
     [](T& t) { return show(t.setPreStoredScreenEnabled(false)); }, "EF 12 01 01 00", "EF 12 01 00",
     "-1", BadReply},
    {"getPreStoredScreenEnabled", [](T& t) { return flags(t.getPreStoredScreenEnabled()); },
     "EF 12 01 00", "EF 12 01 00 01 FF", "1 -1"},
    {"getPreStoredScreenEnabled short", [](T& t) { return flags(t.getPreStoredScreenEnabled()); },
     "EF 12 01 00", "EF 12 01 00 01", "-1 0", BadReply},
    {"setFont", [](T& t) { return show(t.setFont("f")); }, "D2 66", "D2 01", "1"},
    {"setFont too long", [](T& t) { return show(t.setFont(std::string(1025, 'x'))); }, "", "",
     "-15", RefusedArgument},
    {"getFontList", [](T& t) { return t.getFontList(); }, "D1", "D1 01 61", "a"},
    {"startScreenPointDetect", [](T& t) { return shown(t.startScreenPointDetect()); }, "0B",
     "0C 01 04 03 02 01", "1 16909060"},
    {"startScreenPointDetect refused", [](T& t) { return shown(t.startScreenPointDetect()); }, "0B",
     "0C 00 04 03 02 01", "0 0", Rejected},
    {"startScreenPointDetect short", [](T& t) { return shown(t.startScreenPointDetect()); }, "0B",
     "0C 01 04 03 02", "0 0", BadReply},
    {"getDetectErrorPointInfo", [](T& t) { return t.getDetectErrorPointInfo(); }, "0B | 36",
     "0C 01 | 37 01 02 00 | 37 61 62 | 37 63", "abc"},
    {"getDetectErrorPointInfo none", [](T& t) { return t.getDetectErrorPointInfo(); }, "0B | 36",
     "0C 01 | 37 01 00 00", ""},
    {"getDetectErrorPointInfo negative", [](T& t) { return t.getDetectErrorPointInfo(); },
     "0B | 36", "0C 01 | 37 01 FF FF", ""},
    {"getDetectErrorPointInfo without count", [](T& t) { return t.getDetectErrorPointInfo(); },
     "0B | 36", "0C 01 | 37 01 02", ""},
    {"getDetectErrorPointInfo cut short", [](T& t) { return t.getDetectErrorPointInfo(); },
     "0B | 36", "0C 01 | 37 01 02 00 | 37 61 62", "ab", NoReply},
    {"getDetectErrorPointInfo silent", [](T& t) { return t.getDetectErrorPointInfo(); }, "0B", "",
     "", NoReply},
};

}  // namespace

const std::span<const Call> kDisplayCalls = kCalls;

}  // namespace tovi::test
