// SPDX-License-Identifier: MIT
#include "cli/output.h"

#include <algorithm>

namespace tovi::cli {
namespace {

const char* adviceOn(ToviOutcome outcome) {
  switch (outcome) {
    case ToviOutcome::NoConnection:
      return "check the address, the port and the cable";
    case ToviOutcome::NoReply:
    case ToviOutcome::BadReply:
      return "check --key, or give it more time with --timeout";
    case ToviOutcome::SendFailed:
      return "try again; the controller may be restarting";
    case ToviOutcome::Rejected:
      return "check the value and --key";
    case ToviOutcome::LocalFile:
      return "check the path, its permissions and the room on the disk";
    case ToviOutcome::RefusedArgument:
      return "check the values against --help";
    case ToviOutcome::OutOfMemory:
      return "close other programs";
    case ToviOutcome::Stopped:
    case ToviOutcome::Done:
      break;
  }
  return "";
}

// Where a transfer of several steps ended.
const char* stepOf(int code) {
  switch (code) {
    case ToviTraffic::FILE_NAME_NO_REPLY:
    case ToviTraffic::FILE_NAME_REJECTED:
      return " to the file's name";
    case ToviTraffic::CONTENT_NO_REPLY:
    case ToviTraffic::CONTENT_REJECTED:
      return " in the middle of the file";
    case ToviTraffic::FILE_END_NO_REPLY:
    case ToviTraffic::FILE_END_REJECTED:
      return " at the end of the file";
    case ToviTraffic::PLAY_ID_NO_REPLY:
    case ToviTraffic::PLAY_ID_REJECTED:
      return " when told to play";
    default:
      return "";
  }
}

// Texts from a controller may be in any encoding; what is not UTF-8 is shown as a replacement.
std::string dump(const Json& value) {
  return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string plain(const Json& value) {
  if (value.is_string()) return value.get<std::string>();
  if (value.is_boolean()) return value.get<bool>() ? "yes" : "no";
  return value.is_null() ? "" : dump(value);
}

// An item of a list: the values alone.
std::string itemText(const Json& item) {
  if (!item.is_object()) return plain(item);
  std::string text;
  for (const Json& member : item) text += (text.empty() ? "" : " ") + plain(member);
  return text;
}

std::string joined(const Json& value, const std::string& separator) {
  if (value.is_null()) return "done";
  if (value.is_boolean()) return value.get<bool>() ? "on" : "off";
  if (!value.is_structured()) return plain(value);
  std::string text;
  for (const auto& [name, member] : value.items()) {
    if (!text.empty()) text += separator;
    text += value.is_object() ? name + ": " + plain(member) : itemText(member);
  }
  return text;
}

}  // namespace

Result ofCode(const ToviTraffic& traffic, int code) {
  return {code == ToviTraffic::SUCCESS, code, {}, traffic.lastOutcome()};
}

Result ofAcceptance(const ToviTraffic& traffic, bool accepted) {
  return {accepted, 0, {}, traffic.lastOutcome()};
}

Result ofOutcome(const ToviTraffic& traffic) {
  return ofAcceptance(traffic, traffic.lastOutcome() == ToviOutcome::Done);
}

Result ofAnswer(const ToviTraffic& traffic, Json value) {
  const ToviOutcome outcome = traffic.lastOutcome();
  return {outcome == ToviOutcome::Done && !value.is_null(), 0, std::move(value), outcome};
}

Result ofFlag(const ToviTraffic& traffic, int flag) {
  const bool known = flag == 0 || flag == 1;
  return {known, known ? 0 : flag, flag == 1, known ? ToviOutcome::Done : traffic.lastOutcome()};
}

std::string asText(const Json& value) { return joined(value, "\n"); }

std::string asLine(const Json& value) {
  std::string line = joined(value, ", ");
  std::replace(line.begin(), line.end(), '\n', ' ');
  return line;
}

std::string failureText(const Result& result) {
  if (!result.trouble.empty()) return result.trouble;
  if (result.code == ToviTraffic::STOPPED_BY_HOST) return "stopped (-16)";
  const bool unclear = result.outcome == ToviOutcome::Done;
  std::string text = unclear ? "failed" : toviOutcomeText(result.outcome);
  text += stepOf(result.code);
  if (result.code < 0) text += " (" + std::to_string(result.code) + ")";
  const std::string advice = adviceOn(result.outcome);
  return advice.empty() ? text : text + "; " + advice;
}

std::string asJson(const std::string& controller, const Result& result) {
  Json object;
  object["controller"] = controller;
  object["done"] = result.done;
  object["outcome"] = result.trouble.empty() ? toviOutcomeText(result.outcome) : result.trouble;
  if (result.code != 0) object["code"] = result.code;
  if (result.done && !result.value.is_null()) object["value"] = result.value;
  return dump(object);
}

}  // namespace tovi::cli
