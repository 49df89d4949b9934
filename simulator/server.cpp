// SPDX-License-Identifier: MIT
#include "simulator/server.h"

#include <algorithm>
#include <array>
#include <system_error>
#include <utility>

#include "simulator/connection.h"
#include "simulator/describe.h"

namespace tovi::sim {
namespace {

using Clock = Connection::Clock;
using std::chrono::milliseconds;

constexpr int kDialMs = 5000;
constexpr std::size_t kReceiveSize = 65'536;

// A peer that takes nothing for so long is given up, because meanwhile all others wait.
constexpr int kSendMs = 2000;

// When a connection cannot be taken, most likely for want of descriptors, trying again at once
// would only burn the processor.
constexpr milliseconds kAcceptPause{20};

}  // namespace

Simulator::Simulator(Options options)
    : mOptions(std::move(options)),
      mController(mOptions.state, mOptions.files),
      mFaults(mOptions.faults) {
  mController.change([this](State& state) { state.security.key = mOptions.key; });
}

Simulator::~Simulator() { stop(); }

bool Simulator::start() {
  const std::lock_guard lock(mStopMutex);
  if (mStarted) return false;
  mError = mController.error();
  if (!mError.empty()) return false;
  if (platform::startUpSockets() != platform::StartUp::Ready) {
    mError = "the socket layer does not start";
    return false;
  }
  if (!openSockets()) {
    releaseSockets();
    return false;
  }
  mStarted = true;
  mThread = std::thread([this] { run(); });
  return true;
}

bool Simulator::openSockets() {
  if (!mWakeUp.open()) {
    fail("cannot connect to itself");
    return false;
  }
  const Endpoint& endpoint = mOptions.dial ? *mOptions.dial : mOptions.listen;
  const std::string what = mOptions.dial ? "cannot reach a host at " : "cannot listen on ";
  const auto address = tools::addressOf(endpoint.host);
  if (!address) {
    mError = what + tools::endpointText(endpoint) + ": " + tools::kNoSuchHost;
    return false;
  }
  const bool opened =
      mOptions.dial ? dial(*address, endpoint.port) : listen(*address, endpoint.port);
  if (!opened) fail(what + tools::endpointText(endpoint));
  return opened;
}

bool Simulator::listen(const std::string& address, std::uint16_t port) {
  mListener = platform::listenOn(address, port);
  if (mListener == platform::kInvalidSocket) return false;
  mPort = platform::localPort(mListener);
  return true;
}

bool Simulator::dial(const std::string& address, std::uint16_t port) {
  const platform::Socket socket = platform::openSocket();
  if (socket == platform::kInvalidSocket) return false;
  addConnection(socket);
  if (!platform::connectSocket(socket, address.c_str(), port, kDialMs)) return false;
  mConnections.back()->peer = platform::peerName(socket);
  return true;
}

void Simulator::fail(const std::string& what) {
  const int number = platform::lastSocketError();
  mError = what + ": " + std::system_category().message(number);
}

void Simulator::releaseSockets() {
  for (const auto& connection : mConnections) platform::closeSocket(connection->socket);
  mConnections.clear();
  if (mListener != platform::kInvalidSocket) platform::closeSocket(mListener);
  mListener = platform::kInvalidSocket;
  mWakeUp.close();
  platform::cleanUpSockets();
}

void Simulator::stop() {
  const std::lock_guard lock(mStopMutex);
  if (!mThread.joinable()) return;
  mStopping = true;
  mWakeUp.wake();
  mThread.join();
  releaseSockets();
}

std::uint64_t Simulator::exchanges() const {
  const std::lock_guard lock(mProgressMutex);
  return mExchanges;
}

bool Simulator::waitForExchanges(std::uint64_t count, milliseconds atMost) const {
  std::unique_lock lock(mProgressMutex);
  return mProgress.wait_for(lock, atMost, [&] { return mExchanges >= count; });
}

bool Simulator::waitUntilFinished(milliseconds atMost) const {
  std::unique_lock lock(mProgressMutex);
  return mProgress.wait_for(lock, atMost, [&] { return mFinished; });
}

void Simulator::run() {
  while (!finished()) {
    std::vector<Connection*> heard;
    for (const auto& connection : mConnections) {
      if (connection->isListening()) heard.push_back(connection.get());
    }
    const bool accepting = mayAccept();
    std::vector<platform::Watched> watched{{mWakeUp.socket(), false}};
    for (const Connection* connection : heard) watched.push_back({connection->socket, false});
    if (accepting) watched.push_back({mListener, false});

    platform::waitReadable(watched, waitTime());
    if (watched.front().readable) break;
    for (std::size_t i = 0; i < heard.size(); ++i) {
      if (watched[i + 1].readable) receive(*heard[i]);
    }
    if (accepting && watched.back().readable) acceptOne();
    for (const auto& connection : mConnections) sendDue(*connection);
    removeEnded();
  }
  for (const auto& connection : mConnections) connection->ended = true;
  removeEnded();
  const std::lock_guard lock(mProgressMutex);
  mFinished = true;
  mProgress.notify_all();
}

bool Simulator::finished() const {
  if (mStopping) return true;
  if (mOptions.dial && mConnections.empty()) return true;
  return mOptions.exchangeLimit > 0 && exchanges() >= mOptions.exchangeLimit &&
         std::all_of(mConnections.begin(), mConnections.end(),
                     [](const auto& connection) { return connection->due.empty(); });
}

bool Simulator::mayAccept() const {
  return mListener != platform::kInvalidSocket && mConnections.size() < mOptions.maxConnections &&
         Clock::now() >= mAcceptAfter;
}

// Until the next step is due; without one, for ever.
int Simulator::waitTime() const {
  auto next = Clock::time_point::max();
  if (mAcceptAfter > Clock::now()) next = mAcceptAfter;
  for (const auto& connection : mConnections) {
    if (!connection->due.empty()) next = std::min(next, connection->due.front().when);
  }
  if (next == Clock::time_point::max()) return -1;
  const auto left = std::chrono::ceil<milliseconds>(next - Clock::now()).count();
  return static_cast<int>(std::max<decltype(left)>(left, 0));
}

void Simulator::acceptOne() {
  const platform::Socket socket = platform::acceptOne(mListener);
  if (socket == platform::kInvalidSocket) {
    mAcceptAfter = Clock::now() + kAcceptPause;
  } else {
    addConnection(socket);
  }
}

void Simulator::addConnection(platform::Socket socket) {
  mConnections.push_back(
      std::make_unique<Connection>(Connection{socket, platform::peerName(socket)}));
}

void Simulator::receive(Connection& connection) {
  std::array<char, kReceiveSize> buffer;
  const int size = platform::receiveSome(connection.socket, buffer, 1);
  if (size <= 0) {
    connection.ended = true;
    const auto& upload = connection.session.upload;
    const std::string lost = upload && upload->file != nullptr ? upload->file->name() : "";
    connection.session = {};
    if (!lost.empty()) say(connection.peer + "  hung up inside " + lost + ", which is discarded");
    const std::size_t unfinished = connection.reader.unfinished();
    if (unfinished > 0) {
      say(connection.peer + "  hung up inside a frame, after " + std::to_string(unfinished) +
          " bytes");
    }
    return;
  }
  const Bytes bytes = bytesOf({buffer.data(), static_cast<std::size_t>(size)});
  // Each reply goes out before the next request is served: many requests in one segment must not
  // heap up their replies.
  for (const Received& received : connection.reader.feed(bytes)) {
    if (connection.ended) break;
    serve(connection, received);
    sendDue(connection);
  }
}

void Simulator::serve(Connection& connection, const Received& received) {
  const bool enough = mOptions.exchangeLimit > 0 && exchanges() >= mOptions.exchangeLimit;
  if (connection.hangingUp || enough) return;
  if (received.drop != Drop::None) return say(dropLine(connection.peer, received));
  const Key key = mController.key();
  auto request = readRequest(received, key);
  if (!request) return say(unreadableLine(connection.peer, received, key));

  Exchange exchange = converse(std::move(*request), mController, connection.session, key, mFaults);
  std::string line = exchangeLine(connection.peer, exchange);
  if (mOptions.frames) line += '\n' + exchangeFrames(exchange);
  say(line);
  connection.add(std::move(exchange.steps));

  const std::lock_guard lock(mProgressMutex);
  ++mExchanges;
  mProgress.notify_all();
}

void Simulator::sendDue(Connection& connection) {
  while (!connection.ended && !connection.due.empty() &&
         connection.due.front().when <= Clock::now()) {
    const Step step = std::move(connection.due.front().step);
    connection.due.pop_front();
    const std::string bytes = textOf(step.bytes);
    const bool sent = bytes.empty() || platform::sendAll(connection.socket, bytes, kSendMs) >= 0;
    if (step.end == End::Reset) platform::resetOnClose(connection.socket);
    connection.ended = !sent || step.end != End::Stay;
  }
}

void Simulator::removeEnded() {
  std::erase_if(mConnections, [](const auto& connection) {
    if (connection->ended) platform::closeSocket(connection->socket);
    return connection->ended;
  });
}

void Simulator::say(const std::string& line) const {
  if (mOptions.onLine) mOptions.onLine(line);
}

}  // namespace tovi::sim
