// Restart, clean state, and what only service staff use.
#include <tovisdk/tovi_traffic.h>

#include "device/operation.h"

using tovi::device::atLeast;
using tovi::device::bytes;
using tovi::device::Operation;
using tovi::device::Reply;
using tovi::wire::command;

namespace {

constexpr int kMaxCloseTemperature = 150;

// The first byte of commands that both set and query.
constexpr int kQuery = 0;
constexpr int kSet = 1;

}  // namespace

int ToviTraffic::restartDevice() { return Operation(*this, command("restartDevice")).set(); }

void ToviTraffic::sendHeartBeat() { Operation(*this, command("sendHeartBeat")).set(bytes({0})); }

int ToviTraffic::setCloseScreenTemperature(int temperature) {
  Operation operation(*this, command("setCloseScreenTemperature"));
  if (temperature < 0 || temperature > kMaxCloseTemperature) {
    return operation.refuse("the temperature is not 0 to 150");
  }
  return operation.set(bytes({0, 0, 0, 0, 0, temperature}));
}

int ToviTraffic::getCloseScreenTemperature() {
  const int value = Operation(*this, command("getCloseScreenTemperature")).askByte(6, -1);
  return mOutcome == ToviOutcome::BadReply ? SEND_NOT_RECV_ERROR : value;
}

int ToviTraffic::solidify(unsigned char value) {
  return Operation(*this, command("solidify")).askFlag(bytes({value}));
}

int ToviTraffic::backups() {
  return Operation(*this, command("backups")).askByte(3, -1, bytes({kSet}));
}

BackUpsInfo* ToviTraffic::getBackupsTimes() {
  const Reply reply = Operation(*this, command("getBackupsTimes")).ask(atLeast(5), bytes({kQuery}));
  BackUpsInfo* info = new BackUpsInfo;
  if (!reply) return info;
  info->state = reply.signedByte(3);
  if (info->state == 1) info->times = reply.hexText(4);
  return info;
}

int ToviTraffic::setSSHEnabled(bool on) {
  return Operation(*this, command("setSSHEnabled")).askFlag(bytes({kSet, on}));
}

int ToviTraffic::getSSHEnabled() {
  const Reply reply = Operation(*this, command("getSSHEnabled")).ask(atLeast(4), bytes({kQuery}));
  if (!reply) return -1;
  if (reply.unsignedByte(2) != 0) {
    mOutcome = ToviOutcome::Rejected;
    return -1;
  }
  return reply.unsignedByte(3) != 0 ? 1 : 0;
}

int ToviTraffic::setPreStoredScreenEnabled(bool on) {
  return Operation(*this, command("setPreStoredScreenEnabled")).askByte(3, -1, bytes({kSet, on}));
}

PreStoredScreenEnabled ToviTraffic::getPreStoredScreenEnabled() {
  const Reply reply =
      Operation(*this, command("getPreStoredScreenEnabled")).ask(atLeast(5), bytes({kQuery}));
  PreStoredScreenEnabled enabled;
  if (reply) enabled = {reply.signedByte(3), reply.signedByte(4)};
  return enabled;
}
