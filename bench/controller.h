// SPDX-License-Identifier: MIT
// The other end: reads frames and answers them, and does nothing else, so that it is never what is
// waited for.
#pragma once

#include <string>
#include <thread>
#include <vector>

namespace tovi::bench {

class Controller {
 public:
  // The n-th frame of a connection gets the n-th answer, and all behind the last one that.
  explicit Controller(std::vector<std::string> answers);
  ~Controller();
  Controller(const Controller&) = delete;
  Controller& operator=(const Controller&) = delete;

  unsigned short port() const { return mPort; }

 private:
  void serve(int socket) const;

  std::vector<std::string> mAnswers;
  int mListener;
  unsigned short mPort = 0;
  std::thread mThread;
};

// What a host without the library would do.
int connectTo(unsigned short port);
void sendAll(int socket, std::string_view bytes);

// Reads until a frame has ended. False when the connection has.
bool awaitFrame(int socket);

}  // namespace tovi::bench
