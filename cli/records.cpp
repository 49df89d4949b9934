#include "cli/records.h"

#include "cli/times.h"

namespace tovi::cli {
namespace {

template <class Entry>
Json period(const Entry& entry) {
  return {{"start", timeText(entry.startTime)}, {"end", timeText(entry.endTime)}};
}

Json brightnessMode(int mode) {
  switch (mode) {
    case 1:
      return "automatic";
    case 2:
      return "manual";
    case 3:
      return "timetable";
    default:
      return mode;
  }
}

Json content(const char* text) { return text == nullptr ? Json("") : Json(text); }

}  // namespace

int playlistNumber(int signedByte) { return signedByte & 0xFF; }

Json shown(const std::string& text) { return text; }
Json shown(int number) { return number; }
Json shown(const std::list<std::string>& texts) { return Json(texts); }

Json shown(char* text) {
  if (text == nullptr) return {};
  const std::string copy = text;
  deleteArry(&text);
  return copy;
}

Json shown(const DeviceType& status) {
  return {{"temperature", status.getTemperature()},
          {"brightness", status.getScreenBrightness()},
          {"brightnessMode", brightnessMode(status.getBrightnessType())},
          {"environmentBrightness", status.getEnvironmentBrightness()},
          {"screenState", status.isScreenOpen()},
          {"screenPowerOn", status.isScreenPowerOpen()},
          {"boxDoorOpen", status.isBoxDoorOpen()},
          {"internalInput", status.isInputSourceInside()}};
}

Json shown(const std::list<DevicePowerByTimeParam>& list) {
  Json entries = Json::array();
  for (const auto& entry : list) entries.push_back(period(entry));
  return entries;
}

Json shown(const std::list<PlayByTimeParam>& list) {
  Json entries = Json::array();
  for (const auto& entry : list) {
    entries.push_back(period(entry));
    entries.back()["playId"] = playlistNumber(entry.playId);
  }
  return entries;
}

Json shown(const std::list<BrightnessByTimeParam>& list) {
  Json entries = Json::array();
  for (const auto& entry : list) {
    entries.push_back(period(entry));
    entries.back()["brightness"] = entry.brightness;
  }
  return entries;
}

Json shown(const BrightnessItem& curve) {
  Json points = Json::array();
  for (const BrightnessPoint& point : curve.points) {
    points.push_back({{"environmentBrightness", point.environmentBrightness},
                      {"screenBrightness", point.screenBrightness}});
  }
  return points;
}

Json shown(const BrightnessInfo& info) {
  return {{"mode", brightnessMode(info.mode)}, {"brightness", info.brightness}};
}

Json shown(const BackUpsInfo& info) { return {{"state", info.state}, {"times", info.times}}; }

Json shown(const PreStoredScreenEnabled& enabled) {
  return {{"first", enabled.first}, {"second", enabled.second}};
}

Json shown(const ResolutionInfo& info) { return info.resolution; }

Json shown(const EdidInfo& info) {
  return {{"width", info.width}, {"height", info.height}, {"fieldRate", info.fieldRate}};
}

Json shown(const VideoControlInfo& info) { return info.videoSource; }

Json shown(const TimeZoneParam& param) {
  return {{"time", utcText(param.time)}, {"zoneId", param.zoneId}, {"utcOffset", param.utcOffset}};
}

Json shown(const DeviceNTPParam& param) {
  return {{"enabled", param.enabled}, {"server", param.server}};
}

Json shown(const DeviceSize& size) { return {{"width", size.width}, {"height", size.height}}; }

Json shown(const DeviceMemorySize& size) { return {{"total", size.total}, {"free", size.free}}; }

Json shown(const CpuAndMemoryInfo& info) {
  return {{"cpuUsage", info.cpuUsage}, {"diskTotal", info.diskTotal}, {"diskFree", info.diskFree}};
}

Json shown(const VirtualParam& param) {
  return {{"enabled", param.enabled}, {"interval", param.interval}, {"value", param.value}};
}

Json shown(const TextAttr& flags) {
  return {{"first", flags.first}, {"second", flags.second}, {"third", flags.third}};
}

Json shown(const ResultParam& result) { return result.text; }

Json shown(const ScreenPointDetect& detect) { return {{"badPoints", detect.badPoints}}; }

Json shown(const DeviceNowPlayItem& item) {
  return {{"playing", item.playIsOpen()},
          {"playId", playlistNumber(item.getPlayId())},
          {"content", content(item.getContent())}};
}

Json shown(const DeviceNowPlayList& list) {
  return {{"playId", playlistNumber(list.getPlayId())}, {"content", content(list.getContent())}};
}

}  // namespace tovi::cli
