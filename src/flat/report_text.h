// The texts of reports, made from what the methods return. GBK throughout.
#pragma once

#include <list>
#include <string>

#include <tovisdk/device_type.h>
#include <tovisdk/records.h>

namespace tovi::flat {

// A controller's text as a report may hold it: UTF-8 becomes GBK, with "?" for what GBK lacks;
// anything else stays as it came.
std::string gbk(const std::string& text);

std::string reportText(const BrightnessInfo& info);
std::string reportText(const BrightnessItem& curve);
std::string reportText(const CpuAndMemoryInfo& info);
std::string reportText(const DeviceMemorySize& size);
std::string reportText(const DeviceNTPParam& param);
std::string reportText(const DeviceNowPlayItem& item);
std::string reportText(const DeviceNowPlayList& list);
std::string reportText(const DeviceSize& size);
std::string reportText(const DeviceType& status);
std::string reportText(const EdidInfo& info);
std::string reportText(const ScreenPointDetect& detect);
std::string reportText(const TimeZoneParam& param);
std::string reportText(const VideoControlInfo& info);
std::string reportText(const VirtualParam& param);
std::string reportText(const std::list<BrightnessByTimeParam>& entries);
std::string reportText(const std::list<DevicePowerByTimeParam>& entries);
std::string reportText(const std::list<PlayByTimeParam>& entries);
std::string playlistNumbersText(const std::list<int>& numbers);
std::string fileNamesText(const std::list<std::string>& names);

}  // namespace tovi::flat
