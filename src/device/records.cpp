// SPDX-License-Identifier: MIT
#include <tovisdk/device_type.h>
#include <tovisdk/records.h>

DeviceNowPlayItem::DeviceNowPlayItem(bool open, int id, char* text)
    : playOpen(open), playId(id), content(text) {}

DeviceNowPlayItem::~DeviceNowPlayItem() {
  delete[] content;
  content = nullptr;
}

bool DeviceNowPlayItem::playIsOpen() const { return playOpen; }
int DeviceNowPlayItem::getPlayId() const { return playId; }
char* DeviceNowPlayItem::getContent() const { return content; }

DeviceNowPlayList::DeviceNowPlayList(int id, char* text) : playId(id), content(text) {}

DeviceNowPlayList::~DeviceNowPlayList() { delete[] content; }

int DeviceNowPlayList::getPlayId() const { return playId; }
char* DeviceNowPlayList::getContent() const { return content; }

namespace {

template <class T>
void release(T** object) {
  if (object == nullptr) return;
  delete *object;
  *object = nullptr;
}

}  // namespace

void deleteObj(BackUpsInfo** object) { release(object); }
void deleteObj(BrightnessItem** object) { release(object); }
void deleteObj(DeviceType** object) { release(object); }
void deleteObj(TimeZoneParam** object) { release(object); }
void deleteObj(DeviceNTPParam** object) { release(object); }
void deleteObj(DeviceNowPlayItem** object) { release(object); }
void deleteObj(DeviceNowPlayList** object) { release(object); }
void deleteObj(std::list<DevicePowerByTimeParam>** object) { release(object); }
void deleteObj(std::list<PlayByTimeParam>** object) { release(object); }
void deleteObj(std::list<BrightnessByTimeParam>** object) { release(object); }
