// SPDX-License-Identifier: MIT
// Updates, on the controller already or to be downloaded.
#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

constexpr std::size_t kMaxText = 1024;
constexpr std::uint8_t kTestMark = 0xFE;

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

Answer sendFtpDownloadaddress(const Request& request) {
  return setText(request, request.state.content.downloadAddress);
}

Answer updateFileName(const Request& request) {
  return setText(request, request.state.content.updateName);
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
    {command("sendLocalUpdate"), sendLocalUpdate, {3, 2 + kMaxText}, isUpdate},
    {command("sendTestLocalUpdate"), sendTestLocalUpdate, {3, 2 + kMaxText}, isTestUpdate},
    {command("removeLocalUpdate"), removeLocalUpdate, exactly(2), isUpdateRemoval},
    {command("sendFtpDownloadaddress"), sendFtpDownloadaddress, {1, kMaxText}},
    {command("updateFileName"), updateFileName, {1, kMaxText}},
    {command("downloadFiles"), downloadFiles, atLeast(2)},
};

}  // namespace

std::span<const Row> updateRows() { return kRows; }

}  // namespace tovi::sim
