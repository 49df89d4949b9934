// SPDX-License-Identifier: MIT
// Replies and requests whose text is JSON.
#pragma once

#include <new>
#include <optional>
#include <string>
#include <string_view>

#include "json/json_object.h"
#include "session/operation.h"

namespace tovi::device {

// The members of a reply's JSON, each as a record has it.
class JsonReply {
 public:
  explicit JsonReply(std::string_view text)
      : mUsable(mObject.parseText(text) && mObject.isObject()) {}

  // Empty when it is missing.
  std::string text(const char* key) const { return mObject.valueText(key); }

  // 0 when it is missing. A number that no int holds is no usable value, and 0 as well.
  int number(const char* key) {
    const std::optional<int> value = mObject.number(key);
    mUsable = mUsable && value;
    return value.value_or(0);
  }

  // Whether everything so far could be read.
  bool isUsable() const { return mUsable; }

 private:
  CJsonObject mObject;
  bool mUsable;
};

// Asks for a record that stands in JSON. Its result is 1 when the controller accepted the question,
// whatever can be read of the answer.
template <class Record, class Decode>
Record askJson(session::Operation operation, Decode decode) {
  return operation.guarded(Record(), [&] {
    const std::string text = operation.askText();
    if (operation.outcome() != ToviOutcome::Done) return Record();
    JsonReply reply(text);
    Record record = decode(reply);
    record.result = 1;
    if (!reply.isUsable()) operation.end(ToviOutcome::BadReply);
    return record;
  });
}

// The text of a request.
class JsonRequest {
 public:
  JsonRequest& number(const char* key, int value) { return checked(mObject.addInt(key, value)); }
  JsonRequest& text(const char* key, const char* value) {
    return checked(mObject.addText(key, value));
  }
  std::string toText() const { return mObject.toText(); }

 private:
  // Half a request must not go out.
  JsonRequest& checked(bool added) {
    if (!added) throw std::bad_alloc();
    return *this;
  }

  CJsonObject mObject;
};

}  // namespace tovi::device
