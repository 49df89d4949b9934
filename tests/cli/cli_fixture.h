// SPDX-License-Identifier: MIT
// The program itself against simulated controllers.
#pragma once

#include <gtest/gtest.h>

#include <iomanip>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "platform/listener.h"
#include "simulator/server.h"
#include "tests/platform/loopback.h"
#include "tests/support/run_program.h"
#include "tests/transfer/temporary_folder.h"

namespace tovi::cli {

struct Outcome {
  int status = -1;
  std::string out;
  std::string err;
};

inline std::string repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

class Cli : public testing::Test {
 protected:
  // A file of the test's own.
  std::string file(const std::string& name, const std::string& content) const {
    return mFolder.file(content, name);
  }
  std::string path(const std::string& name) const { return mFolder.path(name); }
  std::string contentOf(const std::string& name) const { return mFolder.content(name); }

  // Runs the program. Arguments are parted by spaces, but for those in quotes; what follows a "<"
  // is the file that is standard input, and a ">" the one that is standard output.
  Outcome run(const std::string& arguments) const {
    test::Streams streams{"", path("out"), path("err")};
    std::vector<std::string> words;
    std::istringstream rest(arguments);
    while (rest >> std::ws, !rest.eof()) {
      std::string& word = words.emplace_back();
      if (rest.peek() == '"') {
        rest >> std::quoted(word);
        continue;
      }
      rest >> word;
      if (word.front() != '<' && word.front() != '>') continue;
      (word.front() == '<' ? streams.in : streams.out) = word.substr(1);
      words.pop_back();
    }
    const int status = test::runProgram(TOVI_PROGRAM, words, streams);
    EXPECT_NE(status, -1) << "did not run: " << arguments;
    std::string messages = contentOf("err");
    std::erase(messages, '\r');  // the system's line ends
    return {status, contentOf("out"), std::move(messages)};
  }

  // What a run on a controller prints, which is SIGN there; behind its status where that is not 0.
  std::string told(const sim::Simulator& controller, const std::string& arguments) const {
    const std::string address = addressOf(controller);
    const auto [status, out, err] = run(address + " " + arguments);
    std::string text = (status == 0 ? "" : std::to_string(status) + " ") + out + err;
    for (std::size_t at = 0; (at = text.find(address)) != std::string::npos;) {
      text.replace(at, address.size(), "SIGN");
    }
    return text;
  }

  sim::Simulator& startController(sim::Options options = {}) {
    mControllers.push_back(std::make_unique<sim::Simulator>(std::move(options)));
    EXPECT_TRUE(mControllers.back()->start()) << mControllers.back()->error();
    return *mControllers.back();
  }
  void stopControllers() { mControllers.clear(); }

  static std::string addressOf(const sim::Simulator& controller) {
    return "127.0.0.1:" + std::to_string(controller.port());
  }

  // An address where nobody listens, nor will: its port is ours, at another address.
  std::string deadAddress() {
    mTaken.emplace_back(platform::listenOn("127.0.0.1", 0));
    return "127.0.0.2:" + std::to_string(platform::localPort(mTaken.back().get()));
  }

 private:
  test::TemporaryFolder mFolder;
  std::vector<std::unique_ptr<sim::Simulator>> mControllers;
  std::vector<platform::test::OwnedSocket> mTaken;
};

}  // namespace tovi::cli
