// The most memory that scrolling through ten thousand rows takes. What is kept for ever, by intent,
// is counted apart: a card a showing.

#include <QCoreApplication>
#include <fstream>

#include "bench/Figures.h"
#include "bench/GlassBench.h"

namespace leafund {
namespace {

constexpr std::size_t kRows = 10'000;

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

int run(int argc, char** argv) {
  Figures figures(argc, argv);
  resizeList(otherCampaigns(), kRows);
  GlassBench glass;
  glass.frame();
  figures.add("first_frame_kb", peakKilobytes());
  glass.signIn();
  const double lowest = glass.table()->greatestOffset();
  for (double offset = 0; offset < lowest; offset += 60) {
    glass.scrollTo(offset);
    glass.frame();
    QCoreApplication::processEvents();
  }
  glass.scrollTo(lowest);
  demand(glass.table()->visibleCells().contains(kRows - 1), "the last row is shown");
  figures.add("scrolled_kb", peakKilobytes());
  figures.add("showings", kRows);
  return 0;
}

}  // namespace
}  // namespace leafund

int main(int argc, char** argv) { return leafund::run(argc, argv); }
