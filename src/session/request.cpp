// SPDX-License-Identifier: MIT
// Requests: the choice of the cipher, and the one send that carries a frame.
#include "foundation/bytes.h"
#include "foundation/log.h"
#include "platform/sockets.h"
#include "session/session.h"
#include "wire/frame.h"
#include "wire/packet_builder.h"
#include "wire/packet_receiver.h"

namespace tovi::session {

// The first key that is set, for a request that may be enciphered.
Session::Key Session::keyFor(short what) const {
  if (what == wire::kIsSecret) return {wire::kPlain, nullptr};
  if (mTraffic.mDesKey != nullptr) return {wire::kDes, mTraffic.mDesKey};
  if (mTraffic.mAesKey != nullptr) return {wire::kAes, mTraffic.mAesKey};
  if (mTraffic.mSm4Key != nullptr) return {wire::kSm4, mTraffic.mSm4Key};
  return {wire::kPlain, nullptr};
}

void Session::tellCipher(short what) const {
  const Key key = keyFor(what);
  if (key.mode == wire::kPlain) {
    log::info("ToviTraffic::makeSendPacket makeSendPacketEx normal mode");
  } else {
    const char* name = wire::cipherName(key.mode);
    log::info("ToviTraffic::makeSendPacket makeSendPacketEx %s mode, %s key = %s", name, name,
              log::shownKey(key.text));
  }
}

std::string_view Session::build(wire::FrameBuilder& builder, short what,
                                std::string_view payload) const {
  const Key key = keyFor(what);
  if (what <= wire::kExtendedCommand) {
    return builder.build(static_cast<char>(what), payload, key.mode, key.text);
  }
  return builder.build(static_cast<char>(wire::kExtendedCommand), lowFirst(what).append(payload),
                       key.mode, key.text);
}

std::string Session::frameOf(short what, std::string_view payload) const {
  tellCipher(what);
  wire::FrameBuilder builder;
  build(builder, what, payload);
  return std::move(builder).frame();
}

std::size_t Session::mostPayload(short what) const {
  constexpr std::size_t kCodeSize = 2;
  const bool plain = what == ProtocalParser::WHAT_SECRET_DES_MD5_REQ;
  const std::size_t most = wire::mostPlain(plain ? wire::kPlain : keyFor(what).mode);
  return what > wire::kExtendedCommand ? most - kCodeSize : most;
}

bool Session::isEnciphered() const {
  return mTraffic.mDesKey != nullptr || mTraffic.mAesKey != nullptr || mTraffic.mSm4Key != nullptr;
}

int Session::send(std::uint64_t socket, short what, std::string_view payload) {
  return sendFrame(socket, frameOf(what, payload));
}

int Session::sendBuilt(std::uint64_t socket, short what, std::string_view frame) {
  tellCipher(what);
  return sendFrame(socket, frame);
}

int Session::sendFrame(std::uint64_t socket, std::string_view frame) {
  if (!waitsUntilTimeout()) return platform::sendAll(socket, frame, mTraffic.mTimeout, stop());
  if (mTraffic.mSocket == 0 && mTraffic.mProtocalParser != nullptr) {
    wire::Receiver(*mTraffic.mProtocalParser).forget();
  }
  const std::optional<int> left = waitLeft(receiveTimeout(socket));
  return left ? platform::sendAll(socket, frame, *left, stop()) : -1;
}

}  // namespace tovi::session

// Kept: the interface names it.
char* ToviTraffic::makeSendPacket(short what, char* data, int len, int* outLen) {
  const std::string frame = tovi::session::Session(*this).frameOf(what, tovi::viewOf(data, len));
  *outLen = static_cast<int>(frame.size());
  return tovi::newArray(frame);
}
