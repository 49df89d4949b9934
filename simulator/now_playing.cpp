// SPDX-License-Identifier: MIT
// What the screen is showing.
#include "simulator/playlists.h"
#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

// What is told of a playlist at most, so that it fits a frame.
constexpr std::size_t kMaxTold = 60'000;

// The playlist that is playing, unless its file has gone meanwhile.
std::optional<int> nowPlaying(const Request& request) {
  const std::optional<int> playing = request.state.content.playing;
  return playing && request.files.has(playlistName(*playing)) ? playing : std::nullopt;
}

Answer getNowPlayContent(const Request& request) {
  const auto playing = nowPlaying(request);
  if (!playing) return request.tell("nothing", {2, 0, 0});
  Bytes reply{1, 0, static_cast<std::uint8_t>(*playing & 0xFF)};
  const Bytes name = bytesOf(playlistName(*playing));
  reply.insert(reply.end(), name.begin(), name.end());
  return request.tell(playlistText(*playing), std::move(reply));
}

Answer getNowPlayAllContent(const Request& request) {
  const auto playing = nowPlaying(request);
  if (!playing) return request.tell("nothing", {0});
  Bytes reply{static_cast<std::uint8_t>(*playing & 0xFF)};
  const Bytes text = request.files.read(playlistName(*playing), kMaxTold).value_or(Bytes{});
  reply.insert(reply.end(), text.begin(), text.end());
  return request.tell(playlistText(*playing), std::move(reply));
}

constexpr Row kRows[] = {
    {command("getNowPlayContent"), getNowPlayContent},
    {command("getNowPlayAllContent"), getNowPlayAllContent},
};

}  // namespace

std::span<const Row> nowPlayingRows() { return kRows; }

}  // namespace tovi::sim
