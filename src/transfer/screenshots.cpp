// A picture of the screen, piece by piece into a local file.
#include <tovisdk/files.h>

#include <memory>
#include <string_view>

#include "foundation/log.h"
#include "transfer/local_files.h"
#include "transfer/transfer.h"
#include "wire/frame.h"

using tovi::device::bytes;
using tovi::transfer::Transfer;
using tovi::wire::Command;
using tovi::wire::command;

namespace {

constexpr const Command& kScreenshot = command("getDeviceScreenshot");

constexpr int kPictureOffset = 3;

// More than any picture has; a controller that never ends is not followed for ever.
constexpr int kMaxPieces = 4096;

// The bytes of the picture in one reply; a reply may be too short to hold any.
std::string_view pictureOf(const char* package, int size) {
  if (size <= kPictureOffset) return {};
  return std::string_view(package, static_cast<std::size_t>(size)).substr(kPictureOffset);
}

}  // namespace

int ToviTraffic::getDeviceScreenshot(std::string path) {
  Transfer transfer(*this, "getDeviceScreenshot");
  if (path.empty()) return transfer.refuse("path is empty");
  if (!createEmptyFile(path.c_str())) {
    tovi::log::error("ToviTraffic::getDeviceScreenshot cannot make %s", path.c_str());
    mOutcome = ToviOutcome::LocalFile;
    return ARGUMENT_ERROR;
  }
  if (!transfer.connect()) return tovi::transfer::kNoConnection;
  std::string payload = bytes({0xFF, 0xFF});
  const int sent = sendPacket(transfer.socket(), tovi::wire::wideCode(kScreenshot.request),
                              payload.data(), static_cast<int>(payload.size()));
  return receiveScreenshot(transfer.socket(), path.c_str(), sent >= 0);
}

int ToviTraffic::receiveScreenshot(std::uint64_t socket, const char* path, bool sent) {
  for (int piece = 0; piece < kMaxPieces; ++piece) {
    int size = 0;
    const std::unique_ptr<char[]> package(
        recv(socket, tovi::wire::wideCode(kScreenshot.reply), &size, SCREENSHOT_SIZE));
    if (package == nullptr) {
      tovi::log::error("ToviTraffic::getDeviceScreenshot piece %d did not come", piece + 1);
      mOutcome = sent ? ToviOutcome::NoReply : ToviOutcome::SendFailed;
      return SEND_NOT_RECV_ERROR;
    }
    const std::string_view picture = pictureOf(package.get(), size);
    if (!tovi::transfer::appendToFile(path, picture)) {
      tovi::log::error("ToviTraffic::getDeviceScreenshot cannot write %s", path);
      mOutcome = ToviOutcome::LocalFile;
      return LOCAL_FILE_ERROR;
    }
    if (picture.size() < SCREENSHOT_SIZE) {
      mOutcome = ToviOutcome::Done;
      return SUCCESS;
    }
  }
  tovi::log::error("ToviTraffic::getDeviceScreenshot does not end after %d pieces", kMaxPieces);
  mOutcome = ToviOutcome::BadReply;
  return SEND_NOT_RECV_ERROR;
}
