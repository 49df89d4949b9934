// SPDX-License-Identifier: MIT
// Files, keys and faults of single commands on the wire. All frames were computed with openssl and
// a separate checksum.
#include <gtest/gtest.h>

#include "simulator/server.h"
#include "tests/simulator/host.h"
#include "tests/transfer/temporary_folder.h"

namespace tovi::sim {
namespace {

constexpr std::string_view kName = "AA FF FF 11 FF FF 61 2E 74 78 74 CC 0C 5B";  // a.txt
constexpr std::string_view kNameTaken = "AA FF FF 12 01 CC A1 B4";
constexpr std::string_view kHello = "AA FF FF 13 01 00 68 65 6C 6C 6F CC CC 2F";
constexpr std::string_view kHelloStored = "AA FF FF 14 01 00 01 CC 91 C4 AA FF FF F9 01 CC A6 94";
constexpr std::string_view kGetNames = "AA FF FF B0 CC CB A3";
constexpr std::string_view kNames =
    "AA FF FF B0 01 5B 22 61 2E 74 78 74 22 5D 00 CC E3 A0";  // ["a.txt"]

TEST(FileServer, HasItsTimetablesAgainAfterARestart) {
  const test::TemporaryFolder folder;
  const auto list = literal("01 02 01 E8 07 05 04 03 1F 0C E9 07 3A 3B 17");
  {
    Controller controller({}, {folder.path()});
    EXPECT_EQ(controller.handle({0x8A, list}).told, "accepted");
    EXPECT_EQ(controller.handle({0x8A, literal("01 00")}).told, "refused");
    EXPECT_EQ(controller.handle({0x41, literal("00")}).told, "accepted");
    EXPECT_EQ(controller.handle({0xAA, literal("05 FE")}).told, "accepted");
    EXPECT_EQ(controller.handle({0xDC, literal("74")}).told, "accepted");
    EXPECT_EQ(controller.handle({0xDE, literal("01")}).told, "accepted");
    std::filesystem::create_directories(folder.path("schedules/files/setBrightnessAuto/occupied"));
    EXPECT_EQ(controller.handle({0x17, Bytes(24, 7)}).told, "refused") << "it cannot be kept";
    EXPECT_EQ(controller.state().timetables.brightnessCurve, Bytes(24, 0));
  }
  const Timetables kept = Controller({}, {folder.path()}).state().timetables;
  EXPECT_EQ(kept.power, list);
  EXPECT_EQ(kept.advance, "") << "it was removed";
  EXPECT_EQ(kept.automaticTimes, (std::array<std::uint8_t, 2>{5, 0xFE}));
  std::filesystem::remove(folder.path("schedules/files/setAutoBrightnessTimeParam"));
  std::ofstream(folder.path("schedules/files/setDevicePowerByTimeList")) << "damaged";
  EXPECT_EQ(Controller({}, {folder.path()}).state().timetables, Timetables{});

  State given;
  given.timetables.advance = "never kept";
  EXPECT_EQ(Controller(given, {folder.path()}).handle({0xDE, literal("01")}).told, "accepted");
}

TEST(FileServer, HasItsFolderAgainButNothingThatAHostLeftUnfinished) {
  const test::TemporaryFolder folder;
  Lines lines;
  Options options;
  options.files.folder = folder.path();
  options.onLine = lines.sink();
  {
    Running simulator(options);
    Host(simulator).ask(kName, kNameTaken);
    EXPECT_TRUE(lines.waitFor("hung up inside a.txt, which is discarded"));
    EXPECT_TRUE(std::filesystem::is_empty(folder.path("unfinished")));
    Host host(simulator);
    host.ask(kHello, "AA FF FF 14 01 00 00 CC 49 DD");
    host.ask(kName, kNameTaken);
    host.ask(kHello, kHelloStored);
  }
  EXPECT_EQ(folder.content("files/a.txt"), "hello");
  Host(Running(options)).ask(kGetNames, kNames);

  options.files.folder = folder.path("files/a.txt");
  EXPECT_TRUE(whyNot(options).starts_with("cannot use the folder"));
}

// What the host hears of a file of one chunk, and whether the file is there afterwards.
struct Spoilt {
  std::string_view fault;
  std::string_view toName;
  std::string_view toChunk;
  End end;
  bool stored;
};

constexpr std::string_view kChunkTaken = "AA FF FF 14 01 00 01 CC 91 C4";
constexpr std::string_view kChunkRefused = "AA FF FF 14 01 00 00 CC 49 DD";
constexpr Spoilt kSpoilt[] = {
    {"refuse@sendFileName", "AA FF FF 12 00 CC 79 AD", kChunkRefused, End::Stay, false},
    {"refuse@sendFileContent", kNameTaken, kChunkRefused, End::Stay, false},
    {"refuse@sendFileContent#2", kNameTaken, kHelloStored, End::Stay, true},
    {"refuse@recvFileOverRsp", kNameTaken, "AA FF FF 14 01 00 01 CC 91 C4 AA FF FF F9 00 CC 7E 8D",
     End::Stay, false},
    {"no-reply@recvFileOverRsp", kNameTaken, kChunkTaken, End::Stay, true},
    {"no-reply@sendFileContent", kNameTaken, "AA FF FF F9 01 CC A6 94", End::Stay, true},
    {"close-before@recvFileOverRsp", kNameTaken, kChunkTaken, End::Close, true},
    {"close-after@sendFileContent", kNameTaken, kChunkTaken, End::Close, false},
};

TEST(FileServer, FaultsStrikeTheStepTheyName) {
  for (const Spoilt& one : kSpoilt) {
    SCOPED_TRACE(one.fault);
    Running simulator(faulty({one.fault}));
    Host host(simulator);
    host.ask(kName, one.toName);
    host.ask(kHello, one.toChunk);
    if (one.end == End::Stay) {
      host.ask("AA FF FF EF 0C 01 CC 5E C1", "AA FF FF EF 0C 01 00 CC 50 D4");
    } else {
      EXPECT_EQ(host.end(), one.end);
    }
    EXPECT_EQ(simulator.controller().files().has("a.txt"), one.stored);
  }
}

TEST(KeyChange, TakesHoldWithTheNextRequest) {
  Running simulator;
  Host host(simulator);
  host.ask("AA FF FF 70 01 01 6C 91 21 31 32 33 34 35 36 37 38 CC D1 49",
           "AA FF FF 71 01 CC 88 5E");  // des:12345678
  host.ask(kGetVolume, "AA FF FF A9 B9 9F 50 3F 02 23 61 E8 CC 05 2E");
  // abcdefgh in its place; the answer is still under the former key.
  host.ask("AA FF FF EF 46 D5 DA DA 5B 37 DE B1 AE 9C 9F 1D 98 10 13 83 CC 5C 3F",
           "AA FF FF EF 1E 9F 1B B1 29 28 F7 94 CC 88 21");
  host.ask(kGetVolume, "AA FF FF A9 0B 39 A2 21 76 CE 99 FB CC 37 30");
  host.ask("AA FF FF 70 00 00 6C 91 21 CC 09 17", "AA FF FF 71 01 CC 88 5E");
  host.ask(kGetVolume, kVolume50);
}

}  // namespace
}  // namespace tovi::sim
