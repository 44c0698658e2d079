// The work inside, without a window: a reload, a new campaign and a pledge, in lists of up to a
// million campaigns, beside one memmove of such a list.

#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

#include "bench/Figures.h"
#include "bench/SilentApplication.h"

namespace leafund {
namespace {

constexpr std::size_t kMillion = 1'000'000;

SilentApplication& application() {
  static auto& made = *new SilentApplication;
  return made;
}

// As at an appearance: the list screen's own reload, with the layout that follows it.
void reload(benchmark::State& state) {
  const auto count = static_cast<std::size_t>(state.range(0));
  resizeList(otherCampaigns(), count);
  auto& app = application();
  const auto table = app.table();
  for (auto _ : state) {
    app.application->turn([&] { table->reloadData(); });
  }
  demand(table->contentHeight() == 160.0 * static_cast<double>(count), "every row is there");
  demand(!table->visibleCells().empty(), "rows are shown");
}
BENCHMARK(reload)->Arg(100)->Arg(10'000)->Arg(1'000'000);

void memmoveOfTheList(benchmark::State& state) {
  std::vector<std::shared_ptr<CampaignClass>> list(kMillion);
  auto* bytes = reinterpret_cast<char*>(list.data());
  for (auto _ : state) {
    std::memmove(bytes + sizeof list[0], bytes, (kMillion - 1) * sizeof list[0]);
    benchmark::ClobberMemory();
  }
}
BENCHMARK(memmoveOfTheList);

// From the tap on "Create" to the thanks.
void insertCampaign(benchmark::State& state) {
  auto& app = application();
  resizeList(otherCampaigns(), 7);
  auto& mine = myUnfundedCampaigns();
  for (auto _ : state) {
    resizeList(mine, kMillion);
    app.tap("mineTab");
    app.tap("newButton");
    app.type("nameOfCreator", "Wren");
    app.type("nameOfCampaign", "Newest");
    app.type("shortDescription", "Short");
    app.type("fullDescription", "Long");
    app.type("desiredFunding", "200");
    app.type("imageURL", "http://127.0.0.1:9/none.jpg");
    state.SetIterationTime(secondsOf([&] { app.tap("createButton"); }));
    demand(app.shown("ThankYouVC") && mine.front()->title() == "Newest", "it was created");
    demand(mine.size() == kMillion + 1, "among a million");
    mine.erase(mine.begin());
    resizeList(mine, 2);  // the way home need not show a million
    app.tap("homeButton");
    app.tap("browseTab");
  }
}
BENCHMARK(insertCampaign)->UseManualTime()->Iterations(5);

// From the tap on "Yes" to the thanks, for a campaign at that place of the browse list.
void bookPledge(benchmark::State& state) {
  auto& app = application();
  auto& others = otherCampaigns();
  auto& funded = campaignsIFunded();
  for (auto _ : state) {
    resizeList(others, kMillion);
    resizeList(funded, kMillion);
    app.tap("fundedTab");
    app.tap("browseTab");
    app.openRow(state.range(0));
    const auto pledged = others[static_cast<std::size_t>(state.range(0))];
    app.type("dollarAmountField", "1");
    app.tap("FundButton");
    demand(app.shown("ConfirmPageVC"), "the question is asked");
    state.SetIterationTime(secondsOf([&] { app.tap("yesButton"); }));
    demand(app.shown("ThankYouVC") && funded.front() == pledged, "it was booked");
    demand(others.size() == kMillion - 1, "and left the browse list");
    resizeList(others, 7);
    resizeList(funded, 3);
    app.tap("homeButton");
  }
}
BENCHMARK(bookPledge)->UseManualTime()->Iterations(5)->Arg(0)->Arg(500'000)->Arg(999'990);

}  // namespace
}  // namespace leafund

BENCHMARK_MAIN();
