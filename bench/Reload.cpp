// The frame that follows a reload of the list, at hundred and at a million campaigns.

#include "bench/Figures.h"
#include "bench/WindowBench.h"

namespace leafund {
namespace {

// So that the frame has every row in sight to draw anew.
void renameFirstRows() {
  static int count = 0;
  for (std::size_t row = 0; row < 10; ++row) {
    otherCampaigns()[row]->setTitle("Renamed " + std::to_string(++count));
  }
}

int run(int argc, char** argv) {
  Figures figures(argc, argv);
  WindowBench window;
  window.signIn();
  const auto reload = [&] { window.application->turn([&] { window.table()->reloadData(); }); };
  for (int round = 0; round < 25; ++round) {
    for (const std::size_t count : {100UL, 10'000UL, 1'000'000UL}) {
      resizeList(otherCampaigns(), count);
      reload();  // The first one meets what making the list has left behind in the caches.
      window.frame();
      renameFirstRows();
      reload();
      demand(
          window.list().property("contentHeight").toDouble() == 160.0 * static_cast<double>(count),
          "the window knows of every row");
      const double seconds = secondsOf([&] { window.frame(); });
      figures.add("frame_after_" + std::to_string(count) + "_ms", seconds * 1e3);
    }
  }
  return 0;
}

}  // namespace
}  // namespace leafund

int main(int argc, char** argv) { return leafund::run(argc, argv); }
