// SPDX-License-Identifier: MIT
// Updates and downloads.
#include "foundation/log.h"
#include "session/operation.h"
#include "transfer/transfer.h"

using namespace tovi;
using namespace tovi::session;
using namespace tovi::transfer;

namespace {

constexpr int kTrial = 0xFE;

constexpr const wire::Command& kDownload = wire::command("downloadFiles");
constexpr char kDownloadDone = 1;
constexpr char kDownloadGoesOn = 2;

// A controller that is never done is not followed for ever.
constexpr int kMaxDownloadReplies = 100000;

bool awaitDownload(Transfer& transfer) {
  Session session = transfer.session();
  for (int replies = 0; replies < kMaxDownloadReplies; ++replies) {
    const std::optional<std::string> reply =
        session.receive(transfer.socket(), wire::wideCode(kDownload.reply), kDownload.buffer);
    if (!reply) return transfer.end(ToviOutcome::NoReply, false);
    if (reply->size() < 2) return transfer.end(ToviOutcome::BadReply, false);
    const char status = (*reply)[1];
    if (status == kDownloadDone) return transfer.end(ToviOutcome::Done, true);
    if (status != kDownloadGoesOn) return transfer.end(ToviOutcome::Rejected, false);
  }
  log::error("ToviTraffic::downloadFiles goes on after %d replies", kMaxDownloadReplies);
  return transfer.end(ToviOutcome::NoReply, false);
}

}  // namespace

int ToviTraffic::sendLocalUpdate(int type, const char* text) {
  Operation operation(*this, "sendLocalUpdate");
  if (text == nullptr) return operation.refuse("text is null");
  return operation.set(1, type, text);
}

int ToviTraffic::sendTestLocalUpdate(int type, const char* text) {
  Operation operation(*this, "sendTestLocalUpdate");
  if (text == nullptr) return operation.refuse("text is null");
  return operation.set(type, kTrial, text);
}

int ToviTraffic::removeLocalUpdate(int type) {
  return Operation(*this, "removeLocalUpdate").set(0, type);
}

int ToviTraffic::sendFtpDownloadaddress(const std::string& address) {
  return Operation(*this, "sendFtpDownloadaddress").setText(address);
}

int ToviTraffic::updateFileName(const std::string& name) {
  return Operation(*this, "updateFileName").setText(name);
}

bool ToviTraffic::downloadFiles(const std::string& list) {
  Transfer transfer(*this, "downloadFiles");
  Session session = transfer.session();
  const short request = wire::wideCode(kDownload.request);
  if (list.size() > session.mostPayload(request)) {
    transfer.refuse("the list is too long");
    return false;
  }
  return transfer.guarded(false, [&] {
    if (!transfer.connect()) {
      log::print("socket == NULL");
      return false;
    }
    if (session.send(transfer.socket(), request, list) < 0) {
      log::print("send SOCKET_ERROR");
      return transfer.end(ToviOutcome::SendFailed, false);
    }
    return awaitDownload(transfer);
  });
}
