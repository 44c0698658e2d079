#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "platform/curl/CurlTransfer.h"
#include "tests/support/PictureAnswers.h"
#include "tests/support/PictureServer.h"

namespace leafund {

using namespace std::chrono_literals;

struct Outcome {
  NSData body;
  std::optional<NSURLResponse> response;
  std::optional<NSError> error;
  std::thread::id thread;

  bool isError() const { return error && !body && !response; }
  bool isResponse(int status, const std::string& text) const {
    return !error && body && *body == text && response && response->statusCode == status;
  }
};

inline std::future<Outcome> started(CurlTransfer& transfer, const std::string& url) {
  auto promise = std::make_shared<std::promise<Outcome>>();
  transfer.start(url, [promise](NSData body, std::optional<NSURLResponse> response,
                                std::optional<NSError> error) {
    promise->set_value({std::move(body), response, std::move(error), std::this_thread::get_id()});
  });
  return promise->get_future();
}

inline Outcome outcomeOf(std::future<Outcome> future) {
  if (future.wait_for(30s) != std::future_status::ready) throw std::runtime_error("no completion");
  return future.get();
}

inline Outcome fetched(CurlTransfer& transfer, const std::string& url) {
  return outcomeOf(started(transfer, url));
}

class CurlTransferTest : public testing::Test {
 protected:
  Outcome answered(PictureServer::Answer answer, CurlTransfer::Limits limits = {}) {
    CurlTransfer transfer(limits);
    return fetched(transfer, server_.serve("/picture", std::move(answer)));
  }

  // The headers of the one request that a plain fetch sends.
  std::map<std::string, std::string> sentHeaders() {
    answered(answers::ok("bytes"));
    return server_.requests().at(0).headers;
  }

  // /hop/1 leads to /hop/2 and so on; the last one has a picture.
  std::string serveHops(int redirects) {
    for (int hop = 1; hop <= redirects; ++hop) {
      server_.serve("/hop/" + std::to_string(hop), answers::redirect(std::to_string(hop + 1)));
    }
    server_.serve("/hop/" + std::to_string(redirects + 1), answers::ok("at last"));
    return server_.address("/hop/1");
  }

  PictureServer server_;
};

}  // namespace leafund
