// Two hundred pictures over the loopback into a list that scrolls, beside the same two hundred
// fetched by libcurl over six connections.

#include <curl/curl.h>

#include <QCoreApplication>
#include <QFile>

#include "bench/Figures.h"
#include "bench/GlassBench.h"
#include "platform/graphics/DrawingContext.h"
#include "tests/support/PictureAnswers.h"

namespace leafund {
namespace {

constexpr std::size_t kPictures = 200;

std::string nameOf(std::size_t number) {
  return std::string("/").append(std::to_string(number)).append(".jpg");
}

void serve(PictureServer& server) {
  QFile file(QStringLiteral(LEAFUND_PICTURES_DIR "/biking-to-work.jpg"));
  demand(file.open(QFile::ReadOnly), "the picture is there");
  const auto body = file.readAll().toStdString();
  for (std::size_t i = 0; i < kPictures; ++i) server.serve(nameOf(i), answers::ok(body));
}

std::size_t discard(char*, std::size_t size, std::size_t count, void* total) {
  *static_cast<std::size_t*>(total) += size * count;
  return size * count;
}

double byCurl(const PictureServer& server) {
  std::vector<CURL*> handles;
  std::size_t total = 0;
  const double seconds = secondsOf([&] {
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

// Scrolls a row a frame from the top until each of the two hundred was shown, then waits for their
// pictures: each one that is set leaves a drawing context.
double byScrolling(GlassBench& glass, const PictureServer& server, std::vector<double>& frames) {
  const std::size_t asked = server.requests().size();
  const std::size_t drawn = drawingContextCount();
  const double seconds = secondsOf([&] {
    for (std::size_t row = 0; row < kPictures; ++row) {
      frames.push_back(secondsOf([&] {
        glass.scrollTo(160.0 * static_cast<double>(row));
        glass.frame();
      }));
      QCoreApplication::processEvents();
    }
    glass.waitUntil([&] { return drawingContextCount() >= drawn + kPictures; });
    glass.frame();
  });
  demand(server.requests().size() == asked + kPictures, "each picture was fetched once");
  return seconds;
}

int run(int argc, char** argv) {
  Figures figures(argc, argv);
  PictureServer server;
  serve(server);
  resizeList(otherCampaigns(), kPictures);
  for (std::size_t i = 0; i < kPictures; ++i) {
    otherCampaigns()[i]->setPhoto(server.address(nameOf(i)));
  }
  GlassBench glass;
  glass.signIn();
  const std::size_t shown = glass.table()->visibleCells().size();
  glass.waitUntil([&] { return drawingContextCount() == shown; });
  glass.scrollTo(glass.table()->greatestOffset());
  glass.waitUntil([&] { return drawingContextCount() == 2 * shown; });
  for (int round = 0; round < 7; ++round) {
    std::vector<double> frames;
    figures.add("curl_ms", byCurl(server) * 1e3);
    figures.add("ours_ms", byScrolling(glass, server, frames) * 1e3);
    figures.add("frame_ms", median(frames) * 1e3);
  }
  return 0;
}

}  // namespace
}  // namespace leafund

int main(int argc, char** argv) { return leafund::run(argc, argv); }
