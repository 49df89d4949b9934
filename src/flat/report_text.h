// SPDX-License-Identifier: MIT
// The texts of reports, made from what the methods return. GBK throughout.
#pragma once

#include <list>
#include <memory>
#include <string>

#include <tovisdk/device_type.h>
#include <tovisdk/records.h>

namespace tovi::flat {

// A controller's text as a report may hold it. UTF-8 becomes GBK when GBK has every character; what
// is valid GBK already stays as it came; of other UTF-8, "?" stands for what GBK lacks; anything
// else stays as it came.
std::string gbk(const std::string& text);

// A report with the mark that ends it. Texts of a controller may hold a zero byte, where hosts stop
// reading: the report ends there, too, so that they find the mark.
std::string ended(std::string report);

std::string reportText(const std::string& text);
std::string reportText(char* text);  // which it releases
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
std::string reportText(const std::list<int>& playlists);
std::string reportText(const std::list<std::string>& fileNames);

// Of a record that the method may not have, and which this releases: null gives no line at all.
template <class Record>
std::string reportText(Record* record) {
  const std::unique_ptr<Record> owned(record);
  return owned == nullptr ? "" : reportText(*owned);
}

// Warns of a missing timetable in the name of a function.
void warnOfNone(const char* function);

template <class Entry>
std::string timetableText(const char* function, std::list<Entry>* list) {
  if (list == nullptr) warnOfNone(function);
  return reportText(list);
}

}  // namespace tovi::flat
