#pragma once

#include <functional>

#include "platform/foundation/NSURLResponse.h"

namespace leafund {

class NSURLRequest;
class UIApplication;
class UINavigationController;

// What the toolkit needs of the machine it runs on. One contract suite holds all hosts to the same
// behaviour.
//
// What a host calls in return, all of it on the main thread:
// - In run(): resize() with the content's size, launch(), and becomeActive() once in front.
// - resize() whenever the content's size changes.
// - For each step posted, turn() with it.
// - For what the user does, the application's events from tap() to goBack(). No tap for a press
//   that is part of an earlier one which changed the top screen: the rest of a double click, or the
//   repeats of a held key.
// - resignActive(), enterBackground(), enterForeground() and becomeActive(), leaving none out where
//   the system skips steps; terminate() before run() returns for good; receiveMemoryWarning() when
//   the system is short of memory.
// - UIView::setSkin() for each view it shows. A skin's refresh() is called at the end of a turn.
class Host {
 public:
  Host() = default;
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  virtual ~Host() = default;

  // Launches the application and serves it until its window closes. May return at once where the
  // surroundings own the loop: no state of the application lives on the caller's stack.
  virtual int run(UIApplication& application) = 0;

  // Whether the caller runs on the main thread; transfer() says what a host without threads
  // answers.
  virtual bool onMain() const = 0;

  // Runs the step later on the main thread, in the order posted, each step as one turn. From any
  // thread, and never inside this call.
  virtual void post(std::function<void()> step) = 0;

  // Fetches a whole body by GET, within the session's policy (NSURLSession.h), each breach of which
  // is an error. Calls the completion exactly once and never inside this call: on a thread of the
  // session's own or, on a host without threads, outside any turn with onMain() false. An error for
  // want of that thread may come as a step of the main queue.
  virtual void transfer(const NSURLRequest& request, CompletionHandler completion) = 0;

  // Pixels a point.
  virtual double screenScale() const = 0;

  // Makes the screen agree with the stack, which has already moved. Called within a turn, once the
  // views are laid out.
  virtual void show(const UINavigationController& navigation) = 0;
};

// The host in force; fatal when there is none. Set by UIApplicationMain, and by each test.
Host& currentHost();
void setCurrentHost(Host* host);

}  // namespace leafund
