// SPDX-License-Identifier: MIT
// Several controllers, those that have a name, and those that dial in.
#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <future>
#include <mutex>

#include "tests/cli/cli_fixture.h"
#include "tests/simulator/host.h"

namespace tovi::cli {
namespace {

using Clock = std::chrono::steady_clock;

class CliHosts : public Cli {};

TEST_F(CliHosts, GetALineEach) {
  const std::string first = addressOf(startController());
  const std::string second = addressOf(startController());
  const std::string dead = deadAddress();
  const std::string lost =
      dead + "  no connection (-14); check the address, the port and the cable\n";
  const std::string some =
      "--hosts " + file("some", first + " # entrance\n\n" + dead + "\n" + second + "\n ");
  const std::string all = file("all", second + "\n" + first + "\n");
  const std::string told = "  mode: manual, brightness: 80\n";
  const auto json = [](const std::string& controller, const std::string& rest) {
    return "{\"controller\":\"" + controller + "\",\"done\":" + rest + "}\n";
  };
  const struct {
    std::string arguments;
    int status;
    std::string out, err;
  } cases[] = {
      {some + " set-brightness 80", 1,
       first + "  done\n" + lost + second + "  done\n2 done, 1 failed\n", ""},
      {some + " set-brightness 80 --quiet", 1, lost, ""},
      {"--hosts - get-brightness-info <" + all, 0,
       second + told + first + told + "2 done, 0 failed\n", ""},
      {some + " --json get-power-state", 1,
       json(first, R"(true,"outcome":"done","value":true)") +
           json(dead, R"(false,"outcome":"no connection","code":-1)") +
           json(second, R"(true,"outcome":"done","value":true)"),
       "2 done, 1 failed\n"},
  };
  for (const auto& [arguments, status, out, err] : cases) {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, status) << arguments;
    EXPECT_EQ(outcome.out, out) << arguments;
    EXPECT_EQ(outcome.err, err) << arguments;
  }
}

TEST_F(CliHosts, RunAsManyAtATimeAsAsked) {
  std::mutex mutex;
  std::condition_variable changed;
  std::vector<Clock::time_point> asked;
  sim::Options options = sim::faulty({"late-reply=100"});
  options.onLine = [&](const std::string&) {
    std::unique_lock lock(mutex);
    asked.push_back(Clock::now());
    changed.notify_all();
    changed.wait_for(lock, std::chrono::seconds(20), [&] { return asked.size() > 1; });
  };
  std::string hosts;
  for (int i = 0; i < 3; ++i) hosts += addressOf(startController(options)) + "\n";
  EXPECT_EQ(run("--jobs 2 get-sn --hosts " + file("hosts", hosts)).status, 0);
  stopControllers();  // which call onLine
  ASSERT_EQ(asked.size(), 3U);
  // The second while the first had no answer yet, the third not before one of them had.
  EXPECT_GE(asked[2] - asked[1], std::chrono::milliseconds(100));
}

TEST_F(CliHosts, AreFoundByName) {
  const std::string address = addressOf(startController());
  const std::string named = "LocalHost" + address.substr(address.find(':'));
  EXPECT_EQ(run(named + " get-sn").out, "SIM0000000001\n");

  const Outcome lost = run("x.invalid:5005 --json get-sn");
  EXPECT_EQ(lost.status, 1);
  EXPECT_EQ(lost.out,
            "{\"controller\":\"x.invalid:5005\",\"done\":false,\"outcome\":\"no such host\"}\n");
  EXPECT_EQ(lost.err, "tovi: x.invalid:5005 get-sn: no such host\n");

  const Outcome nowhere = run("listen x.invalid:0 get-sn");
  EXPECT_EQ(nowhere.status, 1);
  EXPECT_EQ(nowhere.err, "tovi: cannot wait on x.invalid:0: no such host\n");
}

TEST_F(CliHosts, HaveAPictureEach) {
  sim::Options options;
  options.state.display.screenshotSize = 70'000;
  const std::string first = addressOf(startController(options));
  const std::string second = addressOf(startController(options));
  const std::string hosts = file("hosts", first + "\n" + second + "\n");
  EXPECT_EQ(run("--hosts " + hosts + " get-device-screenshot " + path("screen.bmp")).status, 0);
  for (std::string address : {first, second}) {
    address[address.find(':')] = '_';
    EXPECT_EQ(contentOf("screen-" + address + ".bmp").size(), 70'000U);
  }
  EXPECT_FALSE(std::filesystem::exists(path("screen.bmp")));
}

TEST_F(Cli, RunsOnAControllerThatDialsIn) {
  auto outcome = std::async(std::launch::async, [this] {
    return run("listen localhost:0 --wait 20000 set-device-name dialled");
  });
  // The port stands at the end of the line that says that it is open.
  const std::string beginning = "tovi: waiting for a controller on localhost:";
  std::string line;
  while (!line.ends_with('\n') &&
         outcome.wait_for(std::chrono::milliseconds(1)) == std::future_status::timeout) {
    line = contentOf("err");
  }
  ASSERT_TRUE(line.starts_with(beginning)) << line;
  sim::Options options;
  options.dial = {"127.0.0.1",
                  static_cast<std::uint16_t>(std::stoi(line.substr(beginning.size())))};
  auto& controller = startController(std::move(options));
  EXPECT_EQ(outcome.get().status, 0);
  EXPECT_EQ(controller.state().name, "dialled");
}

TEST_F(Cli, WaitsNoLongerThanAskedForAControllerThatDialsIn) {
  const Clock::time_point begin = Clock::now();
  const Outcome outcome = run("listen 127.0.0.1:0 --wait 1 --quiet get-sn");
  EXPECT_LT(Clock::now() - begin, std::chrono::seconds(30));  // half of what it is unless given
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_TRUE(outcome.err.starts_with("tovi: no controller dialled in")) << outcome.err;
  EXPECT_NE(outcome.err.find("within 1 ms"), std::string::npos) << outcome.err;
}

}  // namespace
}  // namespace tovi::cli
