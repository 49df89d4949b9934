#include "cli/output.h"

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
    default:
      return nullptr;
  }
}

// Texts from a controller may be in any encoding; what is not UTF-8 is shown as a replacement.
std::string dump(const nlohmann::ordered_json& value) {
  return value.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

}  // namespace

Result ofCode(int code) { return {code == ToviTraffic::SUCCESS, code, {}}; }

Result ofOutcome(const ToviTraffic& traffic, nlohmann::ordered_json value) {
  return {traffic.lastOutcome() == ToviOutcome::Done, 0, std::move(value)};
}

std::string asText(const nlohmann::ordered_json& value) {
  if (value.is_null()) return "done";
  if (value.is_string()) return value.get<std::string>();
  if (!value.is_object()) return dump(value);
  std::string text;
  for (const auto& [name, member] : value.items()) {
    if (!text.empty()) text += '\n';
    text += name + ": " + asText(member);
  }
  return text;
}

std::string failureText(const ToviTraffic& traffic, const Result& result) {
  std::string text = toviOutcomeText(traffic.lastOutcome());
  if (result.code < 0) text += " (" + std::to_string(result.code) + ")";
  if (const char* advice = adviceOn(traffic.lastOutcome())) text += std::string("; ") + advice;
  return text;
}

std::string asJson(const ToviTraffic& traffic, const Result& result) {
  nlohmann::ordered_json object;
  object["done"] = result.done;
  object["outcome"] = toviOutcomeText(traffic.lastOutcome());
  if (result.code != 0) object["code"] = result.code;
  if (result.done && !result.value.is_null()) object["value"] = result.value;
  return dump(object);
}

}  // namespace tovi::cli
