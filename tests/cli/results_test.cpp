// SPDX-License-Identifier: MIT
// What a command comes to on one controller: values, statuses, messages.
#include <algorithm>
#include <chrono>

#include "platform/paths.h"
#include "platform/text.h"
#include "tests/cli/cli_fixture.h"
#include "tests/simulator/host.h"

namespace tovi::cli {
namespace {

namespace fs = std::filesystem;
using sim::literal;

TEST_F(Cli, TellsHowItWentByStatusAndStreams) {
  const std::string list = file("list", "[]");
  const std::string more = "; check --key, or give it more time with --timeout\n";
  const std::string check = "; check the value and --key\n";
  const struct {
    std::string fault, arguments, told;
  } cases[] = {
      {"", "get-sn", "SIM0000000001\n"},
      {"", "set-brightness 80", "done\n"},
      {"", "set-brightness 80 --quiet", ""},
      {"", "--quiet get-volume-value", "50\n"},
      {"", "get-play-by-time-list", ""},
      {"", "send-heart-beat", "done\n"},
      {"refuse", "set-brightness 80",
       "1 tovi: SIGN set-brightness: refused by the controller (-12)" + check},
      {"refuse", "set-ssh-enabled on --quiet",
       "1 tovi: SIGN set-ssh-enabled: refused by the controller" + check},
      {"refuse", "get-device-type",
       "1 tovi: SIGN get-device-type: a reply that cannot be understood" + more},
      {"close-before", "set-brightness 80", "1 tovi: SIGN set-brightness: no reply (-11)" + more},
      // Far from due when its time is out, and long before the time that is not given.
      {"late-reply=10000", "get-sn --timeout 20", "1 tovi: SIGN get-sn: no reply" + more},
      {"refuse@sendFileName", "send-file " + list + " b",
       "1 tovi: SIGN send-file: refused by the controller to the file's name (-4)" + check},
      {"refuse@sendFileContent", "send-file " + list + " b",
       "1 tovi: SIGN send-file: refused by the controller in the middle of the file (-6)" + check},
      {"refuse@recvFileOverRsp", "send-file " + list + " b",
       "1 tovi: SIGN send-file: refused by the controller at the end of the file (-8)" + check},
      {"refuse@playListById", "send-play-list 1 " + list,
       "1 tovi: SIGN send-play-list: refused by the controller when told to play (-10)" + check},
      {"", "--json set-brightness 80",
       "{\"controller\":\"SIGN\",\"done\":true,\"outcome\":\"done\",\"code\":1}\n"},
      {"", "--json get-all-playlist-id",
       "{\"controller\":\"SIGN\",\"done\":true,\"outcome\":\"done\",\"value\":[]}\n"},
      {"", "--json remove-whitelist nobody",
       "1 {\"controller\":\"SIGN\",\"done\":false,\"outcome\":\"refused by the controller\"}\n"
       "tovi: SIGN remove-whitelist: refused by the controller" +
           check},
  };
  for (const auto& [fault, arguments, text] : cases) {
    EXPECT_EQ(
        told(startController(fault.empty() ? sim::Options() : sim::faulty({fault})), arguments),
        text)
        << fault;
  }
}

// Each line goes to the controller that those before it have set.
TEST_F(Cli, ReadsWhatItHasSet) {
  const std::string times = "2024-03-01T08:00:00 2024-12-31T23:59:58";
  const std::string noTime = "2024-03-01T08:00:00 2024-03-01T08:00:00";
  const struct {
    std::string arguments, told;
  } lines[] = {
      {"get-device-type",
       "temperature: -7\nbrightness: 80\nbrightnessMode: manual\nenvironmentBrightness: 120\n"
       "screenState: 1\nscreenPowerOn: yes\nboxDoorOpen: no\ninternalInput: yes\n"},
      {"--json get-device-name",  // which is no UTF-8
       "{\"controller\":\"SIGN\",\"done\":true,\"outcome\":\"done\","
       "\"value\":\"\xEF\xBF\xBD\xEF\xBF\xBD\\\"\\\\\"}\n"},
      {"backups", "1\n"},
      {"get-backups-times", "state: 1\ntimes: 0068E5CF8B010000\n"},
      {"get-pre-stored-screen-enabled", "first: 1\nsecond: 0\n"},
      {"set-device-ntp-param on t.example", "done\n"},
      {"get-device-ntp-param", "enabled: yes\nserver: t.example\n"},
      {"get-brightness-info", "mode: manual\nbrightness: 80\n"},
      {"set-power off", "done\n"},
      {"get-power-state", "off\n"},
      {"get-screen-status", "off\n"},
      {"set-power on", "done\n"},
      {"get-screen-status", "on\n"},
      {"get-device-size", "width: 256\nheight: 128\n"},
      {"set-edid-info 1920 1080 50", "done\n"},
      {"get-edid-info", "width: 1920\nheight: 1080\nfieldRate: 50\n"},
      {"set-virtual-connection on 60 255", "done\n"},
      {"get-virtual-connection", "enabled: yes\ninterval: 60\nvalue: 255\n"},
      // As much as is taken.
      {"set-font " + std::string(1024, 'x'), "done\n"},
      {"set-device-power-by-time-list" + repeated(" " + noTime, 255), "done\n"},
      {"set-brightness-auto" + repeated(" 0 255", 8), "done\n"},
      {"set-time-and-time-zone 2024-03-01T00:00:00Z Asia/Shanghai GMT+08:00", "done\n"},
      {"get-time-and-time-zone",
       "time: 2024-03-01T00:00:00Z\nzoneId: Asia/Shanghai\nutcOffset: GMT+08:00\n"},
      {"set-time 2024-02-29T23:59:59", "done\n"},
      {"get-time-and-time-zone",
       "time: 2024-02-29T15:59:59Z\nzoneId: Asia/Shanghai\nutcOffset: GMT+08:00\n"},
      {"set-brightness-auto 0 10 200 255", "done\n"},
      {"get-brightness-auto", "0 10\n200 255\n0 0\n0 0\n0 0\n0 0\n0 0\n0 0\n"},
      {"get-brightness-info", "mode: automatic\nbrightness: 80\n"},
      {"set-brightness-by-time-list " + times + " 255", "done\n"},
      {"get-brightness-by-time-list", times + " 255\n"},
      {"get-brightness-info", "mode: timetable\nbrightness: 80\n"},
      {"set-device-power-by-time-list " + times, "done\n"},
      {"get-device-power-by-time-list", times + "\n"},
      {"set-play-by-time-list none", "done\n"},
      {"set-play-by-time-list " + times + " 200 " + times + " 7", "done\n"},
      {"get-play-by-time-list", times + " 200\n" + times + " 7\n"},
  };
  sim::Options options;
  options.state.temperature = -7;
  options.state.name = "\xC4\xE3\"\\";
  auto& controller = startController(std::move(options));
  for (const auto& [arguments, text] : lines) EXPECT_EQ(told(controller, arguments), text);
  // Day, month, year, second, minute, hour: in calendar time, unlike everything else in a tm.
  const std::string wire = "01 03 E8 07 00 00 08 1F 0C E8 07 3A 3B 17";
  EXPECT_EQ(controller.state().timetables.play,
            literal("02 " + wire + " C8 00 " + wire + " 07 00"));
}

TEST_F(Cli, SetsTheClockToNow) {
  auto& controller = startController();
  for (const std::string arguments : {"set-time now", "set-time-and-time-zone now UTC GMT+00:00"}) {
    EXPECT_EQ(told(controller, arguments), "done\n");
    const std::chrono::milliseconds set(controller.state().clock.time);
    // Local time may be so far away from the controller's.
    EXPECT_LT(std::chrono::abs(std::chrono::system_clock::now().time_since_epoch() - set),
              std::chrono::hours(15));
  }
}

TEST_F(Cli, PassesArgumentsInTheirOrder) {
  sim::Lines heard;
  sim::Options options;
  options.onLine = heard.sink();
  auto& controller = startController(std::move(options));
  for (const auto& [arguments, line] :
       {std::pair{"set-relay-powers on off off on", "setRelayPowers  on off off on"},
        {"set-multi-function-card-power 1 2 on", "setMultiFunctionCardPower  card 1, output 2 on"},
        {"set-anti-aliasing off on off", "setAntiAliasing  off on off"},
        {"set-device-net-basic-param 10.0.0.1 255.0.0.0 10.0.0.2 50000 10.0.0.3",
         "10.0.0.1 mask 255.0.0.0 gateway 10.0.0.2 port 50000 server 10.0.0.3"},
        {"set-device-secret-param door 1:12345678 on abcdefgh", "\"door\", des on"}}) {
    EXPECT_EQ(told(controller, arguments), "done\n");
    EXPECT_TRUE(heard.waitFor(line)) << line;
  }
  EXPECT_EQ(controller.state().security.key.text, "12345678");
  EXPECT_EQ(controller.state().security.secondKey, "abcdefgh");
  stopControllers();  // which call onLine
}

TEST_F(Cli, TakesAnyTextAsAName) {
  auto& controller = startController();
  for (const std::string name :
       {"get-sn", "listen", "127.0.0.1:5005", "[a,b]", "a=b", "展厅 1 屏"}) {
    EXPECT_EQ(told(controller, "set-device-name \"" + name + "\""), "done\n");
    EXPECT_EQ(controller.state().name, name);
    EXPECT_EQ(told(controller, "get-device-name"), name + "\n");
  }
  EXPECT_EQ(told(controller, "set-device-name -- --json"), "done\n");
  EXPECT_EQ(controller.state().name, "--json");
  EXPECT_EQ(told(controller, "set-device-name \"\""), "done\n");
  EXPECT_EQ(controller.state().name, "");
}

TEST_F(Cli, EnciphersWithEveryCipher) {
  for (const std::string cipher : {"des", "aes", "sm4"}) {
    auto& controller = startController(sim::keyed(cipher + ":12345678"));
    EXPECT_EQ(told(controller, "set-brightness 77 --key " + cipher + ":12345678"), "done\n");
    EXPECT_EQ(told(controller, "--key " + cipher + ":12345678 get-device-name"), "tovisim\n");
    EXPECT_TRUE(told(controller, "set-brightness 78 --timeout 20 --key " + cipher + ":abcdefgh")
                    .starts_with("1 tovi: "));
    EXPECT_EQ(controller.state().brightness, 77) << cipher;
  }
}

TEST_F(Cli, SendsAFile) {
  const std::string content = std::string(100'000, '\0') + std::string(100'000, '\xEE');
  auto& controller = startController();
  // A progress bar is for terminals.
  EXPECT_EQ(told(controller, "send-file " + file("a", content) + " b.bin"), "done\n");
  EXPECT_EQ(controller.controller().files().read("b.bin"), sim::bytesOf(content));
  EXPECT_EQ(told(controller, "get-device-memory-size"), "total: 1048576\nfree: 1048380\n");
  EXPECT_EQ(told(controller, "get-cpu-and-memory-info"),
            "cpuUsage: 7%\ndiskTotal: 1024MB\ndiskFree: 1023MB\n");
}

TEST_F(Cli, SendsAFileThatHasAChineseName) {
  auto& controller = startController();
  const std::string name = "\xE5\xB1\x8F.bin";
  const std::string whole = path("") + name;
  std::ofstream(platform::pathOf(whole)) << "x";
  const std::string text = told(controller, "send-file " + whole + " " + name);
  if (platform::utf8ToLocal(name)) {
    EXPECT_EQ(text, "done\n");
    EXPECT_EQ(controller.controller().files().read(name), sim::bytesOf("x"));
  } else {
    EXPECT_TRUE(text.starts_with("2 ")) << text;
    EXPECT_NE(text.find("that the local code page lacks"), std::string::npos) << text;
  }
}

TEST_F(Cli, SendsAPlaylistFromAFileOrStandardInput) {
  auto& controller = startController();
  const std::string list = file("list", "[\"\xE5\xB1\x8F\"]\n");
  EXPECT_EQ(told(controller, "send-play-list 7 " + list), "done\n");
  EXPECT_EQ(told(controller, "get-now-play-content"),
            "playing: yes\nplayId: 7\ncontent: play007.lst\n");
  EXPECT_EQ(told(controller, "send-play-list 200 - <" + list), "done\n");
  for (const std::string name : {"play007.lst", "play200.lst"}) {
    EXPECT_EQ(controller.controller().files().read(name), sim::bytesOf(contentOf("list")));
  }
  EXPECT_EQ(told(controller, "get-all-playlist-id"), "7\n200\n");
}

TEST_F(Cli, LogsWhatItIsToldTo) {
  auto& controller = startController();
  const auto logs = [&](const std::string& level) {
    const std::string folder = path("log" + level);
    fs::create_directory(folder);
    told(controller, "get-sn --log-dir " + folder + (level.empty() ? "" : " --log-level " + level));
    return !fs::is_empty(folder);
  };
  EXPECT_FALSE(logs(""));
  EXPECT_TRUE(logs("0"));
  EXPECT_FALSE(logs("4"));
}

TEST_F(Cli, FailsWhenItsResultsCannotBeWritten) {
  if (!fs::is_character_file("/dev/full")) GTEST_SKIP() << "no file here is always full";
  EXPECT_EQ(told(startController(), "get-sn >/dev/full"),
            "1 tovi: the results cannot be written\n");
}

}  // namespace
}  // namespace tovi::cli
