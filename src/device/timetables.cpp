// SPDX-License-Identifier: MIT
// The three timetables and the advance timing.
#include <tovisdk/codec.h>

#include <memory>

#include "session/operation.h"

using namespace tovi;
using namespace tovi::session;

namespace {

// What the brightness command takes to follow its timetable.
constexpr int kByTimetable = 3;

constexpr int kTimeSize = 7;  // day, month, year in two bytes, second, minute, hour
constexpr int kEntriesOffset = 2;
constexpr int kValueOffset = 2 * kTimeSize;

// Fields go out as they stand; they come back as `tm` has them. Hosts rely on both.
std::string encodeTime(const std::tm& time) {
  return bytes({time.tm_mday, time.tm_mon}) + lowFirst(time.tm_year) +
         bytes({time.tm_sec, time.tm_min, time.tm_hour});
}

std::tm decodeTime(const Reply& reply, int offset) {
  return getTm(reply.signedShort(offset + 2) - 1900, reply.unsignedByte(offset + 1) - 1,
               reply.unsignedByte(offset), reply.unsignedByte(offset + 6),
               reply.unsignedByte(offset + 5), reply.unsignedByte(offset + 4));
}

// What an entry carries behind its two times.
std::string tailOf(const DevicePowerByTimeParam&) { return {}; }
std::string tailOf(const PlayByTimeParam& entry) { return bytes({entry.playId, 0}); }
std::string tailOf(const BrightnessByTimeParam& entry) { return bytes({entry.brightness}); }

constexpr int tailSize(const DevicePowerByTimeParam*) { return 0; }
constexpr int tailSize(const PlayByTimeParam*) { return 2; }
constexpr int tailSize(const BrightnessByTimeParam*) { return 1; }

void readTail(const Reply&, int, DevicePowerByTimeParam&) {}
void readTail(const Reply& reply, int offset, PlayByTimeParam& entry) {
  entry.playId = reply.signedByte(offset);
}
void readTail(const Reply& reply, int offset, BrightnessByTimeParam& entry) {
  entry.brightness = reply.unsignedByte(offset);
}

template <class Entry>
std::string encodeList(const std::list<Entry>& list) {
  std::string payload = bytes({static_cast<int>(list.size())});
  for (const Entry& entry : list) {
    payload += encodeTime(entry.startTime) + encodeTime(entry.endTime) + tailOf(entry);
  }
  return payload;
}

// Announced entries that the reply does not hold whole are left out.
template <class Entry>
std::list<Entry>* newList(const Reply& reply) {
  constexpr int kEntrySize = 2 * kTimeSize + tailSize(static_cast<const Entry*>(nullptr));
  auto list = std::make_unique<std::list<Entry>>();
  const int count = reply.signedByte(1);
  for (int i = 0; i < count && kEntriesOffset + (i + 1) * kEntrySize <= reply.size(); ++i) {
    const int offset = kEntriesOffset + i * kEntrySize;
    Entry entry;
    entry.startTime = decodeTime(reply, offset);
    entry.endTime = decodeTime(reply, offset + kTimeSize);
    readTail(reply, offset + kValueOffset, entry);
    list->push_back(entry);
  }
  return list.release();
}

template <class Entry>
std::list<Entry>* askList(Operation operation) {
  std::list<Entry>* const none = nullptr;
  return operation.ask(atLeast(kEntriesOffset), none, newList<Entry>);
}

}  // namespace

int ToviTraffic::setDevicePowerByTimeList(std::list<DevicePowerByTimeParam> list) {
  return Operation(*this, "setDevicePowerByTimeList").set([&] { return encodeList(list); });
}

std::list<DevicePowerByTimeParam>* ToviTraffic::getDevicePowerByTimeList() {
  return askList<DevicePowerByTimeParam>(Operation(*this, "getDevicePowerByTimeList"));
}

int ToviTraffic::setPlayByTimeList(std::list<PlayByTimeParam> list) {
  return Operation(*this, "setPlayByTimeList").set([&] { return encodeList(list); });
}

std::list<PlayByTimeParam>* ToviTraffic::getPlayByTimeList() {
  return askList<PlayByTimeParam>(Operation(*this, "getPlayByTimeList"));
}

int ToviTraffic::setBrightnessByTimeList(std::list<BrightnessByTimeParam> list) {
  return Operation(*this, "setBrightnessByTimeList")
      .setAfter("setBrightness", bytes({kByTimetable, 0}), [&] { return encodeList(list); });
}

std::list<BrightnessByTimeParam>* ToviTraffic::getBrightnessByTimeList() {
  return askList<BrightnessByTimeParam>(Operation(*this, "getBrightnessByTimeList"));
}

int ToviTraffic::setAdvanceTiming(const std::string& timing) {
  return Operation(*this, "setAdvanceTiming").setText(timing);
}

std::string ToviTraffic::getAdvanceTiming() {
  return Operation(*this, "getAdvanceTiming").askText(1);
}

int ToviTraffic::removeAdvanceTiming() { return Operation(*this, "removeAdvanceTiming").set(1); }
