// SPDX-License-Identifier: MIT
#include "json/json_node.h"

#include <algorithm>

namespace tovi::json {

Node* findMember(const Node& object, std::string_view key) {
  if (object.type != NodeType::Object) return nullptr;
  const auto found = std::find_if(object.children.begin(), object.children.end(),
                                  [key](const auto& member) { return member->key == key; });
  return found == object.children.end() ? nullptr : found->get();
}

Node* findElement(const Node& array, std::size_t index) {
  if (array.type != NodeType::Array || index >= array.children.size()) return nullptr;
  return array.children[index].get();
}

}  // namespace tovi::json
