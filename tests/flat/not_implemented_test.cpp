// SPDX-License-Identifier: MIT
#include <tovisdk/flat.h>

#include "tests/support/fake_platform_test.h"

namespace {

class FlatNotImplemented : public tovi::test::FakePlatformTest {};

struct Function {
  const char* name;
  const char* (*call)(const char*, unsigned short);
};

const Function kFunctions[] = {
    {"addWhitelist", addWhitelist},
    {"connectWifi", connectWifi},
    {"downloadFiles", downloadFiles},
    {"getAllMediaFileName", getAllMediaFileName},
    {"getAntiAliasing", getAntiAliasing},
    {"getCurrentResolution", getCurrentResolution},
    {"getFontList", getFontList},
    {"getIsSecret", getIsSecret},
    {"getLogZipPath", getLogZipPath},
    {"getLoraInfo", getLoraInfo},
    {"getMobileInfo", getMobileInfo},
    {"getPingIp", getPingIp},
    {"getSSHEnabled", getSSHEnabled},
    {"getSensorInfo", getSensorInfo},
    {"getServerIPLists", getServerIPLists},
    {"getSimInfo", getSimInfo},
    {"getSupportVideoSource", getSupportVideoSource},
    {"getSyncPlay", getSyncPlay},
    {"getSystemInfo", getSystemInfo},
    {"getWhitelist", getWhitelist},
    {"getWifiApConfig", getWifiApConfig},
    {"getWifiApState", getWifiApState},
    {"getWifiList", getWifiList},
    {"getWifiState", getWifiState},
    {"removeWhitelist", removeWhitelist},
    {"setAntiAliasing", setAntiAliasing},
    {"setCustomResolution", setCustomResolution},
    {"setFont", setFont},
    {"setLoraInfo", setLoraInfo},
    {"setPingIp", setPingIp},
    {"setSSHEnabled", setSSHEnabled},
    {"setSensorInfo", setSensorInfo},
    {"setServerIPLists", setServerIPLists},
    {"setSyncPlay", setSyncPlay},
    {"setWifiApConfig", setWifiApConfig},
    {"setWifiApState", setWifiApState},
    {"setWifiState", setWifiState},
    {"switchToSoftsim", switchToSoftsim},
};

TEST_F(FlatNotImplemented, SaysSoAndSendsNothing) {
  ASSERT_EQ(std::size(kFunctions), 38u);
  for (const Function& function : kFunctions) {
    for (const char* address : {"127.0.0.1", static_cast<const char*>(nullptr)}) {
      fake().files.clear();
      EXPECT_STREQ(function.call(address, 5005), "Interface not implemented") << function.name;
      EXPECT_EQ(fake().log().front(), std::string("info ") + function.name + " start");
      // A session comes and goes all the same.
      EXPECT_EQ(fake().log().back(), "info ToviTraffic::~ToviTraffic end");
    }
  }
  EXPECT_EQ(fake().opened, 0);
  EXPECT_TRUE(fake().sent.empty());
}

}  // namespace
