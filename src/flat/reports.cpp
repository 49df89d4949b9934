// Functions that answer with a text of the host's own: reports and values.
#include <tovisdk/flat.h>
#include <tovisdk/text.h>
#include <tovisdk/tovi_traffic.h>

#include <memory>

#include "flat/call.h"
#include "flat/labels.h"
#include "flat/report_text.h"
#include "foundation/log.h"

using namespace tovi::flat;

namespace {

// Of a record or a list that the method may not have: null gives no line at all.
template <class Record>
std::string textOfOwned(Record* record) {
  const std::unique_ptr<Record> owned(record);
  return owned == nullptr ? "" : reportText(*owned);
}

std::string textOfOwned(char* text) {
  const std::unique_ptr<char[]> owned(text);
  return owned == nullptr ? "" : gbk(owned.get());
}

// A timetable that could not be had is worth a warning.
template <class Entry>
std::string textOfList(const char* name, std::list<Entry>* list) {
  if (list == nullptr) tovi::log::warning("%s list is null", name);
  return textOfOwned(list);
}

}  // namespace

char* getAdvanceTiming(const char* ip, unsigned short port) {
  return report(__func__, ip, port,
                [](ToviTraffic& session) { return gbk(session.getAdvanceTiming()); });
}

char* getAllPlaylistId(const char* ip, unsigned short port) {
  return report(__func__, ip, port, [](ToviTraffic& session) {
    return playlistNumbersText(session.getAllPlaylistId());
  });
}

char* getBrightnessAuto(const char* ip, unsigned short port) {
  return report(__func__, ip, port,
                [](ToviTraffic& session) { return textOfOwned(session.getBrightnessAuto()); });
}

char* getBrightnessByTimeList(const char* ip, unsigned short port) {
  return report(__func__, ip, port, [name = __func__](ToviTraffic& session) {
    std::list<BrightnessByTimeParam>* list = session.getBrightnessByTimeList();
    const bool answered = list != nullptr;
    std::string text = textOfList(name, list);
    if (answered) tovi::log::info("getBrightnessByTimeList result = %sinterfaceEnd", text.c_str());
    return text;
  });
}

char* getBrightnessInfo(const char* ip, unsigned short port) {
  return report(__func__, ip, port,
                [](ToviTraffic& session) { return reportText(session.getBrightnessInfo()); });
}

char* getCloseScreenTemperature(const char* ip, unsigned short port) {
  return value(__func__, ip, port, [](ToviTraffic& session) {
    return label::kCloseTemperature + std::to_string(session.getCloseScreenTemperature());
  });
}

char* getCpuAndMemoryInfo(const char* ip, unsigned short port) {
  return report(__func__, ip, port,
                [](ToviTraffic& session) { return reportText(session.getCpuAndMemoryInfo()); });
}

char* getDetectErrorPointInfo(const char* ip, unsigned short port) {
  return report(__func__, ip, port,
                [](ToviTraffic& session) { return gbk(session.getDetectErrorPointInfo()); });
}

char* getDeviceMemorySize(const char* ip, unsigned short port) {
  return report(__func__, ip, port,
                [](ToviTraffic& session) { return reportText(session.getDeviceMemorySize()); });
}

char* getDeviceNTPParam(const char* ip, unsigned short port) {
  return report(__func__, ip, port,
                [](ToviTraffic& session) { return textOfOwned(session.getDeviceNTPParam()); });
}

char* getDeviceName(const char* ip, unsigned short port) {
  return report(__func__, ip, port,
                [](ToviTraffic& session) { return textOfOwned(session.getDeviceName()); });
}

char* getDevicePowerByTimeList(const char* ip, unsigned short port) {
  return report(__func__, ip, port, [name = __func__](ToviTraffic& session) {
    return textOfList(name, session.getDevicePowerByTimeList());
  });
}

char* getDeviceSize(const char* ip, unsigned short port) {
  return report(__func__, ip, port,
                [](ToviTraffic& session) { return reportText(session.getDeviceSize()); });
}

char* getDeviceType(const char* ip, unsigned short port) {
  return report(__func__, ip, port,
                [](ToviTraffic& session) { return textOfOwned(session.getDeviceType()); });
}

char* getDeviceVersion(const char* ip, unsigned short port) {
  return report(__func__, ip, port,
                [](ToviTraffic& session) { return textOfOwned(session.getDeviceVersion()); });
}

char* getEdidInfo(const char* ip, unsigned short port) {
  return report(__func__, ip, port,
                [](ToviTraffic& session) { return reportText(session.getEdidInfo()); });
}

char* getFileListName(const char* ip, unsigned short port, char type) {
  return report(__func__, ip, port,
                [&](ToviTraffic& session) { return fileNamesText(session.getFileListName(type)); });
}

char* getMac(const char* ip, unsigned short port) {
  return report(__func__, ip, port, [](ToviTraffic& session) { return session.getMac(); });
}

char* getNowPlayAllContent(const char* ip, unsigned short port) {
  return report(__func__, ip, port,
                [](ToviTraffic& session) { return textOfOwned(session.getNowPlayAllContent()); });
}

char* getNowPlayContent(const char* ip, unsigned short port) {
  return report(__func__, ip, port,
                [](ToviTraffic& session) { return textOfOwned(session.getNowPlayContent()); });
}

char* getPlayByTimeList(const char* ip, unsigned short port) {
  return report(__func__, ip, port, [name = __func__](ToviTraffic& session) {
    return textOfList(name, session.getPlayByTimeList());
  });
}

// Its record names it otherwise; readers of these logs know it so.
const char* getScreenStatus(const char* ip, unsigned short port) {
  return withSession<const char*>("getScreenState", ip, port, kFailed, [](ToviTraffic& session) {
    switch (session.getScreenStatus()) {
      case 1:
        return "open";
      case 2:
        return "close";
      default:
        return kFailed;
    }
  });
}

char* getSn(const char* ip, unsigned short port) {
  return report(__func__, ip, port, [](ToviTraffic& session) { return gbk(session.getSn()); });
}

char* getSurveil(const char* ip, unsigned short port) {
  return value(__func__, ip, port, [](ToviTraffic& session) { return session.getSurveil(); });
}

char* getTimeAndTimeZone(const char* ip, unsigned short port) {
  return report(__func__, ip, port,
                [](ToviTraffic& session) { return textOfOwned(session.getTimeAndTimeZone()); });
}

char* getVideoControlInfo(const char* ip, unsigned short port) {
  return report(__func__, ip, port,
                [](ToviTraffic& session) { return reportText(session.getVideoControlInfo()); });
}

char* getVirtualConnection(const char* ip, unsigned short port) {
  return report(__func__, ip, port,
                [](ToviTraffic& session) { return reportText(session.getVirtualConnection()); });
}

// A byte is signed here, so 255 reads -1.
char* getVolumeValue(const char* ip, unsigned short port) {
  return value(__func__, ip, port, [](ToviTraffic& session) {
    return std::to_string(static_cast<signed char>(session.getVolumeValue()));
  });
}

char* startScreenPointDetect(const char* ip, unsigned short port) {
  return report(__func__, ip, port,
                [](ToviTraffic& session) { return reportText(session.startScreenPointDetect()); });
}
