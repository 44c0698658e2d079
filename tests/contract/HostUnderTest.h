#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/Host.h"

namespace leafund {

// One host as the contract meets it. Each host's suite links the same tests with its own make().
class HostUnderTest {
 public:
  static std::unique_ptr<HostUnderTest> make();

  HostUnderTest() = default;
  HostUnderTest(const HostUnderTest&) = delete;
  HostUnderTest& operator=(const HostUnderTest&) = delete;
  // Waits for the host's own threads, so that nothing it calls outlives a test.
  virtual ~HostUnderTest() = default;

  // In force while this object lives.
  virtual Host& host() = 0;
  // Launches the application at a size of at least 320 by 568 points, and returns. Once.
  virtual void start(UIApplication& application) = 0;
  // Lets the main queue and the network go on until `done`, or for a generous time. `done` is asked
  // on the main thread, between turns. Answers whether it came to be.
  virtual bool runUntil(const std::function<bool()>& done) = 0;

  // From now on the address answered gives that body, with that status, over the host's network.
  // `path` begins with a slash.
  virtual std::string serve(const std::string& path, std::string body, int status) = 0;
  // An address at which nothing answers.
  virtual std::string deadAddress() = 0;
};

}  // namespace leafund
