#include "tests/support/PictureAnswers.h"

#include <sys/socket.h>

#include <QTcpSocket>
#include <QTimer>
#include <utility>

namespace leafund::answers {

namespace {

using Answer = PictureServer::Answer;

constexpr const char* statusLine200 = "HTTP/1.1 200 OK\r\n";

void send(QTcpSocket& client, const std::string& text) {
  client.write(text.data(), static_cast<qint64>(text.size()));
}

std::string lengthLine(std::size_t length) {
  return "Content-Length: " + std::to_string(length) + "\r\n";
}

// Ends the connection as a crashed or overrun server does, not as one that is through.
void reset(QTcpSocket& client) {
  const linger discard{1, 0};
  ::setsockopt(static_cast<int>(client.socketDescriptor()), SOL_SOCKET, SO_LINGER, &discard,
               sizeof discard);
  client.abort();
}

void whenSent(QTcpSocket& client, void (*act)(QTcpSocket&)) {
  QObject::connect(&client, &QTcpSocket::bytesWritten, &client, [&client, act] {
    if (client.bytesToWrite() == 0) act(client);
  });
}

Answer sendThenClose(std::string text) {
  return [text = std::move(text)](QTcpSocket& client) {
    send(client, text);
    client.disconnectFromHost();
  };
}

}  // namespace

Answer bytes(std::string text) {
  return [text = std::move(text)](QTcpSocket& client) { send(client, text); };
}

Answer status(int code, std::string body, std::string headers) {
  return bytes("HTTP/1.1 " + std::to_string(code) + " Said So\r\n" + headers +
               lengthLine(body.size()) + "\r\n" + body);
}

Answer ok(std::string body, std::string type) {
  return status(200, std::move(body), "Content-Type: " + type + "\r\n");
}

Answer redirect(std::string to, int code) {
  return status(code, "moved", "Location: " + to + "\r\n");
}

Answer okUntilClosed(std::string body) {
  return sendThenClose(std::string(statusLine200) + "Connection: close\r\n\r\n" + body);
}

Answer drip(std::string body, std::chrono::milliseconds pause) {
  return [body = std::move(body), pause](QTcpSocket& client) {
    send(client, statusLine200 + lengthLine(body.size()) + "\r\n");
    auto* timer = new QTimer(&client);
    QObject::connect(timer, &QTimer::timeout, &client, [&client, timer, left = body]() mutable {
      send(client, left.substr(0, 1));
      left.erase(0, 1);
      if (left.empty()) timer->stop();
    });
    timer->start(pause);
  };
}

Answer resetAtOnce() { return reset; }

Answer closeAtOnce() {
  return [](QTcpSocket& client) { client.disconnectFromHost(); };
}

Answer resetMidBody() {
  return [](QTcpSocket& client) {
    whenSent(client, reset);
    send(client, statusLine200 + lengthLine(1000) + "\r\nonly the beginning");
  };
}

Answer shortContentLength() {
  return sendThenClose(statusLine200 + lengthLine(1000) + "\r\nonly the beginning");
}

Answer cutChunk() {
  return sendThenClose(std::string(statusLine200) +
                       "Transfer-Encoding: chunked\r\n\r\n5\r\nwhole\r\n64\r\nonly the beginning");
}

Answer noHttp() { return sendThenClose("SSH-2.0-OpenSSH_9.2\r\n"); }

Answer neverAnswers() {
  return [](QTcpSocket&) {};
}

Answer stallMidBody() { return bytes(statusLine200 + lengthLine(1000) + "\r\nonly the beginning"); }

Answer endless() {
  return [](QTcpSocket& client) {
    const auto more = [](QTcpSocket& to) { send(to, std::string(65536, 'x')); };
    whenSent(client, more);
    send(client, std::string(statusLine200) + "Content-Type: image/jpeg\r\n\r\n");
  };
}

Answer redirectWithoutTarget() { return status(302, "nowhere"); }

Answer badGzip() { return status(200, "no gzip", "Content-Encoding: gzip\r\n"); }

Answer empty200() { return status(200, ""); }

Answer noContent204() { return bytes("HTTP/1.1 204 No Content\r\n\r\n"); }

Answer headerOnly() { return okUntilClosed(""); }

const Table& transportFaults() {
  static const Table table{{"resetAtOnce", resetAtOnce()},
                           {"closeAtOnce", closeAtOnce()},
                           {"resetMidBody", resetMidBody()},
                           {"shortContentLength", shortContentLength()},
                           {"noHttp", noHttp()}};
  return table;
}

const Table& silences() {
  static const Table table{{"neverAnswers", neverAnswers()}, {"stallMidBody", stallMidBody()}};
  return table;
}

const Table& answersWithoutBody() {
  static const Table table{
      {"empty200", empty200()}, {"noContent204", noContent204()}, {"headerOnly", headerOnly()}};
  return table;
}

}  // namespace leafund::answers
