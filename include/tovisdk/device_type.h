// SPDX-License-Identifier: MIT
/// @file
/// The status block of a controller.
#ifndef TOVISDK_DEVICE_TYPE_H
#define TOVISDK_DEVICE_TYPE_H

#include <tovisdk/export.h>

#include <ctime>

/// A controller's status, as ToviTraffic::getDeviceType returns it. Values are passed on as the
/// controller reports them; nothing is checked. Before its setter runs a value is 0, false or null.
class TOVISDK_API DeviceType {
 public:
  DeviceType();
  /// Copies member by member: both objects then own the same date, and only one of them may be
  /// destroyed. For that reason copies are not made silently.
  DeviceType& operator=(const DeviceType&) = default;
  DeviceType(const DeviceType&) = delete;
  /// Releases the date.
  ~DeviceType();

  /// Takes ownership of `time`, made with new; an earlier date is not released.
  void setDate(std::tm* time);
  /// The date stamp, still owned by this object; null until set. In a block that the library
  /// decoded, second, minute, hour, day, month and year all hold the same number.
  std::tm* getDate() const;

  void setBoxDoorOpen(bool open);
  bool isBoxDoorOpen() const;  ///< the cabinet's door is open

  void setScreenPowerOpen(bool open);
  bool isScreenPowerOpen() const;  ///< the screen's power supply is on

  void setScreenOpen(int state);
  int isScreenOpen() const;  ///< screen state as the controller reports it, -128 to 127

  void setTemperature(int degrees);
  int getTemperature() const;  ///< whole degrees, signed

  void setInputSourceInside(bool inside);
  bool isInputSourceInside() const;  ///< the internal input source is selected

  void setEnvironmentBrightness(int brightness);
  int getEnvironmentBrightness() const;  ///< ambient reading, 0 to 255

  void setBrightnessType(int type);
  int getBrightnessType() const;  ///< brightness mode as the controller reports it

  void setScreenBrightness(int brightness);
  int getScreenBrightness() const;  ///< current brightness, 0 to 255

 private:
  std::tm* date;
  // Zero rather than undefined where no setter has run.
  bool boxDoorOpen = false;
  bool screenPowerOpen = false;
  int temperature = 0;
  bool inputSourceInside = false;
  int environmentBrightness = 0;
  int brightnessType = 0;
  int screenBrightness = 0;
  int screenOpen = 0;
};

/// Releases a status block and sets the caller's pointer to null. Safe on null.
TOVISDK_API void deleteObj(DeviceType** object);

#endif
