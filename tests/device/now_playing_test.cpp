// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"

namespace tovi::test {
namespace {

using T = ToviTraffic;

std::string taken(DeviceNowPlayItem* item) {
  if (item == nullptr) return "null";
  const std::string content = item->getContent() == nullptr ? "null" : item->getContent();
  const std::string text = show(int{item->playIsOpen()}, item->getPlayId(), content);
  deleteObj(&item);
  return text;
}

std::string taken(DeviceNowPlayList* list) {
  if (list == nullptr) return "null";
  const std::string content = list->getContent() == nullptr ? "null" : list->getContent();
  const std::string text = show(list->getPlayId(), content);
  deleteObj(&list);
  return text;
}

const Call kCalls[] = {
    {"getNowPlayContent", [](T& t) { return taken(t.getNowPlayContent()); }, "2D",
     "2E 01 77 FF 61 62", "1 -1 ab"},
    {"getNowPlayContent stopped", [](T& t) { return taken(t.getNowPlayContent()); }, "2D",
     "2E 02 77 07 61", "0 7 a"},
    {"getNowPlayContent without text", [](T& t) { return taken(t.getNowPlayContent()); }, "2D",
     "2E 01 77 80", "1 -128 null"},
    {"getNowPlayContent of three bytes", [](T& t) { return taken(t.getNowPlayContent()); }, "2D",
     "2E 01 77", "null", BadReply},
    {"getNowPlayAllContent", [](T& t) { return taken(t.getNowPlayAllContent()); }, "3A",
     "3B FF 61 62", "-1 ab"},
    {"getNowPlayAllContent without text", [](T& t) { return taken(t.getNowPlayAllContent()); },
     "3A", "3B 05", "5 null"},
    {"getNowPlayAllContent of one byte", [](T& t) { return taken(t.getNowPlayAllContent()); }, "3A",
     "3B", "null", BadReply},
};

}  // namespace

const std::span<const Call> kNowPlayingCalls = kCalls;

}  // namespace tovi::test
