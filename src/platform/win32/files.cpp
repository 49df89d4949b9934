#include "platform/files.h"

#include <direct.h>
#include <windows.h>

#include <climits>

namespace tovi::platform {

extern const char kPathSeparator = '\\';

namespace {

std::string withSystemLineEnds(std::string_view text) {
  std::string result;
  result.reserve(text.size() + 16);
  for (const char c : text) {
    if (c == '\n') result += '\r';
    result += c;
  }
  return result;
}

}  // namespace

bool appendText(const std::string& path, std::string_view text) {
  const std::string record = withSystemLineEnds(text);
  if (record.size() > INT_MAX) return false;
  // With the right to append alone, each write goes to the end, wherever other writers have moved
  // it in the meantime.
  const HANDLE file = ::CreateFileA(path.c_str(), FILE_APPEND_DATA,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  const DWORD size = static_cast<DWORD>(record.size());
  DWORD written = 0;
  const bool done = ::WriteFile(file, record.data(), size, &written, nullptr) && written == size;
  ::CloseHandle(file);
  return done;
}

bool makeFolder(const std::string& path) {
  if (::_mkdir(path.c_str()) == 0) return true;
  // _access would take a file of that name for a folder.
  const DWORD attributes = ::GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace tovi::platform
