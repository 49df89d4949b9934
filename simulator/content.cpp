// What the controller stores and takes from elsewhere: lists of files, clean-up, updates,
// downloads.
#include "simulator/json.h"
#include "simulator/playlists.h"
#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

constexpr std::size_t kMaxText = 1024;
constexpr std::size_t kMaxListed = 60'000;  // so that a list fits a frame
constexpr std::uint8_t kTestMark = 0xFE;

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

// The same code sends an update, sends one to be tried, and takes one back.
bool isTestUpdate(View payload) { return payload.size() >= 3 && payload[1] == kTestMark; }
bool isUpdate(View payload) { return beginsWith<1>(payload) && !isTestUpdate(payload); }
bool isUpdateRemoval(View payload) { return beginsWith<0>(payload) && !isTestUpdate(payload); }

std::string typeText(std::uint8_t type) { return "type " + std::to_string(type); }

Answer sendLocalUpdate(const Request& request) {
  const std::uint8_t type = request.payload[1];
  const std::string text = textOf(request.payload.subspan(2));
  request.state.content.updates[type] = text;
  return request.accept(typeText(type) + " " + inQuotes(text));
}

Answer sendTestLocalUpdate(const Request& request) {
  const std::uint8_t type = request.payload[0];
  const std::string text = textOf(request.payload.subspan(2));
  request.state.content.testUpdates[type] = text;
  return request.accept(typeText(type) + " " + inQuotes(text));
}

Answer removeLocalUpdate(const Request& request) {
  const std::uint8_t type = request.payload[1];
  const bool there = request.state.content.updates.erase(type) > 0;
  return there ? request.accept(typeText(type)) : request.refuse(typeText(type) + " is not there");
}

Answer updateFileName(const Request& request) {
  return setText(request, request.state.content.updateName);
}

Answer sendFtpDownloadaddress(const Request& request) {
  return setText(request, request.state.content.downloadAddress);
}

// "In progress" a few times, then "done".
Answer downloadFiles(const Request& request) {
  const std::string list = textOf(request.payload);
  if (list.front() != '[' || list.back() != ']') return request.refuse(inQuotes(list));
  Content& content = request.state.content;
  content.downloadList = list;
  Answer answer = request.accept(inQuotes(list));
  const Message progress{request.row.command.reply, {2}};
  answer.replies.insert(answer.replies.begin(), static_cast<std::size_t>(content.downloadSteps),
                        progress);
  return answer;
}

constexpr Row kRows[] = {
    {command("getAllMediaFileName"), getAllMediaFileName},
    {command("getFileListName"), getFileListName, exactly(1)},
    {command("cleanUpFiles"), cleanUpFiles, exactly(1)},
    {command("sendTestLocalUpdate"), sendTestLocalUpdate, {3, 2 + kMaxText}, isTestUpdate},
    {command("sendLocalUpdate"), sendLocalUpdate, {3, 2 + kMaxText}, isUpdate},
    {command("removeLocalUpdate"), removeLocalUpdate, exactly(2), isUpdateRemoval},
    {command("updateFileName"), updateFileName, {1, kMaxText}},
    {command("sendFtpDownloadaddress"), sendFtpDownloadaddress, {1, kMaxText}},
    {command("downloadFiles"), downloadFiles, atLeast(2)},
};

}  // namespace

std::span<const Row> contentRows() { return kRows; }

}  // namespace tovi::sim
