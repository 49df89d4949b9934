// SPDX-License-Identifier: MIT
// Playlists: upload, play, delete, list.
#include <list>
#include <optional>

#include "cli/records.h"
#include "cli/themes.h"

namespace tovi::cli {
namespace {

// What stands in a file, or in standard input for "-".
std::string textOfFile(const std::string& path) {
  std::optional<std::string> content = readText(path);
  if (!content) throw Unusable("cannot read " + quoted(path));
  if (content->find('\0') != std::string::npos) throw Unusable(quoted(path) + " is no text");
  return *std::move(content);
}

Json shown(const std::list<int>& ids) {
  Json numbers = Json::array();
  for (const int id : ids) numbers.push_back(playlistNumber(id));
  return numbers;
}

}  // namespace

void addPlaylists(Commands& commands) {
  commands.group("Playlists");
  commands.add(
      {"sendPlayList", {"sendFileName", "sendFileContent", "recvFileOverRsp", "playListById"}},
      "Upload a playlist and play it", sets(&ToviTraffic::sendPlayList),
      number("NUMBER", "0 to 999", 0, 999),
      argument("FILE", "The file that holds the playlist; - is standard input", textOfFile));
  commands.add("playListById", "Play a playlist", sets(&ToviTraffic::playListById),
               number("NUMBER", "0 to 255", 0, 255));
  commands.add("deletePlaylistById", "Delete a playlist", sets(&ToviTraffic::deletePlaylistById),
               number("NUMBER", "0 to 255", 0, 255));
  commands.add("getAllPlaylistId", "List the playlists' numbers, one a line",
               asks(&ToviTraffic::getAllPlaylistId, shown));
}

}  // namespace tovi::cli
