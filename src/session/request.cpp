// Requests: the choice of the cipher, and the one send that carries a frame.
#include "foundation/bytes.h"
#include "foundation/log.h"
#include "platform/sockets.h"
#include "session/session.h"
#include "wire/frame.h"
#include "wire/packet_builder.h"

namespace tovi::session {

std::string Session::frameOf(short what, std::string_view payload) const {
  int mode = wire::kPlain;
  const char* key = nullptr;
  const bool mayBeEnciphered = what != wire::kIsSecret;
  if (mTraffic.mDesKey != nullptr && mayBeEnciphered) {
    mode = wire::kDes;
    key = mTraffic.mDesKey;
    log::info("ToviTraffic::makeSendPacket makeSendPacketEx des mode, des key = %s",
              log::shownKey(key));
  } else if (mTraffic.mAesKey != nullptr && mayBeEnciphered) {
    mode = wire::kAes;
    key = mTraffic.mAesKey;
    log::info("ToviTraffic::makeSendPacket makeSendPacketEx aes mode, aes key = %s",
              log::shownKey(key));
  } else if (mTraffic.mSm4Key != nullptr && mayBeEnciphered) {
    mode = wire::kSm4;
    key = mTraffic.mSm4Key;
    log::info("ToviTraffic::makeSendPacket makeSendPacketEx sm4 mode, sm4 key = %s",
              log::shownKey(key));
  } else {
    log::info("ToviTraffic::makeSendPacket makeSendPacketEx normal mode");
  }
  if (what <= wire::kExtendedCommand) {
    return wire::makeFrame(static_cast<char>(what), payload, mode, key);
  }
  return wire::makeFrame(static_cast<char>(wire::kExtendedCommand), lowFirst(what).append(payload),
                         mode, key);
}

bool Session::isEnciphered() const {
  return mTraffic.mDesKey != nullptr || mTraffic.mAesKey != nullptr || mTraffic.mSm4Key != nullptr;
}

int Session::send(std::uint64_t socket, short what, std::string_view payload) {
  return platform::sendAll(socket, frameOf(what, payload), mTraffic.mTimeout);
}

}  // namespace tovi::session

// Kept: the interface names it.
char* ToviTraffic::makeSendPacket(short what, char* data, int len, int* outLen) {
  const std::string frame = tovi::session::Session(*this).frameOf(what, tovi::viewOf(data, len));
  *outLen = static_cast<int>(frame.size());
  return tovi::newArray(frame);
}
