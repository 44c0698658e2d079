// Two hundred pictures over the loopback into a list that is flung, beside the same two hundred
// fetched by libcurl over six connections; and the frames meanwhile.

#include <curl/curl.h>

#include <QCoreApplication>
#include <QFile>

#include "bench/Figures.h"
#include "bench/WindowBench.h"
#include "interface/qml/items/PictureItem.h"
#include "platform/graphics/DrawingContext.h"
#include "platform/uikit/UITableViewCell.h"
#include "tests/support/PictureAnswers.h"
#include "tests/support/PictureAnswersProtocol.h"

namespace leafund {
namespace {

constexpr std::size_t kPictures = 200;

std::string nameOf(std::size_t number) {
  return std::string("/").append(std::to_string(number)).append(".jpg");
}

// Each answer after that pause.
void serve(PictureServer& server, std::chrono::milliseconds pause) {
  QFile file(QStringLiteral(LEAFUND_PICTURES_DIR "/biking-to-work.jpg"));
  demand(file.open(QFile::ReadOnly), "the picture is there");
  const auto body = file.readAll().toStdString();
  for (std::size_t i = 0; i < kPictures; ++i) {
    const auto answer = answers::ok(body);
    server.serve(nameOf(i), pause.count() > 0 ? answers::after(pause, answer) : answer);
  }
}

std::size_t discard(char*, std::size_t size, std::size_t count, void* total) {
  *static_cast<std::size_t*>(total) += size * count;
  return size * count;
}

double byCurl(const PictureServer& server) {
  std::vector<CURL*> handles;
  std::size_t total = 0;
  const double seconds = wallSecondsOf([&] {
    CURLM* multi = curl_multi_init();
    curl_multi_setopt(multi, CURLMOPT_MAX_TOTAL_CONNECTIONS, 6L);
    for (std::size_t i = 0; i < kPictures; ++i) {
      CURL* handle = curl_easy_init();
      curl_easy_setopt(handle, CURLOPT_URL, server.address(nameOf(i)).c_str());
      curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, discard);
      curl_easy_setopt(handle, CURLOPT_WRITEDATA, &total);
      curl_multi_add_handle(multi, handle);
      handles.push_back(handle);
    }
    int running = 1;
    while (running > 0) {
      curl_multi_perform(multi, &running);
      if (running > 0) curl_multi_poll(multi, nullptr, 0, 1000, nullptr);
    }
    for (auto* handle : handles) {
      curl_multi_remove_handle(multi, handle);
      curl_easy_cleanup(handle);
    }
    curl_multi_cleanup(multi);
  });
  demand(total > kPictures * 10'000, "curl fetched the pictures");
  return seconds;
}

// Flings from the top to the bottom, a list's height at a time, so that each of the two hundred is
// shown once; then waits for their pictures: each one that is set leaves a drawing context. The
// window draws when Qt lets it, as it does for a user: more frames than those nobody would see.
class Fling {
 public:
  Fling(WindowBench& window, const PictureServer& server)
      : window_(window), asked_(server.requests().size()), drawn_(drawingContextCount()) {
    const double lowest = window.table()->greatestOffset();
    for (double offset = 0; offset < lowest; offset += window.list().height()) move(offset);
    move(lowest);
  }

  // What the main queue holds of pictures is set, and a frame drawn where one is due.
  bool receive() {
    QCoreApplication::processEvents();
    return drawingContextCount() >= drawn_ + kPictures;
  }

  void end(const PictureServer& server) {
    window_.waitUntil([&] { return receive(); });
    window_.frame();
    demand(drawingContextCount() == drawn_ + kPictures, "each picture was set once");
    demand(server.requests().size() == asked_ + kPictures, "and fetched once");
  }

 private:
  void move(double offset) {
    window_.scrollTo(offset);
    receive();
  }

  WindowBench& window_;
  std::size_t asked_;
  std::size_t drawn_;
};

// A frame of the list a few pixels to and fro, so that no further row is shown.
double frameNearTheEnd(WindowBench& window) {
  static int count = 0;
  constexpr double nearby = 20;
  const double offset = window.table()->greatestOffset() - (++count % 2 == 0 ? 0 : nearby);
  return secondsOf([&] {
    window.scrollTo(offset);
    window.frame();
  });
}

// Frames while pictures are on their way, slowly, of which none was set since the frame before.
std::vector<double> framesBetweenPictures(WindowBench& window, PictureServer& server) {
  serve(server, std::chrono::milliseconds(40));
  std::vector<double> times;
  Fling fling(window, server);
  for (bool all = false; !all;) {
    const std::size_t before = drawingContextCount();
    all = fling.receive();
    const double seconds = frameNearTheEnd(window);
    if (!all && drawingContextCount() == before) times.push_back(seconds);
  }
  fling.end(server);
  serve(server, {});
  return times;
}

void checkThatPicturesAreSeen(WindowBench& window, const PictureServer& server) {
  Fling fling(window, server);
  fling.end(server);
  window.waitUntil([&] { return PictureItem::areDrawn(window.window()); });
  const QImage with = window.picture();
  for (const auto& [row, cell] : window.table()->visibleCells()) {
    demand(cell->imageView()->image() != nullptr, "the row has its picture");
    window.application->turn([&] { cell->imageView()->setImage(nullptr); });
  }
  window.frame();
  const auto top = static_cast<int>(window.list().mapToScene({0, 0}).y());
  const int below = static_cast<int>(window.list().height()) - 160 + top;
  const QRect lastRow(16, below, 80, 160);
  demand(window.picture().copy(lastRow) != with.copy(lastRow), "and it is seen");
}

int run(int argc, char** argv) {
  Figures figures(argc, argv);
  WindowBench window;
  PictureServer server;  // After the application object, without which its thread never rests.
  serve(server, {});
  resizeList(otherCampaigns(), kPictures);
  for (std::size_t i = 0; i < kPictures; ++i) {
    otherCampaigns()[i]->setPhoto(server.address(nameOf(i)));
  }
  window.signIn();
  const std::size_t shown = window.table()->visibleCells().size();
  window.waitUntil([&] { return drawingContextCount() == shown; });
  window.scrollTo(window.table()->greatestOffset());
  window.waitUntil([&] { return drawingContextCount() == 2 * shown; });
  checkThatPicturesAreSeen(window, server);
  for (int round = 0; round < 15; ++round) {
    figures.add("curl_ms", byCurl(server) * 1e3);
    double mainThread = 0;
    const double whole =
        wallSecondsOf([&] { mainThread = secondsOf([&] { Fling(window, server).end(server); }); });
    figures.add("ours_ms", whole * 1e3);
    figures.add("of_it_main_thread_ms", mainThread * 1e3);
    for (const double seconds : framesBetweenPictures(window, server)) {
      figures.add("busy_ms", seconds * 1e3);
    }
    for (int frame = 0; frame < 50; ++frame) figures.add("idle_ms", frameNearTheEnd(window) * 1e3);
  }
  return 0;
}

}  // namespace
}  // namespace leafund

int main(int argc, char** argv) { return leafund::run(argc, argv); }
