// What a command came to, and how it is shown.
#pragma once

#include <tovisdk/tovisdk.h>
#include <nlohmann/json.hpp>
#include <string>

namespace tovi::cli {

struct Result {
  bool done = false;
  int code = 0;                       // the library's own, where it gives one
  nlohmann::ordered_json value = {};  // null when there is nothing to show
};

// Of an operation that returns a code.
Result ofCode(int code);
// Of an operation that only says whether it worked.
Result ofOutcome(const ToviTraffic& traffic, nlohmann::ordered_json value = {});

// The value for a person: a text as it is, an object a line per member.
std::string asText(const nlohmann::ordered_json& value);

// One line for standard error: what happened, and what to try.
std::string failureText(const ToviTraffic& traffic, const Result& result);

// For --json: everything in one object on one line.
std::string asJson(const ToviTraffic& traffic, const Result& result);

}  // namespace tovi::cli
