// SPDX-License-Identifier: MIT
// The picture: resolution, video input, smoothing, fonts and broken pixels.
#include <climits>

#include "cli/themes.h"

namespace tovi::cli {
namespace {

constexpr int kMostPixels = 65535;
constexpr int kMostHertz = 1000;

Argument<int> width() { return number("WIDTH", "Pixels, 1 to 65535", 1, kMostPixels); }
Argument<int> height() { return number("HEIGHT", "Pixels, 1 to 65535", 1, kMostPixels); }
Argument<int> rate() { return number("RATE", "Hz, 1 to 1000", 1, kMostHertz); }

Json shown(const DeviceSize& size) { return {{"width", size.width}, {"height", size.height}}; }

Json shown(const ResolutionInfo& info) { return info.resolution; }

Result setEdid(Call& call, int width, int height, int rate) {
  EdidInfo info;
  info.width = width;
  info.height = height;
  info.fieldRate = rate;
  return ofCode(call.traffic, call.traffic.setEdidInfo(info));
}

Json shown(const EdidInfo& info) {
  return {{"width", info.width}, {"height", info.height}, {"fieldRate", info.fieldRate}};
}

Json shown(const VideoControlInfo& info) { return info.videoSource; }

Json shown(const TextAttr& flags) {
  return {{"first", flags.first}, {"second", flags.second}, {"third", flags.third}};
}

Json shown(const PreStoredScreenEnabled& enabled) {
  return {{"first", enabled.first}, {"second", enabled.second}};
}

Json shown(const ScreenPointDetect& detect) { return {{"badPoints", detect.badPoints}}; }

void addVideo(Commands& commands) {
  commands.add("getDeviceSize", "Read the display's size in pixels",
               asks(&ToviTraffic::getDeviceSize, shown));
  commands.add("setCustomResolution", "Set the output resolution",
               sets(&ToviTraffic::setCustomResolution), width(), height(), rate());
  commands.add("getCurrentResolution", "Read the output resolution",
               asks(&ToviTraffic::getCurrentResolution, shown));
  commands.add("setEdidInfo", "Set the EDID timing", setEdid, width(), height(), rate());
  commands.add("getEdidInfo", "Read the EDID timing, in pixels and Hz",
               asks(&ToviTraffic::getEdidInfo, shown));
  commands.add("setVideoControlInfo", "Select the video source",
               sets(&ToviTraffic::setVideoControlInfo),
               number("SOURCE", "0 or above; get-support-video-source tells which", 0, INT_MAX));
  commands.add("getVideoControlInfo", "Read which video source is selected",
               asks(&ToviTraffic::getVideoControlInfo, shown));
  commands.add("getSupportVideoSource", "Read the sources to choose from",
               asks(&ToviTraffic::getSupportVideoSource));
}

void addPicture(Commands& commands) {
  commands.add("setAntiAliasing", "Smooth texts by three flags; it does not answer",
               sets(&ToviTraffic::setAntiAliasing), onOff("FIRST"), onOff("SECOND"),
               onOff("THIRD"));
  commands.add("getAntiAliasing", "Read the three flags",
               asks(&ToviTraffic::getAntiAliasing, shown));
  commands.add("setSyncPlay", "Let controllers play in step", sets(&ToviTraffic::setSyncPlay),
               onOff("STATE"));
  commands.add("getSyncPlay", "Whether the controller knows of playing in step",
               sets(&ToviTraffic::getSyncPlay));
  commands.add("setPreStoredScreenEnabled", "Switch the pre-stored screen; prints its answer",
               asks(&ToviTraffic::setPreStoredScreenEnabled), onOff("STATE"));
  commands.add("getPreStoredScreenEnabled", "Read the pre-stored screen's two flags",
               asks(&ToviTraffic::getPreStoredScreenEnabled, shown));
  commands.add("setFont", "Set the font", sets(&ToviTraffic::setFont), text("FONT"));
  commands.add("getFontList", "Read the fonts on the controller", asks(&ToviTraffic::getFontList));
  commands.add("startScreenPointDetect", "Count broken pixels",
               asks(&ToviTraffic::startScreenPointDetect, shown));
  commands.add({"getDetectErrorPointInfo", {"startScreenPointDetect", "getDetectErrorPointData"}},
               "Look for broken pixels and read what was found",
               asks(&ToviTraffic::getDetectErrorPointInfo));
}

}  // namespace

void addDisplay(Commands& commands) {
  commands.group("Display and video");
  addVideo(commands);
  addPicture(commands);
}

}  // namespace tovi::cli
