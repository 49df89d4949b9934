// Names of the files on the controller.
#include <tovisdk/tovi_traffic.h>

#include <utility>

#include "device/operation.h"
#include "json/json_object.h"

using tovi::device::bytes;
using tovi::device::Operation;
using tovi::wire::command;

namespace {

// The texts of a JSON array; what else stands in it is passed over.
std::list<std::string> namesOf(const std::string& text, ToviOutcome& outcome) {
  std::list<std::string> names;
  const CJsonObject array(text);
  if (!array.isArray() && outcome == ToviOutcome::Done) outcome = ToviOutcome::BadReply;
  for (std::uint32_t i = 0; i < array.arraySize(); ++i) {
    std::string name;
    if (array.getArrayText(i, name)) names.push_back(std::move(name));
  }
  return names;
}

}  // namespace

std::list<std::string> ToviTraffic::getAllMediaFileName() {
  return namesOf(Operation(*this, command("getAllMediaFileName")).askText(), mOutcome);
}

std::list<std::string> ToviTraffic::getFileListName(char type) {
  return namesOf(Operation(*this, command("getFileListName")).askText(bytes({type})), mOutcome);
}
