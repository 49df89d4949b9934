// SPDX-License-Identifier: MIT
#include "device/device_mapping.h"

#include <gtest/gtest.h>

#include <string>

#include "json/json_object.h"

namespace tovi::device {
namespace {

std::string summary(const char* text) {
  CJsonObject json(text);
  std::string out;
  for (const auto& [devices, workStatus] : parseDeviceMappings(json)) {
    for (const auto& [index, type] : devices) {
      out += std::to_string(index) + ":" + std::to_string(type) + " ";
    }
    out += "status " + std::to_string(workStatus) + "; ";
  }
  return out;
}

TEST(DeviceMapping, ReadsRecordsInOrderAndWhatIsOddAsEmpty) {
  const struct {
    const char* text;
    const char* expected;
  } cases[] = {
      {R"([{"devMappingList":[{"devIndex":"2","devType":"11"},{"devIndex":"1","devType":"-3"}],)"
       R"("devWorkStatus":"1"},{"devWorkStatus":"4","devMappingList":[]}])",
       "2:11 1:-3 status 1; status 4; "},
      {"", ""},
      {"[]", ""},
      {R"({"devWorkStatus":"1"})", ""},
      {R"([{},7,null])", "status 0; status 0; status 0; "},
      {R"([{"devMappingList":{"devIndex":"1"},"devWorkStatus":[1]}])", "status 0; "},
      {R"([{"devMappingList":[{"devIndex":5},{"devType":"6x"},"7",[]],"devWorkStatus":3}])",
       "5:0 0:6 0:0 0:0 status 3; "},
      {R"([{"devWorkStatus":"4294967297"}])", "status 0; "},
  };
  for (const auto& [text, expected] : cases) EXPECT_EQ(summary(text), expected) << text;
}

}  // namespace
}  // namespace tovi::device
