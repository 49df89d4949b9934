// SPDX-License-Identifier: MIT
#include "simulator/playlists.h"

#include <algorithm>

#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

constexpr std::string_view kPrefix = "play";
constexpr std::string_view kSuffix = ".lst";
constexpr std::size_t kDigits = 3;

// Commands carry the low byte of a number alone, which playlists above 255 share with others. Meant
// is the one just sent over the same connection, else the one of that very number, else the first
// that fits.
std::optional<int> playlistMeant(const Request& request, std::uint8_t id) {
  const auto fits = [id](int number) { return (number & 0xFF) == id; };
  const std::optional<int> last = request.session.lastPlaylist;
  if (last && fits(*last) && request.files.has(playlistName(*last))) return last;
  const std::vector<int> numbers = playlistNumbers(request.files);
  const auto found = std::find_if(numbers.begin(), numbers.end(), fits);
  return found == numbers.end() ? std::nullopt : std::optional(*found);
}

Answer playListById(const Request& request) {
  const auto number = playlistMeant(request, request.payload[0]);
  if (!number) return request.refuse(playlistText(request.payload[0]) + " is not there");
  request.state.content.playing = number;
  return request.accept(playlistText(*number));
}

Answer deletePlaylistById(const Request& request) {
  const auto number = playlistMeant(request, request.payload[0]);
  if (!number || !request.files.remove(playlistName(*number))) {
    return request.refuse(playlistText(request.payload[0]) + " is not there");
  }
  return request.accept(playlistText(*number));
}

Answer getAllPlaylistId(const Request& request) {
  const std::vector<int> numbers = playlistNumbers(request.files);
  Bytes reply;
  std::string told;
  for (const int number : numbers) {
    reply.push_back(static_cast<std::uint8_t>(number & 0xFF));
    told += (told.empty() ? "" : " ") + std::to_string(number);
  }
  return request.tell(told.empty() ? "none" : told, std::move(reply));
}

constexpr Row kRows[] = {
    {command("playListById"), playListById, exactly(1)},
    {command("deletePlaylistById"), deletePlaylistById, exactly(1)},
    {command("getAllPlaylistId"), getAllPlaylistId},
};

}  // namespace

std::optional<int> playlistNumber(std::string_view name) {
  if (name.size() != kPrefix.size() + kDigits + kSuffix.size() || !name.starts_with(kPrefix) ||
      !name.ends_with(kSuffix)) {
    return std::nullopt;
  }
  int number = 0;
  for (const char c : name.substr(kPrefix.size(), kDigits)) {
    if (c < '0' || c > '9') return std::nullopt;
    number = number * 10 + (c - '0');
  }
  return number;
}

std::string playlistName(int number) {
  const std::string digits = std::to_string(number);
  return std::string(kPrefix) + std::string(kDigits - digits.size(), '0') + digits +
         std::string(kSuffix);
}

std::string playlistText(int number) { return "playlist " + std::to_string(number); }

std::vector<int> playlistNumbers(const Storage& files) {
  std::vector<int> numbers;
  for (const std::string& name : files.names()) {
    if (const auto number = playlistNumber(name)) numbers.push_back(*number);
  }
  return numbers;
}

std::span<const Row> playlistRows() { return kRows; }

}  // namespace tovi::sim
