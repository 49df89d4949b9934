// SPDX-License-Identifier: MIT
// Files to the controller, and those on it.
#include <filesystem>
#include <fstream>

#include "cli/progress.h"
#include "cli/themes.h"
#include "platform/paths.h"
#include "tools/interrupt.h"

namespace tovi::cli {
namespace {

std::string readablePath(const std::string& path) {
  std::error_code error;
  const std::filesystem::path file = platform::pathOf(path);
  if (!std::filesystem::is_regular_file(file, error) || !std::ifstream(file)) {
    throw Unusable("cannot read " + quoted(path));
  }
  localPath(path);
  return path;
}

// Stopped by the user between two chunks; controllers that were not begun with are left alone.
Result sendFile(Call& call, const std::string& path, const std::string& name) {
  tools::stopOnInterrupt();
  if (tools::interrupted()) return {false, ToviTraffic::STOPPED_BY_HOST};
  ProgressBar bar(call.progress);
  const auto progress = [&bar](long long sent, long long total) {
    bar.show(sent, total);
    return !tools::interrupted();
  };
  return ofCode(call.traffic,
                call.traffic.sendFile(localPath(path).c_str(), name.c_str(), progress));
}

}  // namespace

void addFiles(Commands& commands) {
  commands.group("Files");
  commands.add({"sendFile", {"sendFileName", "sendFileContent", "recvFileOverRsp"}},
               "Send a file; Ctrl-C stops it between two chunks", sendFile,
               argument("PATH", "The file on this machine", readablePath),
               text("NAME", "The name on the controller, UTF-8", 1, wire::TextSize{}.most));
  commands.add("getAllMediaFileName", "List the media on the controller, one a line",
               asks(&ToviTraffic::getAllMediaFileName));
  commands.add("getFileListName", "List the files of one type, one a line",
               asks(&ToviTraffic::getFileListName), number("TYPE", "0 to 255", 0, 255));
  commands.add("cleanUpFiles", "Clean up the controller's storage",
               sets(&ToviTraffic::cleanUpFiles), number("TYPE", "0 to 3", 0, 3));
}

}  // namespace tovi::cli
