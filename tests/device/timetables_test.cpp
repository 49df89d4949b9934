// SPDX-License-Identifier: MIT
#include <tovisdk/codec.h>

#include "tests/device/call_table.h"

namespace tovi::test {

static std::string show(const std::tm& time) {
  return show(time.tm_year, time.tm_mon, time.tm_mday, time.tm_hour, time.tm_min, time.tm_sec);
}
static std::string tail(const DevicePowerByTimeParam&) { return ""; }
static std::string tail(const PlayByTimeParam& entry) { return " plays " + show(entry.playId); }
static std::string tail(const BrightnessByTimeParam& entry) {
  return " at " + show(entry.brightness);
}

template <class Entry>
static std::string show(std::list<Entry>* entries) {
  return taken(entries, [](const std::list<Entry>& list) {
    std::string text = show(static_cast<int>(list.size()));
    for (const Entry& entry : list) {
      text += "; " + show(entry.startTime) + " to " + show(entry.endTime) + tail(entry);
    }
    return text;
  });
}

const std::tm kStart = getTm(2024, 1, 2, 3, 4, 5);
const std::tm kEnd = getTm(2025, 12, 31, 23, 59, 58);
// As it travels, and as it comes back.
const std::string kEntry = " 02 01 E8 07 05 04 03 1F 0C E9 07 3A 3B 17";
const std::string kTimes = "; 124 0 2 3 4 5 to 125 11 31 23 59 58";

const std::vector<Call> kTimetablesCalls = {
    {CALL(setDevicePowerByTimeList({{kStart, kEnd}})), "8A 01" + kEntry, setting("8B")},
    {CALL(setDevicePowerByTimeList({})), "8A 00", setting("8B")},
    {CALL(getDevicePowerByTimeList()), "52",
     answers("null", {{"52 02" + kEntry + kEntry, "2" + kTimes + kTimes},
                      {"52 02" + kEntry + " 02 01 E8 07 05 04 03 1F 0C E9 07 3A 3B", "1" + kTimes},
                      {"52 01 FF 00 FF FF FF FF FF 00 FF 00 80 00 00 00",
                       "1; -1901 -1 255 255 255 255 to -34668 254 0 0 0 0"},
                      {"52 FF" + kEntry, "0"},
                      {"52 00", "0"},
                      {"52", "null", BadReply}})},
    {CALL(setPlayByTimeList({{kStart, kEnd, 300}, {}})),
     "41 02" + kEntry + " 2C 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00", setting("42")},
    {CALL(getPlayByTimeList()), "53",
     answers("null", {{"53 02" + kEntry + " FE 77" + kEntry + " 07 00",
                       "2" + kTimes + " plays -2" + kTimes + " plays 7"},
                      {"53 01" + kEntry + " 07", "0"},
                      {"53", "null", BadReply}})},
    {CALL(setBrightnessByTimeList({{kStart, kEnd, 511}})), "07 03 00 | 43 01" + kEntry + " FF",
     answers("-11", {{"08 01 | 44 01", "1"}, {"08 01 | 44 00", "-12", Rejected}})},
    {CALL(setBrightnessByTimeList({})), "07 03 00", answers("-11", {{"08 00", "-12", Rejected}})},
    {CALL(getBrightnessByTimeList()), "51",
     answers("null", {{"51 02" + kEntry + " FE" + kEntry + " 07",
                       "2" + kTimes + " at 254" + kTimes + " at 7"},
                      {"51 01" + kEntry, "0"},
                      {"51", "null", BadReply}})},
    {CALL(setAdvanceTiming("t")), "DC 74", setting("DC")},
    {CALL(getAdvanceTiming()), "DD 01", text("DD")},
    {CALL(removeAdvanceTiming()), "DE 01", setting("DE")},
};

}  // namespace tovi::test
