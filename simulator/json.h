// The little JSON that commands carry.
#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tovi::sim {

// A text as a JSON string, quotation marks included.
std::string jsonString(std::string_view text);

std::string jsonArray(std::span<const std::string> texts);

using JsonMembers = std::map<std::string, std::string, std::less<>>;

// The members of an object whose values are strings without escapes or whole numbers, as texts.
// Nothing for any other text.
std::optional<JsonMembers> jsonMembers(std::string_view text);

// A member that is a whole number of at least the smallest and at most the largest.
std::optional<int> jsonNumber(const JsonMembers& members, std::string_view name, int smallest,
                              int largest);

}  // namespace tovi::sim
