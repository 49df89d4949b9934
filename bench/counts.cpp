// SPDX-License-Identifier: MIT
// Walks one of the main paths a number of times and does nothing else, for a tool that counts
// instructions: tovi_counts PATH TIMES. Without arguments: the names of the paths.
#include <sys/socket.h>
#include <tovisdk/codec.h>
#include <tovisdk/log.h>
#include <tovisdk/packet.h>
#include <tovisdk/protocal_parser.h>
#include <tovisdk/text.h>
#include <tovisdk/tovi_traffic.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>

#include "material.h"
#include "scratch.h"

namespace {

using namespace tovi::bench;

constexpr std::size_t kPayload = 65517;
constexpr char kCommand = 0x13;

using Path = std::function<void(int times)>;

struct Named {
  const char* name;
  std::size_t bytes;  // 0: what is counted is one operation
  Path path;
};

Path building(std::size_t size, int mode) {
  return [size, mode](int times) {
    std::string payload = randomBytes(size);
    std::string key = kPassword;
    for (; times > 0; --times) {
      int length = 0;
      char* frame = makeSendPacketEx(kCommand, payload.data(), static_cast<int>(size), mode,
                                     key.data(), &length);
      deleteArry(&frame);
    }
  };
}

Path parsing(std::size_t size, std::size_t piece) {
  return [size, piece](int times) {
    std::string frame = frameOf(kCommand, randomBytes(size));
    ProtocalParser parser;
    for (; times > 0; --times) {
      for (std::size_t at = 0; at < frame.size(); at += piece) {
        const std::size_t part = std::min(piece, frame.size() - at);
        char* package = parser.recvProc(frame.data() + at, static_cast<int>(part), kCommand);
        deleteArry(&package);
      }
    }
  };
}

void sum(int times) {
  std::string bytes = randomBytes(kPayload);
  for (; times > 0; --times) {
    bytes[0] = static_cast<char>(pubCalcCRC(bytes.data(), static_cast<int>(bytes.size())));
  }
}

// The answer is there before it is asked for, so that one thread is both ends.
void exchange(int times) {
  int ends[2];
  if (::socketpair(AF_UNIX, SOCK_STREAM, 0, ends) != 0) std::abort();
  const std::string accepted = hex(kAccepted);
  ToviTraffic traffic(static_cast<std::uint64_t>(ends[0]));
  for (; times > 0; --times) {
    char request[64];
    if (::write(ends[1], accepted.data(), accepted.size()) < 0) std::abort();
    if (traffic.setBrightness(80) != 1) std::abort();
    if (::read(ends[1], request, sizeof request) < 0) std::abort();
  }
  for (const int end : ends) ::close(end);
}

void logRecords(int times) {
  tovi_set_log_level(0);
  const Log log;
  for (; times > 0; --times) tovi_info("ToviTraffic::recv start recvProc");
}

const Named kPaths[] = {
    {"checksum", kPayload, sum},
    {"build a frame", kPayload, building(kPayload, 0)},
    {"build a frame, AES", kPayload, building(kPayload, 2)},
    {"build a frame of 2 bytes", 0, building(2, 0)},
    {"parse a frame", kPayload, parsing(kPayload, SIZE_MAX)},
    {"parse a frame, reads of 100 bytes", kPayload, parsing(kPayload, 100)},
    {"parse a frame of 2 bytes", 0, parsing(2, SIZE_MAX)},
    {"exchange, server mode, silenced", 0, exchange},
    {"log record", 0, logRecords},
};

}  // namespace

int main(int count, char** arguments) {
  const Silence silence;
  for (const Named& named : kPaths) {
    if (count < 3) {
      std::printf("%zu %s\n", named.bytes, named.name);
    } else if (std::strcmp(arguments[1], named.name) == 0) {
      named.path(std::atoi(arguments[2]));
    }
  }
}
