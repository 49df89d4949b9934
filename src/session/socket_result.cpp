#include <tovisdk/socket_result.h>

#include <algorithm>
#include <iostream>
#include <memory>

SocketResult::SocketResult(char* package, int length) : len(length), data(package) {}

SocketResult::~SocketResult() {
  delete[] data;
  data = nullptr;
  std::cout << "SocketResult delete" << std::endl;
}

int SocketResult::getLen() const { return len; }

char* SocketResult::getOrgChar() const { return data; }

// The command's code, in one byte or two, stands before the status byte; see the commands that use
// it.
bool SocketResult::isSetSuccess() const { return isSuccesed(3) && data[2] == SUCCESS; }

bool SocketResult::isSuccesed(int n) const { return len >= n && data != nullptr; }

char* SocketResult::toStrChar(int from) const {
  if (from < 0 || !isSuccesed(from)) return nullptr;
  char* text = new char[static_cast<std::size_t>(len - from) + 1];
  std::copy(data + from, data + len, text);
  text[len - from] = '\0';
  return text;
}

std::string SocketResult::toStr(int from) const {
  const std::unique_ptr<char[]> text(toStrChar(from));
  return text == nullptr ? "" : text.get();
}

std::string SocketResult::toStrT(int from) const {
  std::string text;
  for (int i = std::max(from, 0); data != nullptr && i < len; ++i) {
    const int byte = static_cast<unsigned char>(data[i]);
    if (byte < 0x10) text += '0';
    text += DecIntToHexStr(byte);
  }
  return text;
}

std::string SocketResult::DecIntToHexStr(int n) const {
  if (n < 0) return "0";
  const std::string higher = n / 16 > 0 ? DecIntToHexStr(n / 16) : "";
  return higher + "0123456789ABCDEF"[n % 16];
}
