// SPDX-License-Identifier: MIT
// The output: resolution, EDID, video source, anti-aliasing, pre-stored screen, fonts, broken
// pixels. Settings in JSON go both ways.
#include "simulator/json.h"
#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

constexpr int kLongestSide = 16'384;
constexpr int kFastestRate = 1000;
constexpr std::size_t kMaxJson = 4096;
constexpr std::size_t kMaxFont = 1024;

// Small enough that a few dozen pixels take several parts.
constexpr std::size_t kPixelPart = 256;

constexpr std::string_view kVideoSources[] = {"internal", "hdmi1", "hdmi2", "dvi"};
constexpr int kLastVideoSource = static_cast<int>(std::size(kVideoSources)) - 1;

// What two commands set alike, but for the name of the rate.
std::optional<Display::Mode> readMode(const Json& members, std::string_view rateName) {
  const auto width = jsonNumber(members, "width", 1, kLongestSide);
  const auto height = jsonNumber(members, "height", 1, kLongestSide);
  const auto rate = jsonNumber(members, rateName, 1, kFastestRate);
  if (!width || !height || !rate) return std::nullopt;
  return Display::Mode{*width, *height, *rate};
}

std::string modeText(const Display::Mode& mode) {
  return std::to_string(mode.width) + "x" + std::to_string(mode.height) + " at " +
         std::to_string(mode.rate);
}

Answer setMode(const Request& request, Display::Mode& mode,
               const std::optional<Display::Mode>& wanted) {
  if (!wanted) return request.refuse(inQuotes(textOf(request.payload)));
  mode = *wanted;
  return request.accept(modeText(mode));
}

Answer setCustomResolution(const Request& request) {
  const auto members = jsonObject(request.payload);
  if (!members) return request.refuse();
  const bool custom = jsonNumber(*members, "displayMode", 1, 1).has_value();
  return setMode(request, request.state.display.mode,
                 custom ? readMode(*members, "refreshRate") : std::nullopt);
}

Answer getCurrentResolution(const Request& request) {
  const Display::Mode& mode = request.state.display.mode;
  return tellJson(request,
                  {{"value", std::to_string(mode.width) + "x" + std::to_string(mode.height)}});
}

Answer setEdidInfo(const Request& request) {
  const auto members = jsonObject(request.payload);
  if (!members) return request.refuse();
  return setMode(request, request.state.display.edid, readMode(*members, "fieldRate"));
}

Answer getEdidInfo(const Request& request) {
  const Display::Mode& edid = request.state.display.edid;
  return tellJson(request,
                  {{"width", edid.width}, {"height", edid.height}, {"fieldRate", edid.rate}});
}

Answer setVideoControlInfo(const Request& request) {
  const auto members = jsonObject(request.payload);
  if (!members) return request.refuse();
  const auto source = jsonNumber(*members, "videoSource", 0, kLastVideoSource);
  if (!source) return request.refuse(inQuotes(textOf(request.payload)));
  request.state.display.videoSource = *source;
  request.state.inputInside = *source == 0;
  return request.accept(std::string(kVideoSources[*source]));
}

Answer getVideoControlInfo(const Request& request) {
  return tellJson(request, {{"videoSource", request.state.display.videoSource}});
}

Answer getSupportVideoSource(const Request& request) {
  Json sources = Json::array();
  for (const std::string_view name : kVideoSources) {
    sources.push_back({{"id", sources.size()}, {"name", name}});
  }
  return tellJson(request, sources);
}

Answer getDeviceSize(const Request& request) {
  const Display::Mode& mode = request.state.display.mode;
  Bytes reply;
  appendLowFirst(reply, static_cast<unsigned>(mode.width), 2);
  appendLowFirst(reply, static_cast<unsigned>(mode.height), 2);
  return request.tell(std::to_string(mode.width) + " x " + std::to_string(mode.height),
                      std::move(reply));
}

std::string flagsText(const std::array<bool, 3>& flags) {
  return onOff(flags[0]) + " " + onOff(flags[1]) + " " + onOff(flags[2]);
}

Answer setAntiAliasing(const Request& request) {
  auto& flags = request.state.display.antiAliasing;
  for (std::size_t i = 0; i < flags.size(); ++i) flags[i] = request.payload[i] == 1;
  return request.keepQuiet(flagsText(flags));
}

Answer getAntiAliasing(const Request& request) {
  const auto& flags = request.state.display.antiAliasing;
  return request.tell(flagsText(flags), {byteOf(flags[0]), byteOf(flags[1]), byteOf(flags[2])});
}

Answer setSyncPlay(const Request& request) {
  return setFlags(request, {&request.state.display.syncPlay});
}

// Hosts take the first byte for the acknowledgement; what is set comes behind it.
Answer getSyncPlay(const Request& request) {
  const bool on = request.state.display.syncPlay;
  return request.tell(onOff(on), {1, byteOf(on)});
}

Answer setPreStoredScreenEnabled(const Request& request) {
  if (request.payload[1] > 1) return request.refuse();
  request.state.display.preStoredScreen = request.payload[1] == 1;
  return request.tell("accepted, " + onOff(request.payload[1] == 1), {kDo, 1});
}

Answer getPreStoredScreenEnabled(const Request& request) {
  const bool on = request.state.display.preStoredScreen;
  return request.tell(onOff(on), {kAsk, 1, byteOf(on)});
}

Answer setFont(const Request& request) { return setText(request, request.state.display.font); }

Answer getFontList(const Request& request) {
  return tellJson(request, {{"current", request.state.display.font},
                            {"fonts", Json::array({"Sans", "Serif", "Mono"})}});
}

std::string badPixelsText(const Display& display) {
  return std::to_string(display.badPixels.size()) + " broken pixels";
}

Answer startScreenPointDetect(const Request& request) {
  Display& display = request.state.display;
  display.pixelsTested = true;
  Bytes reply{1};
  appendLowFirst(reply, display.badPixels.size(), 4);
  return request.tell(badPixelsText(display), std::move(reply));
}

// First how many parts there are, then the parts: "x,y;x,y".
Answer getDetectErrorPointData(const Request& request) {
  const Display& display = request.state.display;
  if (!display.pixelsTested) return request.refuse("not tested yet");
  std::string text;
  for (const auto& [x, y] : display.badPixels) {
    text += (text.empty() ? "" : ";") + std::to_string(x) + "," + std::to_string(y);
  }
  Bytes announced{1};
  appendLowFirst(announced, (text.size() + kPixelPart - 1) / kPixelPart, 2);
  Answer answer = request.tell(badPixelsText(display), std::move(announced));
  for (std::size_t at = 0; at < text.size(); at += kPixelPart) {
    answer.replies.push_back({request.row.command.reply, bytesOf(text.substr(at, kPixelPart))});
  }
  return answer;
}

Bytes refusedPixels(View) { return {0, 0, 0}; }

constexpr Row kRows[] = {
    {command("setCustomResolution"), setCustomResolution, atMost(kMaxJson)},
    {command("getCurrentResolution"), getCurrentResolution},
    {command("setEdidInfo"), setEdidInfo, atMost(kMaxJson)},
    {command("getEdidInfo"), getEdidInfo},
    {command("setVideoControlInfo"), setVideoControlInfo, atMost(kMaxJson)},
    {command("getVideoControlInfo"), getVideoControlInfo},
    {command("getSupportVideoSource"), getSupportVideoSource},
    {command("getDeviceSize"), getDeviceSize},
    {command("setAntiAliasing"), setAntiAliasing, exactly(3)},
    {command("getAntiAliasing"), getAntiAliasing},
    {command("setSyncPlay"), setSyncPlay, exactly(1)},
    {command("getSyncPlay"), getSyncPlay},
    {command("setPreStoredScreenEnabled"), setPreStoredScreenEnabled, exactly(2), beginsWith<kDo>,
     refuseBehindSwitch},
    {command("getPreStoredScreenEnabled"), getPreStoredScreenEnabled, exactly(1), beginsWith<kAsk>,
     refuseBehindSwitch},
    {command("setFont"), setFont, {1, kMaxFont}},
    {command("getFontList"), getFontList},
    {command("startScreenPointDetect"), startScreenPointDetect},
    {command("getDetectErrorPointData"), getDetectErrorPointData, {}, nullptr, refusedPixels},
};

}  // namespace

std::span<const Row> displayRows() { return kRows; }

}  // namespace tovi::sim
