// SPDX-License-Identifier: MIT
// The tree that a JSON text stands for.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tovi::json {

enum class NodeType { False, True, Null, Integer, Double, String, Array, Object };

// One JSON value. Children stay where they are in memory when more are appended, because wrappers
// point at them. Trees are walked and destroyed recursively: nothing may build one deeper than the
// parser's kMaxDepth.
struct Node {
  NodeType type = NodeType::Null;
  bool isSigned = true;      // whether the integer is to be read as signed
  std::int64_t integer = 0;  // all 64 bits; of an unsigned value, the same bits
  double number = 0;
  std::string text;  // of a string
  std::string key;   // name, when the node is a member of an object
  std::vector<std::unique_ptr<Node>> children;
};

// The first member with that key, letter case included; null when there is none or the node is no
// object.
Node* findMember(const Node& object, std::string_view key);

// The element at that index; null when there is none or the node is no array.
Node* findElement(const Node& array, std::size_t index);

}  // namespace tovi::json
