#include <sys/resource.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <future>
#include <new>
#include <vector>

#include "platform/qt/PixelWorker.h"
#include "tests/window/PixelsFixture.h"

namespace leafund {
namespace {

using namespace std::chrono_literals;

QImage pixelOf(QColor colour) {
  QImage image(1, 1, QImage::Format_RGB32);
  image.fill(colour);
  return image;
}

PixelWorker::Work made(QColor colour) {
  return [colour](const std::stop_token&) { return pixelOf(colour); };
}

// By name, for sanitizers have threads of their own.
int workerThreads() {
  int count = 0;
  for (const auto& thread : std::filesystem::directory_iterator("/proc/self/task")) {
    std::string name;
    std::ifstream(thread.path() / "comm") >> name;
    count += name == "pixels";
  }
  return count;
}

class PixelWorkerTest : public testing::Test {
 protected:
  // Takes down in order what arrives.
  PixelWorker::Done noted() {
    return [this](const QImage& image) {
      EXPECT_EQ(std::this_thread::get_id(), main_);
      arrived.push_back(image.isNull() ? QColor() : image.pixelColor(0, 0));
    };
  }
  bool arrive(std::size_t count) {
    const auto patience = std::chrono::steady_clock::now() + 10s;
    QTimer heartbeat;
    heartbeat.start(20ms);
    while (arrived.size() < count && std::chrono::steady_clock::now() < patience) {
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return arrived.size() == count;
  }
  // Whatever was posted so far is done.
  static void serve() { QCoreApplication::processEvents(); }

  // A work that is under way when this returns, and ends when it is released.
  PixelWorker::Ticket askHeld() {
    auto held = worker->ask(
        [this](const std::stop_token&) {
          entered.set_value();
          release.get_future().wait();
          return pixelOf(Qt::red);
        },
        noted());
    entered.get_future().wait();
    return held;
  }

  std::unique_ptr<PixelWorker> worker = std::make_unique<PixelWorker>();
  std::vector<QColor> arrived;
  std::promise<void> entered, release;

 private:
  std::thread::id main_ = std::this_thread::get_id();
};

TEST_F(PixelWorkerTest, PicturesAreMadeInOrderOnOneThreadAndArriveOnTheMainOne) {
  std::vector<std::thread::id> makers;
  std::vector<PixelWorker::Ticket> tickets;
  for (const auto colour : {Qt::red, Qt::green, Qt::blue}) {
    tickets.push_back(worker->ask(
        [&, colour](const std::stop_token&) {
          makers.push_back(std::this_thread::get_id());
          return pixelOf(colour);
        },
        noted()));
    EXPECT_TRUE(arrived.empty());
  }

  ASSERT_TRUE(arrive(3));

  EXPECT_EQ(arrived, (std::vector<QColor>{Qt::red, Qt::green, Qt::blue}));
  EXPECT_NE(makers[0], std::this_thread::get_id());
  EXPECT_EQ(makers, std::vector(3, makers[0]));
  EXPECT_EQ(workerThreads(), 1);
}

TEST_F(PixelWorkerTest, ThereIsNoThreadBeforeTheFirstPicture) { EXPECT_EQ(workerThreads(), 0); }

TEST_F(PixelWorkerTest, WhatIsDroppedWhileItWaitsIsNotMade) {
  const auto held = askHeld();
  std::atomic<bool> wasMade = false;
  auto dropped = worker->ask(
      [&](const std::stop_token&) {
        wasMade = true;
        return pixelOf(Qt::green);
      },
      noted());
  const auto kept = worker->ask(made(Qt::blue), noted());

  dropped = {};
  release.set_value();

  ASSERT_TRUE(arrive(2));
  EXPECT_EQ(arrived, (std::vector<QColor>{Qt::red, Qt::blue}));
  EXPECT_FALSE(wasMade);
}

TEST_F(PixelWorkerTest, WhatIsDroppedUnderWayIsToldToStopAndDoesNotArrive) {
  auto dropped = worker->ask(
      [&](const std::stop_token& stop) {
        entered.set_value();
        while (!stop.stop_requested()) std::this_thread::yield();
        return pixelOf(Qt::red);
      },
      noted());
  entered.get_future().wait();
  const auto kept = worker->ask(made(Qt::blue), noted());

  dropped = {};

  ASSERT_TRUE(arrive(1));
  EXPECT_EQ(arrived, (std::vector<QColor>{Qt::blue}));
}

TEST_F(PixelWorkerTest, WhatIsDroppedWhenItIsReadyDoesNotArrive) {
  auto dropped = worker->ask(made(Qt::red), noted());
  auto asked = worker->ask(
      [&](const std::stop_token&) {
        entered.set_value();
        return pixelOf(Qt::blue);
      },
      noted());
  entered.get_future().wait();  // so the first one is ready

  dropped = {};

  ASSERT_TRUE(arrive(1));
  EXPECT_EQ(arrived, (std::vector<QColor>{Qt::blue}));
}

TEST_F(PixelWorkerTest, WithoutMemoryThePictureIsNullAndTheNextOneIsMade) {
  const auto first =
      worker->ask([](const std::stop_token&) -> QImage { throw std::bad_alloc(); }, noted());
  const auto second = worker->ask(made(Qt::blue), noted());

  ASSERT_TRUE(arrive(2));

  EXPECT_EQ(arrived, (std::vector<QColor>{QColor(), Qt::blue}));
}

TEST_F(PixelWorkerTest, WithoutAThreadThePictureIsNullAndTheNextOneTriesAgain) {
  rlimit before{};
  getrlimit(RLIMIT_AS, &before);
  rlim_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  // A thread takes a stack of some megabytes.
  const rlim_t most = pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + (1U << 20U);
  const rlimit lowered{most, before.rlim_max};
  setrlimit(RLIMIT_AS, &lowered);
  const auto first = worker->ask(made(Qt::red), noted());
  setrlimit(RLIMIT_AS, &before);
  EXPECT_TRUE(arrived.empty());
  ASSERT_TRUE(arrive(1));
  const auto second = worker->ask(made(Qt::blue), noted());

  ASSERT_TRUE(arrive(2));

  EXPECT_EQ(arrived, (std::vector<QColor>{QColor(), Qt::blue}));
}

TEST_F(PixelWorkerTest, TheEndStopsWhatIsUnderWayAndDropsTheRest) {
  const auto underWay = worker->ask(
      [&](const std::stop_token& stop) {
        entered.set_value();
        while (!stop.stop_requested()) std::this_thread::yield();
        return pixelOf(Qt::red);
      },
      noted());
  const auto waiting = worker->ask(made(Qt::blue), noted());
  entered.get_future().wait();

  worker.reset();
  serve();

  EXPECT_TRUE(arrived.empty());
}

}  // namespace
}  // namespace leafund
