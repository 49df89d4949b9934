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

std::string shown(const ResultParam& result) { return show(result.result, result.text); }

const Call kCalls[] = {
    {"getSurveil", [](T& t) { return t.getSurveil(); }, "A0", "A0 01 61 62 00 63", "ab"},
    {"getSurveil refused", [](T& t) { return t.getSurveil(); }, "A0", "A0 02 61", ""},
    {"getSurveil of two bytes", [](T& t) { return t.getSurveil(); }, "A0", "A0 01", ""},
    {"getSurveil silent", [](T& t) { return t.getSurveil(); }, "A0", "", ""},
    {"getSystemInfo", [](T& t) { return t.getSystemInfo(); }, "C2", "C2 01 61", "a"},
    {"getSensorInfo", [](T& t) { return t.getSensorInfo(); }, "C7", "C7 01 61", "a"},
    {"getMobileInfo", [](T& t) { return t.getMobileInfo(); }, "C9", "C9 01 61", "a"},
    {"getWifiList", [](T& t) { return t.getWifiList(); }, "CE", "CE 01 61", "a"},
    {"getWifiApConfig", [](T& t) { return t.getWifiApConfig(); }, "C4", "C4 01 61", "a"},
    {"getFontList", [](T& t) { return t.getFontList(); }, "D1", "D1 01 61", "a"},
    {"getSupportVideoSource", [](T& t) { return t.getSupportVideoSource(); }, "E7", "E7 01 61",
     "a"},
    {"getAdvanceTiming", [](T& t) { return t.getAdvanceTiming(); }, "DD 01", "DD 01 61", "a"},
    {"getPingIp", [](T& t) { return t.getPingIp(); }, "EF 02 01", "EF 02 01 01 31 2E", "1."},
    {"getPingIp refused", [](T& t) { return t.getPingIp(); }, "EF 02 01", "EF 02 01 00 31 2E", ""},
    {"getPingIp of three bytes", [](T& t) { return t.getPingIp(); }, "EF 02 01", "EF 02 01 01", ""},
    {"getPingIp silent", [](T& t) { return t.getPingIp(); }, "EF 02 01", "", ""},
    {"getSimInfo", [](T& t) { return t.getSimInfo(); }, "EF 08 01", "EF 08 01 01 61", "a"},
    {"getWhitelist", [](T& t) { return t.getWhitelist(); }, "EF 09 01", "EF 09 01 01 61", "a"},
    {"getServerIPLists", [](T& t) { return t.getServerIPLists(); }, "EF 0E 01", "EF 0E 01 01 61",
     "a"},
    {"getLogZipPath", [](T& t) { return t.getLogZipPath(); }, "EF 0F 01", "EF 0F 01 01 61", "a"},
    {"getLoraInfo", [](T& t) { return shown(t.getLoraInfo()); }, "D6", "D6 01 61", "1 a"},
    {"getLoraInfo refused", [](T& t) { return shown(t.getLoraInfo()); }, "D6", "D6 00 61", "0 "},
    {"getLoraInfo silent", [](T& t) { return shown(t.getLoraInfo()); }, "D6", "", "0 "},
    {"getNowPlayContent", [](T& t) { return taken(t.getNowPlayContent()); }, "2D",
     "2E 01 77 FF 61 62", "1 -1 ab"},
    {"getNowPlayContent stopped", [](T& t) { return taken(t.getNowPlayContent()); }, "2D",
     "2E 02 77 07 61", "0 7 a"},
    {"getNowPlayContent without text", [](T& t) { return taken(t.getNowPlayContent()); }, "2D",
     "2E 01 77 80", "1 -128 null"},
    {"getNowPlayContent of three bytes", [](T& t) { return taken(t.getNowPlayContent()); }, "2D",
     "2E 01 77", "null"},
    {"getNowPlayAllContent", [](T& t) { return taken(t.getNowPlayAllContent()); }, "3A",
     "3B FF 61 62", "-1 ab"},
    {"getNowPlayAllContent without text", [](T& t) { return taken(t.getNowPlayAllContent()); },
     "3A", "3B 05", "5 null"},
    {"getNowPlayAllContent of one byte", [](T& t) { return taken(t.getNowPlayAllContent()); }, "3A",
     "3B", "null"},
};

}  // namespace

const std::span<const Call> kTextCalls = kCalls;

}  // namespace tovi::test
