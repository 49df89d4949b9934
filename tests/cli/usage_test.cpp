// SPDX-License-Identifier: MIT
// Which commands there are, what they take, and what their help says.
#include <algorithm>
#include <cctype>
#include <mutex>
#include <regex>
#include <set>

#include "tests/cli/cli_fixture.h"
#include "wire/command_table.h"

namespace tovi::cli {
namespace {

constexpr char kTime[] = "2024-03-01T08:00:00";
constexpr char kLaterTime[] = "2024-12-31T23:59:58";

TEST_F(Cli, RefusesWrongUsageBeforeAnythingIsSent) {
  auto& controller = startController();
  const std::string at = addressOf(controller) + " ";
  const std::string hosts =
      file("hosts", "# two\n" + addressOf(controller) + "\n\n192.168.1.999:5005\n");
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
      {at + "set-everything", "\"set-everything\" is no command"},
      {at + "get-sn --everything", "\"--everything\" is no option"},
      {at + "--key des:1234567 get-sn", "--key: a key is des:, aes: or sm4:"},
      {at + "--timeout -1 get-sn", "\"-1\" is no number from 0 to 3600000"},
      {at + "set-brightness", "LEVEL is required"},
      {at + "set-brightness 256", "LEVEL: \"256\" is no number from 0 to 255"},
      {at + "set-brightness 80 90", "\"90\" is one argument too many"},
      {at + "set-power 1", "STATE: \"1\" is neither on nor off"},
      {at + "set-virtual-connection on 59 1", "60 to 65535"},
      {at + "set-time 2024-02-30T00:00:00", "TIME"},
      {at + "set-time-and-time-zone 2024-03-01T08:00:00 UTC GMT+00:00", "TIME"},
      {at + "set-time-and-time-zone now \"a b\" GMT+00:00", "ZONE"},
      {at + "set-play-by-time-list", "START END PLAYLIST is required"},
      {at + "set-play-by-time-list " + times + " 80 " + kTime, "has not 3 parts"},
      {at + "set-play-by-time-list none none none", "\"none\" is no time as in"},
      {at + "set-device-power-by-time-list " + kLaterTime + " " + kTime, "is before"},
      {at + "set-device-power-by-time-list" + repeated(" " + times, 256), "more than 255 entries"},
      {at + "set-brightness-auto 1 2 3", "1 to 8 pairs"},
      {at + "set-brightness-auto" + repeated(" 1 2", 9), "1 to 8 pairs"},
      {at + "set-device-net-basic-param 1.2.3 1.2.3.4 1.2.3.4 1 1.2.3.4", "IP: \"1.2.3\""},
      {at + "set-rds-road 12a", "DIGITS"},
      {at + "set-font " + repeated("x", 1025), "a text of 1025 bytes, where 0 to 1024 are taken"},
      {at + "download-files 1", "no JSON array"},
      {at + "set-device-secret-param label 1:1234567 on", "MODE"},
      {at + "set-device-secret-param label 0 on 1234567", "SECOND_KEY"},
      {at + "send-file " + path("missing") + " name", "cannot read"},
      {at + "send-play-list 1 " + path("missing"), "cannot read"},
      {at + "send-play-list 1 " + binary, "is no text"},
      {at + "get-device-screenshot " + path("missing/picture"), "cannot write"},
      {"--hosts " + path("missing") + " get-sn", "--hosts: cannot read"},
      {"--hosts " + hosts + " get-sn", "line 4: \"192.168.1.999:5005\""},
      {"--hosts " + empty + " get-sn", "names no controller"},
      {at + "get-sn --jobs 0", "1 to 1024"},
      {"--hosts " + fine + " " + at + "get-sn", "give one of"},
      {"listen 65536 get-sn", "PORT"},
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

class CliCommands : public Cli {
 protected:
  // The commands in --help that take no arguments.
  std::vector<std::string> bareCommands() const {
    const std::string help = run("--help").out;
    const std::regex line("\n  ([a-z][a-z-]*)(  |\n)");
    return {std::sregex_token_iterator(help.begin(), help.end(), line, 1), {}};
  }
};

// Much of what the methods return then could be taken for a value.
TEST_F(CliCommands, TakeNoMissingReplyForAValue) {
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

TEST_F(CliCommands, AreThereForEveryOperation) {
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
  stopControllers();  // which call onLine
}

TEST_F(CliCommands, EndTheirHelpWithTheirCodes) {
  const struct {
    std::string command, codes, text;  // the text's length among the arguments
  } cases[] = {
      {"set-server-ip-lists", "command 0x010D, reply 0x010D", "  The list\n"},
      {"send-heart-beat", "command 0x00; no reply is awaited", ""},
      {"set-font", "command 0xD2, reply 0xD2; text of at most 1024 bytes", "  At most 1024 bytes"},
      {"remove-app-page-name", "command 0x9F, reply 0x9F; text of 1 to 256 bytes", ", 1 to 256 b"},
      {"set-brightness-auto", "command 0x07, reply 0x08; then command 0x17, reply 0x18", ""},
      {"send-file", "command 0x11, reply 0x12; then command 0x13, reply 0x14; then reply 0xF9", ""},
  };
  for (const auto& [command, codes, text] : cases) {
    auto [status, help, err] = run(command + " --help");
    std::erase(help, '\r');  // the system's line ends
    EXPECT_EQ(status, 0) << command << err;
    EXPECT_NE(help.find(text), std::string::npos) << help;
    EXPECT_TRUE(help.ends_with("\nOn the wire: " + codes + ".\n")) << help;
  }
}

}  // namespace
}  // namespace tovi::cli
