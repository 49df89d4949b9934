// SPDX-License-Identifier: MIT
// A picture of the screen, piece by piece into a local file.
#include <string_view>

#include "foundation/bytes.h"
#include "foundation/log.h"
#include "transfer/local_files.h"
#include "transfer/transfer.h"

using namespace tovi;
using namespace tovi::session;
using namespace tovi::transfer;

namespace {

constexpr const wire::Command& kScreenshot = wire::command("getDeviceScreenshot");

constexpr std::size_t kPictureOffset = 3;

// More than any picture has; a controller that never ends is not followed for ever.
constexpr int kMaxPieces = 4096;

// The bytes of the picture in one reply; a reply may be too short to hold any.
std::string_view pictureOf(std::string_view reply) {
  return reply.substr(std::min(kPictureOffset, reply.size()));
}

int receivePicture(Transfer& transfer, const char* path, bool sent) {
  Session session = transfer.session();
  for (int piece = 0; piece < kMaxPieces; ++piece) {
    const std::optional<std::string> reply =
        session.receive(transfer.socket(), wire::wideCode(kScreenshot.reply), kScreenshot.buffer);
    if (!reply) {
      log::error("ToviTraffic::getDeviceScreenshot piece %d did not come", piece + 1);
      return transfer.end(sent ? ToviOutcome::NoReply : ToviOutcome::SendFailed,
                          ToviTraffic::SEND_NOT_RECV_ERROR);
    }
    const std::string_view picture = pictureOf(*reply);
    if (!appendToFile(path, picture)) {
      log::error("ToviTraffic::getDeviceScreenshot cannot write %s", path);
      return transfer.end(ToviOutcome::LocalFile, ToviTraffic::LOCAL_FILE_ERROR);
    }
    if (picture.size() < ToviTraffic::SCREENSHOT_SIZE) {
      return transfer.end(ToviOutcome::Done, ToviTraffic::SUCCESS);
    }
  }
  log::error("ToviTraffic::getDeviceScreenshot does not end after %d pieces", kMaxPieces);
  return transfer.end(ToviOutcome::BadReply, ToviTraffic::SEND_NOT_RECV_ERROR);
}

}  // namespace

int ToviTraffic::getDeviceScreenshot(std::string path) {
  Transfer transfer(*this, "getDeviceScreenshot");
  if (path.empty()) return transfer.refuse("path is empty");
  return transfer.guarded(kNoConnection, [&] {
    if (!makeEmptyFile(path.c_str())) {
      log::error("ToviTraffic::getDeviceScreenshot cannot make %s", path.c_str());
      return transfer.end(ToviOutcome::LocalFile, ARGUMENT_ERROR);
    }
    if (!transfer.connect()) return kNoConnection;
    const int sent = transfer.session().send(transfer.socket(), wire::wideCode(kScreenshot.request),
                                             bytes({0xFF, 0xFF}));
    return receivePicture(transfer, path.c_str(), sent >= 0);
  });
}
