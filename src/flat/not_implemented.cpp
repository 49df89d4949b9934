// Functions that hosts may call and that do nothing: the object face has the methods, but this face
// never had a form for their arguments or results.
#include <tovisdk/flat.h>

#include "flat/call.h"

using tovi::flat::notImplemented;

const char* addWhitelist(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* connectWifi(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* downloadFiles(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getAllMediaFileName(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getAntiAliasing(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getCurrentResolution(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getFontList(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getIsSecret(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getLogZipPath(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getLoraInfo(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getMobileInfo(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getPingIp(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getSSHEnabled(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getSensorInfo(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getServerIPLists(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getSimInfo(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getSupportVideoSource(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getSyncPlay(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getSystemInfo(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getWhitelist(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getWifiApConfig(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getWifiApState(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getWifiList(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* getWifiState(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* removeWhitelist(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* setAntiAliasing(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* setCustomResolution(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* setFont(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* setLoraInfo(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* setPingIp(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* setSSHEnabled(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* setSensorInfo(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* setServerIPLists(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* setSyncPlay(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* setWifiApConfig(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* setWifiApState(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* setWifiState(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
const char* switchToSoftsim(const char* ip, unsigned short port) {
  return notImplemented(__func__, ip, port);
}
