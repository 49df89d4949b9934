// SPDX-License-Identifier: MIT
// What is on the screen now.
#include "cli/records.h"
#include "cli/themes.h"

namespace tovi::cli {
namespace {

Json content(const char* text) { return text == nullptr ? "" : text; }

Json shown(const DeviceNowPlayItem& item) {
  return {{"playing", item.playIsOpen()},
          {"playId", playlistNumber(item.getPlayId())},
          {"content", content(item.getContent())}};
}

Json shown(const DeviceNowPlayList& list) {
  return {{"playId", playlistNumber(list.getPlayId())}, {"content", content(list.getContent())}};
}

}  // namespace

void addNowPlaying(Commands& commands) {
  commands.group("What is playing");
  commands.add("getNowPlayContent", "Read the item on screen",
               asks(&ToviTraffic::getNowPlayContent, shown));
  commands.add("getNowPlayAllContent", "Read the whole program",
               asks(&ToviTraffic::getNowPlayAllContent, shown));
}

}  // namespace tovi::cli
