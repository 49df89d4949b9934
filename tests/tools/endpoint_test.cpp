// SPDX-License-Identifier: MIT
#include "tools/endpoint.h"

#include <gtest/gtest.h>

namespace tovi::tools {
namespace {

const std::string kLongestLabel(63, 'a');
const std::string kLongestName =
    kLongestLabel + "." + kLongestLabel + "." + kLongestLabel + "." + std::string(61, 'a');

TEST(Endpoint, IsAnAddressOrANameAndAPort) {
  const std::string endpoints[] = {"192.168.1.10:5005",
                                   "0.0.0.0:1",
                                   "255.255.255.255:65535",
                                   "localhost:5005",
                                   "Sign-North.Example:1",
                                   "7.sign:5005",
                                   "0xsign:1",
                                   "1.2.3.4.sign:1",
                                   "sign.1:1",
                                   kLongestName + ":1"};
  for (const std::string& text : endpoints) {
    const auto endpoint = parseEndpoint(text);
    ASSERT_TRUE(endpoint) << text;
    EXPECT_EQ(endpointText(*endpoint), text);
  }
}

TEST(Endpoint, IsNothingElse) {
  for (const char* text :
       {"", ":", "sign.example", "192.168.1.10", "192.168.1.10:", "192.168.1.10:0",
        "192.168.1.10:65536", "192.168.1.10:-1", "192.168.1.10:+1", "192.168.1.10: 1",
        "192.168.1.10:5x", "192.168.1.10:1:", "192.168.1.10:99999999999999999999"}) {
    EXPECT_FALSE(parseEndpoint(text)) << text;
  }
  const std::string hosts[] = {"", "192.168.1", "192.168.1.1.1", "192.168..1", "192.168.1.256",
                               "192.168.1.010", "192.168.1.-1", "192.168.1.1.", "2130706433",
                               // What some systems take for an address.
                               "0x7F.1", "0X7f000001", "127.0.0.0x1",
                               // No names.
                               "sign..example", ".sign", "sign.", "-sign", "sign-.example", "si gn",
                               "sign_1", "sign/1", "[::1]", "\xC3\xA9t\xC3\xA9",
                               std::string("si\0gn", 5), kLongestLabel + "a", kLongestName + "a"};
  for (const std::string& host : hosts) EXPECT_FALSE(parseEndpoint(host + ":5005")) << host;
}

TEST(Endpoint, ListensOnEveryAddressUnlessOneIsGiven) {
  EXPECT_EQ(endpointText(parseListenEndpoint("5005").value()), "0.0.0.0:5005");
  EXPECT_EQ(endpointText(parseListenEndpoint("127.0.0.1:0").value()), "127.0.0.1:0");
  EXPECT_EQ(endpointText(parseListenEndpoint("localhost:1").value()), "localhost:1");
  for (const char* text : {"", "65536", "localhost", "127.0.0.1", "127.0.0.1:", ":1", "5005x"}) {
    EXPECT_FALSE(parseListenEndpoint(text)) << text;
  }
}

TEST(Endpoint, IsFoundByItsName) {
  EXPECT_EQ(addressOf("192.168.1.10"), "192.168.1.10");
  for (const char* name : {"localhost", "LocalHost", "sign.localhost"}) {
    EXPECT_EQ(addressOf(name), "127.0.0.1") << name;
  }
  for (const char* name : {"invalid", "x.invalid", "X.INVALID"}) {
    EXPECT_FALSE(addressOf(name)) << name;
  }
}

}  // namespace
}  // namespace tovi::tools
