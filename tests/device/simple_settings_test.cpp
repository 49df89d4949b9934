#include "tests/support/fake_platform_test.h"
#include "tests/support/hex.h"
#include "tests/support/test_access.h"

namespace {

using tovi::test::FakePlatformTest;
using tovi::test::hex;
using tovi::test::toHex;

// A text that the host owns, as the test reads it.
std::string taken(char* text) {
  const std::string copy = text == nullptr ? "null" : text;
  deleteArry(&text);
  return copy;
}

std::string decimal(int number) { return std::to_string(number); }

class SimpleSettings : public FakePlatformTest {};

struct Call {
  const char* what;
  std::string (*call)(ToviTraffic&);
  const char* sent;   // empty: nothing
  const char* reply;  // empty: silence
  const char* result;
  ToviOutcome outcome = ToviOutcome::Done;
};

const Call kCalls[] = {
    {"setPower on", [](ToviTraffic& t) { return decimal(t.setPower(true)); },
     "AA FF FF 05 01 CC 31 BD", "AA FF FF 06 01 CC 55 52", "1"},
    {"setPower off", [](ToviTraffic& t) { return decimal(t.setPower(false)); },
     "AA FF FF 05 02 CC 59 97", "AA FF FF 06 01 CC 55 52", "1"},
    {"setBrightness", [](ToviTraffic& t) { return decimal(t.setBrightness(255)); },
     "AA FF FF 07 02 FF CC 0F 66", "AA FF FF 08 01 CC 4E 42", "1"},
    {"setBrightness lowest", [](ToviTraffic& t) { return decimal(t.setBrightness(0)); },
     "AA FF FF 07 02 00 CC CF 99", "AA FF FF 08 01 CC 4E 42", "1"},
    {"setBrightness above", [](ToviTraffic& t) { return decimal(t.setBrightness(256)); },
     "AA FF FF 07 02 7D CC 73 D9", "AA FF FF 08 01 CC 4E 42", "1"},
    {"setBrightness below", [](ToviTraffic& t) { return decimal(t.setBrightness(-1)); },
     "AA FF FF 07 02 7D CC 73 D9", "AA FF FF 08 01 CC 4E 42", "1"},
    {"setDeviceVolume", [](ToviTraffic& t) { return decimal(t.setDeviceVolume(0x11F)); },
     "AA FF FF 45 1F CC C6 B4", "AA FF FF 46 01 CC 23 54", "1"},
    {"restartDevice", [](ToviTraffic& t) { return decimal(t.restartDevice()); },
     "AA FF FF 0D CC DD 29", "AA FF FF 0E 01 CC 97 94", "1"},
    {"setDeviceName", [](ToviTraffic& t) { return decimal(t.setDeviceName("限速")); },
     "AA FF FF 7E 00 E9 99 90 E9 80 9F CC 13 3F", "AA FF FF 7F 01 CC 93 4E", "1"},
    {"setDeviceName empty", [](ToviTraffic& t) { return decimal(t.setDeviceName("")); },
     "AA FF FF 7E 00 CC 97 0D", "AA FF FF 7F 01 CC 93 4E", "1"},
    {"setDeviceName null", [](ToviTraffic& t) { return decimal(t.setDeviceName(nullptr)); }, "", "",
     "-15", ToviOutcome::RefusedArgument},
    {"getDeviceName", [](ToviTraffic& t) { return taken(t.getDeviceName()); },
     "AA FF FF 7E 01 CC 4F 14", "AA FF FF 7F 01 E9 99 90 E9 80 9F CC 51 F3", "限速"},
    {"getDeviceName of two bytes", [](ToviTraffic& t) { return taken(t.getDeviceName()); },
     "AA FF FF 7E 01 CC 4F 14", "AA FF FF 7F 01 CC 93 4E", "null", ToviOutcome::BadReply},
    {"getDeviceName without reply", [](ToviTraffic& t) { return taken(t.getDeviceName()); },
     "AA FF FF 7E 01 CC 4F 14", "", "null", ToviOutcome::NoReply},
    {"getDeviceVersion", [](ToviTraffic& t) { return taken(t.getDeviceVersion()); },
     "AA FF FF 23 CC FE 90", "AA FF FF 24 56 31 2E 32 CC 67 F4", "V1.2"},
    {"getDeviceVersion empty", [](ToviTraffic& t) { return taken(t.getDeviceVersion()); },
     "AA FF FF 23 CC FE 90", "AA FF FF 24 CC F6 DD", ""},
    {"getDeviceVersion without reply", [](ToviTraffic& t) { return taken(t.getDeviceVersion()); },
     "AA FF FF 23 CC FE 90", "", "null", ToviOutcome::NoReply},
    {"getSn", [](ToviTraffic& t) { return t.getSn(); }, "AA FF FF D5 CC 26 B8",
     "AA FF FF D5 53 4E 2D 31 CC 0B 3B", "SN-1"},
    {"getSn without reply", [](ToviTraffic& t) { return t.getSn(); }, "AA FF FF D5 CC 26 B8", "",
     "", ToviOutcome::NoReply},
    {"getVolumeValue", [](ToviTraffic& t) { return decimal(t.getVolumeValue() & 0xFF); },
     "AA FF FF A9 CC 42 E1", "AA FF FF A9 C8 CC F7 0A", "200"},
    {"getVolumeValue of one byte",
     [](ToviTraffic& t) { return decimal(t.getVolumeValue() & 0xFF); }, "AA FF FF A9 CC 42 E1",
     "AA FF FF A9 CC 42 E1", "255", ToviOutcome::BadReply},
    {"getVolumeValue without reply",
     [](ToviTraffic& t) { return decimal(t.getVolumeValue() & 0xFF); }, "AA FF FF A9 CC 42 E1", "",
     "255", ToviOutcome::NoReply},
};

TEST_F(SimpleSettings, RequestsAndReplies) {
  for (const Call& c : kCalls) {
    ToviTraffic traffic("127.0.0.1", 5005);
    fake().sent.clear();
    fake().incoming.clear();
    fake().files.clear();
    if (*c.reply != '\0') fake().arrive(hex(c.reply));
    EXPECT_EQ(c.call(traffic), c.result) << c.what;
    EXPECT_EQ(traffic.lastOutcome(), c.outcome) << c.what;
    EXPECT_EQ(fake().sent.empty() ? "" : toHex(fake().sent[0]), c.sent) << c.what;
    const std::string what = c.what;
    EXPECT_TRUE(fake().logged("info " + what.substr(0, what.find(' ')) + " start")) << c.what;
  }
}

TEST_F(SimpleSettings, ArgumentsThatAreRefusedAreLogged) {
  ToviTraffic traffic("127.0.0.1", 5005);
  traffic.setDeviceName(nullptr);
  EXPECT_TRUE(fake().logged("error setDeviceName refused: name is null"));
}

struct Status {
  const char* what;
  const char* reply;  // the package after its command byte
  const char* checksum;
  const char* decoded;
};

// Date, door, power, screen, temperature, input, ambient, mode, brightness.
std::string decoded(DeviceType* status) {
  if (status == nullptr) return "null";
  const std::tm& date = *status->getDate();
  std::string text = decimal(date.tm_year) + "-" + decimal(date.tm_mon) + "-" +
                     decimal(date.tm_mday) + " " + decimal(date.tm_hour) + ":" +
                     decimal(date.tm_min) + ":" + decimal(date.tm_sec);
  for (const int value : {int{status->isBoxDoorOpen()}, int{status->isScreenPowerOpen()},
                          status->isScreenOpen(), status->getTemperature(),
                          int{status->isInputSourceInside()}, status->getEnvironmentBrightness(),
                          status->getBrightnessType(), status->getScreenBrightness()}) {
    text += " " + decimal(value);
  }
  deleteObj(&status);
  return text;
}

TEST_F(SimpleSettings, TheStatusBlock) {
  const Status cases[] = {
      {"ordinary", "34 12 00 00 00 00 05 01 01 01 01 19 01 00 00 C8 02 50", "E5 4C",
       "5-5-5 5:5:5 1 1 1 25 1 200 2 80"},
      {"only 1 is true; below zero", "00 00 00 00 00 00 FF 02 02 02 00 19 02 00 00 FF FF FF",
       "11 5A", "-1--1--1 -1:-1:-1 0 0 2 -25 0 255 -1 255"},
      {"signed magnitude", "00 00 00 00 00 00 00 00 00 80 01 F6 00 00 00 00 80 00", "82 55",
       "0-0-0 0:0:0 0 0 -128 -10 0 0 -128 0"},
      {"too short", "34 12 00 00 00 00 05 01 01 01 01 19 01 00 00 C8 02", "87 CF", "null"},
      {"too long", "34 12 00 00 00 00 05 01 01 01 01 19 01 00 00 C8 02 50 00", "85 DF", "null"},
  };
  for (const Status& c : cases) {
    ToviTraffic traffic("127.0.0.1", 5005);
    fake().sent.clear();
    fake().arrive(hex(std::string("AA FF FF 02") + c.reply + "CC" + c.checksum));
    EXPECT_EQ(decoded(traffic.getDeviceType()), c.decoded) << c.what;
    EXPECT_EQ(toHex(fake().sent.at(0)), "AA FF FF 01 CC 7D 80");
    EXPECT_EQ(traffic.lastOutcome(),
              std::string(c.decoded) == "null" ? ToviOutcome::BadReply : ToviOutcome::Done);
  }
}

TEST(StatusBlock, OwnsItsDateAndBeginsEmpty) {
  DeviceType* status = new DeviceType;
  EXPECT_EQ(status->getDate(), nullptr);
  status->setDate(new std::tm{});
  EXPECT_NE(status->getDate(), nullptr);
  deleteObj(&status);
  EXPECT_EQ(status, nullptr);
  deleteObj(&status);
  deleteObj(static_cast<DeviceType**>(nullptr));
}

}  // namespace
