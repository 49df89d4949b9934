// Updates, downloads and the controller's storage.
#include <iostream>
#include <memory>
#include <string>

#include "foundation/log.h"
#include "transfer/transfer.h"
#include "wire/frame.h"

using tovi::device::bytes;
using tovi::device::Operation;
using tovi::transfer::Transfer;
using tovi::wire::Command;
using tovi::wire::command;

namespace {

// Controllers keep addresses and names of updates in buffers of this size.
constexpr std::size_t kMaxAddress = 1024;

constexpr int kTrial = 0xFE;

constexpr const Command& kDownload = command("downloadFiles");
constexpr char kDownloadDone = 1;
constexpr char kDownloadGoesOn = 2;

// A controller that is never done is not followed for ever.
constexpr int kMaxDownloadReplies = 100000;

constexpr unsigned kLastCleanUp = 3;
constexpr int kSubstituteCleanUp = 1;

int setAddress(Operation operation, const std::string& text) {
  return text.empty() ? operation.refuse("the text is empty")
                      : operation.setText(text, kMaxAddress);
}

}  // namespace

int ToviTraffic::sendLocalUpdate(int type, const char* text) {
  Operation operation(*this, command("sendLocalUpdate"));
  if (text == nullptr) return operation.refuse("text is null");
  return operation.set(bytes({1, type}) + text);
}

int ToviTraffic::sendTestLocalUpdate(int type, const char* text) {
  Operation operation(*this, command("sendTestLocalUpdate"));
  if (text == nullptr) return operation.refuse("text is null");
  return operation.set(bytes({type, kTrial}) + text);
}

int ToviTraffic::removeLocalUpdate(int type) {
  return Operation(*this, command("removeLocalUpdate")).set(bytes({0, type}));
}

int ToviTraffic::sendFtpDownloadaddress(const std::string& address) {
  return setAddress(Operation(*this, command("sendFtpDownloadaddress")), address);
}

int ToviTraffic::updateFileName(const std::string& name) {
  return setAddress(Operation(*this, command("updateFileName")), name);
}

bool ToviTraffic::downloadFiles(const std::string& list) {
  Transfer transfer(*this, "downloadFiles");
  if (list.size() > tovi::wire::kMaxPayload) {
    transfer.refuse("the list is too long");
    return false;
  }
  // Hosts read these two lines from the standard output.
  if (!transfer.connect()) {
    std::cout << "socket == NULL" << std::endl;
    return false;
  }
  std::string payload = list;
  if (sendPacket(transfer.socket(), tovi::wire::wideCode(kDownload.request), payload.data(),
                 static_cast<int>(payload.size())) < 0) {
    std::cout << "send SOCKET_ERROR" << std::endl;
    mOutcome = ToviOutcome::SendFailed;
    return false;
  }
  return awaitDownload(transfer.socket());
}

bool ToviTraffic::awaitDownload(std::uint64_t socket) {
  for (int replies = 0; replies < kMaxDownloadReplies; ++replies) {
    int size = 0;
    const std::unique_ptr<char[]> package(
        recv(socket, tovi::wire::wideCode(kDownload.reply), &size));
    if (package == nullptr) {
      mOutcome = ToviOutcome::NoReply;
      return false;
    }
    if (size < 2) {
      mOutcome = ToviOutcome::BadReply;
      return false;
    }
    const char status = package[1];
    if (status == kDownloadGoesOn) continue;
    mOutcome = status == kDownloadDone ? ToviOutcome::Done : ToviOutcome::Rejected;
    return status == kDownloadDone;
  }
  tovi::log::error("ToviTraffic::downloadFiles goes on after %d replies", kMaxDownloadReplies);
  mOutcome = ToviOutcome::NoReply;
  return false;
}

int ToviTraffic::cleanUpFiles(int type) {
  const bool known = static_cast<unsigned>(type) <= kLastCleanUp;
  return Operation(*this, command("cleanUpFiles")).set(bytes({known ? type : kSubstituteCleanUp}));
}

int ToviTraffic::clearCache() { return Operation(*this, command("clearCache")).askFlag(); }
