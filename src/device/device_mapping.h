// SPDX-License-Identifier: MIT
// The list of attached devices that a controller describes in JSON.
#pragma once

#include <list>
#include <utility>

class CJsonObject;

namespace tovi::device {

struct DeviceMapping {
  std::list<std::pair<int, int>> devices;  // device index, device type
  int workStatus = 0;
};

// One record per element of the array, in its order; what an element lacks counts as empty or 0.
// Empty when the object is no array. Not const because the object keeps the wrappers looked up.
std::list<DeviceMapping> parseDeviceMappings(CJsonObject& array);

}  // namespace tovi::device
