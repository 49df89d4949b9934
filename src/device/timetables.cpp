// The three timetables and the automatic brightness curve.
#include <tovisdk/codec.h>
#include <tovisdk/tovi_traffic.h>

#include <memory>

#include "device/operation.h"

using tovi::device::atLeast;
using tovi::device::bytes;
using tovi::device::exactly;
using tovi::device::Operation;
using tovi::device::Reply;
using tovi::wire::command;

namespace {

// What the brightness command takes besides a level set by hand.
constexpr int kAutomatic = 1;
constexpr int kByTimetable = 3;

constexpr int kTimeSize = 7;  // day, month, year in two bytes, second, minute, hour
constexpr int kEntriesOffset = 2;
constexpr int kValueOffset = 2 * kTimeSize;

constexpr int kCurvePoints = 8;
constexpr int kCurveReplySize = 25;

// Fields go out as they stand; they come back as `tm` has them. Hosts rely on both.
std::string encodeTime(const std::tm& time) {
  std::string text =
      bytes({time.tm_mday, time.tm_mon, 0, 0, time.tm_sec, time.tm_min, time.tm_hour});
  shortToBytes(text.data(), 2, static_cast<short>(time.tm_year));
  return text;
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
std::list<Entry>* askList(Operation operation) {
  constexpr int kEntrySize = 2 * kTimeSize + tailSize(static_cast<const Entry*>(nullptr));
  const Reply reply = operation.ask(atLeast(kEntriesOffset));
  if (!reply) return nullptr;
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

// The mode goes first, unless what shall follow it cannot.
int setInMode(Operation operation, int mode, const std::string& payload) {
  if (!operation.fits(payload)) return ToviTraffic::ARGUMENT_ERROR;
  const int result = operation.step(command("setBrightness"), bytes({mode, 0}));
  return result == ToviTraffic::SUCCESS ? operation.set(payload) : result;
}

}  // namespace

int ToviTraffic::setDevicePowerByTimeList(std::list<DevicePowerByTimeParam> list) {
  return Operation(*this, command("setDevicePowerByTimeList")).set(encodeList(list));
}

std::list<DevicePowerByTimeParam>* ToviTraffic::getDevicePowerByTimeList() {
  return askList<DevicePowerByTimeParam>(Operation(*this, command("getDevicePowerByTimeList")));
}

int ToviTraffic::setPlayByTimeList(std::list<PlayByTimeParam> list) {
  return Operation(*this, command("setPlayByTimeList")).set(encodeList(list));
}

std::list<PlayByTimeParam>* ToviTraffic::getPlayByTimeList() {
  return askList<PlayByTimeParam>(Operation(*this, command("getPlayByTimeList")));
}

int ToviTraffic::setBrightnessByTimeList(std::list<BrightnessByTimeParam> list) {
  return setInMode(Operation(*this, command("setBrightnessByTimeList")), kByTimetable,
                   encodeList(list));
}

std::list<BrightnessByTimeParam>* ToviTraffic::getBrightnessByTimeList() {
  return askList<BrightnessByTimeParam>(Operation(*this, command("getBrightnessByTimeList")));
}

int ToviTraffic::setBrightnessAuto(BrightnessItem* item) {
  Operation operation(*this, command("setBrightnessAuto"));
  if (item == nullptr) return operation.refuse("the curve is null");
  std::string payload;
  for (const BrightnessPoint& point : item->points) {
    payload += bytes({point.environmentBrightness, point.screenBrightness, 0});
  }
  return setInMode(operation, kAutomatic, payload);
}

BrightnessItem* ToviTraffic::getBrightnessAuto() {
  const Reply reply = Operation(*this, command("getBrightnessAuto")).ask(exactly(kCurveReplySize));
  if (!reply) return nullptr;
  BrightnessItem* item = new BrightnessItem;
  for (int k = 0; k < kCurvePoints; ++k) {
    item->points[k] = {reply.unsignedByte(3 * k + 1), reply.unsignedByte(3 * k + 2)};
  }
  return item;
}

bool ToviTraffic::setAutoBrightnessTimeParam(char first, char second) {
  Operation operation(*this, command("setAutoBrightnessTimeParam"));
  if (first == 0 || second == 0) {
    operation.refuse("neither value may be 0");
    return false;
  }
  const Reply reply = operation.ask(atLeast(2), bytes({first, second}));
  if (!reply) return false;
  if (!reply.isOne(1)) mOutcome = ToviOutcome::Rejected;
  return reply.isOne(1);
}
