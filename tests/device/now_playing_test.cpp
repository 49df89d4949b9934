// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"

namespace tovi::test {

// The record keeps its text.
static std::string content(const char* text) { return text == nullptr ? "null" : text; }

static std::string show(DeviceNowPlayItem* item) {
  return taken(item, [](const DeviceNowPlayItem& i) {
    return show(i.playIsOpen(), i.getPlayId(), content(i.getContent()));
  });
}

static std::string show(DeviceNowPlayList* list) {
  return taken(list, [](const DeviceNowPlayList& l) {
    return show(l.getPlayId(), content(l.getContent()));
  });
}

const std::vector<Call> kNowPlayingCalls = {
    {CALL(getNowPlayContent()), "2D",
     answers("null", {{"2E 01 77 FF 61 62", "true -1 ab"},
                      {"2E 02 77 07 61", "false 7 a"},
                      {"2E 01 77 80", "true -128 null"},
                      {"2E 01 77", "null", BadReply}})},
    {CALL(getNowPlayAllContent()), "3A",
     answers("null", {{"3B FF 61 62", "-1 ab"},
                      {"3B 05 61", "5 a"},
                      {"3B 05", "5 null"},
                      {"3B", "null", BadReply}})},
};

}  // namespace tovi::test
