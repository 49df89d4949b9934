// SPDX-License-Identifier: MIT
/// @file
/// Small text helpers, and the release of what the library allocated. Where memory is out, texts
/// and lists come back empty and numbers as 0.
#ifndef TOVISDK_TEXT_H
#define TOVISDK_TEXT_H

#include <tovisdk/export.h>

#include <string>
#include <vector>

/// The printf-style result as a text of any length; empty when the format cannot be carried out.
TOVISDK_API std::string format_string(std::string format, ...);

/// Cuts a text at every separator. Empty fields and a trailing one are kept; an empty text gives no
/// field; an empty separator gives the whole text as one field.
TOVISDK_API std::vector<std::string> split(const std::string& text, const std::string& separator);

/// True for "1" and for "true" in any case; false for everything else.
TOVISDK_API bool string_To_Bool(const std::string& text);

/// The whole number at the start of a text, leading white space skipped: 0 when there is none, the
/// nearest 64-bit value when it is too large or too small.
TOVISDK_API long long toviStoll(const std::string& text);

/// From the local code page to UTF-8. Text that cannot be converted comes back unchanged.
TOVISDK_API std::string string_To_UTF8(const std::string& text);

/// From UTF-8 to the local code page. Text that cannot be converted comes back unchanged.
TOVISDK_API std::string UTF8_To_string(const std::string& text);

/// Prints each byte, taken as 0 to 255, with "%0X" (upper-case, no padding, nothing between) to
/// standard output. A null pointer or a length of 0 or less prints nothing.
TOVISDK_API void printfHexCharArray(const char* data, int len);

/// Releases an array or text that the library returned and sets the caller's pointer to null. Safe
/// on a null address and on a null pointer.
extern "C" TOVISDK_API void deleteArry(char** array);

#endif
