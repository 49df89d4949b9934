// SPDX-License-Identifier: MIT
#include <tovisdk/text.h>

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <locale>
#include <sstream>

#include "foundation/memory.h"
#include "foundation/text.h"
#include "platform/text.h"

namespace tovi {

std::vector<std::string> fieldsOf(const std::string& text, const std::string& separator) {
  if (text.empty()) return {};
  if (separator.empty()) return {text};
  std::vector<std::string> fields;
  std::size_t start = 0;
  for (std::size_t end; (end = text.find(separator, start)) != std::string::npos;) {
    fields.push_back(text.substr(start, end - start));
    start = end + separator.size();
  }
  fields.push_back(text.substr(start));
  return fields;
}

long long leadingNumber(const std::string& text) {
  std::istringstream stream(text);
  // A host's global locale may group digits.
  stream.imbue(std::locale::classic());
  stream.exceptions(std::ios::badbit);  // or memory that is out would read as 0
  long long number = 0;
  stream >> number;
  return number;
}

}  // namespace tovi

using tovi::whereMemoryAllows;

std::string format_string(std::string format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  std::va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(nullptr, 0, format.c_str(), arguments);
  std::string text = whereMemoryAllows(std::string(), [&] {
    return std::string(static_cast<std::size_t>(std::max(length, 0)), ' ');
  });
  if (!text.empty()) std::vsnprintf(text.data(), text.size() + 1, format.c_str(), again);
  va_end(again);
  va_end(arguments);
  return text;
}

std::vector<std::string> split(const std::string& text, const std::string& separator) {
  return whereMemoryAllows(std::vector<std::string>(),
                           [&] { return tovi::fieldsOf(text, separator); });
}

bool string_To_Bool(const std::string& text) {
  const auto sameLetter = [](char a, char b) { return (a | 0x20) == b; };
  const std::string yes = "true";
  return text == "1" || std::equal(text.begin(), text.end(), yes.begin(), yes.end(), sameLetter);
}

long long toviStoll(const std::string& text) {
  return whereMemoryAllows(0LL, [&] { return tovi::leadingNumber(text); });
}

std::string string_To_UTF8(const std::string& text) {
  return whereMemoryAllows(std::string(),
                           [&] { return tovi::platform::localToUtf8(text).value_or(text); });
}

std::string UTF8_To_string(const std::string& text) {
  return whereMemoryAllows(std::string(),
                           [&] { return tovi::platform::utf8ToLocal(text).value_or(text); });
}

void printfHexCharArray(const char* data, int len) {
  if (data == nullptr) return;
  for (int i = 0; i < len; ++i)
    std::printf("%0X", static_cast<unsigned>(static_cast<unsigned char>(data[i])));
}

void deleteArry(char** array) {
  if (array == nullptr) return;
  delete[] * array;
  *array = nullptr;
}
