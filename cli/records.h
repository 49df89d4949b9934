// What queries give, as values to show. Names and numbers are meant for people: calendar times,
// words for states, numbers as the setters take them.
#pragma once

#include <list>
#include <memory>
#include <string>

#include "cli/output.h"

namespace tovi::cli {

Json shown(const std::string& text);
Json shown(int number);
Json shown(const std::list<std::string>& texts);
Json shown(const DeviceType& status);
Json shown(const std::list<DevicePowerByTimeParam>& list);
Json shown(const std::list<PlayByTimeParam>& list);
Json shown(const std::list<BrightnessByTimeParam>& list);
Json shown(const BrightnessItem& curve);
Json shown(const BrightnessInfo& info);
Json shown(const BackUpsInfo& info);
Json shown(const PreStoredScreenEnabled& enabled);
Json shown(const ResolutionInfo& info);
Json shown(const EdidInfo& info);
Json shown(const VideoControlInfo& info);
Json shown(const TimeZoneParam& param);
Json shown(const DeviceNTPParam& param);
Json shown(const DeviceSize& size);
Json shown(const DeviceMemorySize& size);
Json shown(const CpuAndMemoryInfo& info);
Json shown(const VirtualParam& param);
Json shown(const TextAttr& flags);
Json shown(const ResultParam& result);
Json shown(const ScreenPointDetect& detect);
Json shown(const DeviceNowPlayItem& item);
Json shown(const DeviceNowPlayList& list);

// A text that the library handed over.
Json shown(char* text);

// A record that the library handed over; null when there is none.
template <class Record>
Json shown(Record* handedOver) {
  const std::unique_ptr<Record> record(handedOver);
  return record == nullptr ? Json() : shown(*record);
}

// Playlists have numbers from 0 to 255, but come as signed bytes.
int playlistNumber(int signedByte);

}  // namespace tovi::cli
