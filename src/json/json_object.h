// SPDX-License-Identifier: MIT
// The JSON object with which commands build request texts and read reply texts.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "json/json_node.h"

// Holds a tree of its own, or is a window on a node of its parent's tree (the wrappers that member
// and element hand out). Used by one call on one thread.
class CJsonObject {
 public:
  CJsonObject();
  explicit CJsonObject(std::string_view text);  // as parseText; see errorText for its failure
  virtual ~CJsonObject();
  CJsonObject(const CJsonObject&) = delete;
  CJsonObject& operator=(const CJsonObject&) = delete;

  // Replaces what was there, also when it fails: then the object is empty and errorText says where.
  bool parseText(std::string_view text);

  // Back to an empty object; ends every wrapper handed out. The error text stays.
  void clear();

  bool isObject() const;
  bool isArray() const;
  std::uint32_t arraySize() const;  // 0 when there is no array

  // Copies a string element out; false, and text as it was, when there is no string at the index.
  bool getArrayText(std::uint32_t index, std::string& text) const;

  // Append a member, making an object first where there is nothing yet. False without any change,
  // and an error text, when the data is no object or has the key already.
  bool addInt(std::string_view key, std::int32_t value);
  bool addText(std::string_view key, std::string_view text);

  // The member or element as an object of its own, always the same one for the same key or index.
  // It lives until this object is cleared, parsed anew or destroyed. What is added to it goes into
  // this object's tree.
  // A missing one gives a wrapper without data; it shows the member once there is one. What is
  // added to it before that stays its own: it never enters this object, and hides a member that
  // comes later until the wrapper is cleared.
  CJsonObject& member(std::string_view key);
  CJsonObject& element(std::uint32_t index);

  // The member's value as text: a string as it is, numbers in digits, "true" or "false". Empty when
  // missing, null, an array or an object.
  std::string valueText(std::string_view key) const;

  // The member's value as a number: the whole part of a number, of another value what atoi reads in
  // its text, 0 when that has none. Nothing when no int holds it.
  std::optional<int> number(std::string_view key) const;

  // Compact JSON; empty when there is no data.
  std::string toText() const;

  // The last failure; no later success takes it away.
  const std::string& errorText() const { return mErrorText; }

 private:
  using Node = tovi::json::Node;

  Node* data() const { return mOwnData ? mOwnData.get() : mExternalData; }
  bool prepareAdd(std::string_view key);
  void append(std::string_view key, std::unique_ptr<Node> node);

  std::unique_ptr<Node> mOwnData;
  Node* mExternalData = nullptr;
  const Node* mKeyCursor = nullptr;  // object of the last add
  std::string mErrorText;
  std::map<std::uint32_t, std::unique_ptr<CJsonObject>> mArrayChildren;
  std::map<std::string, std::unique_ptr<CJsonObject>, std::less<>> mObjectChildren;
};
