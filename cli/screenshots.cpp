// SPDX-License-Identifier: MIT
// Pictures of the screen.
#include <filesystem>

#include "cli/themes.h"
#include "platform/paths.h"

namespace tovi::cli {
namespace {

std::string writablePath(const std::string& path) {
  std::error_code error;
  const std::filesystem::path file = platform::pathOf(path);
  const std::filesystem::path folder = file.parent_path();
  if (path.empty() || std::filesystem::is_directory(file, error) ||
      (!folder.empty() && !std::filesystem::is_directory(folder, error))) {
    throw Unusable("cannot write " + quoted(path));
  }
  localPath(path);
  return path;
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

}  // namespace

void addScreenshots(Commands& commands) {
  commands.group("Screenshots");
  commands.add("getDeviceScreenshot", "Fetch a picture of the screen", getScreenshot,
               argument("PATH",
                        "Where to put it; with --hosts each controller's address is added to\n"
                        "the name",
                        writablePath));
}

}  // namespace tovi::cli
