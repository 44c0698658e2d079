#pragma once

#include <QImage>
#include <QObject>
#include <condition_variable>
#include <functional>
#include <list>
#include <mutex>
#include <stop_token>
#include <thread>
#include <utility>

class QQuickWindow;

namespace leafund {

// Makes the pixels of a window's pictures on a thread of its own, one after another in the order
// they were asked for: what one picture may take of memory is then what all may take together. The
// thread starts at the first picture and sleeps while there is none.
//
// On the main thread only.
class PixelWorker : public QObject {
  Q_OBJECT

 public:
  // Runs on the worker's thread, and ends soon after a stop is requested.
  using Work = std::function<QImage(const std::stop_token&)>;
  // Runs on the main thread, once, and never within ask(). Null for what could not be made, also
  // for want of memory or of a thread.
  using Done = std::function<void(QImage)>;

  // Stands for what was asked for. Destroyed or assigned to, it drops the work, wherever that has
  // got to: Done is then called no more. It may outlive the worker.
  class Ticket {
   public:
    Ticket() = default;
    Ticket(Ticket&& other) noexcept : stop_(std::exchange(other.stop_, none())) {}
    Ticket& operator=(Ticket&& other) noexcept {
      stop_.request_stop();
      stop_ = std::exchange(other.stop_, none());
      return *this;
    }
    ~Ticket() { stop_.request_stop(); }

    // Whether the work is still to be done.
    bool isOpen() const { return stop_.stop_possible(); }

   private:
    friend class PixelWorker;
    explicit Ticket(std::stop_source stop) : stop_(std::move(stop)) {}
    static std::stop_source none() { return std::stop_source(std::nostopstate); }

    std::stop_source stop_ = none();
  };

  // The window's own, made when it is first asked for; it ends with the window.
  static PixelWorker& of(QQuickWindow& window);

  explicit PixelWorker(QObject* parent = nullptr) : QObject(parent) {}
  // Drops all that is left, and waits for the thread.
  ~PixelWorker() override;

  [[nodiscard]] Ticket ask(Work work, Done done);

 private:
  struct Job {
    Work work;
    Done done;
    std::stop_source stop = {};
    QImage image = {};
  };
  using Jobs = std::list<Job>;  // A job moves from one to another without memory being taken.

  static void make(Job& job);
  bool hasThread();
  // The life of the thread.
  void run();
  void deliver();

  std::thread thread_;
  std::mutex mutex_;
  std::condition_variable changed_;
  Jobs waiting_;
  Jobs underWay_;  // at most one
  Jobs ready_;
  bool isEnding_ = false;
};

}  // namespace leafund
