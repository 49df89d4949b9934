// SPDX-License-Identifier: MIT
// What the display shows, as a picture that comes in pieces.
#include <algorithm>

#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

constexpr std::size_t kFullPiece = 65'535;
constexpr int kMostPixels = 4'000'000;

std::size_t rowSize(int width) { return (static_cast<std::size_t>(width) + 3) / 4 * 4; }

// A bitmap of 8 bits a pixel, whose palette is 256 greys.
Bytes greyPicture(int width, int height, std::uint8_t grey) {
  constexpr std::size_t kHeaders = 14 + 40;
  constexpr std::size_t kPalette = std::size_t{256} * 4;
  const std::size_t pixels = rowSize(width) * static_cast<std::size_t>(height);

  Bytes picture{'B', 'M'};
  picture.reserve(kHeaders + kPalette + pixels);
  appendLowFirst(picture, kHeaders + kPalette + pixels, 4);
  appendLowFirst(picture, 0, 4);
  appendLowFirst(picture, kHeaders + kPalette, 4);
  appendLowFirst(picture, 40, 4);
  appendLowFirst(picture, static_cast<unsigned>(width), 4);
  appendLowFirst(picture, static_cast<unsigned>(height), 4);
  appendLowFirst(picture, 1, 2);
  appendLowFirst(picture, 8, 2);
  appendLowFirst(picture, 0, 4);
  appendLowFirst(picture, pixels, 4);
  appendLowFirst(picture, 0, 8);
  appendLowFirst(picture, 256, 4);
  appendLowFirst(picture, 0, 4);
  for (std::uint64_t level = 0; level < 256; ++level) appendLowFirst(picture, level * 0x010101, 4);
  picture.resize(kHeaders + kPalette + pixels, grey);
  return picture;
}

// A display of very many pixels is shown smaller, as a real one sends a preview.
Bytes screenPicture(const State& state) {
  int width = state.display.mode.width;
  int height = state.display.mode.height;
  while (width > kMostPixels / height) {
    width = std::max(width / 2, 1);
    height = std::max(height / 2, 1);
  }
  Bytes picture = greyPicture(width, height, state.screenOpen ? state.brightness : 0);
  if (state.display.screenshotSize) picture.resize(*state.display.screenshotSize);
  return picture;
}

// Each piece: its number in two bytes, then its part of the picture. One that is not full ends it.
Answer getDeviceScreenshot(const Request& request) {
  if (request.payload[0] != 0xFF || request.payload[1] != 0xFF) return request.refuse();
  const Bytes picture = screenPicture(request.state);
  Answer answer = request.keepQuiet();
  View left = picture;
  for (bool more = true; more;) {
    const View part = left.first(std::min(left.size(), kFullPiece));
    Bytes piece;
    appendLowFirst(piece, answer.replies.size() + 1, 2);
    piece.insert(piece.end(), part.begin(), part.end());
    answer.replies.push_back({request.row.command.reply, std::move(piece)});
    left = left.subspan(part.size());
    more = part.size() == kFullPiece;
  }
  answer.told = "a picture of " + std::to_string(picture.size()) + " bytes in " +
                std::to_string(answer.replies.size()) + " pieces";
  return answer;
}

constexpr Row kRows[] = {
    {command("getDeviceScreenshot"), getDeviceScreenshot, exactly(2)},
};

}  // namespace

std::span<const Row> screenshotRows() { return kRows; }

}  // namespace tovi::sim
