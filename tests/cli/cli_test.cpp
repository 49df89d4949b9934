// SPDX-License-Identifier: MIT
// The program itself against a simulated controller.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <future>
#include <iomanip>
#include <iterator>
#include <mutex>
#include <nlohmann/json.hpp>
#include <random>
#include <regex>
#include <set>
#include <sstream>

#include "platform/paths.h"
#include "platform/text.h"
#include "simulator/server.h"
#include "tests/simulator/literal.h"
#include "tests/support/run_program.h"
#include "wire/command_table.h"

namespace tovi::cli {
namespace {

namespace fs = std::filesystem;
using sim::literal;

constexpr char kTime[] = "2024-03-01T08:00:00";
constexpr char kLaterTime[] = "2024-12-31T23:59:58";

struct Outcome {
  int status = -1;
  std::string out;
  std::string err;
};

std::string contentOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

class Cli : public testing::Test {
 protected:
  Cli() {
    mFolder = fs::temp_directory_path() / ("tovi-cli-" + std::to_string(std::random_device{}()));
    fs::create_directory(mFolder);
  }
  ~Cli() override {
    std::error_code error;
    fs::remove_all(mFolder, error);
  }

  // A file of the test's own.
  std::string file(const std::string& name, const std::string& content) const {
    std::ofstream(mFolder / name, std::ios::binary) << content;
    return (mFolder / name).string();
  }
  std::string path(const std::string& name) const { return (mFolder / name).string(); }

  // Runs the program. Arguments are parted by spaces, but for those in quotes; what follows a "<"
  // is the file that is standard input.
  Outcome run(const std::string& arguments) const {
    test::Streams streams{"", path("out"), path("err")};
    std::vector<std::string> words;
    std::istringstream rest(arguments);
    while (rest >> std::ws, !rest.eof()) {
      std::string& word = words.emplace_back();
      if (rest.peek() == '"') {
        rest >> std::quoted(word);
      } else {
        rest >> word;
      }
      if (word.starts_with('<')) {
        streams.in = word.substr(1);
        words.pop_back();
      }
    }
    const int status = test::runProgram(TOVI_PROGRAM, words, streams);
    std::string messages = contentOf(streams.err);
    std::erase(messages, '\r');  // the system's line ends
    return {status, contentOf(streams.out), std::move(messages)};
  }

  // The commands in --help that take no arguments.
  std::vector<std::string> bareCommands() const {
    const std::string help = run("--help").out;
    const std::regex line("\n  ([a-z][a-z-]*)(  |\n)");
    return {std::sregex_token_iterator(help.begin(), help.end(), line, 1), {}};
  }

  sim::Simulator& startController(sim::Options options = {}) {
    mControllers.push_back(std::make_unique<sim::Simulator>(std::move(options)));
    EXPECT_TRUE(mControllers.back()->start()) << mControllers.back()->error();
    return *mControllers.back();
  }

  static std::string addressOf(const sim::Simulator& controller) {
    return "127.0.0.1:" + std::to_string(controller.port());
  }

  // An address where nobody listens.
  static std::string deadAddress() {
    const platform::Socket socket = platform::listenOn("127.0.0.1", 0);
    const std::uint16_t port = platform::localPort(socket);
    platform::closeSocket(socket);
    return "127.0.0.1:" + std::to_string(port);
  }

 private:
  fs::path mFolder;
  std::vector<std::unique_ptr<sim::Simulator>> mControllers;
};

sim::Options withFault(const std::string& fault) {
  sim::Options options;
  if (!fault.empty()) options.faults.push_back(sim::parseFault(fault).value());
  return options;
}

TEST_F(Cli, TellsHowItWentByStatusAndStreams) {
  const struct {
    const char* fault;
    const char* arguments;
    int status;
    const char* out;
    const char* err;  // behind the controller's address
  } cases[] = {
      {"", "get-sn", 0, "SIM0000000001\n", ""},
      {"", "set-brightness 80", 0, "done\n", ""},
      {"", "set-brightness 80 --quiet", 0, "", ""},
      {"", "--quiet get-volume-value", 0, "50\n", ""},
      {"", "get-brightness-info", 0, "mode: manual\nbrightness: 80\n", ""},
      {"", "get-play-by-time-list", 0, "", ""},
      {"", "send-heart-beat", 0, "done\n", ""},
      {"refuse", "set-brightness 80", 1, "",
       " set-brightness: refused by the controller (-12); check the value and --key\n"},
      {"refuse", "set-brightness 80 --quiet", 1, "",
       " set-brightness: refused by the controller (-12); check the value and --key\n"},
      {"refuse", "set-ssh-enabled on", 1, "",
       " set-ssh-enabled: refused by the controller; check the value and --key\n"},
      {"refuse", "get-device-type", 1, "",
       " get-device-type: a reply that cannot be understood; check --key, or give it more time "
       "with --timeout\n"},
      {"close-before", "set-brightness 80", 1, "",
       " set-brightness: no reply (-11); check --key, or give it more time with --timeout\n"},
  };
  for (const auto& expected : cases) {
    SCOPED_TRACE(expected.arguments);
    const std::string address = addressOf(startController(withFault(expected.fault)));
    const Outcome outcome = run(address + " " + expected.arguments);
    EXPECT_EQ(outcome.status, expected.status);
    EXPECT_EQ(outcome.out, expected.out);
    const std::string err = *expected.err != '\0' ? "tovi: " + address + expected.err : "";
    EXPECT_EQ(outcome.err, err);
  }
}

// Much of what the methods return then could be taken for a value.
TEST_F(Cli, TakesNoMissingReplyForAValue) {
  const std::string address = deadAddress();
  std::vector<std::string> lines = bareCommands();
  lines.insert(lines.end(), {"set-anti-aliasing on on on", "set-ssh-enabled on"});
  for (const std::string& line : lines) {
    const Outcome outcome = run(address + " " + line);
    EXPECT_EQ(outcome.status, 1) << line;
    EXPECT_EQ(outcome.out, "") << line;
    EXPECT_NE(outcome.err.find("no connection"), std::string::npos) << line << outcome.err;
  }
}

TEST_F(Cli, SetsAndReadsAChineseName) {
  const std::string name = "\xE5\xB1\x95\xE5\x8E\x85 1 \xE5\xB1\x8F";
  auto& controller = startController();
  EXPECT_EQ(run(addressOf(controller) + " set-device-name \"" + name + "\"").status, 0);
  EXPECT_EQ(controller.state().name, name);
  EXPECT_EQ(run(addressOf(controller) + " get-device-name").out, name + "\n");
}

TEST_F(Cli, TakesAnyTextAsAName) {
  auto& controller = startController();
  for (const std::string name : {"", "get-sn", "listen", "127.0.0.1:5005", "[a,b]", "a=b"}) {
    EXPECT_EQ(run(addressOf(controller) + " set-device-name \"" + name + "\"").status, 0) << name;
    EXPECT_EQ(controller.state().name, name);
  }
  EXPECT_EQ(run(addressOf(controller) + " set-device-name -- --json").status, 0);
  EXPECT_EQ(controller.state().name, "--json");
}

TEST_F(Cli, PrintsJson) {
  sim::Options options;
  options.state.name = "\xC4\xE3\"\\";  // no UTF-8
  const std::string address = addressOf(startController(std::move(options)));
  const auto json = [&](const std::string& command) {
    const Outcome outcome = run(address + " --json " + command);
    EXPECT_EQ(std::count(outcome.out.begin(), outcome.out.end(), '\n'), 1) << outcome.out;
    return nlohmann::json::parse(outcome.out, nullptr, false);
  };
  const auto status = json("get-device-type");
  EXPECT_EQ(status["controller"], address);
  EXPECT_EQ(status["done"], true);
  EXPECT_EQ(status["value"]["temperature"], 25);
  EXPECT_EQ(status["value"]["boxDoorOpen"], false);
  EXPECT_EQ(json("get-device-name")["value"], "\xEF\xBF\xBD\xEF\xBF\xBD\"\\");
  EXPECT_EQ(json("get-power-state")["value"], true);
  EXPECT_EQ(json("get-all-playlist-id")["value"], nlohmann::json::array());
  EXPECT_EQ(json("set-brightness 80")["code"], 1);
  const auto refused = json("remove-whitelist nobody");
  EXPECT_EQ(refused["done"], false);
  EXPECT_EQ(refused["outcome"], "refused by the controller");
}

TEST_F(Cli, EnciphersWithEveryCipher) {
  for (const std::string cipher : {"des", "aes", "sm4"}) {
    sim::Options options;
    options.key = sim::parseKey(cipher + ":12345678").value();
    auto& controller = startController(std::move(options));
    const std::string address = addressOf(controller);
    EXPECT_EQ(run(address + " set-brightness 77 --key " + cipher + ":12345678").status, 0);
    EXPECT_EQ(controller.state().brightness, 77) << cipher;
    EXPECT_EQ(run(address + " --key " + cipher + ":12345678 get-device-name").out, "tovisim\n");
    const Outcome wrong =
        run(address + " set-brightness 78 --timeout 20 --key " + cipher + ":abcdefgh");
    EXPECT_EQ(wrong.status, 1) << cipher;
    EXPECT_EQ(controller.state().brightness, 77) << cipher;
  }
}

TEST_F(Cli, RefusesWrongUsageBeforeAnythingIsSent) {
  auto& controller = startController();
  const std::string at = addressOf(controller) + " ";
  const std::string hosts = file("hosts", addressOf(controller) + "\n192.168.1.999:5005\n");
  const std::string fine = file("fine", addressOf(controller) + "\n");
  const std::string empty = file("empty", "# nobody\n");
  const std::string binary = file("binary", std::string("a\0b", 3));
  const std::string times = std::string(kTime) + " " + kLaterTime;
  const struct {
    std::string arguments;
    const char* err;
  } cases[] = {
      {"", "a command is missing"},
      {"get-sn", "CONTROLLER, --hosts or listen is required"},
      {"192.168.1:5005 get-sn", "\"192.168.1:5005\" is no controller"},
      {"127.0.0.1:65536 get-sn", "\"127.0.0.1:65536\" is no controller"},
      {at, "a command is missing"},
      {at + "set-everything", "\"set-everything\" is no command"},
      {at + "get-sn --everything", "\"--everything\" is no option"},
      {at + "--key des:1234567 get-sn", "--key: a key is des:, aes: or sm4:"},
      {at + "--timeout -1 get-sn", "\"-1\" is no number from 0 to 3600000"},
      {at + "set-brightness", "LEVEL is required"},
      {at + "set-brightness 256", "LEVEL: \"256\" is no number from 0 to 255"},
      {at + "set-brightness -1", "LEVEL: \"-1\" is no number from 0 to 255"},
      {at + "set-brightness 80 90", "\"90\" is one argument too many"},
      {at + "set-power 1", "STATE: \"1\" is neither on nor off"},
      {at + "set-close-screen-temperature 151", "0 to 150"},
      {at + "set-virtual-connection on 59 1", "60 to 65535"},
      {at + "set-auto-brightness-time-param 0 1", "1 to 255"},
      {at + "set-time 2024-02-30T00:00:00", "TIME"},
      {at + "set-time-and-time-zone 2024-03-01T08:00:00 UTC GMT+00:00", "TIME"},
      {at + "set-time-and-time-zone now \"a b\" GMT+00:00", "ZONE"},
      {at + "set-play-by-time-list", "START END PLAYLIST is required"},
      {at + "set-play-by-time-list " + times, "has not 3 parts"},
      {at + "set-play-by-time-list " + times + " 80 " + kTime, "has not 3 parts"},
      {at + "set-play-by-time-list " + times + " 256", "\"256\" is no number from 0 to 255"},
      {at + "set-play-by-time-list none none none", "\"none\" is no time as in"},
      {at + "set-device-power-by-time-list " + kTime, "has not 2 parts"},
      {at + "set-device-power-by-time-list " + kLaterTime + " " + kTime, "is before"},
      {at + "set-device-power-by-time-list" + repeated(" " + times, 256), "more than 255 entries"},
      {at + "set-brightness-auto 1 2 3", "1 to 8 pairs"},
      {at + "set-brightness-auto" + repeated(" 1 2", 9), "1 to 8 pairs"},
      {at + "set-brightness-auto 1 256", "\"256\" is no number from 0 to 255"},
      {at + "set-device-net-basic-param 1.2.3 1.2.3.4 1.2.3.4 1 1.2.3.4", "IP: \"1.2.3\""},
      {at + "set-rds-road 12a", "DIGITS"},
      {at + "remove-app-page-name \"\"", "a text of 0 bytes, where 1 to 256 are taken"},
      {at + "set-font " + repeated("x", 1025), "a text of 1025 bytes, where 0 to 1024 are taken"},
      {at + "download-files 1", "no JSON array"},
      {at + "set-device-secret-param label 1 on", "MODE"},
      {at + "set-device-secret-param label 0 on 1234567", "SECOND_KEY"},
      {at + "send-file " + path("missing") + " name", "cannot read"},
      {at + "send-play-list 1 " + path("missing"), "cannot read"},
      {at + "send-play-list 1 " + binary, "is no text"},
      {at + "get-device-screenshot " + path("missing/picture"), "cannot write"},
      {"--hosts " + path("missing") + " get-sn", "--hosts: cannot read"},
      {"--hosts " + hosts + " get-sn", "line 2: \"192.168.1.999:5005\""},
      {"--hosts " + empty + " get-sn", "names no controller"},
      {at + "get-sn --jobs 0", "1 to 1024"},
      {"--hosts " + fine + " " + at + "get-sn", "give one of"},
      {at + "listen 0 get-sn", "give one of"},
      {"listen 65536 get-sn", "PORT"},
      {"listen 0 set-everything", "\"set-everything\" is no command"},
  };
  for (const auto& [arguments, err] : cases) {
    SCOPED_TRACE(arguments);
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_NE(outcome.err.find(err), std::string::npos) << outcome.err;
  }
  EXPECT_EQ(controller.exchanges(), 0U);
}

TEST_F(Cli, SendsTimetablesInCalendarTimeAndReadsThemBack) {
  auto& controller = startController();
  const std::string at = addressOf(controller) + " ";
  const std::string times = std::string(kTime) + " " + kLaterTime;
  // 1 March 2024 8:00:00 and 31 December 2024 23:59:58: day, month, year, second, minute, hour.
  const std::string wire = "01 03 E8 07 00 00 08 1F 0C E8 07 3A 3B 17";
  EXPECT_EQ(run(at + "set-device-power-by-time-list " + times).status, 0);
  EXPECT_EQ(controller.state().timetables.power, literal("01 " + wire));
  EXPECT_EQ(run(at + "set-play-by-time-list " + times + " 200 " + times + " 7").status, 0);
  EXPECT_EQ(controller.state().timetables.play,
            literal("02 " + wire + " C8 00 " + wire + " 07 00"));
  EXPECT_EQ(run(at + "set-brightness-by-time-list " + times + " 255").status, 0);
  EXPECT_EQ(controller.state().timetables.brightness, literal("01 " + wire + " FF"));

  EXPECT_EQ(run(at + "get-device-power-by-time-list").out, times + "\n");
  EXPECT_EQ(run(at + "get-play-by-time-list").out, times + " 200\n" + times + " 7\n");
  EXPECT_EQ(run(at + "get-brightness-by-time-list").out, times + " 255\n");
  EXPECT_EQ(run(at + "set-play-by-time-list none").status, 0);
  EXPECT_EQ(controller.state().timetables.play, literal("00"));
  EXPECT_EQ(run(at + "set-device-power-by-time-list" + repeated(" " + times, 255)).status, 0);
  EXPECT_EQ(controller.state().timetables.power.size(), 1U + 255 * 14);
}

TEST_F(Cli, SendsTheCurveAndReadsItBack) {
  auto& controller = startController();
  EXPECT_EQ(run(addressOf(controller) + " set-brightness-auto 0 10 200 255").status, 0);
  EXPECT_EQ(controller.state().timetables.brightnessCurve,
            literal("00 0A 00 C8 FF 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"));
  EXPECT_EQ(run(addressOf(controller) + " get-brightness-auto").out,
            "0 10\n200 255\n0 0\n0 0\n0 0\n0 0\n0 0\n0 0\n");
  EXPECT_EQ(run(addressOf(controller) + " set-brightness-auto" + repeated(" 1 2", 8)).status, 0);
}

TEST_F(Cli, SetsTheClock) {
  auto& controller = startController();
  const std::string at = addressOf(controller) + " ";
  EXPECT_EQ(run(at + "set-time 2024-02-29T23:59:59").status, 0);
  EXPECT_EQ(controller.state().clock.time, 1'709'251'199'000);
  EXPECT_EQ(run(at + "set-time-and-time-zone 2024-03-01T00:00:00Z Asia/Shanghai GMT+08:00").status,
            0);
  EXPECT_EQ(controller.state().clock.time, 1'709'251'200'000);
  EXPECT_EQ(run(at + "get-time-and-time-zone").out,
            "time: 2024-03-01T00:00:00Z\nzoneId: Asia/Shanghai\nutcOffset: GMT+08:00\n");
  const auto before = std::chrono::system_clock::now() - std::chrono::seconds(1);
  EXPECT_EQ(run(at + "set-time-and-time-zone now UTC GMT+00:00").status, 0);
  const std::chrono::milliseconds set(controller.state().clock.time);
  EXPECT_GE(set, before.time_since_epoch());
  EXPECT_LE(set, std::chrono::system_clock::now().time_since_epoch());
}

TEST_F(Cli, PassesArgumentsInTheirOrder) {
  auto& controller = startController();
  const std::string at = addressOf(controller) + " ";
  EXPECT_EQ(run(at + "set-relay-powers on off off on").status, 0);
  EXPECT_EQ(controller.state().power.relays, (std::array{true, false, false, true}));
  EXPECT_EQ(run(at + "set-edid-info 1920 1080 50").status, 0);
  EXPECT_EQ(run(at + "get-edid-info").out, "width: 1920\nheight: 1080\nfieldRate: 50\n");
  EXPECT_EQ(run(at + "set-anti-aliasing off on off").status, 0);
  // Commands that await no reply return before the controller has read them.
  EXPECT_TRUE(controller.waitForExchanges(4, std::chrono::seconds(10)));
  EXPECT_EQ(run(at + "get-anti-aliasing").out, "first: no\nsecond: yes\nthird: no\n");
  EXPECT_EQ(
      run(at + "set-device-net-basic-param 10.0.0.1 255.0.0.0 10.0.0.2 50000 10.0.0.3").status, 0);
  EXPECT_TRUE(controller.waitForExchanges(6, std::chrono::seconds(10)));
  const auto basic = controller.state().network.basic;
  EXPECT_EQ(basic.ip, (std::array<std::uint8_t, 4>{10, 0, 0, 1}));
  EXPECT_EQ(basic.netmask, (std::array<std::uint8_t, 4>{255, 0, 0, 0}));
  EXPECT_EQ(basic.gateway, (std::array<std::uint8_t, 4>{10, 0, 0, 2}));
  EXPECT_EQ(basic.port, 50000);
  EXPECT_EQ(basic.server, (std::array<std::uint8_t, 4>{10, 0, 0, 3}));
  EXPECT_EQ(run(at + "set-rds-road 1018").status, 0);
  EXPECT_EQ(run(at + "get-rds-road").out, "1018\n");
}

TEST_F(Cli, SendsAFile) {
  std::string content(200'000, '\0');
  std::minstd_rand random;
  for (char& byte : content) byte = static_cast<char>(random());
  auto& controller = startController();
  const Outcome outcome =
      run(addressOf(controller) + " send-file " + file("a", content) + " b.bin");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");  // a progress bar is for terminals
  EXPECT_EQ(controller.controller().files().read("b.bin"), sim::bytesOf(content));

  auto& refusing = startController(withFault("refuse@sendFileContent"));
  const Outcome refused = run(addressOf(refusing) + " send-file " + path("a") + " b.bin");
  EXPECT_EQ(refused.status, 1);
  EXPECT_NE(refused.err.find("refused by the controller in the middle of the file (-6)"),
            std::string::npos)
      << refused.err;
}

TEST_F(Cli, SendsAFileThatHasAChineseName) {
  auto& controller = startController();
  const std::string name = "\xE5\xB1\x8F.bin";
  const std::string whole = path("") + name;
  std::ofstream(platform::pathOf(whole)) << "x";
  const Outcome outcome = run(addressOf(controller) + " send-file " + whole + " " + name);
  if (platform::utf8ToLocal(name)) {
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(controller.controller().files().read(name), sim::bytesOf("x"));
  } else {
    EXPECT_EQ(outcome.status, 2);
    EXPECT_NE(outcome.err.find("that the local code page lacks"), std::string::npos);
  }
}

TEST_F(Cli, SendsAPlaylistFromAFileOrStandardInput) {
  auto& controller = startController();
  const std::string list = file("list", "[\"\xE5\xB1\x8F\"]\n");
  const std::string at = addressOf(controller) + " send-play-list ";
  EXPECT_EQ(run(at + "7 " + list).status, 0);
  EXPECT_EQ(run(at + "200 - <" + list).status, 0);
  EXPECT_EQ(controller.controller().files().read("play007.lst"), sim::bytesOf(contentOf(list)));
  EXPECT_EQ(controller.controller().files().read("play200.lst"), sim::bytesOf(contentOf(list)));
  EXPECT_EQ(run(addressOf(controller) + " get-all-playlist-id").out, "7\n200\n");
}

TEST_F(Cli, RunsOnManyControllers) {
  const std::string first = addressOf(startController());
  const std::string second = addressOf(startController());
  const std::string dead = deadAddress();
  const std::string some = file("some", first + " # entrance\n\n" + dead + "\n" + second + "\n");
  const std::string all = file("all", second + "\n" + first + "\n");

  const Outcome mixed = run("--hosts " + some + " set-brightness 80");
  EXPECT_EQ(mixed.status, 1);
  EXPECT_EQ(mixed.out, first + "  done\n" + dead +
                           "  no connection (-14); check the address, the port and the cable\n" +
                           second + "  done\n2 done, 1 failed\n");
  EXPECT_EQ(mixed.err, "");

  const Outcome fine = run("--hosts - --jobs 1 get-brightness-info <" + all);
  EXPECT_EQ(fine.status, 0);
  EXPECT_EQ(fine.out, second + "  mode: manual, brightness: 80\n" + first +
                          "  mode: manual, brightness: 80\n2 done, 0 failed\n");

  const Outcome json = run("--json --hosts " + some + " get-sn");
  std::istringstream lines(json.out);
  std::vector<std::string> controllers;
  for (std::string line; std::getline(lines, line);) {
    controllers.push_back(nlohmann::json::parse(line, nullptr, false).at("controller"));
  }
  EXPECT_EQ(controllers, (std::vector{first, dead, second}));
}

TEST_F(Cli, FindsControllersByName) {
  const std::string address = addressOf(startController());
  const std::string named = "LocalHost" + address.substr(address.find(':'));
  EXPECT_EQ(run(named + " get-sn").out, "SIM0000000001\n");

  const Outcome lost = run("x.invalid:5005 --json get-sn");
  EXPECT_EQ(lost.status, 1);
  EXPECT_EQ(lost.out,
            "{\"controller\":\"x.invalid:5005\",\"done\":false,\"outcome\":\"no such host\"}\n");
  EXPECT_EQ(lost.err, "tovi: x.invalid:5005 get-sn: no such host\n");

  const std::string hosts = file("hosts", "x.invalid:5005\n" + named + "\n" + address + "\n");
  const Outcome mixed = run("--hosts " + hosts + " set-brightness 80");
  EXPECT_EQ(mixed.status, 1);
  EXPECT_EQ(mixed.out, "x.invalid:5005  no such host\n" + named + "  done\n" + address +
                           "  done\n2 done, 1 failed\n");

  const Outcome nowhere = run("listen x.invalid:0 get-sn");
  EXPECT_EQ(nowhere.status, 1);
  EXPECT_EQ(nowhere.err, "tovi: cannot wait on x.invalid:0: no such host\n");
}

TEST_F(Cli, KeepsThePicturesOfManyControllersApart) {
  sim::Options options;
  options.state.display.screenshotSize = 70'000;
  const std::string first = addressOf(startController(options));
  const std::string second = addressOf(startController(options));
  const std::string hosts = file("hosts", first + "\n" + second + "\n");
  EXPECT_EQ(run("--hosts " + hosts + " get-device-screenshot " + path("screen.bmp")).status, 0);
  for (std::string address : {first, second}) {
    address[address.find(':')] = '_';
    EXPECT_EQ(contentOf(path("screen-" + address + ".bmp")).size(), 70'000U);
  }
  EXPECT_FALSE(fs::exists(path("screen.bmp")));
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
    line = contentOf(path("err"));
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
  const Outcome outcome = run("listen 127.0.0.1:0 --wait 1 --quiet get-sn");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.out, "");
  EXPECT_NE(outcome.err.find("within 1 ms"), std::string::npos) << outcome.err;
}

// Every command with arguments, but for those of several steps.
constexpr char kCommandLines[] =
    "set-power on,set-board-power on,set-board-power-and-screen-power on,set-brightness 1,"
    "set-relay-powers on on on on,set-brightness-auto 1 1,set-auto-brightness-time-param 1 1,"
    "set-multi-function-card-power 1 1 on,set-device-volume 1,set-device-power-by-time-list none,"
    "set-play-by-time-list none,set-brightness-by-time-list none,set-advance-timing x,set-time now,"
    "set-time-and-time-zone now x x,set-device-ntp-param on x,set-custom-resolution 1 1 1,"
    "set-edid-info 1 1 1,set-video-control-info 1,set-anti-aliasing on on on,set-sync-play on,"
    "set-pre-stored-screen-enabled on,set-font x,set-device-name x,set-virtual-connection on 60 1,"
    "set-device-net-basic-param 1.1.1.1 1.1.1.1 1.1.1.1 1 1.1.1.1,set-ping-ip x,"
    "set-server-ip-lists x,add-whitelist x,remove-whitelist x,set-wifi-state on,connect-wifi x,"
    "set-wifi-ap-state on,set-wifi-ap-config x,set-lora-info x,set-rds-road 1,"
    "set-close-screen-temperature 1,solidify 1,remove-app-page-name x,set-ssh-enabled on,"
    "set-sensor-info x,get-file-list-name 1,clean-up-files 1,play-list-by-id 1,"
    "delete-playlist-by-id 1,send-local-update 1 x,send-test-local-update 1 x,"
    "remove-local-update 1,send-ftp-downloadaddress x,update-file-name x,download-files [],"
    "set-device-key x,set-device-secret-param x 0 on,get-device-screenshot ";

// A method or a command as both can be compared.
std::string flat(std::string name) {
  std::erase(name, '-');
  for (char& letter : name) letter = static_cast<char>(std::tolower(letter));
  return name;
}

TEST_F(Cli, HasACommandForEveryOperation) {
  std::mutex mutex;
  std::string method;  // of the last exchange
  sim::Options options;
  options.onLine = [&](const std::string& line) {
    std::string peer;
    const std::lock_guard lock(mutex);
    std::istringstream(line) >> peer >> method;
  };
  auto& controller = startController(std::move(options));
  std::vector<std::string> lines = bareCommands();
  std::erase(lines, "get-detect-error-point-info");
  std::istringstream rest(kCommandLines + path("screen"));
  for (std::string line; std::getline(rest, line, ',');) lines.push_back(line);
  std::set<std::string_view> missing;
  for (const wire::Command& row : wire::kCommands) {
    if (!wire::isStep(row)) missing.insert(row.method);
  }
  for (const std::string& line : lines) {
    const std::uint64_t before = controller.exchanges();
    run(addressOf(controller) + " " + line);
    EXPECT_TRUE(controller.waitForExchanges(before + 1, std::chrono::seconds(10))) << line;
    const std::lock_guard lock(mutex);
    EXPECT_EQ(flat(method), flat(line.substr(0, line.find(' '))));
    missing.erase(method);
  }
  EXPECT_EQ(missing, std::set<std::string_view>());
  controller.stop();  // which calls onLine
}

TEST_F(Cli, EndsTheHelpOfACommandWithItsCodes) {
  const struct {
    std::string command, codes, text;  // the text's length among the arguments
  } cases[] = {
      {"get-rds-road", "command 0x9A, reply 0x9A", ""},
      {"set-device-ntp-param", "command 0x97, reply 0x97", "  Host name or address\n"},
      {"set-server-ip-lists", "command 0x010D, reply 0x010D", "  The list\n"},
      {"set-ssh-enabled", "command 0x0110, reply 0x0110", ""},
      {"send-heart-beat", "command 0x00; no reply is awaited", ""},
      {"set-font", "command 0xD2, reply 0xD2; text of at most 1024 bytes", "  At most 1024 bytes"},
      {"remove-app-page-name", "command 0x9F, reply 0x9F; text of 1 to 256 bytes", ", 1 to 256 b"},
      {"set-brightness-auto", "command 0x07, reply 0x08; then command 0x17, reply 0x18", ""},
      {"get-detect-error-point-info", "command 0x0B, reply 0x0C; then command 0x36, reply 0x37",
       ""},
      {"send-file", "command 0x11, reply 0x12; then command 0x13, reply 0x14; then reply 0xF9", ""},
  };
  for (const auto& [command, codes, text] : cases) {
    std::string help = run(command + " --help").out;
    std::erase(help, '\r');  // the system's line ends
    EXPECT_NE(help.find(text), std::string::npos) << help;
    EXPECT_TRUE(help.ends_with("\nOn the wire: " + codes + ".\n")) << help;
  }
}

}  // namespace
}  // namespace tovi::cli
