#pragma once

#include <poll.h>

#include <cstddef>
#include <deque>
#include <list>
#include <string>
#include <string_view>

#include "tests/fuzz/AnswerScript.h"

namespace leafund::fuzz {

// A picture host on the loopback address that answers by a script, on plain sockets and on the
// caller's thread: a run takes no longer than what it does.
class AnsweringHost {
 public:
  AnsweringHost();
  AnsweringHost(const AnsweringHost&) = delete;
  AnsweringHost& operator=(const AnsweringHost&) = delete;
  ~AnsweringHost();

  int port() const { return port_; }

  // Forgets the run before.
  void begin(AnswerScript& script);

  // Serves until something came in, or went out after a pause, or nothing happened for a while;
  // then it is false, after what still waited was given up. Also ends when `wake` can be read.
  bool serve(int wake);

  // Cuts what is open, without a trace that would keep ports busy.
  void cutConnections();

  // Whether every connection has been ended by the other side; waits for it, generously.
  bool isLeft();

  // Of this run.
  std::size_t connections() const { return connectionCount_; }
  std::size_t mostConnections() const { return mostConnections_; }
  std::size_t requests() const { return requests_; }
  const std::string& asked() const { return asked_; }
  // Whether one connection carried these bytes, one after the other.
  bool hasSent(std::string_view bytes) const;

 private:
  struct Connection {
    int socket;
    std::string received = {};
    std::deque<std::string> pieces = {};
    std::string sent = {};
    bool answered = false;
    bool over = false;  // This side has ended it.
    bool left = false;  // The other side has.
  };

  void acceptAll();
  void countOpen();
  void receive(Connection& connection);
  void answerRequests(Connection& connection);
  void answer(Connection& connection);
  void sendPieces(Connection& connection);
  void end(Connection& connection);
  void giveUpWaiting();

  int listener_ = -1;
  int port_ = 0;
  AnswerScript* script_ = nullptr;
  std::list<Connection> open_;
  std::size_t pausesLeft_ = 0;
  std::size_t connectionCount_ = 0;
  std::size_t mostConnections_ = 0;
  std::size_t requests_ = 0;
  std::string asked_;
};

}  // namespace leafund::fuzz
