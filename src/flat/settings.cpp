// Functions that answer "success" or "failed".
#include <tovisdk/flat.h>
#include <tovisdk/tovi_traffic.h>

#include "flat/call.h"
#include "flat/grammar.h"

using namespace tovi::flat;

const char* setPower(const char* ip, unsigned short port, bool on) {
  return status(__func__, ip, port, [&](ToviTraffic& session) { return session.setPower(on); });
}

const char* setBoardPower(const char* ip, unsigned short port, bool on) {
  return status(__func__, ip, port,
                [&](ToviTraffic& session) { return session.setBoardPower(on); });
}

const char* setBoardPowerAndScreenPower(const char* ip, unsigned short port, bool on) {
  return status(__func__, ip, port,
                [&](ToviTraffic& session) { return session.setBoardPowerAndScreenPower(on); });
}

const char* setMultiFunctionCardPower(const char* ip, unsigned short port, int a, int b, bool c) {
  return status(__func__, ip, port,
                [&](ToviTraffic& session) { return session.setMultiFunctionCardPower(a, b, c); });
}

const char* setRelayPowers(const char* ip, unsigned short port, bool relay1, bool relay2,
                           bool relay3, bool relay4) {
  return status(__func__, ip, port, [&](ToviTraffic& session) {
    return session.setRelayPowers(relay1, relay2, relay3, relay4);
  });
}

const char* setBrightness(const char* ip, unsigned short port, int level) {
  return status(__func__, ip, port,
                [&](ToviTraffic& session) { return session.setBrightness(level); });
}

const char* setBrightnessAuto(const char* ip, unsigned short port, const char* points) {
  return status(__func__, ip, port, [&](ToviTraffic& session) {
    BrightnessItem curve = parseCurve(points);
    return session.setBrightnessAuto(&curve);
  });
}

const char* setAutoBrightnessTimeParam(const char* ip, unsigned short port, char first,
                                       char second) {
  return status(__func__, ip, port, [&](ToviTraffic& session) {
    return session.setAutoBrightnessTimeParam(first, second);
  });
}

const char* setDeviceVolume(const char* ip, unsigned short port, int volume) {
  return status(__func__, ip, port,
                [&](ToviTraffic& session) { return session.setDeviceVolume(volume); });
}

const char* setDevicePowerByTimeList(const char* ip, unsigned short port, const char* entries) {
  return status(__func__, ip, port, [&](ToviTraffic& session) {
    return session.setDevicePowerByTimeList(parsePowerEntries(entries));
  });
}

const char* setPlayByTimeList(const char* ip, unsigned short port, const char* entries) {
  return status(__func__, ip, port, [&](ToviTraffic& session) {
    return session.setPlayByTimeList(parsePlayEntries(entries));
  });
}

const char* setBrightnessByTimeList(const char* ip, unsigned short port, const char* entries) {
  return status(__func__, ip, port, [&](ToviTraffic& session) {
    return session.setBrightnessByTimeList(parseBrightnessEntries(entries));
  });
}

const char* setAdvanceTiming(const char* ip, unsigned short port, const char* timing) {
  return status(__func__, ip, port,
                [&](ToviTraffic& session) { return session.setAdvanceTiming(textOf(timing)); });
}

const char* removeAdvanceTiming(const char* ip, unsigned short port) {
  return status(__func__, ip, port,
                [](ToviTraffic& session) { return session.removeAdvanceTiming(); });
}

const char* setTime(const char* ip, unsigned short port, const char* time) {
  return status(__func__, ip, port, [&](ToviTraffic& session) {
    std::tm fields = parseDateTime(textOf(time));
    return session.setTime(&fields);
  });
}

const char* setTimeAndTimeZone(const char* ip, unsigned short port, int time, const char* zoneId,
                               const char* utcOffset) {
  return status(__func__, ip, port, [&](ToviTraffic& session) {
    return session.setTimeAndTimeZone({time, textOf(zoneId), textOf(utcOffset)});
  });
}

const char* setDeviceNTPParam(const char* ip, unsigned short port, unsigned char enabled,
                              const char* server) {
  return status(__func__, ip, port, [&](ToviTraffic& session) {
    return session.setDeviceNTPParam({enabled != 0, textOf(server)});
  });
}

const char* setEdidInfo(const char* ip, unsigned short port, const char* info) {
  return status(__func__, ip, port,
                [&](ToviTraffic& session) { return session.setEdidInfo(parseEdidInfo(info)); });
}

const char* setVideoControlInfo(const char* ip, unsigned short port, int videoSource) {
  return status(__func__, ip, port,
                [&](ToviTraffic& session) { return session.setVideoControlInfo(videoSource); });
}

const char* getDeviceScreenshot(const char* ip, unsigned short port, const char* path) {
  return status(__func__, ip, port,
                [&](ToviTraffic& session) { return session.getDeviceScreenshot(textOf(path)); });
}

const char* playListById(const char* ip, unsigned short port, int id) {
  return status(__func__, ip, port, [&](ToviTraffic& session) { return session.playListById(id); });
}

const char* deletePlaylistById(const char* ip, unsigned short port, int id) {
  return status(__func__, ip, port,
                [&](ToviTraffic& session) { return session.deletePlaylistById(id); });
}

const char* sendPlayList(const char* ip, unsigned short port, int number, const char* text) {
  return status(__func__, ip, port,
                [&](ToviTraffic& session) { return session.sendPlayList(number, textOf(text)); });
}

const char* sendFile(const char* ip, unsigned short port, const char* path, const char* name) {
  return status(__func__, ip, port,
                [&](ToviTraffic& session) { return session.sendFile(textOf(path), textOf(name)); });
}

const char* cleanUpFiles(const char* ip, unsigned short port, int type) {
  return status(__func__, ip, port,
                [&](ToviTraffic& session) { return session.cleanUpFiles(type); });
}

const char* sendLocalUpdate(const char* ip, unsigned short port, int type, const char* text) {
  return status(__func__, ip, port,
                [&](ToviTraffic& session) { return session.sendLocalUpdate(type, textOf(text)); });
}

const char* removeLocalUpdate(const char* ip, unsigned short port, int type) {
  return status(__func__, ip, port,
                [&](ToviTraffic& session) { return session.removeLocalUpdate(type); });
}

const char* sendFtpDownloadaddress(const char* ip, unsigned short port, const char* address) {
  return status(__func__, ip, port, [&](ToviTraffic& session) {
    return session.sendFtpDownloadaddress(textOf(address));
  });
}

const char* updateFileName(const char* ip, unsigned short port, const char* name) {
  return status(__func__, ip, port,
                [&](ToviTraffic& session) { return session.updateFileName(textOf(name)); });
}

const char* removeAppPageName(const char* ip, unsigned short port, const char* package) {
  return status(__func__, ip, port,
                [&](ToviTraffic& session) { return session.removeAppPageName(textOf(package)); });
}

const char* setDeviceName(const char* ip, unsigned short port, const char* name) {
  return always(__func__, ip, port,
                [&](ToviTraffic& session) { return session.setDeviceName(textOf(name)); });
}

const char* setDeviceNetBasicParam(const char* ip, unsigned short port, const char* newIp,
                                   const char* netmask, const char* gateway, int devicePort,
                                   const char* serverIp) {
  return always(__func__, ip, port, [&](ToviTraffic& session) {
    return session.setDeviceNetBasicParam(
        {textOf(newIp), textOf(netmask), textOf(gateway), devicePort, textOf(serverIp)});
  });
}

const char* resetDeviceIpToDefault(const char* ip, unsigned short port) {
  return always(__func__, ip, port,
                [](ToviTraffic& session) { return session.resetDeviceIpToDefault(); });
}

const char* setVirtualConnection(const char* ip, unsigned short port, bool on, int interval,
                                 int value) {
  return status(__func__, ip, port, [&](ToviTraffic& session) {
    return session.setVirtualConnection(on, interval, value);
  });
}

const char* restartDevice(const char* ip, unsigned short port) {
  return status(__func__, ip, port, [](ToviTraffic& session) { return session.restartDevice(); });
}

const char* sendHeartBeat(const char* ip, unsigned short port) {
  return always(__func__, ip, port, [](ToviTraffic& session) { return session.sendHeartBeat(); });
}

const char* setCloseScreenTemperature(const char* ip, unsigned short port, int temperature) {
  return status(__func__, ip, port, [&](ToviTraffic& session) {
    return session.setCloseScreenTemperature(temperature);
  });
}

const char* setDeviceKey(const char* ip, unsigned short port, const char* key) {
  return always(__func__, ip, port,
                [&](ToviTraffic& session) { return session.setDeviceKey(textOf(key)); });
}

const char* setDeviceSecretParam(const char* ip, unsigned short port, const char* param,
                                 bool includeSecondKey) {
  return status(__func__, ip, port, [&](ToviTraffic& session) {
    return session.setDeviceSecretParam(parseSecretParam(param), includeSecondKey);
  });
}

const char* setDesKey(const char* ip, unsigned short port, const char* key) {
  return always(__func__, ip, port,
                [&](ToviTraffic& session) { return session.setDesKey(textOf(key)); });
}

const char* setAesKey(const char* ip, unsigned short port, const char* key) {
  return always(__func__, ip, port,
                [&](ToviTraffic& session) { return session.setAesKey(textOf(key)); });
}

const char* clearPassword(const char* ip, unsigned short port) {
  return always(__func__, ip, port, [](ToviTraffic& session) { return session.clearPassword(); });
}

const char* setTimeout(const char* ip, unsigned short port, int ms) {
  return always(__func__, ip, port, [&](ToviTraffic& session) { return session.setTimeout(ms); });
}
