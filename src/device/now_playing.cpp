// What is playing.
#include "session/operation.h"

using namespace tovi;
using namespace tovi::session;

DeviceNowPlayItem* ToviTraffic::getNowPlayContent() {
  const Reply reply = Operation(*this, "getNowPlayContent").ask(atLeast(4));
  if (!reply) return nullptr;
  char* content = reply.size() > 4 ? reply.newText(4) : nullptr;
  return new DeviceNowPlayItem(reply.isOne(1), reply.signedByte(3), content);
}

DeviceNowPlayList* ToviTraffic::getNowPlayAllContent() {
  const Reply reply = Operation(*this, "getNowPlayAllContent").ask(atLeast(2));
  if (!reply) return nullptr;
  char* content = reply.size() > 2 ? reply.newText(2) : nullptr;
  return new DeviceNowPlayList(reply.signedByte(1), content);
}
