// Requests: the choice of the cipher, and the one send that carries a frame.
#include <tovisdk/codec.h>
#include <tovisdk/packet.h>
#include <tovisdk/tovi_traffic.h>

#include <memory>
#include <string>
#include <string_view>

#include "foundation/log.h"
#include "platform/sockets.h"
#include "wire/frame.h"

using tovi::log::shownKey;

char* ToviTraffic::makeSendPacket(short what, char* data, int len, int* outLen) {
  char frameWhat = static_cast<char>(what);
  std::string extended;
  if (what > tovi::wire::kExtendedCommand) {
    frameWhat = static_cast<char>(tovi::wire::kExtendedCommand);
    extended.resize(2);
    shortToBytes(extended.data(), 0, what);
    if (data != nullptr && len > 0) extended.append(data, static_cast<std::size_t>(len));
    data = extended.data();
    len = static_cast<int>(extended.size());
  }

  int mode = tovi::wire::kPlain;
  char* key = nullptr;
  if (mDesKey != nullptr && what != tovi::wire::kIsSecret) {
    mode = tovi::wire::kDes;
    key = mDesKey;
    tovi::log::info("ToviTraffic::makeSendPacket makeSendPacketEx des mode, des key = %s",
                    shownKey(key));
  } else if (mAesKey != nullptr && what != tovi::wire::kIsSecret) {
    mode = tovi::wire::kAes;
    key = mAesKey;
    tovi::log::info("ToviTraffic::makeSendPacket makeSendPacketEx aes mode, aes key = %s",
                    shownKey(key));
  } else if (mSm4Key != nullptr && what != tovi::wire::kIsSecret) {
    mode = tovi::wire::kSm4;
    key = mSm4Key;
    tovi::log::info("ToviTraffic::makeSendPacket makeSendPacketEx sm4 mode, sm4 key = %s",
                    shownKey(key));
  } else {
    tovi::log::info("ToviTraffic::makeSendPacket makeSendPacketEx normal mode");
  }
  return makeSendPacketEx(frameWhat, data, len, mode, key, outLen);
}

// The number of bytes sent, or -1.
int ToviTraffic::sendPacket(std::uint64_t socket, short what, char* data, int len) {
  int size = 0;
  const std::unique_ptr<char[]> frame(makeSendPacket(what, data, len, &size));
  if (frame == nullptr) return -1;
  const std::string_view bytes(frame.get(), static_cast<std::size_t>(size));
  return tovi::platform::sendAll(socket, bytes, mTimeout);
}
