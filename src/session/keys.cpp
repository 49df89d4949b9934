// SPDX-License-Identifier: MIT
// The three key slots.
#include <tovisdk/tovi_traffic.h>

#include <cstring>
#include <new>
#include <utility>

#include "foundation/log.h"
#include "session/session.h"

using tovi::session::Session;

namespace {

constexpr std::size_t kPasswordLength = 8;

// Several records name the wrong cipher or setter; readers of these logs know them so.
constexpr char kClearDesInDes[] = "ToviTraffic::setDesKey clear des key";
constexpr char kClearAesInDes[] = "ToviTraffic::setDesKey clear aes key";
constexpr char kClearAesInAes[] = "ToviTraffic::setAesKey clear aes key";
constexpr char kClearDesInAes[] = "ToviTraffic::setAesKey clear des key";
constexpr char kClearSm4InAes[] = "ToviTraffic::setAesKey clear sm4 key";

// A slot that is cleared is only said to be: it keeps its text and still counts as set. Controllers
// and hosts rely on the order of the ciphers that follows from it.
void sayCleared(const char* slot, const char* text) {
  if (slot != nullptr) tovi::log::info("%s", text);
}

// One call of a setter, which writes its records in the name of one of them.
class KeySetter {
 public:
  KeySetter(Session session, const char* recordName) : mSession(session), mName(recordName) {}

  // Whether `password` is to be stored; a null one empties the slot.
  bool check(const char* password, char*& slot) {
    mSession.end(ToviOutcome::Done);
    if (password == nullptr) {
      delete[] std::exchange(slot, nullptr);
      tovi::log::info("ToviTraffic::%s password is null, reset encrypted mode", mName);
      return false;
    }
    if (std::strlen(password) == kPasswordLength) return true;
    tovi::log::warning("ToviTraffic::%s password length not equal 8", mName);
    return mSession.end(ToviOutcome::RefusedArgument, false);
  }

  // False when memory is out, which leaves the slot as it is.
  bool store(const char* password, char*& slot) {
    char* copy = new (std::nothrow) char[kPasswordLength + 1];
    if (copy == nullptr) return mSession.end(ToviOutcome::OutOfMemory, false);
    std::memcpy(copy, password, kPasswordLength + 1);
    delete[] std::exchange(slot, copy);
    return true;
  }

 private:
  Session mSession;
  const char* mName;
};

}  // namespace

void ToviTraffic::setDesKey(const char* password) {
  tovi::log::info("setDesKey start");
  KeySetter setter(Session(*this), "setDesKey");
  if (!setter.check(password, mDesKey)) return;
  sayCleared(mDesKey, kClearDesInDes);
  sayCleared(mAesKey, kClearAesInDes);
  sayCleared(mSm4Key, kClearAesInDes);
  if (!setter.store(password, mDesKey)) return;
  tovi::log::info("ToviTraffic::setDesKey set encrypted key, key = %s",
                  tovi::log::shownKey(mDesKey));
}

// Both setters write the records of setAesKey.
void Session::setAesOrSm4Key(const char* password, char*& slot) {
  KeySetter setter(*this, "setAesKey");
  if (!setter.check(password, slot)) return;
  sayCleared(mTraffic.mAesKey, kClearDesInAes);
  sayCleared(mTraffic.mDesKey, kClearAesInAes);
  sayCleared(mTraffic.mSm4Key, kClearAesInDes);
  setter.store(password, slot);
}

void ToviTraffic::setAesKey(const char* password) {
  tovi::log::info("setAesKey start");
  Session(*this).setAesOrSm4Key(password, mAesKey);
}

void ToviTraffic::setSM4Key(const char* password) {
  tovi::log::info("setSM4Key start");
  Session(*this).setAesOrSm4Key(password, mSm4Key);
}

void ToviTraffic::clearPassword() {
  tovi::log::info("clearPassword start");
  sayCleared(mAesKey, kClearDesInAes);
  sayCleared(mDesKey, kClearAesInAes);
  sayCleared(mSm4Key, kClearSm4InAes);
}
