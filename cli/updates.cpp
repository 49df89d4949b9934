// SPDX-License-Identifier: MIT
// Updates, and files that the controller fetches itself.
#include <nlohmann/json.hpp>

#include "cli/themes.h"

namespace tovi::cli {
namespace {

Argument<int> type() { return number("TYPE", "0 to 255", 0, 255); }

std::string jsonArray(const std::string& given) {
  if (!nlohmann::json::parse(given, nullptr, false).is_array()) {
    throw Unusable(quoted(given) + " is no JSON array");
  }
  return given;
}

}  // namespace

void addUpdates(Commands& commands) {
  commands.group("Updates");
  commands.add("sendLocalUpdate", "Update from a path on the controller",
               sets(&ToviTraffic::sendLocalUpdate), type(),
               text("PATH", "The path on the controller"));
  commands.add("sendTestLocalUpdate", "The same for trial", sets(&ToviTraffic::sendTestLocalUpdate),
               type(), text("PATH", "The path on the controller"));
  commands.add("removeLocalUpdate", "Remove an update", sets(&ToviTraffic::removeLocalUpdate),
               type());
  commands.add("sendFtpDownloadaddress", "Tell where to download the update",
               sets(&ToviTraffic::sendFtpDownloadaddress), text("ADDRESS"));
  commands.add("updateFileName", "Name the update", sets(&ToviTraffic::updateFileName),
               text("NAME"));
  commands.add("downloadFiles", "Let the controller download files, and wait for it",
               sets(&ToviTraffic::downloadFiles), argument("LIST", "A JSON array", jsonArray));
}

}  // namespace tovi::cli
