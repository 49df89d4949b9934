// Files.
#include <tovisdk/flat.h>

#include "flat/call.h"

using namespace tovi::flat;

const char* sendFile(const char* ip, unsigned short port, const char* path, const char* name) {
  return status({__func__, ip, port},
                [&](ToviTraffic& session) { return session.sendFile(textOf(path), textOf(name)); });
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
