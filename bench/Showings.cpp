// A million showings of a row, by scrolling up and down a long list: what the last cost beside the
// first, in time and in memory that is kept.

#include <malloc.h>

#include "bench/Figures.h"
#include "bench/SilentApplication.h"

namespace leafund {
namespace {

constexpr int kBatches = 100;
constexpr long kShowingsABatch = 10'000;
constexpr std::size_t kRows = 10'000;

class Scrolling {
 public:
  explicit Scrolling(SilentApplication& app) : app_(app), table_(app.table()) {}

  // A row further each time, and back again at the end.
  void show(long rows) {
    const long wanted = app_.host.transfers + rows;
    while (app_.host.transfers < wanted) {
      if (table_->contentOffset().y >= table_->greatestOffset()) step_ = -kRowHeight;
      if (table_->contentOffset().y <= 0) step_ = kRowHeight;
      app_.application->scroll(table_, table_->contentOffset().y + step_);
    }
  }

 private:
  static constexpr double kRowHeight = 160;
  SilentApplication& app_;
  std::shared_ptr<UITableView> table_;
  double step_ = kRowHeight;
};

int run(int argc, char** argv) {
  Figures figures(argc, argv);
  resizeList(otherCampaigns(), kRows);
  SilentApplication app;
  Scrolling scrolling(app);
  scrolling.show(1'000);  // the pools are full
  const auto keptBefore = mallinfo2().uordblks;
  const long before = app.host.transfers;
  for (int batch = 0; batch < kBatches; ++batch) {
    const double seconds = secondsOf([&] { scrolling.show(kShowingsABatch); });
    figures.add("showing_ns", seconds * 1e9 / kShowingsABatch);
  }
  const auto showings = static_cast<double>(app.host.transfers - before);
  demand(showings >= kBatches * kShowingsABatch, "a million rows were shown");
  figures.add("kept_bytes", static_cast<double>(mallinfo2().uordblks - keptBefore) / showings);
  return 0;
}

}  // namespace
}  // namespace leafund

int main(int argc, char** argv) { return leafund::run(argc, argv); }
