#include "tests/fuzz/AnsweringHost.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <vector>

#include "tests/fuzz/Promise.h"

namespace leafund::fuzz {

namespace {

constexpr std::string_view endOfHead = "\r\n\r\n";
constexpr int pauseMilliseconds = 1;
constexpr int quietMilliseconds = 2;

// Resets the connection, and so leaves no port behind that waits for late packets.
void cut(int socket) {
  const linger discard{1, 0};
  setsockopt(socket, SOL_SOCKET, SO_LINGER, &discard, sizeof discard);
  close(socket);
}

}  // namespace

AnsweringHost::AnsweringHost() {
  listener_ = socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  auto* plain = reinterpret_cast<sockaddr*>(&address);
  socklen_t length = sizeof address;
  promised(bind(listener_, plain, length) == 0 && listen(listener_, 64) == 0 &&
               getsockname(listener_, plain, &length) == 0,
           "the host can listen");
  port_ = ntohs(address.sin_port);
}

AnsweringHost::~AnsweringHost() {
  cutConnections();
  close(listener_);
}

void AnsweringHost::begin(AnswerScript& script) {
  script_ = &script;
  pausesLeft_ = script.pauses();
  connectionCount_ = mostConnections_ = requests_ = 0;
  asked_.clear();
}

bool AnsweringHost::serve(int wake) {
  std::vector<pollfd> watched{{listener_, POLLIN, 0}, {wake, POLLIN, 0}};
  bool sending = false;
  for (const Connection& connection : open_) {
    const bool dead = connection.left || (connection.over && connection.socket < 0);
    watched.push_back({dead ? -1 : connection.socket, POLLIN, 0});
    sending = sending || !connection.pieces.empty();
  }
  const int ready =
      poll(watched.data(), watched.size(), sending ? pauseMilliseconds : quietMilliseconds);
  if (ready == 0 && !sending) {
    giveUpWaiting();
    return false;
  }
  if (watched[0].revents != 0) acceptAll();
  auto watch = watched.begin() + 2;
  for (Connection& connection : open_) {
    if (watch == watched.end()) break;  // What follows has only just come.
    if ((watch++)->revents != 0) receive(connection);
    sendPieces(connection);
  }
  return true;
}

void AnsweringHost::acceptAll() {
  for (;;) {
    const int socket = accept4(listener_, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
    if (socket < 0) return;
    const int atOnce = 1;
    setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &atOnce, sizeof atOnce);
    open_.push_back({.socket = socket});
    ++connectionCount_;
    countOpen();
  }
}

// What was closed before the newest connection was opened can be known by now, and has to be asked
// for: otherwise it would count beside it.
void AnsweringHost::countOpen() {
  std::size_t count = 0;
  for (Connection& connection : open_) {
    if (connection.socket >= 0 && !connection.left) receive(connection);
    if (!connection.left && !connection.over) ++count;
  }
  mostConnections_ = std::max(mostConnections_, count);
}

void AnsweringHost::receive(Connection& connection) {
  std::array<char, 4096> bytes{};
  ssize_t count = 0;
  while ((count = recv(connection.socket, bytes.data(), bytes.size(), 0)) > 0) {
    asked_.append(bytes.data(), static_cast<std::size_t>(count));
    connection.received.append(bytes.data(), static_cast<std::size_t>(count));
  }
  connection.left = count == 0 || errno != EAGAIN;
  if (connection.left) return connection.pieces.clear();
  answerRequests(connection);
}

void AnsweringHost::answerRequests(Connection& connection) {
  while (!connection.over) {
    const std::size_t head = connection.received.find(endOfHead);
    if (head == std::string::npos) return;
    connection.received.erase(0, head + endOfHead.size());
    ++requests_;
    answer(connection);
  }
}

void AnsweringHost::answer(Connection& connection) {
  for (std::string& piece : script_->nextAnswer()) connection.pieces.push_back(std::move(piece));
  connection.answered = true;
}

void AnsweringHost::sendPieces(Connection& connection) {
  if (connection.over || connection.left || !connection.answered) return;
  while (!connection.pieces.empty()) {
    const std::string piece = std::move(connection.pieces.front());
    connection.pieces.pop_front();
    connection.sent += piece;
    if (send(connection.socket, piece.data(), piece.size(), MSG_NOSIGNAL) < 0) {
      connection.pieces.clear();
    }
    if (!connection.pieces.empty() && pausesLeft_ > 0) {
      --pausesLeft_;
      return;
    }
  }
  if (script_->ending() != AnswerScript::Ending::Open) end(connection);
}

void AnsweringHost::end(Connection& connection) {
  connection.over = true;
  if (script_->ending() == AnswerScript::Ending::Reset) {
    cut(connection.socket);
  } else if (script_->ending() == AnswerScript::Ending::CloseForWriting) {
    shutdown(connection.socket, SHUT_WR);
    return;
  } else {
    close(connection.socket);
  }
  connection.socket = -1;
}

// Where a request is waited for that does not come, there may have been one in another language.
void AnsweringHost::giveUpWaiting() {
  for (Connection& connection : open_) {
    if (connection.over || connection.left) continue;
    if (!connection.answered) answer(connection);
    sendPieces(connection);
    if (connection.over) continue;
    connection.over = true;
    shutdown(connection.socket, SHUT_WR);
  }
}

void AnsweringHost::cutConnections() {
  for (const Connection& connection : open_) {
    if (connection.socket >= 0) cut(connection.socket);
  }
  open_.clear();
  for (;;) {
    const int socket = accept(listener_, nullptr, nullptr);
    if (socket < 0) return;
    cut(socket);
  }
}

bool AnsweringHost::isLeft() {
  constexpr std::chrono::seconds generously{20};
  const auto end = std::chrono::steady_clock::now() + generously;
  acceptAll();
  for (Connection& connection : open_) {
    while (!connection.left && connection.socket >= 0) {
      if (std::chrono::steady_clock::now() > end) return false;
      pollfd watched{connection.socket, POLLIN, 0};
      poll(&watched, 1, pauseMilliseconds);
      if (watched.revents != 0) receive(connection);
    }
  }
  return true;
}

bool AnsweringHost::hasSent(std::string_view bytes) const {
  return std::any_of(open_.begin(), open_.end(), [bytes](const Connection& connection) {
    return connection.sent.find(bytes) != std::string::npos;
  });
}

}  // namespace leafund::fuzz
