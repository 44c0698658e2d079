#pragma once

#include <condition_variable>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/curl/CurlHandle.h"
#include "platform/curl/CurlTransfer.h"

namespace leafund {

// What the thread of the fetches does. Made and destroyed on the main thread: the fetches that it
// still holds end there.
class CurlSession {
 public:
  CurlSession(const CurlTransfer::Limits& limits, std::string library);

  // From the main thread.
  void add(std::string address, CompletionHandler completion);
  // From the main thread, which then waits for the end of run().
  void end();

  // The life of the thread.
  void run();

 private:
  struct Fetch {
    std::string text;  // as it was asked for
    CompletionHandler completion;
    std::optional<WebAddress> address = {};
    int redirects = 0;
    CurlHandle::Clock::time_point begun = {};
    std::unique_ptr<CurlHandle> handle = nullptr;  // Null while it waits.
  };

  // What is asked of one host: some under way, the rest in the order of their beginning. libcurl
  // would keep such a line too, but goes through all of it at every step.
  struct Line {
    std::size_t underWay = 0;
    std::deque<Fetch> waiting = {};
  };

  static void fail(Fetch& fetch, std::string reason);

  // Under the lock.
  void wake();
  // False at the end, when what was added stays where it is, to end on the main thread.
  bool waitForFetches();
  bool takeAdded(std::vector<Fetch>& added);
  bool beginAdded();
  void refuseAdded(const std::string& reason);
  // Why there is none; empty when it is open.
  std::string openNetwork();
  void begin(Fetch fetch, CurlHandle::Clock::time_point now);
  void advance(Line& line);
  std::unique_ptr<CurlHandle> takeHandle();
  void endReady();
  // Lets the fetch, which has a handle, begin or begin anew.
  void send(Fetch fetch, Connections::Use use);
  Fetch takeOut(CURL* handle);
  // Takes the fetch out of what is under way, and lets the next one to its host begin.
  Fetch leave(CURL* handle);
  void end(CURL* handle, CURLcode result);
  void complete(Fetch fetch);
  // Returns the milliseconds until the next fetch could be idle for too long.
  int endIdle();
  void closeNetwork();

  const CurlTransfer::Limits limits_;
  const std::string libraryName_;
  const CurlLibrary* curl_ = nullptr;
  std::mutex mutex_;
  CURLM* multi_ = nullptr;  // Set under the mutex, on the thread.
  std::condition_variable added_;
  std::vector<Fetch> inbox_;
  bool isEnding_ = false;
  Connections connections_;
  std::map<std::string, Line> lines_;  // By their hosts' origins.
  std::map<CURL*, Fetch> underWay_;
  std::vector<std::unique_ptr<CurlHandle>> spare_;
};

}  // namespace leafund
