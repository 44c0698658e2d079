#include "tests/support/PictureAnswersProtocol.h"

#include <QByteArray>
#include <QTcpSocket>
#include <QTimer>
#include <chrono>
#include <utility>

#include "tests/support/PictureAnswers.h"

namespace leafund::answers {

namespace {

using Answer = PictureServer::Answer;

const std::string statusLine200 = "HTTP/1.1 200 OK\r\n";

void send(QTcpSocket& client, const std::string& text) {
  client.write(text.data(), static_cast<qint64>(text.size()));
}

std::string lengthLine(std::size_t length) {
  return "Content-Length: " + std::to_string(length) + "\r\n";
}

std::string chunkOf(const std::string& bytes) {
  const auto size = QByteArray::number(static_cast<qulonglong>(bytes.size()), 16).toStdString();
  return size + "\r\n" + bytes + "\r\n";
}

Answer closing(std::string text) {
  return [text = std::move(text)](QTcpSocket& client) {
    send(client, text);
    client.disconnectFromHost();
  };
}

// The piece again and again, for as long as the client takes it.
Answer endlessly(std::string start, const std::string& piece) {
  std::string many;
  while (many.size() < 65536) many += piece;
  return [start = std::move(start), many = std::move(many)](QTcpSocket& client) {
    QObject::connect(&client, &QTcpSocket::bytesWritten, &client, [&client, many] {
      if (client.bytesToWrite() == 0) send(client, many);
    });
    send(client, start + many);
  };
}

}  // namespace

Answer whenOpen(std::shared_ptr<const std::atomic<bool>> open, Answer answer) {
  return [open = std::move(open), answer = std::move(answer)](QTcpSocket& client) {
    auto* timer = new QTimer(&client);
    QObject::connect(timer, &QTimer::timeout, &client, [&client, timer, open, answer] {
      if (!*open) return;
      timer->stop();
      answer(client);
    });
    timer->start(std::chrono::milliseconds(2));
  };
}

Answer after(std::chrono::milliseconds pause, Answer answer) {
  return [pause, answer = std::move(answer)](QTcpSocket& client) {
    QTimer::singleShot(pause, &client, [&client, answer] { answer(client); });
  };
}

Answer under(const std::string& statusLine, const std::string& body, const std::string& headers) {
  return bytes(statusLine + "\r\n" + headers + lengthLine(body.size()) + "\r\n" + body);
}

Answer withHeaders(const std::string& headers, const std::string& body) {
  return closing(statusLine200 + headers + "\r\n" + body);
}

Answer bodyWithoutHead(const std::string& body) { return closing(body); }

Answer closedInHead() { return closing(statusLine200 + "Content-Type: image/j"); }

Answer stallInHead() { return bytes(statusLine200 + "Content-Type: image/j"); }

Answer longHeader(const std::string& body, std::size_t bytes) {
  return under("HTTP/1.1 200 OK", body, "X-Filler: " + std::string(bytes, 'x') + "\r\n");
}

Answer manyHeaders(const std::string& body, int lines) {
  std::string headers;
  for (int line = 0; line < lines; ++line) headers += "X-" + std::to_string(line) + ": x\r\n";
  return under("HTTP/1.1 200 OK", body, headers);
}

Answer endlessHead() { return endlessly(statusLine200, "X-Filler: xxxxxxxxxxxxxxxx\r\n"); }

Answer interim(const std::string& body, int times) {
  std::string flood;
  for (int each = 0; each < times; ++each) flood += "HTTP/1.1 100 Continue\r\n\r\n";
  return bytes(flood + statusLine200 + lengthLine(body.size()) + "\r\n" + body);
}

Answer endlessInterim() { return endlessly("", "HTTP/1.1 100 Continue\r\n\r\n"); }

Answer chunked(const std::string& body) {
  const std::size_t third = body.size() / 3;
  return bytes(statusLine200 + "Transfer-Encoding: chunked\r\nTrailer: X-After\r\n\r\n" +
               chunkOf(body.substr(0, third)) + chunkOf(body.substr(third, third)) +
               chunkOf(body.substr(2 * third)) + "0\r\nX-After: all\r\n\r\n");
}

Answer chunkOfSize(const std::string& size, const std::string& body) {
  return bytes(statusLine200 + "Transfer-Encoding: chunked\r\n\r\n" + size + "\r\n" + body +
               "\r\n0\r\n\r\n");
}

Answer endlessChunks() {
  return endlessly(statusLine200 + "Transfer-Encoding: chunked\r\n\r\n",
                   chunkOf(std::string(4096, 'x')));
}

Answer endlessChunkSize() {
  return endlessly(statusLine200 + "Transfer-Encoding: chunked\r\n\r\n", "0");
}

Answer longerThanItsLength(const std::string& body, const std::string& rest) {
  return bytes(statusLine200 + lengthLine(body.size()) + "\r\n" + body + rest);
}

Answer withBytesLater(Answer answer, const std::string& rest, std::chrono::milliseconds pause) {
  return [answer = std::move(answer), rest, pause](QTcpSocket& client) {
    answer(client);
    client.flush();
    QTimer::singleShot(pause, &client, [&client, rest] {
      if (client.isOpen()) send(client, rest);
    });
  };
}

Answer closedAfterHead(std::size_t length) {
  return closing(statusLine200 + lengthLine(length) + "\r\n");
}

// What qCompress() makes stands in the zlib format behind a length of four bytes. A member of a
// gzip file has another header, and another checksum, which is left wrong: it comes when all is
// unpacked.
Answer gzipBomb(const std::string& body, std::size_t zeros) {
  constexpr int fast = 1;
  const QByteArray whole = QByteArray::fromStdString(body + std::string(zeros, '\0'));
  const QByteArray packed = qCompress(whole, fast);
  constexpr int front = 4 + 2;
  constexpr int back = 4;
  const std::string head("\x1F\x8B\x08\0\0\0\0\0\0\x03", 10);
  const std::string member = packed.mid(front, packed.size() - front - back).toStdString();
  return under("HTTP/1.1 200 OK", head + member + std::string(8, '\0'),
               "Content-Encoding: gzip\r\n");
}

Answer packedForTheWay(const std::string& body, const std::string& codings) {
  constexpr int lengthOfQt = 4;
  const QByteArray packed = qCompress(QByteArray::fromStdString(body)).mid(lengthOfQt);
  return withHeaders("Transfer-Encoding: " + codings + "\r\n", packed.toStdString());
}

}  // namespace leafund::answers
