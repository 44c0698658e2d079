#include "tests/support/PictureServer.h"

#include <sys/socket.h>

#include <QEventLoop>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTcpServer>
#include <QTcpSocket>
#include <algorithm>
#include <chrono>
#include <future>
#include <sstream>
#include <stdexcept>
#include <utility>

#include "tests/support/PictureAnswers.h"

namespace leafund {

namespace {

constexpr std::chrono::seconds generously{30};
constexpr std::string_view endOfHead = "\r\n\r\n";

std::string loopback(const char* scheme, int port) {
  return scheme + ("://127.0.0.1:" + std::to_string(port));
}

std::string lowerCase(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return text;
}

PictureServer::Request parsedHead(const std::string& head) {
  std::istringstream lines(head);
  PictureServer::Request request;
  std::string line;
  std::getline(lines, line);
  std::istringstream(line) >> request.method >> request.path;
  while (std::getline(lines, line)) {
    if (line.ends_with('\r')) line.pop_back();
    const std::size_t colon = line.find(':');
    if (colon == std::string::npos) continue;
    const std::size_t value = line.find_first_not_of(' ', colon + 1);
    request.headers[lowerCase(line.substr(0, colon))] =
        value == std::string::npos ? "" : line.substr(value);
  }
  return request;
}

std::unique_ptr<QTcpServer> makeServer(PictureServer::Speaks speaks, const Identity& identity) {
  if (speaks == PictureServer::Speaks::Plain) return std::make_unique<QTcpServer>();
  QSslConfiguration ways = QSslConfiguration::defaultConfiguration();
  ways.setLocalCertificate(QSslCertificate(QByteArray::fromStdString(identity.certificate)));
  ways.setPrivateKey(QSslKey(QByteArray::fromStdString(identity.key), QSsl::Ec));
  if (speaks == PictureServer::Speaks::Tls10) {
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    ways.setProtocol(QSsl::TlsV1_0);
    QT_WARNING_POP
    ways.setBackendConfigurationOption("CipherString", "ALL:@SECLEVEL=0");
  }
  auto server = std::make_unique<QSslServer>();
  server->setSslConfiguration(ways);
  return server;
}

}  // namespace

PictureServer::PictureServer(Speaks speaks, Identity identity)
    : speaks_(speaks), identity_(std::move(identity)) {
  std::promise<int> port;
  auto listening = port.get_future();
  thread_.reset(QThread::create(
      [this, &port] { listenAndServe([&port](int number) { port.set_value(number); }); }));
  thread_->start();
  port_ = listening.get();
  if (port_ == 0) throw std::runtime_error("the picture server cannot listen");
}

PictureServer::~PictureServer() {
  thread_->quit();
  thread_->wait();
  // The thread sanitizer does not see that wait() waits; this it sees.
  const std::lock_guard lock(mutex_);
}

std::string PictureServer::closedAddress(std::string_view path) {
  static QTcpSocket taken;
  if (taken.localPort() == 0 &&
      !taken.bind(QHostAddress::LocalHost, 0, QAbstractSocket::DontShareAddress)) {
    throw std::runtime_error("no port can be taken");
  }
  return loopback("http", taken.localPort()).append(path);
}

std::string PictureServer::baseAddress() const {
  return loopback(speaks_ == Speaks::Plain ? "http" : "https", port_);
}

std::string PictureServer::serve(const std::string& path, Answer answer) {
  const std::lock_guard lock(mutex_);
  answers_[path] = std::move(answer);
  return address(path);
}

std::vector<PictureServer::Request> PictureServer::requests() const {
  const std::lock_guard lock(mutex_);
  return requests_;
}

std::size_t PictureServer::requestsFor(std::string_view path) const {
  const std::lock_guard lock(mutex_);
  return static_cast<std::size_t>(
      std::count_if(requests_.begin(), requests_.end(),
                    [path](const Request& request) { return request.path == path; }));
}

int PictureServer::connections() const {
  const std::lock_guard lock(mutex_);
  return connections_;
}

int PictureServer::mostConnections() const {
  const std::lock_guard lock(mutex_);
  return mostConnections_;
}

int PictureServer::connectionsSoFar() const {
  const std::lock_guard lock(mutex_);
  return connectionsSoFar_;
}

bool PictureServer::waitForRequests(std::size_t count) const {
  std::unique_lock lock(mutex_);
  return changed_.wait_for(lock, generously, [&] { return requests_.size() >= count; });
}

bool PictureServer::waitForConnections(int count) const {
  std::unique_lock lock(mutex_);
  return changed_.wait_for(lock, generously, [&] { return connections_ == count; });
}

void PictureServer::listenAndServe(const std::function<void(int port)>& listening) {
  const auto server = makeServer(speaks_, identity_);
  QObject::connect(server.get(), &QTcpServer::pendingConnectionAvailable, server.get(), [&] {
    while (QTcpSocket* client = server->nextPendingConnection()) accept(*client);
  });
  listening(server->listen(QHostAddress::LocalHost) ? server->serverPort() : 0);
  QEventLoop().exec();
}

void PictureServer::accept(QTcpSocket& client) {
  clients_.push_back(&client);
  count(+1);
  QObject::connect(&client, &QTcpSocket::disconnected, &client, [this, &client] {
    std::erase(clients_, &client);
    count(-1);
    client.deleteLater();
  });
  QObject::connect(&client, &QTcpSocket::readyRead, &client,
                   [this, &client, received = std::string()]() mutable {
                     received += client.readAll().toStdString();
                     answerRequests(client, received);
                   });
}

void PictureServer::answerRequests(QTcpSocket& client, std::string& received) {
  for (;;) {
    const std::size_t end = received.find(endOfHead);
    if (end == std::string::npos) return;
    Request request = parsedHead(received.substr(0, end + 2));
    received.erase(0, end + endOfHead.size());
    Answer answer = answers::status(404, "There is no such picture.");
    {
      const std::lock_guard lock(mutex_);
      if (const auto found = answers_.find(request.path); found != answers_.end()) {
        answer = found->second;
      }
      requests_.push_back(std::move(request));
      changed_.notify_all();
    }
    answer(client);
  }
}

void PictureServer::count(int change) {
  const std::lock_guard lock(mutex_);
  connections_ += change;
  if (change > 0) ++connectionsSoFar_;
  mostConnections_ = std::max(mostConnections_, connections_ - left());
  changed_.notify_all();
}

// What a client closed before it opened the newest connection would otherwise count beside it.
int PictureServer::left() const {
  return static_cast<int>(std::count_if(clients_.begin(), clients_.end(), [](auto* client) {
    char byte = 0;
    return recv(static_cast<int>(client->socketDescriptor()), &byte, 1, MSG_PEEK | MSG_DONTWAIT) ==
           0;
  }));
}

}  // namespace leafund
