// The most memory that scrolling through ten thousand rows takes, each with its picture. What is
// kept for ever, by intent, is counted apart: a card a showing. And what frames cost as they add
// up.

#include <sys/prctl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <csignal>
#include <fstream>

#include "bench/Figures.h"
#include "bench/WindowBench.h"
#include "platform/graphics/DrawingContext.h"
#include "tests/support/PictureAnswers.h"

namespace leafund {
namespace {

constexpr std::size_t kRows = 10'000;
constexpr std::size_t kFramesABatch = 667;  // Of 60 pixels: 250 rows.

double peakKilobytes() {
  std::ifstream status("/proc/self/status");
  std::string word;
  while (status >> word) {
    if (word == "VmHWM:") break;
  }
  double kilobytes = 0;
  status >> kilobytes;
  return kilobytes;
}

// The address of a picture that is served until this process ends, by another one: what the server
// takes is none of ours.
std::string servedPicture() {
  int pipeEnds[2];
  demand(pipe(pipeEnds) == 0, "there is a pipe");
  if (fork() == 0) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    int argc = 1;
    char name[] = "server";
    char* argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);  // Without it the server's thread never rests.
    PictureServer server;
    QFile file(QStringLiteral(LEAFUND_PICTURES_DIR "/biking-to-work.jpg"));
    demand(file.open(QFile::ReadOnly), "the picture is there");
    const auto address = server.serve("/row.jpg", answers::ok(file.readAll().toStdString())) + '\n';
    demand(write(pipeEnds[1], address.data(), address.size()) > 0, "the address can be told");
    for (;;) pause();
  }
  std::string address;
  for (char read = 0; ::read(pipeEnds[0], &read, 1) == 1 && read != '\n';) address += read;
  return address;
}

int run(int argc, char** argv) {
  const std::string picture = servedPicture();
  Figures figures(argc, argv);
  resizeList(otherCampaigns(), kRows);
  for (const auto& campaign : otherCampaigns()) campaign->setPhoto(picture);
  WindowBench window;
  window.frame();
  figures.add("first_frame_kb", peakKilobytes());
  window.signIn();
  const double lowest = window.table()->greatestOffset();
  std::vector<double> frames;
  for (double offset = 0; offset < lowest; offset += 60) {
    frames.push_back(secondsOf([&] {
      window.scrollTo(offset);
      window.frame();
    }));
    if (frames.size() == kFramesABatch) {
      figures.add("frame_ms", median(std::exchange(frames, {})) * 1e3);
    }
    // Nobody is faster than the pictures: those of the rows that have gone by are there.
    const auto gone = static_cast<std::size_t>(offset / 160);
    window.waitUntil([&] { return drawingContextCount() >= gone; });
    QCoreApplication::processEvents();
  }
  window.scrollTo(lowest);
  demand(window.table()->visibleCells().contains(kRows - 1), "the last row is shown");
  window.waitUntil([&] { return drawingContextCount() >= kRows; });
  figures.add("scrolled_kb", peakKilobytes());
  figures.add("showings", static_cast<double>(drawingContextCount()));
  return 0;
}

}  // namespace
}  // namespace leafund

int main(int argc, char** argv) { return leafund::run(argc, argv); }
