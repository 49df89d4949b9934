// SPDX-License-Identifier: MIT
// Files.
#include "flat/flat_face.h"

#include "flat/call.h"

using namespace tovi::flat;

const char* sendFile(const char* ip, unsigned short port, const char* path, const char* name) {
  const auto set = [](ToviTraffic& session, const char* file, const char* storedAs) {
    return session.sendFile(file, storedAs);
  };
  return status({__func__, ip, port}, set, path, name);
}

char* getFileListName(const char* ip, unsigned short port, char type) {
  return report({__func__, ip, port}, &ToviTraffic::getFileListName, type);
}

const char* cleanUpFiles(const char* ip, unsigned short port, int type) {
  return status({__func__, ip, port}, &ToviTraffic::cleanUpFiles, type);
}

const char* getAllMediaFileName(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
