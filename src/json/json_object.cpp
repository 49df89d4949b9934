// SPDX-License-Identifier: MIT
#include "json/json_object.h"

#include <climits>
#include <new>
#include <utility>

#include "foundation/text.h"
#include "json/json_parser.h"
#include "json/json_printer.h"

using tovi::json::Node;
using tovi::json::NodeType;

namespace {

// Null when memory is out: adding reports that instead of throwing.
std::unique_ptr<Node> makeNode(NodeType type) {
  std::unique_ptr<Node> node(new (std::nothrow) Node);
  if (node) node->type = type;
  return node;
}

}  // namespace

CJsonObject::CJsonObject() = default;

CJsonObject::CJsonObject(std::string_view text) { parseText(text); }

CJsonObject::~CJsonObject() = default;

bool CJsonObject::parseText(std::string_view text) {
  clear();
  auto result = tovi::json::parse(text);
  if (!result.root) {
    std::string message = "prase json string error at ";
    message += text.substr(result.stop);
    mErrorText = std::move(message);
    return false;
  }
  mOwnData = std::move(result.root);
  return true;
}

void CJsonObject::clear() {
  mArrayChildren.clear();
  mObjectChildren.clear();
  mExternalData = nullptr;
  mKeyCursor = nullptr;
  mOwnData.reset();
}

bool CJsonObject::isObject() const {
  const Node* node = data();
  return node != nullptr && node->type == NodeType::Object;
}

bool CJsonObject::isArray() const {
  const Node* node = data();
  return node != nullptr && node->type == NodeType::Array;
}

std::uint32_t CJsonObject::arraySize() const {
  return isArray() ? static_cast<std::uint32_t>(data()->children.size()) : 0;
}

bool CJsonObject::getArrayText(std::uint32_t index, std::string& text) const {
  const Node* node = data();
  const Node* element = node ? tovi::json::findElement(*node, index) : nullptr;
  if (element == nullptr || element->type != NodeType::String) return false;
  text = element->text;
  return true;
}

bool CJsonObject::addInt(std::string_view key, std::int32_t value) {
  if (!prepareAdd(key)) return false;
  auto node = makeNode(NodeType::Integer);
  if (!node) return false;
  node->integer = value;
  append(key, std::move(node));
  return true;
}

bool CJsonObject::addText(std::string_view key, std::string_view text) {
  if (!prepareAdd(key)) return false;
  auto node = makeNode(NodeType::String);
  if (!node) return false;
  node->text = text;
  append(key, std::move(node));
  return true;
}

bool CJsonObject::prepareAdd(std::string_view key) {
  if (data() == nullptr) mOwnData = makeNode(NodeType::Object);
  const Node* node = data();
  if (node == nullptr) {
    mErrorText = "json data is null!";
  } else if (node->type != NodeType::Object) {
    mErrorText = "not a json object! json array?";
  } else if (tovi::json::findMember(*node, key) != nullptr) {
    mErrorText = "key exists!";
  } else {
    return true;
  }
  return false;
}

void CJsonObject::append(std::string_view key, std::unique_ptr<Node> node) {
  node->key = key;
  data()->children.push_back(std::move(node));
  mKeyCursor = data();
}

CJsonObject& CJsonObject::member(std::string_view key) {
  auto found = mObjectChildren.find(key);
  if (found == mObjectChildren.end()) {
    found = mObjectChildren.emplace(key, std::make_unique<CJsonObject>()).first;
  }
  CJsonObject& child = *found->second;
  if (child.data() == nullptr && data() != nullptr) {
    child.mExternalData = tovi::json::findMember(*data(), key);
  }
  return child;
}

CJsonObject& CJsonObject::element(std::uint32_t index) {
  auto& child = mArrayChildren[index];
  if (!child) child = std::make_unique<CJsonObject>();
  if (child->data() == nullptr && data() != nullptr) {
    child->mExternalData = tovi::json::findElement(*data(), index);
  }
  return *child;
}

std::string CJsonObject::valueText(std::string_view key) const {
  const Node* node = data();
  const Node* value = node ? tovi::json::findMember(*node, key) : nullptr;
  if (value == nullptr) return {};
  switch (value->type) {
    case NodeType::String:
      return value->text;
    case NodeType::Integer:
    case NodeType::Double:
      return tovi::json::numberText(*value);
    case NodeType::False:
      return "false";
    case NodeType::True:
      return "true";
    default:
      return {};
  }
}

std::optional<int> CJsonObject::number(std::string_view key) const {
  const Node* node = data();
  const Node* value = node ? tovi::json::findMember(*node, key) : nullptr;
  if (value != nullptr && value->type == NodeType::Double) {
    if (!(value->number > INT_MIN - 1.0 && value->number < INT_MAX + 1.0)) return std::nullopt;
    return static_cast<int>(value->number);
  }
  const long long number = tovi::leadingNumber(valueText(key));
  if (number < INT_MIN || number > INT_MAX) return std::nullopt;
  return static_cast<int>(number);
}

std::string CJsonObject::toText() const {
  const Node* node = data();
  return node ? tovi::json::print(*node) : std::string();
}
