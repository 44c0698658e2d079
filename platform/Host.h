#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace leafund {

class NSURLRequest;
class UIApplication;
class UINavigationController;

// The bytes of a body, shared and never changed; a null pointer is no body.
using NSData = std::shared_ptr<const std::string>;

struct NSURLResponse {
  int statusCode = 0;
};

struct NSError {
  std::string reason;
};

using CompletionHandler =
    std::function<void(NSData body, std::optional<NSURLResponse>, std::optional<NSError>)>;

// What the toolkit needs of the machine it runs on. There are two hosts: one on a real window and
// one without any. One contract suite holds both to the same behaviour.
class Host {
 public:
  Host() = default;
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  virtual ~Host() = default;

  // Launches the application and serves it until its window closes. May return at once where the
  // surroundings own the loop: no state of the application lives on the caller's stack.
  virtual int run(UIApplication& application) = 0;

  virtual bool onMain() const = 0;

  // Runs the step later on the main thread, in the order posted, each step as one turn. From any
  // thread.
  virtual void post(std::function<void()> step) = 0;

  // Fetches a whole body by GET. Calls the completion exactly once, on a thread of the host's own,
  // and never inside this call; an error for want of that thread may come as a step of the main
  // queue. A breach of the session's policy is an error.
  virtual void transfer(const NSURLRequest& request, CompletionHandler completion) = 0;

  // Pixels a point.
  virtual double screenScale() const = 0;

  // Makes the glass agree with the stack, which has already moved.
  virtual void show(const UINavigationController& navigation) = 0;
};

// The host in force; fatal when there is none. Set once by the program, and by each test.
Host& currentHost();
void setCurrentHost(Host* host);

}  // namespace leafund
