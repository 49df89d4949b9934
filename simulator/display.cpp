// The output: resolution, video source, EDID, anti-aliasing, fonts. Settings in JSON go both ways.
#include "simulator/json.h"
#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

constexpr int kLongestSide = 16'384;
constexpr int kFastestRate = 1000;
constexpr std::size_t kMaxJson = 4096;
constexpr std::size_t kMaxFont = 1024;

constexpr std::string_view kVideoSources[] = {"internal", "hdmi1", "hdmi2", "dvi"};
constexpr int kLastVideoSource = static_cast<int>(std::size(kVideoSources)) - 1;

std::string modeText(int width, int height, int rate) {
  return std::to_string(width) + "x" + std::to_string(height) + " at " + std::to_string(rate);
}

Answer setCustomResolution(const Request& request) {
  const auto members = jsonMembers(textOf(request.payload));
  if (!members) return request.refuse();
  const auto width = jsonNumber(*members, "width", 1, kLongestSide);
  const auto height = jsonNumber(*members, "height", 1, kLongestSide);
  const auto rate = jsonNumber(*members, "refreshRate", 1, kFastestRate);
  if (!jsonNumber(*members, "displayMode", 1, 1) || !width || !height || !rate) {
    return request.refuse(inQuotes(textOf(request.payload)));
  }
  Display& display = request.state.display;
  display.width = *width;
  display.height = *height;
  display.refreshRate = *rate;
  return request.accept(modeText(*width, *height, *rate));
}

Answer getCurrentResolution(const Request& request) {
  const Display& display = request.state.display;
  return tellText(request, R"({"value":")" + std::to_string(display.width) + "x" +
                               std::to_string(display.height) + R"("})");
}

Answer getDeviceSize(const Request& request) {
  const Display& display = request.state.display;
  Bytes reply;
  appendLowFirst(reply, static_cast<unsigned>(display.width), 2);
  appendLowFirst(reply, static_cast<unsigned>(display.height), 2);
  return request.tell(std::to_string(display.width) + " x " + std::to_string(display.height),
                      std::move(reply));
}

Answer setEdidInfo(const Request& request) {
  const auto members = jsonMembers(textOf(request.payload));
  if (!members) return request.refuse();
  const auto width = jsonNumber(*members, "width", 1, kLongestSide);
  const auto height = jsonNumber(*members, "height", 1, kLongestSide);
  const auto rate = jsonNumber(*members, "fieldRate", 1, kFastestRate);
  if (!width || !height || !rate) return request.refuse(inQuotes(textOf(request.payload)));
  request.state.display.edid = {*width, *height, *rate};
  return request.accept(modeText(*width, *height, *rate));
}

Answer getEdidInfo(const Request& request) {
  const Display::Edid& edid = request.state.display.edid;
  return tellText(request, R"({"width":)" + std::to_string(edid.width) + R"(,"height":)" +
                               std::to_string(edid.height) + R"(,"fieldRate":)" +
                               std::to_string(edid.fieldRate) + "}");
}

Answer setVideoControlInfo(const Request& request) {
  const auto members = jsonMembers(textOf(request.payload));
  if (!members) return request.refuse();
  const auto source = jsonNumber(*members, "videoSource", 0, kLastVideoSource);
  if (!source) return request.refuse(inQuotes(textOf(request.payload)));
  request.state.display.videoSource = *source;
  request.state.inputInside = *source == 0;
  return request.accept(std::string(kVideoSources[*source]));
}

Answer getVideoControlInfo(const Request& request) {
  return tellText(request,
                  R"({"videoSource":)" + std::to_string(request.state.display.videoSource) + "}");
}

Answer getSupportVideoSource(const Request& request) {
  std::string text = "[";
  for (int source = 0; source <= kLastVideoSource; ++source) {
    text += (source > 0 ? "," : "") + std::string(R"({"id":)") + std::to_string(source) +
            R"(,"name":)" + jsonString(kVideoSources[source]) + "}";
  }
  return tellText(request, text + "]");
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

Answer setFont(const Request& request) { return setText(request, request.state.display.font); }

Answer getFontList(const Request& request) {
  return tellText(request, R"({"current":)" + jsonString(request.state.display.font) +
                               R"(,"fonts":["Sans","Serif","Mono"]})");
}

constexpr Row kRows[] = {
    {command("setCustomResolution"), setCustomResolution, atMost(kMaxJson)},
    {command("getCurrentResolution"), getCurrentResolution},
    {command("getDeviceSize"), getDeviceSize},
    {command("setEdidInfo"), setEdidInfo, atMost(kMaxJson)},
    {command("getEdidInfo"), getEdidInfo},
    {command("setVideoControlInfo"), setVideoControlInfo, atMost(kMaxJson)},
    {command("getVideoControlInfo"), getVideoControlInfo},
    {command("getSupportVideoSource"), getSupportVideoSource},
    {command("setAntiAliasing"), setAntiAliasing, exactly(3)},
    {command("getAntiAliasing"), getAntiAliasing},
    {command("setSyncPlay"), setSyncPlay, exactly(1)},
    {command("getSyncPlay"), getSyncPlay},
    {command("setFont"), setFont, {1, kMaxFont}},
    {command("getFontList"), getFontList},
};

}  // namespace

std::span<const Row> displayRows() { return kRows; }

}  // namespace tovi::sim
