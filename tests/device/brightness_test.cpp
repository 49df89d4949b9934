// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"

namespace tovi::test {

static std::string show(BrightnessInfo info) { return show(info.mode, info.brightness); }

static std::string show(BrightnessItem* item) {
  return taken(item, [](const BrightnessItem& curve) {
    std::string text;
    for (const BrightnessPoint& point : curve.points) {
      text += show(point.environmentBrightness, point.screenBrightness) + ";";
    }
    return text;
  });
}

static BrightnessItem gCurve = {
    {{0, 0x110}, {1, 17}, {2, 18}, {3, 19}, {4, 20}, {5, 21}, {6, 22}, {7, 23}}};
const std::string kCurve =
    "07 01 00 | 17 00 10 00 01 11 00 02 12 00 03 13 00 04 14 00 05 15 00 06 16 00 07 17 00";
const std::string kCurveReply =
    "2C 01 FF 77 02 02 77 03 03 77 04 04 77 05 05 77 06 06 77 07 07 77 08 09";

const std::vector<Call> kBrightnessCalls = {
    {CALL(setBrightness(0)), "07 02 00", setting("08")},
    {CALL(setBrightness(255)), "07 02 FF", setting("08")},
    {CALL(setBrightness(256)), "07 02 7D", setting("08")},
    {CALL(setBrightness(-1)), "07 02 7D", setting("08")},
    {CALL(getBrightnessInfo()), "C3",
     answers("-1 -1", {{"C3 FE FF", "-2 255"}, {"C3 02", "-1 -1", BadReply}})},
    {CALL(setBrightnessAuto(&gCurve)), kCurve,
     answers(
         "-11",
         {{"08 01 | 18 01", "1"}, {"08 01 | 18 02", "-12", Rejected}, {"08 01", "-11", NoReply}})},
    {CALL(setBrightnessAuto(&gCurve)), "07 01 00", answers("-11", {{"08 02", "-12", Rejected}})},
    {CALL(setBrightnessAuto(nullptr)), "", {"-15"}},
    {CALL(getBrightnessAuto()), "2B",
     answers("null", {{kCurveReply + " 77", "1 255;2 2;3 3;4 4;5 5;6 6;7 7;8 9;"},
                      {kCurveReply, "null", BadReply},
                      {kCurveReply + " 77 00", "null", BadReply}})},
    {CALL(setAutoBrightnessTimeParam(5, '\xFE')), "AA 05 FE",
     answers("false",
             {{"AA 01", "true"}, {"AA 02", "false", Rejected}, {"AA", "false", BadReply}})},
    {CALL(setAutoBrightnessTimeParam(0, 5)), "", {"false"}},
    {CALL(setAutoBrightnessTimeParam(5, 0)), "", {"false"}},
    {CALL(setDeviceVolume(0x1C8)), "45 C8", setting("46")},
    {CALL(getVolumeValue() & 0xFF), "A9",
     answers("255", {{"A9 C8 07", "200"}, {"A9", "255", BadReply}})},
};

}  // namespace tovi::test
