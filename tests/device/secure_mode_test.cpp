// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"
#include "tests/support/fake_platform_test.h"
#include "tests/support/wire.h"

namespace tovi::test {

constexpr char kKey[] = "12345678";
const std::string kKeyBytes = " 31 32 33 34 35 36 37 38";

using Param = DeviceSecretParam;

const std::vector<Call> kSecureModeCalls = {
    {CALL(getIsSecret()), "EF 0C 01", question("EF 0C 01")},
    {CALL(setDeviceKey("k")), "EF 03 01 6B",
     answers("false", {{"EF 03 01 01", "true"},
                       {"EF 03 01 00", "false", Rejected},
                       {"EF 03 01", "false", Rejected}})},
    // The key of a mode that has none, and a second one that is left out, are not looked at.
    {CALL(setDeviceSecretParam(Param{"0123456789abcdef", 0, true, "x", "y"}, false)),
     with("70 00 01", "0123456789abcdef") + " 91 21", setting("71")},
    {CALL(setDeviceSecretParam(Param{"l", 0x101, false, kKey, ""}, false)),
     "70 01 00 6C 91 21" + kKeyBytes, setting("71")},
    {CALL(setDeviceSecretParam(Param{"l", 2, true, kKey, "abcdefgh"}, true)),
     "70 02 01 6C 91 21" + kKeyBytes + " 91 21 61 62 63 64 65 66 67 68", setting("71")},
    {CALL(setDeviceSecretParam(Param{"l", 0, true, "", kKey}, true)),
     "70 00 01 6C 91 21 91 21" + kKeyBytes, setting("71")},
    {CALL(setDeviceSecretParam(Param{"", 0, true, "", ""}, false)), "", {"-15"}},
    {CALL(setDeviceSecretParam(Param{"0123456789abcdefg", 0, true, "", ""}, false)), "", {"-15"}},
    {CALL(setDeviceSecretParam(Param{"l", 1, true, "1234567", ""}, false)), "", {"-15"}},
    {CALL(setDeviceSecretParam(Param{"l", 1, true, "123456789", ""}, false)), "", {"-15"}},
    {CALL(setDeviceSecretParam(Param{"l", 0, true, "", "1234567"}, true)), "", {"-15"}},
    {CALL(setDeviceSecretParam(Param{"l", 0, true, "", "123456789"}, true)), "", {"-15"}},
};

namespace {

class SecureMode : public FakePlatformTest {
 protected:
  // Whether a setting's reply, enciphered by DES, is read by a parser that is made for it.
  bool readsAnew(ToviTraffic& traffic) {
    fake().files.clear();
    fake().arrive(frame("08 DE EC BA 37 86 7B D1 42"));
    EXPECT_EQ(traffic.setBrightness(80), 1);
    return fake().logged(
        "info ToviTraffic::recv create protocalParser des mode, des key = 12345678");
  }
};

TEST_F(SecureMode, AcceptanceMakesTheNextReplyChooseItsCipherAnew) {
  ToviTraffic traffic("127.0.0.1", 5005);
  fake().arrive(frame("71 01"));
  EXPECT_EQ(traffic.setDeviceSecretParam({"l", 0, true, "", ""}, false), 1);
  // The parser that read the answer was a plain one; the next is made for the key.
  traffic.setDesKey(kKey);
  EXPECT_TRUE(readsAnew(traffic));

  fake().arrive(frame("71 00"));
  EXPECT_EQ(traffic.setDeviceSecretParam({"l", 0, true, "", ""}, false), -12);
  EXPECT_FALSE(readsAnew(traffic));
  EXPECT_EQ(unframe(fake().sent.at(2)), "70 00 01 6C 91 21");  // plain although a key is set
}

}  // namespace

}  // namespace tovi::test
