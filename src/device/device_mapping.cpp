// SPDX-License-Identifier: MIT
#include "device/device_mapping.h"

#include <cstdint>
#include <string_view>

#include "device/json_reply.h"
#include "json/json_object.h"

namespace tovi::device {
namespace {

int intMember(const CJsonObject& object, std::string_view key) {
  return object.number(key).value_or(0);
}

DeviceMapping parseMapping(CJsonObject& entry) {
  DeviceMapping mapping;
  CJsonObject& devices = entry.member("devMappingList");
  for (std::uint32_t i = 0; i < devices.arraySize(); ++i) {
    const CJsonObject& device = devices.element(i);
    mapping.devices.emplace_back(intMember(device, "devIndex"), intMember(device, "devType"));
  }
  mapping.workStatus = intMember(entry, "devWorkStatus");
  return mapping;
}

}  // namespace

std::list<DeviceMapping> parseDeviceMappings(CJsonObject& array) {
  std::list<DeviceMapping> mappings;
  for (std::uint32_t i = 0; i < array.arraySize(); ++i) {
    mappings.push_back(parseMapping(array.element(i)));
  }
  return mappings;
}

}  // namespace tovi::device
