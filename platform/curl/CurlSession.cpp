#include "platform/curl/CurlSession.h"

#include <pthread.h>

#include <algorithm>
#include <utility>

namespace leafund {

namespace {

constexpr std::size_t kMostConnections = 6;  // To a host, as browsers have it.

// Of all hosts together. Left to itself, libcurl keeps four for each fetch under way; 8.14, when
// one of six was left, closed connections that the next fetches made anew.
constexpr long kKeptConnections = 4 * kMostConnections;

}  // namespace

CurlSession::CurlSession(const CurlTransfer::Limits& limits, std::string library)
    : limits_(limits), libraryName_(std::move(library)), connections_(limits.quiet) {}

void CurlSession::add(std::string address, CompletionHandler completion) {
  const std::lock_guard lock(mutex_);
  inbox_.push_back({std::move(address), std::move(completion)});
  wake();
}

void CurlSession::end() {
  const std::lock_guard lock(mutex_);
  isEnding_ = true;
  wake();
}

void CurlSession::run() {
  pthread_setname_np(pthread_self(), "session");
  while (waitForFetches()) {
    const CurlLibrary library(libraryName_);
    curl_ = &library;
    if (const std::string failure = openNetwork(); !failure.empty()) {
      refuseAdded(failure);
      continue;
    }
    while (beginAdded()) {
      endReady();
      library.multiPoll(multi_, nullptr, 0, endIdle(), nullptr);
    }
    return closeNetwork();
  }
}

bool CurlSession::waitForFetches() {
  std::unique_lock lock(mutex_);
  added_.wait(lock, [this] { return isEnding_ || !inbox_.empty(); });
  return !isEnding_;
}

std::string CurlSession::openNetwork() {
  if (!curl_->failure().empty()) return curl_->failure();
  CURLM* const multi = curl_->multiInit();
  if (multi == nullptr) return "no memory";
  // Without descriptors the thread could not be woken, neither for new fetches nor to end.
  if (curl_->multiWakeup(multi) != CURLM_OK) {
    curl_->multiCleanup(multi);
    return "no descriptors";
  }
  curl_->multiSetopt(multi, CURLMOPT_MAXCONNECTS, kKeptConnections);
  const std::lock_guard lock(mutex_);
  multi_ = multi;
  return {};
}

void CurlSession::fail(Fetch& fetch, std::string reason) {
  fetch.completion(nullptr, std::nullopt, NSError{std::move(reason)});
}

void CurlSession::wake() {
  if (multi_ != nullptr) curl_->multiWakeup(multi_);
  added_.notify_one();
}

bool CurlSession::takeAdded(std::vector<Fetch>& added) {
  const std::lock_guard lock(mutex_);
  if (!isEnding_) added.swap(inbox_);
  return !isEnding_;
}

void CurlSession::refuseAdded(const std::string& reason) {
  std::vector<Fetch> added;
  takeAdded(added);
  for (Fetch& fetch : added) fail(fetch, reason);
}

bool CurlSession::beginAdded() {
  std::vector<Fetch> added;
  if (!takeAdded(added)) return false;
  // Those added together are idle together: none that waits is asked because another gave up.
  const auto now = CurlHandle::Clock::now();
  for (Fetch& fetch : added) {
    fetch.address = WebAddress::read(*curl_, fetch.text);
    begin(std::move(fetch), now);
  }
  return true;
}

void CurlSession::begin(Fetch fetch, CurlHandle::Clock::time_point now) {
  if (!fetch.address) return fail(fetch, "no http or https address");
  fetch.begun = now;
  Line& line = lines_[fetch.address->origin()];
  line.waiting.push_back(std::move(fetch));
  advance(line);
}

void CurlSession::advance(Line& line) {
  while (!line.waiting.empty()) {
    const std::string host = line.waiting.front().address->origin();
    const auto watched = connections_.watchedUntil(host);
    const bool isOneWatched = watched && *watched > CurlHandle::Clock::now();
    if (line.underWay + (isOneWatched ? 1 : 0) >= kMostConnections) return;
    Fetch fetch = std::move(line.waiting.front());
    line.waiting.pop_front();
    fetch.handle = takeHandle();
    if (fetch.handle->get() == nullptr) {
      fail(fetch, "no memory");
      continue;
    }
    send(std::move(fetch), connections_.nextUse(host));
    ++line.underWay;
  }
}

void CurlSession::send(Fetch fetch, Connections::Use use) {
  fetch.handle->aim(*fetch.address, use);
  CURL* const handle = fetch.handle->get();
  underWay_.emplace(handle, std::move(fetch));
  curl_->multiAddHandle(multi_, handle);
}

std::unique_ptr<CurlHandle> CurlSession::takeHandle() {
  if (spare_.empty()) return std::make_unique<CurlHandle>(*curl_, connections_, limits_.bodyBytes);
  auto handle = std::move(spare_.back());
  spare_.pop_back();
  return handle;
}

void CurlSession::endReady() {
  int rest = 0;
  curl_->multiPerform(multi_, &rest);
  while (const CURLMsg* message = curl_->multiInfoRead(multi_, &rest)) {
    end(message->easy_handle, message->data.result);
  }
}

void CurlSession::end(CURL* handle, CURLcode result) {
  const Fetch& ended = underWay_.at(handle);
  if (result == CURLE_OK && ended.handle->hadBytesBehind()) {
    connections_.distrust(ended.address->origin());
  }
  if (ended.handle->usedAKeptConnection()) {
    // The connection was not quiet, its next bytes were no answer, or they may be one too many.
    const bool hasNoAnswer = result != CURLE_OK && ended.handle->status() == 0;
    if (hasNoAnswer || connections_.isLoud(ended.address->origin())) {
      return send(takeOut(handle), Connections::Use::Once);
    }
  }
  if (result == CURLE_OK) return complete(leave(handle));
  Fetch fetch = leave(handle);
  fail(fetch, std::string("no whole answer: ") + curl_->easyStrerror(result));
}

CurlSession::Fetch CurlSession::takeOut(CURL* handle) {
  const Fetch& ended = underWay_.at(handle);
  if (ended.handle->use() == Connections::Use::Watched) {
    connections_.hadAnswer(ended.address->origin(), ended.handle->socket());
  }
  curl_->multiRemoveHandle(multi_, handle);
  return std::move(underWay_.extract(handle).mapped());
}

CurlSession::Fetch CurlSession::leave(CURL* handle) {
  Fetch fetch = takeOut(handle);
  const auto line = lines_.find(fetch.address->origin());
  --line->second.underWay;
  advance(line->second);
  if (line->second.underWay == 0) lines_.erase(line);
  return fetch;
}

void CurlSession::complete(Fetch fetch) {
  const auto location = fetch.handle->redirectLocation();
  if (location && ++fetch.redirects > limits_.redirects) return fail(fetch, "too many redirects");
  const NSURLResponse response{fetch.handle->status()};
  if (response.statusCode < 200) return fail(fetch, "no final answer");  // "101", unasked
  auto body = std::make_shared<const std::string>(fetch.handle->takeBody());
  if (spare_.size() < kMostConnections) spare_.push_back(std::move(fetch.handle));
  if (!location) return fetch.completion(std::move(body), response, std::nullopt);
  fetch.address = fetch.address->target(*curl_, *location);
  begin(std::move(fetch), CurlHandle::Clock::now());
}

int CurlSession::endIdle() {
  const auto now = CurlHandle::Clock::now();
  auto next = now + std::chrono::hours{1};
  const auto isLate = [&](CurlHandle::Clock::time_point lastSign) {
    if (now - lastSign >= limits_.idle) return true;
    next = std::min(next, lastSign + limits_.idle);
    return false;
  };
  std::vector<Fetch> late;
  for (auto& [origin, line] : lines_) {
    while (!line.waiting.empty() && isLate(line.waiting.front().begun)) {
      late.push_back(std::move(line.waiting.front()));
      line.waiting.pop_front();
    }
    const auto watched = connections_.watchedUntil(origin);
    if (line.waiting.empty() || !watched) continue;
    if (*watched > now) {
      next = std::min(next, *watched);
    } else {
      advance(line);
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

void CurlSession::closeNetwork() {
  for (auto& [handle, fetch] : underWay_) {
    curl_->multiRemoveHandle(multi_, handle);
    fetch.handle.reset();
  }
  spare_.clear();
  curl_->multiCleanup(multi_);
}

}  // namespace leafund
