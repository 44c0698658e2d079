#pragma once

#include <QThread>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/Certificates.h"

class QTcpSocket;

namespace leafund {

// A real HTTP/1.1 server on the loopback address, on a port and a thread of its own: it needs no
// event loop of the test. A path answers as it was told to, any other one with 404; connections are
// kept open until an answer closes them. All its functions may be called from any thread.
class PictureServer {
 public:
  // Writes whatever it likes to the client, on the server's thread; timers and the like belong to
  // the socket. PictureAnswers.h has the ready-made ones.
  using Answer = std::function<void(QTcpSocket&)>;

  struct Request {
    std::string method;
    std::string path;
    std::map<std::string, std::string> headers;  // By their names in lower case.
  };

  enum class Speaks { Plain, Tls, Tls10 };  // Tls10: that of 1999, and nothing newer

  // Listens when this returns. Who speaks TLS shows who it is.
  explicit PictureServer(Speaks speaks = Speaks::Plain, Identity identity = {});
  PictureServer(const PictureServer&) = delete;
  PictureServer& operator=(const PictureServer&) = delete;
  // Cuts the connections that are open.
  ~PictureServer();

  // On a port that this process keeps as long as it lives without listening there: one given back
  // is soon another test's.
  static std::string closedAddress(std::string_view path);

  std::string baseAddress() const;
  std::string address(std::string_view path) const { return baseAddress().append(path); }

  // `path` begins with a slash. Gives the path's whole address back.
  std::string serve(const std::string& path, Answer answer);

  // In the order in which they arrived.
  std::vector<Request> requests() const;
  std::size_t requestsFor(std::string_view path) const;

  // Now, the most there have been at any one time, and all there have ever been.
  int connections() const;
  int mostConnections() const;
  int connectionsSoFar() const;

  // Wait until it is so, or for a generous time; whether it came to be.
  bool waitForRequests(std::size_t count) const;
  bool waitForConnections(int count) const;

 private:
  void listenAndServe(const std::function<void(int port)>& listening);
  void accept(QTcpSocket& client);
  // Answers what is whole of `received`, and leaves the rest.
  void answerRequests(QTcpSocket& client, std::string& received);
  void count(int change);
  // Of those that are open, whose closing the server may not have been told of yet.
  int left() const;

  mutable std::mutex mutex_;
  mutable std::condition_variable changed_;
  std::map<std::string, Answer, std::less<>> answers_;
  std::vector<Request> requests_;
  int connections_ = 0;
  int mostConnections_ = 0;
  int connectionsSoFar_ = 0;
  const Speaks speaks_;
  const Identity identity_;
  int port_ = 0;
  std::vector<QTcpSocket*> clients_;  // on the server's thread
  std::unique_ptr<QThread> thread_;
};

}  // namespace leafund
