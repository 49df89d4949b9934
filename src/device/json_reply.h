// Replies whose text is JSON.
#pragma once

#include <cstdlib>
#include <string>

#include "json/json_object.h"
#include "session/operation.h"

namespace tovi::device {

// The JSON of a reply, and whether the controller accepted the question. Text that is no JSON gives
// an object without members, which makes every value empty or 0.
class JsonReply {
 public:
  explicit JsonReply(session::Operation operation)
      : mObject(operation.askText()), mAccepted(operation.outcome() == ToviOutcome::Done) {}

  int result() const { return mAccepted ? 1 : 0; }
  std::string text(const char* key) const { return mObject.valueText(key); }
  int number(const char* key) const { return std::atoi(text(key).c_str()); }

 private:
  CJsonObject mObject;
  bool mAccepted;
};

}  // namespace tovi::device
