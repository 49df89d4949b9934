// SPDX-License-Identifier: MIT
// Texts that stand for structured arguments: tokens separated by single spaces. What is no number
// counts as 0, and tokens that do not fill a group are left out.
#pragma once

#include <ctime>
#include <list>
#include <string>
#include <vector>

#include <tovisdk/records.h>

namespace tovi::flat {

// "2024-1-2-3-4-5", into the fields of a tm as they stand; a missing one is 0.
std::tm parseDateTime(const std::string& token);

std::list<DevicePowerByTimeParam> parsePowerEntries(const char* text);
std::list<PlayByTimeParam> parsePlayEntries(const char* text);
std::list<BrightnessByTimeParam> parseBrightnessEntries(const char* text);

// Pairs of ambient and screen brightness; the first eight count.
BrightnessItem parseCurve(const char* text);

// Result, width, height and field rate.
EdidInfo parseEdidInfo(const char* text);

// Label, mode, enable, key and second key.
DeviceSecretParam parseSecretParam(const char* text);

}  // namespace tovi::flat
