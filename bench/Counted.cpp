// Work whose instructions are counted by callgrind, one function each: bench/budgets says how many
// each may take.

#include <string_view>

#include "bench/SilentApplication.h"

namespace leafund {

// Not inlined and by these names, because callgrind is told to look at them alone.
[[gnu::noinline]] std::unique_ptr<SilentApplication> countedStart() {
  return std::make_unique<SilentApplication>();
}
[[gnu::noinline]] void countedReload(SilentApplication& app) {
  app.application->turn([&] { app.table()->reloadData(); });
}
[[gnu::noinline]] void countedShowing(SilentApplication& app) {
  app.application->scroll(app.table(), app.table()->contentOffset().y + 160);
}
[[gnu::noinline]] void countedBooking(SilentApplication& app) { app.tap("yesButton"); }

namespace {

int run() {
  auto app = countedStart();
  resizeList(otherCampaigns(), 10'000);
  countedReload(*app);
  demand(app->table()->contentHeight() == 1'600'000, "every row is there");
  for (int i = 0; i < 20; ++i) app->application->scroll(app->table(), 160.0 * i);
  const long before = app->host.transfers;
  countedShowing(*app);
  demand(app->host.transfers == before + 1, "one row was shown");
  app->openRow(3);
  app->type("dollarAmountField", "1");
  app->tap("FundButton");
  countedBooking(*app);
  demand(app->shown("ThankYouVC"), "it was booked");
  return 0;
}

}  // namespace
}  // namespace leafund

int main() { return leafund::run(); }
