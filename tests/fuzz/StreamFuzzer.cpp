#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <bit>
#include <cctype>
#include <chrono>
#include <functional>
#include <list>
#include <mutex>
#include <string>
#include <utility>

#include "platform/curl/CurlTransfer.h"
#include "tests/fuzz/AnsweringHost.h"
#include "tests/fuzz/Discoveries.h"
#include "tests/fuzz/Fuzzers.h"
#include "tests/fuzz/NeedApplication.h"
#include "tests/fuzz/NetworkFence.h"
#include "tests/fuzz/Promise.h"
#include "tests/fuzz/Tally.h"

namespace leafund::fuzz {

namespace {

constexpr std::chrono::seconds generously{30};
// So long may a host that says nothing more hold a run up.
constexpr CurlTransfer::Limits limits{
    .redirects = 2, .idle = std::chrono::milliseconds{500}, .bodyBytes = 1024};
constexpr std::size_t connectionsAtOnce = 6;
// Asked once more, on another connection, when a used one ends or babbles before the answer begins.
constexpr std::size_t connectionsForOneAnswer = 2;

struct Outcome {
  int calls = 0;
  NSData body = {};
  std::optional<NSURLResponse> response = {};
  std::optional<NSError> error = {};
};

// The completions run on another thread, and tell this one by way of `wake`.
class Outcomes {
 public:
  Outcomes() : wake_(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)) {}
  Outcomes(const Outcomes&) = delete;
  Outcomes& operator=(const Outcomes&) = delete;
  ~Outcomes() { close(wake_); }

  CompletionHandler next() {
    const std::lock_guard lock(mutex_);
    Outcome& outcome = outcomes_.emplace_back();
    return [this, &outcome](NSData body, std::optional<NSURLResponse> response,
                            std::optional<NSError> error) {
      const std::lock_guard guard(mutex_);
      outcome = {outcome.calls + 1, std::move(body), response, std::move(error)};
      ++done_;
      eventfd_write(wake_, 1);
    };
  }

  std::size_t done() {
    eventfd_t ignored = 0;
    eventfd_read(wake_, &ignored);
    const std::lock_guard lock(mutex_);
    return done_;
  }

  int wake() const { return wake_; }
  const std::list<Outcome>& all() const { return outcomes_; }

 private:
  std::mutex mutex_;
  std::list<Outcome> outcomes_;
  std::size_t done_ = 0;
  int wake_;
};

// The kind of an error is what stands before the colon, and of a broken answer what libcurl says.
std::size_t kindOf(const std::string& reason) {
  const bool ofLibcurl = reason.starts_with("no whole answer");
  return std::hash<std::string>{}(ofLibcurl ? reason : reason.substr(0, reason.find(':')));
}

void tellDiscoveries(const AnsweringHost& host, const Outcome& outcome) {
  if (outcome.error) {
    discovered(static_cast<unsigned>(kindOf(outcome.error->reason) % 256));
  } else {
    discovered(256 + static_cast<unsigned>(outcome.response->statusCode) % 512);
    discovered(768 + static_cast<unsigned>(std::bit_width(outcome.body->size())));
  }
  discovered(800 + static_cast<unsigned>(host.connections()) % 64);
  discovered(864 + static_cast<unsigned>(host.requests()) % 64);
}

bool holdsIgnoringCase(std::string_view text, std::string_view lowerCaseWord) {
  return std::search(text.begin(), text.end(), lowerCaseWord.begin(), lowerCaseWord.end(),
                     [](char c, char wanted) {
                       return std::tolower(static_cast<unsigned char>(c)) == wanted;
                     }) != text.end();
}

void keepsItsPromises(const AnsweringHost& host, const Outcome& outcome, bool plain) {
  promised(outcome.calls == 1, "a fetch completes exactly once");
  const bool isResponse = outcome.body && outcome.response && !outcome.error;
  const bool isError = !outcome.body && !outcome.response && outcome.error;
  promised(isResponse || isError, "a fetch ends in a response or in an error, whole");
  tellDiscoveries(host, outcome);
  if (!isResponse) return;
  promised(outcome.response->statusCode > 0, "a response has a status");
  promised(outcome.body->size() <= limits.bodyBytes, "a body is no longer than the limit");
  // Chunks are put together on the way.
  promised(!plain || host.hasSent(*outcome.body), "a body is what the host sent");
}

// Fetches one address after the other, or all at once, while the host answers.
void fetchAll(AnsweringHost& host, const AnswerScript& script, Outcomes& outcomes) {
  CurlTransfer transfer(limits);
  const std::string address = "http://127.0.0.1:" + std::to_string(host.port()) + "/";
  std::size_t begun = 0;
  auto lastEvent = std::chrono::steady_clock::now();
  for (std::size_t done = 0; done < script.fetches(); done = outcomes.done()) {
    while (begun < script.fetches() && (script.atOnce() || begun == done)) {
      transfer.start(address + std::to_string(begun++), outcomes.next());
    }
    const auto now = std::chrono::steady_clock::now();
    if (host.serve(outcomes.wake())) lastEvent = now;
    promised(now - lastEvent < generously, "a fetch ends once the host has, or with the idle time");
  }
}

}  // namespace

void stream(std::string_view input) {
  needApplication();
  static AnsweringHost host;
  static Tally answered("answers");
  fenceIn(host.port());
  AnswerScript script(input);
  Outcomes outcomes;
  host.begin(script);
  fetchAll(host, script, outcomes);
  promised(host.isLeft(), "no connection outlives the fetches");
  const bool plain = !holdsIgnoringCase(input, "chunked");
  for (const Outcome& outcome : outcomes.all()) keepsItsPromises(host, outcome, plain);
  const std::size_t answers = script.fetches() * (1 + limits.redirects);
  // This one host also answers for every other one that a redirect names.
  const bool alone = input.find("://") == std::string_view::npos;
  promised(!alone || host.mostConnections() <= connectionsAtOnce,
           "a host is asked over six connections at most");
  promised(host.connections() <= answers * connectionsForOneAnswer, "a fetch gives up");
  promised(!holdsIgnoringCase(host.asked(), "\ncookie:"), "no cookie is ever sent");
  answered.add(host.requests());
  host.cutConnections();
}

}  // namespace leafund::fuzz
