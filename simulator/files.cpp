// SPDX-License-Identifier: MIT
// Files that come in (the name, numbered chunks, the controller's word at the end), the list of
// those that are there, and clean-up.
#include "simulator/files.h"

#include "simulator/json.h"
#include "simulator/playlists.h"
#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

constexpr std::uint8_t kNameMark[] = {0xFF, 0xFF};
constexpr std::size_t kNumberSize = 2;
constexpr std::size_t kFullChunk = 65'535;
constexpr std::size_t kFullCipheredChunk = 65'517;
constexpr std::size_t kMaxListed = 60'000;  // so that a list fits a frame

Answer sendFileName(const Request& request) {
  const View payload = request.payload;
  request.session.upload.reset();
  if (payload[0] != kNameMark[0] || payload[1] != kNameMark[1]) return request.refuse();
  const std::string name = textOf(payload.subspan(sizeof kNameMark));
  if (!isPlainName(name)) return request.refuse(inQuotes(name) + " is no name for a file");
  auto file = request.files.begin(name);
  if (file == nullptr) return request.refuse(inQuotes(name) + ", no room");
  request.session.upload.emplace().file = std::move(file);
  return request.accept(inQuotes(name));
}

Bytes refusedChunk(View payload) {
  const View number = payload.first(std::min(payload.size(), kNumberSize));
  Bytes reply(number.begin(), number.end());
  reply.resize(kNumberSize + 1, 0);
  return reply;
}

Answer takenChunk(const Request& request, std::string asked) {
  Answer answer = request.accept(std::move(asked));
  answer.replies[0].payload = {request.payload[0], request.payload[1], 1};
  return answer;
}

// A chunk that is not full is the last one. A playlist is one chunk, full or not: nothing follows
// to end it.
bool endsFile(const Request& request, const std::string& name, std::size_t size) {
  const bool ciphered = request.state.security.key.cipher != Cipher::None;
  return size != (ciphered ? kFullCipheredChunk : kFullChunk) || playlistNumber(name);
}

Answer sendFileContent(const Request& request) {
  const std::uint16_t number = lowFirst(request.payload);
  const View data = request.payload.subspan(kNumberSize);
  std::string asked =
      "chunk " + std::to_string(number) + ", " + std::to_string(data.size()) + " bytes";

  auto& upload = request.session.upload;
  if (!upload) return request.refuse(asked + ", no file begun");
  if (number != upload->next) {
    return request.refuse(asked + ", expected is chunk " + std::to_string(upload->next));
  }
  if (upload->file == nullptr) {
    // A host may end a file once more than it takes. It looks for our word on the file behind the
    // answer to this chunk and may have skipped the earlier one, so it is given again.
    if (!data.empty()) return request.refuse(asked + ", the file is complete");
    upload->whole = true;
  } else {
    if (!upload->file->append(data)) {
      upload.reset();
      return request.refuse(asked + ", no room");
    }
    upload->whole = endsFile(request, upload->file->name(), data.size());
  }
  ++upload->next;
  return takenChunk(request, std::move(asked));
}

Answer lastWord(std::string told, bool kept) {
  const wire::Command& end = command("recvFileOverRsp");
  return {std::string(end.method), {}, std::move(told), {{end.reply, {byteOf(kept)}}}};
}

enum class Kind : std::uint8_t { Any = 0, Media = 1, Playlists = 2, Updates = 3 };
constexpr std::string_view kKindNames[] = {"everything", "media files", "playlists", "updates"};

std::vector<std::string> namesOf(const Storage& files, Kind kind) {
  std::vector<std::string> names = files.names();
  std::erase_if(names, [kind](const std::string& name) {
    const Kind own = playlistNumber(name) ? Kind::Playlists : Kind::Media;
    return kind != Kind::Any && own != kind;
  });
  return names;
}

Answer tellNames(const Request& request, std::vector<std::string> names) {
  std::size_t size = 0;
  std::size_t listed = 0;
  while (listed < names.size() && size < kMaxListed) size += jsonText(names[listed++]).size() + 1;
  const std::size_t all = names.size();
  names.resize(listed);
  Answer answer = tellJson(request, names);
  answer.told = std::to_string(all) + " names";
  return answer;
}

Answer getAllMediaFileName(const Request& request) {
  return tellNames(request, namesOf(request.files, Kind::Media));
}

Answer getFileListName(const Request& request) {
  const std::uint8_t type = request.payload[0];
  if (type > static_cast<std::uint8_t>(Kind::Playlists)) return request.refuse();
  return tellNames(request, namesOf(request.files, static_cast<Kind>(type)));
}

Answer cleanUpFiles(const Request& request) {
  const std::uint8_t type = request.payload[0];
  if (type >= std::size(kKindNames)) return request.refuse();
  const auto kind = static_cast<Kind>(type);
  for (const std::string& name : namesOf(request.files, kind)) request.files.remove(name);
  if (kind == Kind::Any || kind == Kind::Updates) {
    request.state.content.updates.clear();
    request.state.content.testUpdates.clear();
  }
  return request.accept(std::string(kKindNames[type]));
}

constexpr Row kRows[] = {
    {command("sendFileName"), sendFileName, atLeast(sizeof kNameMark)},
    {command("sendFileContent"), sendFileContent, atLeast(kNumberSize), nullptr, refusedChunk},
    {command("getAllMediaFileName"), getAllMediaFileName},
    {command("getFileListName"), getFileListName, exactly(1)},
    {command("cleanUpFiles"), cleanUpFiles, exactly(1)},
};

}  // namespace

Answer confirmUpload(Upload& upload, Session& session) {
  upload.whole = false;
  if (upload.file == nullptr) return lastWord("told again", upload.kept);
  const auto file = std::move(upload.file);
  upload.kept = file->keep();
  if (!upload.kept) return lastWord(inQuotes(file->name()) + " cannot be stored", false);
  if (const auto number = playlistNumber(file->name())) session.lastPlaylist = number;
  return lastWord(inQuotes(file->name()) + " stored, " + std::to_string(file->size()) + " bytes",
                  true);
}

Answer refuseUpload(Upload& upload) {
  upload.whole = false;
  upload.file.reset();
  upload.kept = false;
  return lastWord("file refused", false);
}

std::span<const Row> fileRows() { return kRows; }

}  // namespace tovi::sim
