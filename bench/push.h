// SPDX-License-Identifier: MIT
// A file on its way to a controller.
#pragma once

#include <unistd.h>

#include <fstream>
#include <string>
#include <vector>

#include "controller.h"
#include "material.h"
#include "scratch.h"

namespace tovi::bench {

constexpr std::size_t kFileSize = 100'000'000;
constexpr std::size_t kCipheredChunk = 65517;  // leaves room for number and padding

// A file, and a controller that takes it in chunks of this size.
class Pushed {
 public:
  explicit Pushed(std::size_t chunk) : mChunks(kFileSize / chunk + 1), mController(answers()) {
    const std::string piece = randomBytes(kFileSize / 100);
    std::ofstream file(mPath, std::ios::binary);
    for (std::size_t size = 0; size < kFileSize; size += piece.size()) file << piece;
  }

  const char* path() const { return mPath.c_str(); }
  unsigned short port() const { return mController.port(); }

 private:
  // Answers of their code alone accept, and are the same under every key.
  std::vector<std::string> answers() const {
    std::vector<std::string> answers(mChunks + 1, frameOf(0x14, {}));
    answers.front() = frameOf(0x12, {});
    answers.back() += frameOf('\xF9', {});
    return answers;
  }

  std::size_t mChunks;
  Controller mController;
  Folder mFolder;
  std::string mPath = mFolder.file("file");
};

// What a host without the library would do: reads a chunk behind its number, has a frame made of
// it, sends that, and waits for the answer.
template <class MakeFrame>
void pushRaw(const Pushed& pushed, MakeFrame makeFrame) {
  constexpr std::size_t kNumberSize = 2;
  const int socket = connectTo(pushed.port());
  std::ifstream file(pushed.path(), std::ios::binary);
  std::string payload(kNumberSize + kChunk, '\0');
  sendAll(socket, frameOf(0x11,
                          "\xFF\xFF"
                          "a.bin"));
  awaitFrame(socket);
  for (unsigned number = 1; !file.eof(); ++number) {
    payload[0] = static_cast<char>(number);
    payload[1] = static_cast<char>(number >> 8);
    file.read(payload.data() + kNumberSize, kChunk);
    const auto size = kNumberSize + static_cast<std::size_t>(file.gcount());
    sendAll(socket, makeFrame(std::string_view(payload).substr(0, size)));
    awaitFrame(socket);
  }
  ::close(socket);
}

}  // namespace tovi::bench
