// SPDX-License-Identifier: MIT
#include <tovisdk/device_type.h>

DeviceType::DeviceType() : date(nullptr) {}

DeviceType::~DeviceType() {
  delete date;
  date = nullptr;
}

void DeviceType::setDate(std::tm* time) { date = time; }
std::tm* DeviceType::getDate() const { return date; }

void DeviceType::setBoxDoorOpen(bool open) { boxDoorOpen = open; }
bool DeviceType::isBoxDoorOpen() const { return boxDoorOpen; }

void DeviceType::setScreenPowerOpen(bool open) { screenPowerOpen = open; }
bool DeviceType::isScreenPowerOpen() const { return screenPowerOpen; }

void DeviceType::setScreenOpen(int state) { screenOpen = state; }
int DeviceType::isScreenOpen() const { return screenOpen; }

void DeviceType::setTemperature(int degrees) { temperature = degrees; }
int DeviceType::getTemperature() const { return temperature; }

void DeviceType::setInputSourceInside(bool inside) { inputSourceInside = inside; }
bool DeviceType::isInputSourceInside() const { return inputSourceInside; }

void DeviceType::setEnvironmentBrightness(int brightness) { environmentBrightness = brightness; }
int DeviceType::getEnvironmentBrightness() const { return environmentBrightness; }

void DeviceType::setBrightnessType(int type) { brightnessType = type; }
int DeviceType::getBrightnessType() const { return brightnessType; }

void DeviceType::setScreenBrightness(int brightness) { screenBrightness = brightness; }
int DeviceType::getScreenBrightness() const { return screenBrightness; }
