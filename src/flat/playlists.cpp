// SPDX-License-Identifier: MIT
// Playlists.
#include "flat/flat_face.h"

#include "flat/call.h"

using namespace tovi::flat;

const char* sendPlayList(const char* ip, unsigned short port, int number, const char* text) {
  return status({__func__, ip, port}, &ToviTraffic::sendPlayList, number, text);
}

const char* playListById(const char* ip, unsigned short port, int id) {
  return status({__func__, ip, port}, &ToviTraffic::playListById, id);
}

const char* deletePlaylistById(const char* ip, unsigned short port, int id) {
  return status({__func__, ip, port}, &ToviTraffic::deletePlaylistById, id);
}

char* getAllPlaylistId(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getAllPlaylistId);
}
