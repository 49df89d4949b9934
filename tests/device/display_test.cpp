// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"
#include "tests/support/fake_platform_test.h"
#include "tests/support/wire.h"

namespace tovi::test {

static std::string show(ResolutionInfo i) { return show(i.result, i.resolution); }
static std::string show(EdidInfo i) { return show(i.result, i.width, i.height, i.fieldRate); }
static std::string show(VideoControlInfo i) { return show(i.result, i.videoSource); }
static std::string show(DeviceSize s) { return show(s.width, s.height); }
static std::string show(TextAttr a) { return show(a.first, a.second, a.third); }
static std::string show(ScreenPointDetect d) { return show(d.result, d.badPoints); }
static std::string show(PreStoredScreenEnabled enabled) {
  return show(enabled.first, enabled.second);
}

const std::vector<Call> kDisplayCalls = {
    {CALL(setCustomResolution(1920, -1, 60)),
     with("A5", R"({"displayMode":1,"width":1920,"height":-1,"refreshRate":60})"), setting("A5")},
    {CALL(getCurrentResolution()), "A6",
     answers("0 ", {{with("A6 01", R"({"value":"1920x1080"})") + " 00 41", "1 1920x1080"},
                    {with("A6 00", "{}"), "0 ", Rejected},
                    {with("A6 01", "{{"), "1 ", BadReply},
                    {with("A6 01", "[]"), "1 ", BadReply},
                    {with("A6 01", "7"), "1 ", BadReply},
                    {"A6 01", "0 ", BadReply}})},
    {CALL(setEdidInfo({7, 800, 600, 60})),
     with("A4", R"({"fieldRate":60,"width":800,"height":600})"), setting("A4")},
    {CALL(getEdidInfo()), "A2",
     answers(
         "0 0 0 0",
         {{with("A2 01", R"({"width":800,"height":"600","fieldRate":59.9})"), "1 800 600 59"},
          {with("A2 01", R"({"fieldRate":60,"width":800})"), "1 800 0 60"},
          {with("A2 01", R"({"width":4294967296,"height":2,"fieldRate":3})"), "1 0 2 3", BadReply},
          {with("A2 01", R"({"width":1,"height":4294967297,"fieldRate":3})"), "1 1 0 3", BadReply},
          {with("A2 01", R"({"width":1,"height":2,"fieldRate":-4294967297})"), "1 1 2 0", BadReply},
          {with("A2 01", "{"), "1 0 0 0", BadReply},
          {with("A2 02", "{}"), "0 0 0 0", Rejected}})},
    {CALL(setVideoControlInfo(3)),
     with("A3", R"({"isScale":"false","offsetX":0,"offsetY":0,"videoMode":1,"videoSource":3})"),
     setting("A3")},
    {CALL(getVideoControlInfo()), "A1",
     answers("0 0", {{with("A1 01", R"({"videoSource":"2"})"), "1 2"},
                     {with("A1 01", R"({"videoSource":2147483647})"), "1 2147483647"},
                     {with("A1 01", R"({"videoSource":2147483648})"), "1 0", BadReply},
                     {with("A1 01", R"({"videoSource":-2147483648})"), "1 -2147483648"},
                     {with("A1 01", R"({"videoSource":-2147483649})"), "1 0", BadReply},
                     {with("A1 01", R"({"videoSource":1.5e9})"), "1 1500000000"},
                     {with("A1 01", R"({"videoSource":2147483647.0})"), "1 2147483647"},
                     {with("A1 01", R"({"videoSource":"1e5"})"), "1 1"},
                     {with("A1 01", R"({"videoSource":"+-5"})"), "1 0"},
                     {with("A1 01", R"({"videoSource":"\t\n\f\r +7x"})"), "1 7"},
                     {with("A1 01", R"({"videoSource":"99999999999x"})"), "1 0", BadReply},
                     {with("A1 01", R"({"videoSource":"x"})"), "1 0"},
                     {with("A1 01", "{}"), "1 0"}})},
    {CALL(getSupportVideoSource()), "E7", text("E7")},
    {CALL(getDeviceSize()), "82",
     answers("-1 -1", {{"83 80 07 38 F4", "1920 62520"}, {"83 80 07 38", "-1 -1", BadReply}})},
    {TELL(setAntiAliasing(true, false, true)), "E5 01 00 01", unanswered()},
    {TELL(setAntiAliasing(true, true, false)), "E5 01 01 00", unanswered()},
    {CALL(getAntiAliasing()), "E6",
     answers("false false false", {{"E6 01 02 01", "true false true"},
                                   {"E6 01 01 00", "true true false"},
                                   {"E6 01 01", "false false false", BadReply}})},
    {CALL(setSyncPlay(true)), "BC 01", flag("BC")},
    {CALL(setSyncPlay(false)), "BC 00", flag("BC")},
    {CALL(getSyncPlay()), "BD",
     answers("false", {{"BD 01", "true"}, {"BD", "true"}, {"BD 00", "false"}})},
    {CALL(setPreStoredScreenEnabled(true)), "EF 12 01 01 01",
     answers("-1", {{"EF 12 01 00 FF", "-1"}, {"EF 12 01 00", "-1", BadReply}})},
    {CALL(setPreStoredScreenEnabled(false)), "EF 12 01 01 00",
     answers("-1", {{"EF 12 01 00 01", "1"}, {"EF 12 01 01 00", "0", Rejected}})},
    {CALL(getPreStoredScreenEnabled()), "EF 12 01 00",
     answers("-1 0", {{"EF 12 01 00 01 FF", "1 -1"}, {"EF 12 01 00 01", "-1 0", BadReply}})},
    {CALL(setFont("f")), "D2 66", setting("D2")},
    {CALL(getFontList()), "D1", text("D1")},
    {CALL(startScreenPointDetect()), "0B",
     answers("0 0", {{"0C 01 04 03 02 01", "1 16909060"},
                     {"0C 01 FE FF FF FF", "1 -2"},
                     {"0C 00 04 03 02 01", "0 0", Rejected},
                     {"0C 01 04 03 02", "0 0", BadReply}})},
    {CALL(getDetectErrorPointInfo()), "0B | 36",
     answers("", {{"0C 01 | 37 01 02 00 | 37 61 00 | 37 63", std::string("a\0c", 3)},
                  {"0C 01 | 37 01 00 00", ""},
                  {"0C 01 | 37 01 FF FF", ""},
                  {"0C 01 | 37 01 02", ""},
                  {"0C 01 | 37 01 02 00 | 37 61 62", "ab", NoReply},
                  {"0C 01", "", NoReply}})},
};

namespace {

class ErrorPoints : public FakePlatformTest {};

TEST_F(ErrorPoints, AreNoMoreThanAnyScreenHasAndOneReplyToHosts) {
  tovi_set_log_level(4);
  for (const char* reply : {"0C 01", "37 01 FF 7F"}) fake().arrive(frame(reply));
  for (int i = 0; i < 4097; ++i) fake().arrive(frame("37 61"));
  ToviTraffic traffic("127.0.0.1", 5005);
  testing::internal::CaptureStdout();
  EXPECT_EQ(traffic.getDetectErrorPointInfo(), std::string(4096, 'a'));
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "SocketResult delete\nSocketResult delete\nSocketResult delete\n");
  EXPECT_EQ(traffic.lastOutcome(), Done);
  EXPECT_EQ(fake().incoming.size(), 1u);
  EXPECT_EQ(fake().receiveSizes.front(), 100u);
  EXPECT_EQ(fake().receiveSizes.back(), 4096u);
}

}  // namespace

}  // namespace tovi::test
