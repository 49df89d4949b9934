// SPDX-License-Identifier: MIT
// Timetables.
#include "flat/flat_face.h"

#include "flat/call.h"
#include "flat/grammar.h"
#include "foundation/log.h"

using namespace tovi;
using namespace tovi::flat;

const char* setDevicePowerByTimeList(const char* ip, unsigned short port, const char* entries) {
  const auto set = [](ToviTraffic& session, const char* text) {
    return session.setDevicePowerByTimeList(parsePowerEntries(text));
  };
  return status({__func__, ip, port}, set, entries);
}

char* getDevicePowerByTimeList(const char* ip, unsigned short port) {
  return timetable({__func__, ip, port}, &ToviTraffic::getDevicePowerByTimeList);
}

const char* setPlayByTimeList(const char* ip, unsigned short port, const char* entries) {
  const auto set = [](ToviTraffic& session, const char* text) {
    return session.setPlayByTimeList(parsePlayEntries(text));
  };
  return status({__func__, ip, port}, set, entries);
}

char* getPlayByTimeList(const char* ip, unsigned short port) {
  return timetable({__func__, ip, port}, &ToviTraffic::getPlayByTimeList);
}

const char* setBrightnessByTimeList(const char* ip, unsigned short port, const char* entries) {
  const auto set = [](ToviTraffic& session, const char* text) {
    return session.setBrightnessByTimeList(parseBrightnessEntries(text));
  };
  return status({__func__, ip, port}, set, entries);
}

char* getBrightnessByTimeList(const char* ip, unsigned short port) {
  return value({__func__, ip, port}, [name = __func__](ToviTraffic& session) {
    std::list<BrightnessByTimeParam>* list = session.getBrightnessByTimeList();
    const bool answered = list != nullptr;
    std::string text = ended(timetableText(name, list));
    if (answered) log::info("getBrightnessByTimeList result = %s", text.c_str());
    return text;
  });
}

const char* setAdvanceTiming(const char* ip, unsigned short port, const char* timing) {
  return status({__func__, ip, port}, &ToviTraffic::setAdvanceTiming, timing);
}

char* getAdvanceTiming(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getAdvanceTiming);
}

const char* removeAdvanceTiming(const char* ip, unsigned short port) {
  return status({__func__, ip, port}, &ToviTraffic::removeAdvanceTiming);
}
