#include "platform/curl/CurlTransfer.h"

#include <cstdlib>
#include <cstring>
#include <utility>

#include "platform/curl/CurlSession.h"

namespace leafund {

namespace {

void* runSession(void* session) {
  static_cast<CurlSession*>(session)->run();
  return nullptr;
}

}  // namespace

CurlTransfer::CurlTransfer() : CurlTransfer(Limits{}) {}

CurlTransfer::CurlTransfer(const Limits& limits, std::string library)
    : limits_(limits), library_(std::move(library)) {
  unsetenv("SSLKEYLOGFILE");
}

CurlTransfer::~CurlTransfer() {
  if (!session_) return;
  session_->end();
  pthread_join(thread_, nullptr);
}

void CurlTransfer::start(std::string url, CompletionHandler completion) {
  if (!session_) {
    session_ = std::make_unique<CurlSession>(limits_, library_);
    // std::thread would throw where no thread can be had.
    const int failure = pthread_create(&thread_, nullptr, &runSession, session_.get());
    if (failure != 0) {
      session_.reset();
      return currentHost().post([completion = std::move(completion), failure] {
        completion(nullptr, std::nullopt, NSError{std::string("no thread: ") + strerror(failure)});
      });
    }
  }
  session_->add(std::move(url), std::move(completion));
}

}  // namespace leafund
