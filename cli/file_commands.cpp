// Files, playlists, updates and screenshots.
#include <filesystem>

#include "cli/commands.h"
#include "cli/interrupt.h"
#include "cli/progress.h"
#include "platform/paths.h"

namespace tovi::cli {
namespace {

// Stopped by the user between two chunks; controllers that were not begun with are left alone.
Result sendFile(Call& call, const std::string& path, const std::string& name) {
  stopOnInterrupt();
  if (interrupted()) return {false, ToviTraffic::STOPPED_BY_HOST};
  ProgressBar bar(call.progress);
  const auto progress = [&bar](long long sent, long long total) {
    bar.show(sent, total);
    return !interrupted();
  };
  return ofCode(call.traffic,
                call.traffic.sendFile(localPath(path).c_str(), name.c_str(), progress));
}

// Several controllers must not write one file: each gets its address before the extension.
std::string picturePath(const Call& call, const std::string& path) {
  if (!call.several) return path;
  std::string address = call.controller;
  address[address.find(':')] = '_';  // means something else in a file name on some systems
  const std::filesystem::path whole = platform::pathOf(path);
  std::filesystem::path name = whole.stem();
  name += "-" + address;
  name += whole.extension();
  return platform::utf8Of(whole.parent_path() / name);
}

Result getScreenshot(Call& call, const std::string& path) {
  return ofCode(call.traffic, call.traffic.getDeviceScreenshot(localPath(picturePath(call, path))));
}

void addTransferCommands(Commands& commands) {
  commands.group("Files");
  commands.add("send-file", "Send a file; Ctrl-C stops it between two chunks", sendFile,
               inputFile("PATH", "The file on this machine"),
               text("NAME", "The name on the controller, UTF-8", 1));
  commands.add("get-device-screenshot", "Fetch a picture of the screen", getScreenshot,
               outputFile("PATH",
                          "Where to put it; with --hosts each controller's address is added to\n"
                          "the name"));
  commands.add("get-all-media-file-name", "List the media on the controller, one a line",
               asks(&ToviTraffic::getAllMediaFileName));
  commands.add("get-file-list-name", "List the files of one type, one a line",
               asks(&ToviTraffic::getFileListName), number("TYPE", "0 to 255", 0, 255));
  commands.add("download-files", "Let the controller download files, and wait for it",
               sets(&ToviTraffic::downloadFiles), jsonArray("LIST", "A JSON array"));
  commands.add("clean-up-files", "Clean up the controller's storage",
               sets(&ToviTraffic::cleanUpFiles), number("TYPE", "0 to 3", 0, 3));
  commands.add("clear-cache", "Empty the cache", sets(&ToviTraffic::clearCache));
}

void addPlaylistCommands(Commands& commands) {
  commands.group("Playlists");
  commands.add("send-play-list", "Upload a playlist and play it", sets(&ToviTraffic::sendPlayList),
               number("NUMBER", "0 to 999", 0, 999),
               fileText("FILE", "The file that holds the playlist; - is standard input"));
  commands.add("play-list-by-id", "Play a playlist", sets(&ToviTraffic::playListById),
               number("NUMBER", "0 to 255", 0, 255));
  commands.add("delete-playlist-by-id", "Delete a playlist", sets(&ToviTraffic::deletePlaylistById),
               number("NUMBER", "0 to 255", 0, 255));
  commands.add("get-all-playlist-id", "List the playlists' numbers, one a line", [](Call& call) {
    Json numbers = Json::array();
    for (const int id : call.traffic.getAllPlaylistId()) numbers.push_back(playlistNumber(id));
    return ofAnswer(call.traffic, numbers);
  });
}

void addUpdateCommands(Commands& commands) {
  commands.group("Updates");
  commands.add("send-local-update", "Update from a path on the controller",
               sets(&ToviTraffic::sendLocalUpdate), number("TYPE", "0 to 255", 0, 255),
               text("PATH", "The path on the controller"));
  commands.add("send-test-local-update", "The same for trial",
               sets(&ToviTraffic::sendTestLocalUpdate), number("TYPE", "0 to 255", 0, 255),
               text("PATH", "The path on the controller"));
  commands.add("remove-local-update", "Remove an update", sets(&ToviTraffic::removeLocalUpdate),
               number("TYPE", "0 to 255", 0, 255));
  commands.add("send-ftp-downloadaddress", "Tell where to download the update",
               sets(&ToviTraffic::sendFtpDownloadaddress),
               text("ADDRESS", "1 to 1024 bytes", 1, 1024));
  commands.add("update-file-name", "Name the update", sets(&ToviTraffic::updateFileName),
               text("NAME", "1 to 1024 bytes", 1, 1024));
}

}  // namespace

void addFileCommands(Commands& commands) {
  addTransferCommands(commands);
  addPlaylistCommands(commands);
  addUpdateCommands(commands);
}

}  // namespace tovi::cli
