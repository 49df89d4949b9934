// SPDX-License-Identifier: MIT
#include "flat/report_text.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "flat/labels.h"
#include "foundation/log.h"
#include "platform/text.h"

namespace tovi::flat {
namespace {

constexpr char kLineEnd[] = "\r\n";

// Labels and values one after another: numbers in decimal, labels as they are.
std::string part(int number) { return std::to_string(number); }
std::string part(long long number) { return std::to_string(number); }
std::string part(const char* label) { return label; }
std::string part(const std::string& text) { return text; }

template <class... Parts>
std::string line(const Parts&... parts) {
  return (part(parts) + ...) + kLineEnd;
}

// The fields as they stand, whatever they count from.
std::string timeText(const std::tm& time) {
  return part(time.tm_year) + "-" + part(time.tm_mon) + "-" + part(time.tm_mday) + " " +
         part(time.tm_hour) + ":" + part(time.tm_min) + ":" + part(time.tm_sec);
}

template <class Entry>
std::string timesText(const Entry& entry) {
  return label::kStartTime + timeText(entry.startTime) + label::kEndTime + timeText(entry.endTime);
}

std::string playingText(int id, const char* content) {
  return line("play id:", id) + line("play content:", gbk(content == nullptr ? "" : content));
}

// The byte 80 alone stands for a currency sign in Windows' own table; no text of GBK has it.
bool isGbk(const std::string& text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte == 0x80) return false;
    if (byte > 0x80) ++i;
  }
  return platform::gbkToUtf8(text).has_value();
}

}  // namespace

std::string gbk(const std::string& text) {
  std::optional<std::string> converted = platform::utf8ToGbk(text);
  if (!converted) return text;
  // Without loss it reads back as it was. Short texts in GBK may pass for UTF-8 of rare characters.
  const bool lossless = platform::gbkToUtf8(*converted) == text;
  return lossless || !isGbk(text) ? *std::move(converted) : text;
}

std::string ended(std::string report) {
  report.resize(std::min(report.find('\0'), report.size()));
  return report += "interfaceEnd";
}

std::string reportText(const std::string& text) { return gbk(text); }

std::string reportText(char* text) {
  const std::unique_ptr<char[]> owned(text);
  return owned == nullptr ? "" : gbk(owned.get());
}

std::string reportText(const BrightnessInfo& info) {
  return line(label::kBrightnessMode, info.mode, label::kBrightnessOfEntry, info.brightness);
}

std::string reportText(const BrightnessItem& curve) {
  std::string text;
  int k = 0;
  for (const BrightnessPoint& point : curve.points) {
    text += line(label::kPoint, k++, label::kPointEnd);
    text += line(label::kEnvironmentBrightness, point.environmentBrightness);
    text += line(label::kPointBrightness, point.screenBrightness);
  }
  return text;
}

std::string reportText(const CpuAndMemoryInfo& info) {
  return line(label::kErrorCode, info.result, label::kCpuUsage, gbk(info.cpuUsage),
              label::kDiskTotal, gbk(info.diskTotal), label::kDiskFree, gbk(info.diskFree));
}

std::string reportText(const DeviceMemorySize& size) {
  return line(label::kMemoryTotal, size.total) + line(label::kMemoryFree, size.free);
}

std::string reportText(const DeviceNTPParam& param) {
  return line(label::kNtpEnabled, int{param.enabled}) + line(label::kNtpServer, gbk(param.server));
}

std::string reportText(const DeviceNowPlayItem& item) {
  return playingText(item.getPlayId(), item.getContent());
}

std::string reportText(const DeviceNowPlayList& list) {
  return playingText(list.getPlayId(), list.getContent());
}

std::string reportText(const DeviceSize& size) {
  return line(label::kWidth, size.width) + line(label::kHeight, size.height);
}

std::string reportText(const DeviceType& status) {
  std::string text;
  if (const std::tm* date = status.getDate()) {
    text += line(label::kTime, date->tm_year, label::kYear, date->tm_mon, label::kMonth,
                 date->tm_mday, label::kDay, date->tm_hour, label::kHour, date->tm_min,
                 label::kMinute, date->tm_sec, label::kSecond);
  }
  text += line(label::kBrightnessMode, status.getBrightnessType());
  text += line(label::kEnvironmentBrightness, status.getEnvironmentBrightness());
  text += line(label::kScreenBrightness, status.getScreenBrightness());
  text += line(label::kTemperature, status.getTemperature());
  return text;
}

std::string reportText(const EdidInfo& info) {
  return line(label::kErrorCode, info.result, label::kWidthInLine, info.width, label::kHeightInLine,
              info.height, label::kFieldRate, info.fieldRate);
}

std::string reportText(const ScreenPointDetect& detect) {
  return line(label::kErrorCode, detect.result, label::kBadPoints, detect.badPoints);
}

std::string reportText(const TimeZoneParam& param) {
  return line(label::kTime, param.time) + line(label::kZoneId, gbk(param.zoneId)) +
         line(label::kUtcOffset, gbk(param.utcOffset));
}

std::string reportText(const VideoControlInfo& info) {
  return line(label::kErrorCode, info.result, label::kVideoSource, info.videoSource);
}

std::string reportText(const VirtualParam& param) {
  return line(label::kEnabled, int{param.enabled}, label::kInterval, param.interval,
              label::kProgram, param.value);
}

std::string reportText(const std::list<BrightnessByTimeParam>& entries) {
  std::string text;
  for (const auto& entry : entries) {
    text += line(timesText(entry), label::kBrightnessOfEntry, entry.brightness);
  }
  return text;
}

std::string reportText(const std::list<DevicePowerByTimeParam>& entries) {
  std::string text;
  for (const auto& entry : entries) text += line(timesText(entry));
  return text;
}

std::string reportText(const std::list<PlayByTimeParam>& entries) {
  std::string text;
  for (const auto& entry : entries) {
    text += line(timesText(entry), label::kPlayIdOfEntry, entry.playId);
  }
  return text;
}

std::string reportText(const std::list<int>& playlists) {
  std::string text;
  for (const int number : playlists) text += (text.empty() ? "" : ",") + part(number);
  return "[" + text + "],";
}

std::string reportText(const std::list<std::string>& fileNames) {
  std::string text;
  for (const std::string& name : fileNames) text += gbk(name) + ",";
  return text;
}

void warnOfNone(const char* function) { log::warning("%s list is null", function); }

}  // namespace tovi::flat
