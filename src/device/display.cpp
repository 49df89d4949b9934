// Resolution, timing, video input, fonts and broken pixels.
#include <tovisdk/codec.h>

#include <algorithm>
#include <iostream>

#include "device/json_reply.h"
#include "foundation/log.h"
#include "json/json_object.h"
#include "session/operation.h"

using namespace tovi;
using namespace tovi::session;
using tovi::device::JsonReply;

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
    std::cout << "socket == NULL" << std::endl;
    session.end(ToviOutcome::NoConnection);
    return std::nullopt;
  }
  if (session.send(connection.socket(), codes.what, payload) < 0) {
    connection.close();
    std::cout << "send SOCKET_ERROR" << std::endl;
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
  CJsonObject request;
  request.addInt("displayMode", 1);
  request.addInt("width", width);
  request.addInt("height", height);
  request.addInt("refreshRate", refreshRate);
  return Operation(*this, "setCustomResolution").set(request.toText());
}

ResolutionInfo ToviTraffic::getCurrentResolution() {
  const JsonReply reply(Operation(*this, "getCurrentResolution"));
  return {reply.result(), reply.text("value")};
}

int ToviTraffic::setEdidInfo(EdidInfo info) {
  CJsonObject request;
  request.addInt("fieldRate", info.fieldRate);
  request.addInt("width", info.width);
  request.addInt("height", info.height);
  return Operation(*this, "setEdidInfo").set(request.toText());
}

EdidInfo ToviTraffic::getEdidInfo() {
  const JsonReply reply(Operation(*this, "getEdidInfo"));
  return {reply.result(), reply.number("width"), reply.number("height"), reply.number("fieldRate")};
}

int ToviTraffic::setVideoControlInfo(int videoSource) {
  CJsonObject request;
  request.addText("isScale", "false");
  request.addInt("offsetX", 0);
  request.addInt("offsetY", 0);
  request.addInt("videoMode", 1);
  request.addInt("videoSource", videoSource);
  return Operation(*this, "setVideoControlInfo").set(request.toText());
}

VideoControlInfo ToviTraffic::getVideoControlInfo() {
  const JsonReply reply(Operation(*this, "getVideoControlInfo"));
  return {reply.result(), reply.number("videoSource")};
}

std::string ToviTraffic::getSupportVideoSource() {
  return Operation(*this, "getSupportVideoSource").askText();
}

DeviceSize ToviTraffic::getDeviceSize() {
  const Reply reply = Operation(*this, "getDeviceSize").ask(atLeast(5));
  DeviceSize size;
  if (reply) size = {reply.unsignedShort(1), reply.unsignedShort(3)};
  return size;
}

void ToviTraffic::setAntiAliasing(bool first, bool second, bool third) {
  Operation(*this, "setAntiAliasing").set(bytes({first, second, third}));
}

TextAttr ToviTraffic::getAntiAliasing() {
  const Reply reply = Operation(*this, "getAntiAliasing").ask(atLeast(4));
  return {reply.isOne(1), reply.isOne(2), reply.isOne(3)};
}

bool ToviTraffic::setSyncPlay(bool on) {
  return Operation(*this, "setSyncPlay").set(bytes({on})) == SUCCESS;
}

bool ToviTraffic::getSyncPlay() { return Operation(*this, "getSyncPlay").set() == SUCCESS; }

int ToviTraffic::setPreStoredScreenEnabled(bool on) {
  return Operation(*this, "setPreStoredScreenEnabled").askByte(3, bytes({kSet, on}));
}

PreStoredScreenEnabled ToviTraffic::getPreStoredScreenEnabled() {
  const Reply reply =
      Operation(*this, "getPreStoredScreenEnabled").ask(atLeast(5), bytes({kQuery}));
  PreStoredScreenEnabled enabled;
  if (reply) enabled = {reply.signedByte(3), reply.signedByte(4)};
  return enabled;
}

int ToviTraffic::setFont(const std::string& font) {
  return Operation(*this, "setFont").setText(font);
}

std::string ToviTraffic::getFontList() { return Operation(*this, "getFontList").askText(); }

ScreenPointDetect ToviTraffic::startScreenPointDetect() {
  Operation operation(*this, "startScreenPointDetect");
  const Reply reply = operation.ask(atLeast(6));
  if (!reply) return {};
  if (!reply.isOne(1)) return operation.end(ToviOutcome::Rejected, ScreenPointDetect());
  return {1, reply.integer(2)};
}

std::string ToviTraffic::getDetectErrorPointInfo() {
  constexpr const wire::Command& kDetect = wire::command("startScreenPointDetect");
  constexpr const wire::Command& kParts = wire::command("getDetectErrorPointData");
  Call call(*this, "getDetectErrorPointInfo");
  Session session = call.session();
  Connection connection(session);
  if (!connection) return call.end(ToviOutcome::NoConnection, "");
  const Reply detected(session.askOn(connection.socket(), wire::wideCode(kDetect.request),
                                     wire::wideCode(kDetect.reply), {}, kDetect.buffer));
  if (!detected) return "";
  const Codes codes{wire::wideCode(kParts.request), wire::wideCode(kParts.reply),
                    wire::wideCode(kParts.reply)};
  const std::optional<std::string> joined = askParts(session, connection, codes, {}, kParts.buffer);
  if (!joined) return "";
  tellRelease();  // the parts were one reply to hosts
  return *joined;
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
