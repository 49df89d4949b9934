// SPDX-License-Identifier: MIT
// What a command came to, and how it is shown.
#pragma once

#include <tovisdk/tovisdk.h>
#include <nlohmann/json.hpp>
#include <string>

namespace tovi::cli {

using Json = nlohmann::ordered_json;

struct Result {
  bool done = false;
  int code = 0;                      // the library's own, where it gives one
  Json value = Json::value_t::null;  // when there is nothing to show
  ToviOutcome outcome = ToviOutcome::Done;
  std::string trouble = {};  // what went wrong outside the library
};

// Of an operation that returns 1 or a code that tells what went wrong.
Result ofCode(const ToviTraffic& traffic, int code);
// Of an operation that returns whether the controller accepted.
Result ofAcceptance(const ToviTraffic& traffic, bool accepted);
// Of an operation that returns nothing.
Result ofOutcome(const ToviTraffic& traffic);
// Of a query: what it gave counts when the library says that the reply was usable.
Result ofAnswer(const ToviTraffic& traffic, Json value);
// Of a query for a state that is on (1), off (0) or unknown (anything else). The library calls a
// reply of 0 a refusal, so that its outcome does not tell.
Result ofFlag(const ToviTraffic& traffic, int flag);

// The value for a person: a text as it is, an object a line per member, a list a line per item.
std::string asText(const Json& value);

// The same on one line.
std::string asLine(const Json& value);

// What happened, and what to try.
std::string failureText(const Result& result);

// For --json: everything in one object on one line.
std::string asJson(const std::string& controller, const Result& result);

}  // namespace tovi::cli
