// The picture: resolution, video input, fonts, broken pixels, and what is playing.
#include <climits>

#include "cli/commands.h"

namespace tovi::cli {
namespace {

constexpr int kMostPixels = 65535;
constexpr int kMostHertz = 1000;

Argument<int> width() { return number("WIDTH", "Pixels, 1 to 65535", 1, kMostPixels); }
Argument<int> height() { return number("HEIGHT", "Pixels, 1 to 65535", 1, kMostPixels); }
Argument<int> rate() { return number("RATE", "Hz, 1 to 1000", 1, kMostHertz); }

Result setEdid(Call& call, int width, int height, int rate) {
  EdidInfo info;
  info.width = width;
  info.height = height;
  info.fieldRate = rate;
  return ofCode(call.traffic, call.traffic.setEdidInfo(info));
}

void addVideoCommands(Commands& commands) {
  commands.group("Display and video");
  commands.add("get-device-size", "Read the display's size in pixels",
               asks(&ToviTraffic::getDeviceSize));
  commands.add("set-custom-resolution", "Set the output resolution",
               sets(&ToviTraffic::setCustomResolution), width(), height(), rate());
  commands.add("get-current-resolution", "Read the output resolution",
               asks(&ToviTraffic::getCurrentResolution));
  commands.add("set-edid-info", "Set the EDID timing", setEdid, width(), height(), rate());
  commands.add("get-edid-info", "Read the EDID timing, in pixels and Hz",
               asks(&ToviTraffic::getEdidInfo));
  commands.add("set-video-control-info", "Select the video source",
               sets(&ToviTraffic::setVideoControlInfo),
               number("SOURCE", "0 or above; get-support-video-source tells which", 0, INT_MAX));
  commands.add("get-video-control-info", "Read which video source is selected",
               asks(&ToviTraffic::getVideoControlInfo));
  commands.add("get-support-video-source", "Read the sources to choose from",
               asks(&ToviTraffic::getSupportVideoSource));
}

void addPictureCommands(Commands& commands) {
  commands.add("set-anti-aliasing", "Smooth texts by three flags; it does not answer",
               sets(&ToviTraffic::setAntiAliasing), onOff("FIRST", "on or off"),
               onOff("SECOND", "on or off"), onOff("THIRD", "on or off"));
  commands.add("get-anti-aliasing", "Read the three flags", asks(&ToviTraffic::getAntiAliasing));
  commands.add("set-sync-play", "Let controllers play in step", sets(&ToviTraffic::setSyncPlay),
               onOff("STATE", "on or off"));
  commands.add("get-sync-play", "Whether the controller knows of playing in step",
               sets(&ToviTraffic::getSyncPlay));
  commands.add("set-pre-stored-screen-enabled", "Switch the pre-stored screen; prints its answer",
               asks(&ToviTraffic::setPreStoredScreenEnabled), onOff("STATE", "on or off"));
  commands.add("get-pre-stored-screen-enabled", "Read the pre-stored screen's two flags",
               asks(&ToviTraffic::getPreStoredScreenEnabled));
  commands.add("set-font", "Set the font", sets(&ToviTraffic::setFont),
               text("FONT", "At most 1024 bytes", 0, 1024));
  commands.add("get-font-list", "Read the fonts on the controller",
               asks(&ToviTraffic::getFontList));
  commands.add("start-screen-point-detect", "Count broken pixels",
               asks(&ToviTraffic::startScreenPointDetect));
  commands.add("get-detect-error-point-info", "Look for broken pixels and read what was found",
               asks(&ToviTraffic::getDetectErrorPointInfo));
}

void addPlayingCommands(Commands& commands) {
  commands.group("What is playing");
  commands.add("get-now-play-content", "Read the item on screen",
               asks(&ToviTraffic::getNowPlayContent));
  commands.add("get-now-play-all-content", "Read the whole program",
               asks(&ToviTraffic::getNowPlayAllContent));
}

}  // namespace

void addDisplayCommands(Commands& commands) {
  addVideoCommands(commands);
  addPictureCommands(commands);
  addPlayingCommands(commands);
}

}  // namespace tovi::cli
