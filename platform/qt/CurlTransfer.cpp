#include "platform/qt/CurlTransfer.h"

#include <pthread.h>

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <map>
#include <mutex>
#include <utility>
#include <vector>

#include "platform/qt/CurlHandle.h"

namespace leafund {

namespace {

using Clock = CurlHandle::Clock;

constexpr std::size_t kMostConnections = 6;  // To a host, as browsers have it.

struct Fetch {
  QUrl url;
  CompletionHandler completion;
  int redirects = 0;
  Clock::time_point begun = {};
  std::unique_ptr<CurlHandle> handle = nullptr;  // Null while it waits.
};

// What is asked of one host: some under way, the rest in the order of their beginning. libcurl
// would keep such a line too, but goes through all of it at every step.
struct Line {
  std::size_t underWay = 0;
  std::deque<Fetch> waiting = {};
};

std::string hostOf(const QUrl& url) {
  return url
      .toString(QUrl::RemoveUserInfo | QUrl::RemovePath | QUrl::RemoveQuery | QUrl::RemoveFragment)
      .toStdString();
}

void fail(Fetch& fetch, std::string reason) {
  fetch.completion(nullptr, std::nullopt, NSError{std::move(reason)});
}

}  // namespace

// Made and destroyed on the main thread: the fetches that it still holds end there.
class CurlTransfer::Session {
 public:
  Session(const Limits& limits, std::string name) : limits_(limits), library_(std::move(name)) {}

  // From the main thread.
  void add(std::string address, CompletionHandler completion) {
    const std::lock_guard lock(mutex_);
    const QUrl url(QString::fromStdString(address), QUrl::StrictMode);
    inbox_.push_back({url, std::move(completion)});
    wake();
  }

  // From the main thread, which then waits for the end of run().
  void end() {
    const std::lock_guard lock(mutex_);
    isEnding_ = true;
    wake();
  }

  // The life of the thread.
  void run() {
    pthread_setname_np(pthread_self(), "session");
    const CurlLibrary library(QString::fromStdString(library_));
    if (!library.failure().empty()) return refuseAll(library.failure());
    curl_ = &library;
    {
      const std::lock_guard lock(mutex_);
      multi_ = library.multiInit();
    }
    while (beginAdded()) {
      endReady();
      library.multiPoll(multi_, nullptr, 0, endIdle(), nullptr);
    }
    closeNetwork();
  }

 private:
  // Under the lock.
  void wake() {
    if (multi_ != nullptr) curl_->multiWakeup(multi_);
    added_.notify_one();
  }

  void refuseAll(const std::string& reason) {
    std::unique_lock lock(mutex_);
    while (!isEnding_) {
      auto added = std::exchange(inbox_, {});
      lock.unlock();
      for (Fetch& fetch : added) fail(fetch, reason);
      added.clear();
      lock.lock();
      added_.wait(lock, [this] { return isEnding_ || !inbox_.empty(); });
    }
  }

  // False at the end, when what was added stays where it is.
  bool beginAdded() {
    std::vector<Fetch> added;
    {
      const std::lock_guard lock(mutex_);
      if (isEnding_) return false;
      added.swap(inbox_);
    }
    for (Fetch& fetch : added) begin(std::move(fetch));
    return true;
  }

  void begin(Fetch fetch) {
    if (!CurlHandle::isFetchable(fetch.url)) return fail(fetch, "no http or https address");
    fetch.begun = Clock::now();
    Line& line = lines_[hostOf(fetch.url)];
    line.waiting.push_back(std::move(fetch));
    advance(line);
  }

  void advance(Line& line) {
    while (line.underWay < kMostConnections && !line.waiting.empty()) {
      Fetch fetch = std::move(line.waiting.front());
      line.waiting.pop_front();
      fetch.handle = takeHandle();
      fetch.handle->aim(fetch.url);
      CURL* const handle = fetch.handle->get();
      underWay_.emplace(handle, std::move(fetch));
      curl_->multiAddHandle(multi_, handle);
      ++line.underWay;
    }
  }

  std::unique_ptr<CurlHandle> takeHandle() {
    if (spare_.empty()) return std::make_unique<CurlHandle>(*curl_, limits_.bodyBytes);
    auto handle = std::move(spare_.back());
    spare_.pop_back();
    return handle;
  }

  void endReady() {
    int rest = 0;
    curl_->multiPerform(multi_, &rest);
    while (const CURLMsg* message = curl_->multiInfoRead(multi_, &rest)) {
      CURL* const handle = message->easy_handle;
      const CURLcode result = message->data.result;
      if (result == CURLE_OK) {
        complete(leave(handle));
      } else {
        Fetch fetch = leave(handle);
        fail(fetch, std::string("no whole answer: ") + curl_->easyStrerror(result));
      }
    }
  }

  // Takes the fetch out of what is under way, and lets the next one to its host begin.
  Fetch leave(CURL* handle) {
    curl_->multiRemoveHandle(multi_, handle);
    Fetch fetch = std::move(underWay_.extract(handle).mapped());
    const auto line = lines_.find(hostOf(fetch.url));
    --line->second.underWay;
    advance(line->second);
    if (line->second.underWay == 0) lines_.erase(line);
    return fetch;
  }

  void complete(Fetch fetch) {
    const auto target = fetch.handle->redirectTarget();
    if (target && ++fetch.redirects > limits_.redirects) return fail(fetch, "too many redirects");
    const NSURLResponse response{fetch.handle->status()};
    if (response.statusCode < 200) return fail(fetch, "no final answer");  // "101", unasked
    auto body = std::make_shared<const std::string>(fetch.handle->takeBody());
    if (spare_.size() < kMostConnections) spare_.push_back(std::move(fetch.handle));
    if (!target) return fetch.completion(std::move(body), response, std::nullopt);
    fetch.url = *target;
    begin(std::move(fetch));
  }

  // Returns the milliseconds until the next fetch could be idle for too long.
  int endIdle() {
    const auto now = Clock::now();
    auto next = now + std::chrono::hours{1};
    const auto isLate = [&](Clock::time_point lastSign) {
      if (now - lastSign >= limits_.idle) return true;
      next = std::min(next, lastSign + limits_.idle);
      return false;
    };
    std::vector<Fetch> late;
    for (auto& [host, line] : lines_) {
      while (!line.waiting.empty() && isLate(line.waiting.front().begun)) {
        late.push_back(std::move(line.waiting.front()));
        line.waiting.pop_front();
      }
    }
    std::vector<CURL*> silent;
    for (const auto& [handle, fetch] : underWay_) {
      if (isLate(fetch.handle->lastSign())) silent.push_back(handle);
    }
    for (CURL* handle : silent) late.push_back(leave(handle));
    for (Fetch& fetch : late) fail(fetch, "silent for too long");
    return static_cast<int>(std::chrono::ceil<std::chrono::milliseconds>(next - now).count());
  }

  void closeNetwork() {
    for (auto& [handle, fetch] : underWay_) {
      curl_->multiRemoveHandle(multi_, handle);
      fetch.handle.reset();
    }
    spare_.clear();
    curl_->multiCleanup(multi_);
  }

  const Limits limits_;
  const std::string library_;
  const CurlLibrary* curl_ = nullptr;
  std::mutex mutex_;
  CURLM* multi_ = nullptr;  // Set under the mutex, on the thread.
  std::condition_variable added_;
  std::vector<Fetch> inbox_;
  bool isEnding_ = false;
  std::map<std::string, Line> lines_;
  std::map<CURL*, Fetch> underWay_;
  std::vector<std::unique_ptr<CurlHandle>> spare_;
};

CurlTransfer::CurlTransfer() : CurlTransfer(Limits{}) {}

CurlTransfer::CurlTransfer(const Limits& limits, std::string library)
    : limits_(limits), library_(std::move(library)) {}

CurlTransfer::~CurlTransfer() {
  if (!session_) return;
  session_->end();
  thread_.join();
}

void CurlTransfer::start(std::string url, CompletionHandler completion) {
  if (!session_) {
    session_ = std::make_unique<Session>(limits_, library_);
    thread_ = std::thread([session = session_.get()] { session->run(); });
  }
  session_->add(std::move(url), std::move(completion));
}

}  // namespace leafund
