#include "platform/curl/CurlTransfer.h"

#include <utility>

#include "platform/curl/CurlSession.h"

namespace leafund {

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
    session_ = std::make_unique<CurlSession>(limits_, library_);
    thread_ = std::thread([session = session_.get()] { session->run(); });
  }
  session_->add(std::move(url), std::move(completion));
}

}  // namespace leafund
