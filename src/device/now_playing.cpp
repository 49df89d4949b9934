// SPDX-License-Identifier: MIT
// What is playing.
#include <memory>

#include "session/operation.h"

using namespace tovi::session;

namespace {

// The text from a byte on, which the record owns; none when nothing stands there.
std::unique_ptr<char[]> content(const Reply& reply, int from) {
  return std::unique_ptr<char[]>(reply.size() > from ? reply.newText(from) : nullptr);
}

}  // namespace

DeviceNowPlayItem* ToviTraffic::getNowPlayContent() {
  DeviceNowPlayItem* const none = nullptr;
  return Operation(*this, "getNowPlayContent").ask(atLeast(4), none, [](const Reply& reply) {
    auto text = content(reply, 4);
    auto* item = new DeviceNowPlayItem(reply.isOne(1), reply.signedByte(3), text.get());
    text.release();  // the record's
    return item;
  });
}

DeviceNowPlayList* ToviTraffic::getNowPlayAllContent() {
  DeviceNowPlayList* const none = nullptr;
  return Operation(*this, "getNowPlayAllContent").ask(atLeast(2), none, [](const Reply& reply) {
    auto text = content(reply, 2);
    auto* list = new DeviceNowPlayList(reply.signedByte(1), text.get());
    text.release();  // the record's
    return list;
  });
}
