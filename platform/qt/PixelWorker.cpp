#include "platform/qt/PixelWorker.h"

#include <pthread.h>

#include <QQuickWindow>
#include <new>
#include <system_error>

namespace leafund {

PixelWorker& PixelWorker::of(QQuickWindow& window) {
  auto* worker = window.findChild<PixelWorker*>({}, Qt::FindDirectChildrenOnly);
  return worker != nullptr ? *worker : *new PixelWorker(&window);
}

PixelWorker::~PixelWorker() {
  {
    const std::lock_guard lock(mutex_);
    isEnding_ = true;
    for (Job& job : underWay_) job.stop.request_stop();
  }
  changed_.notify_one();
  if (thread_.joinable()) thread_.join();
}

PixelWorker::Ticket PixelWorker::ask(Work work, Done done) {
  Jobs asked;
  Job& job = asked.emplace_back(Job{std::move(work), std::move(done)});
  Ticket ticket(job.stop);
  if (hasThread()) {
    const std::lock_guard lock(mutex_);
    waiting_.splice(waiting_.end(), asked);
    changed_.notify_one();
  } else {
    // Made here it could hold the window for seconds, and the next picture tries again.
    const std::lock_guard lock(mutex_);
    ready_.splice(ready_.end(), asked);
    QMetaObject::invokeMethod(this, &PixelWorker::deliver, Qt::QueuedConnection);
  }
  return ticket;
}

bool PixelWorker::hasThread() {
  try {
    if (!thread_.joinable()) thread_ = std::thread([this] { run(); });
  } catch (const std::system_error&) {
    return false;
  }
  return true;
}

void PixelWorker::run() {
  pthread_setname_np(pthread_self(), "pixels");
  std::unique_lock lock(mutex_);
  for (;;) {
    changed_.wait(lock, [this] { return isEnding_ || !waiting_.empty(); });
    if (isEnding_) return;
    underWay_.splice(underWay_.end(), waiting_, waiting_.begin());
    Job& job = underWay_.front();
    lock.unlock();
    make(job);
    lock.lock();
    ready_.splice(ready_.end(), underWay_);
    QMetaObject::invokeMethod(this, &PixelWorker::deliver, Qt::QueuedConnection);
  }
}

void PixelWorker::make(Job& job) {
  const std::stop_token stop = job.stop.get_token();
  if (stop.stop_requested()) return;
  try {
    job.image = job.work(stop);
  } catch (const std::bad_alloc&) {  // and the image stays null
  }
}

void PixelWorker::deliver() {
  Jobs ready;
  {
    const std::lock_guard lock(mutex_);
    ready.swap(ready_);
  }
  for (Job& job : ready) {
    if (!job.stop.stop_requested()) job.done(std::move(job.image));
  }
}

}  // namespace leafund
