// SPDX-License-Identifier: MIT
// Resolution, timing, video input, fonts and broken pixels.
#include <algorithm>

#include "device/json_reply.h"
#include "foundation/log.h"
#include "session/operation.h"

using namespace tovi;
using namespace tovi::session;
using namespace tovi::device;

namespace {

// The first byte of commands that both set and query.
constexpr int kQuery = 0;
constexpr int kSet = 1;

// More parts than any screen has; an announced number beyond it is not believed.
constexpr int kMaxParts = 4096;

// Wide codes of a request, of the reply that announces parts, and of the parts.
struct Codes {
  short what;
  short rspWhat;
  short partWhat;
};

int announcedParts(const Reply& announced) {
  return announced.size() < 4 ? 0 : std::min(announced.signedShort(2), kMaxParts);
}

// The payloads of all parts, one after another; a part that does not come ends them. Nothing when
// none was announced because the request or its reply failed.
std::optional<std::string> askParts(Session session, Connection& connection, const Codes& codes,
                                    std::string_view payload, int bufferSize) {
  if (!connection) {
    log::print("socket == NULL");
    session.end(ToviOutcome::NoConnection);
    return std::nullopt;
  }
  if (session.send(connection.socket(), codes.what, payload) < 0) {
    connection.close();
    log::print("send SOCKET_ERROR");
    session.end(ToviOutcome::SendFailed);
    return std::nullopt;
  }
  const Reply announced(session.receive(connection.socket(), codes.rspWhat, bufferSize));
  if (!announced) {
    session.end(ToviOutcome::NoReply);
    return std::nullopt;
  }
  std::string joined;
  session.end(ToviOutcome::Done);
  for (int left = announcedParts(announced); left > 0; --left) {
    const std::optional<std::string> part =
        session.receive(connection.socket(), codes.partWhat, bufferSize);
    if (!part) {
      session.end(ToviOutcome::NoReply);
      break;
    }
    joined.append(*part, 1);
  }
  return joined;
}

}  // namespace

int ToviTraffic::setCustomResolution(int width, int height, int refreshRate) {
  return Operation(*this, "setCustomResolution").set([&] {
    return JsonRequest()
        .number("displayMode", 1)
        .number("width", width)
        .number("height", height)
        .number("refreshRate", refreshRate)
        .toText();
  });
}

ResolutionInfo ToviTraffic::getCurrentResolution() {
  return askJson<ResolutionInfo>(Operation(*this, "getCurrentResolution"), [](JsonReply& reply) {
    return ResolutionInfo{0, reply.text("value")};
  });
}

int ToviTraffic::setEdidInfo(EdidInfo info) {
  return Operation(*this, "setEdidInfo").set([&] {
    return JsonRequest()
        .number("fieldRate", info.fieldRate)
        .number("width", info.width)
        .number("height", info.height)
        .toText();
  });
}

EdidInfo ToviTraffic::getEdidInfo() {
  return askJson<EdidInfo>(Operation(*this, "getEdidInfo"), [](JsonReply& reply) {
    return EdidInfo{0, reply.number("width"), reply.number("height"), reply.number("fieldRate")};
  });
}

int ToviTraffic::setVideoControlInfo(int videoSource) {
  return Operation(*this, "setVideoControlInfo").set([&] {
    return JsonRequest()
        .text("isScale", "false")
        .number("offsetX", 0)
        .number("offsetY", 0)
        .number("videoMode", 1)
        .number("videoSource", videoSource)
        .toText();
  });
}

VideoControlInfo ToviTraffic::getVideoControlInfo() {
  return askJson<VideoControlInfo>(Operation(*this, "getVideoControlInfo"), [](JsonReply& reply) {
    return VideoControlInfo{0, reply.number("videoSource")};
  });
}

std::string ToviTraffic::getSupportVideoSource() {
  return Operation(*this, "getSupportVideoSource").askText();
}

DeviceSize ToviTraffic::getDeviceSize() {
  return Operation(*this, "getDeviceSize").ask(atLeast(5), DeviceSize(), [](const Reply& reply) {
    return DeviceSize{reply.unsignedShort(1), reply.unsignedShort(3)};
  });
}

void ToviTraffic::setAntiAliasing(bool first, bool second, bool third) {
  Operation(*this, "setAntiAliasing").set(first, second, third);
}

TextAttr ToviTraffic::getAntiAliasing() {
  return Operation(*this, "getAntiAliasing").ask(atLeast(4), TextAttr(), [](const Reply& reply) {
    return TextAttr{reply.isOne(1), reply.isOne(2), reply.isOne(3)};
  });
}

bool ToviTraffic::setSyncPlay(bool on) {
  return Operation(*this, "setSyncPlay").set(on) == SUCCESS;
}

bool ToviTraffic::getSyncPlay() {
  Operation operation(*this, "getSyncPlay");
  const bool on = operation.set() == SUCCESS;
  if (operation.outcome() == ToviOutcome::Rejected) operation.end(ToviOutcome::Done);  // a "no"
  return on;
}

int ToviTraffic::setPreStoredScreenEnabled(bool on) {
  return Operation(*this, "setPreStoredScreenEnabled").confirmAt(3, kSet, on);
}

PreStoredScreenEnabled ToviTraffic::getPreStoredScreenEnabled() {
  const auto decode = [](const Reply& reply) {
    return PreStoredScreenEnabled{reply.signedByte(3), reply.signedByte(4)};
  };
  return Operation(*this, "getPreStoredScreenEnabled")
      .ask(atLeast(5), PreStoredScreenEnabled(), decode, kQuery);
}

int ToviTraffic::setFont(const std::string& font) {
  return Operation(*this, "setFont").setText(font);
}

std::string ToviTraffic::getFontList() { return Operation(*this, "getFontList").askText(); }

ScreenPointDetect ToviTraffic::startScreenPointDetect() {
  Operation operation(*this, "startScreenPointDetect");
  return operation.ask(atLeast(6), ScreenPointDetect(), [&](const Reply& reply) {
    if (!reply.isOne(1)) return operation.end(ToviOutcome::Rejected, ScreenPointDetect());
    return ScreenPointDetect{1, reply.integer(2)};
  });
}

std::string ToviTraffic::getDetectErrorPointInfo() {
  static constexpr const wire::Command& kDetect = wire::command("startScreenPointDetect");
  static constexpr const wire::Command& kParts = wire::command("getDetectErrorPointData");
  Call call(*this, "getDetectErrorPointInfo");
  return call.guarded(std::string(), [&] {
    Session session = call.session();
    Connection connection(session);
    if (!connection) return call.end(ToviOutcome::NoConnection, std::string());
    const Reply detected(session.askOn(connection.socket(), wire::wideCode(kDetect.request),
                                       wire::wideCode(kDetect.reply), {}, kDetect.buffer));
    if (!detected) return std::string();
    const Codes codes{wire::wideCode(kParts.request), wire::wideCode(kParts.reply),
                      wire::wideCode(kParts.reply)};
    std::optional<std::string> joined = askParts(session, connection, codes, {}, kParts.buffer);
    if (!joined) return std::string();
    if (session.outcome() == ToviOutcome::Done) connection.keep();
    tellRelease();  // the parts were one reply to hosts
    return *std::move(joined);
  });
}

// Kept: the interface names it.
SocketResult* ToviTraffic::getDetectErrorPointData(std::uint64_t socket, char what, char rspWhat,
                                                   char partWhat, char* data, int len,
                                                   int bufSize) {
  const Codes codes{static_cast<signed char>(what), static_cast<signed char>(rspWhat),
                    static_cast<signed char>(partWhat)};
  Connection connection(Session(*this), socket);
  const std::optional<std::string> joined =
      askParts(Session(*this), connection, codes, viewOf(data, len), bufSize);
  connection.release();  // the caller's, unless it broke
  return joined ? new SocketResult(newArray(*joined), static_cast<int>(joined->size())) : nullptr;
}
