#include <gtest/gtest.h>
#include <malloc.h>

#include <memory>
#include <thread>
#include <utility>

#include "platform/graphics/DrawingContext.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UITableView.h"
#include "shell/AppDelegate.h"
#include "shell/Storyboard.h"
#include "tests/support/Pictures.h"
#include "tests/support/ProbeHost.h"
#include "tests/support/ProcessorTime.h"

namespace leafund {
namespace {

// The browse list alone, in a window of a little more than two rows.
class RowShowingsTest : public testing::Test {
 protected:
  RowShowingsTest() {
    application->resize({390, 400});
    application->launch();
    answerAll();
  }

  // Flings the list from end to end, each time to rows that were out of sight, and answers their
  // downloads now and then. The number of showings, which are also redrawings.
  std::size_t showRows(std::size_t atLeast) {
    const auto table = std::static_pointer_cast<UITableView>(
        application->navigation()->topViewController()->view());
    std::size_t shown = 0;
    for (bool down = true; shown < atLeast; down = !down) {
      application->scroll(table, down ? table->greatestOffset() : 0);
      if (host.transfers.size() >= 100) shown += answerAll();
    }
    return shown;
  }

  std::size_t answerAll() {
    const auto answered = std::exchange(host.transfers, {});
    std::thread session([&] {
      for (const auto& fetch : answered) fetch.second(body, NSURLResponse{200}, std::nullopt);
    });
    session.join();
    for (auto& step : std::exchange(host.steps, {})) application->turn(std::move(step));
    return answered.size();
  }

  ProbeHost host;
  const NSData body = std::make_shared<const std::string>(pictureBody(4, 4));
  UIStoryboard storyboard{"OtherCampaignsTableViewController", mainStoryboard().scenes(),
                          mainStoryboard().segues()};
  std::shared_ptr<UIApplication> application =
      std::make_shared<UIApplication>(host, storyboard, std::make_shared<AppDelegate>());
};

// What is in use of the heap, with the allocator's own headers.
std::size_t heapBytes() {
  const auto use = mallinfo2();
  return use.uordblks + use.hblkhd;
}

// A build for debugging is shown fewer: it takes several times as long for each.
#ifdef __OPTIMIZE__
constexpr std::size_t kShowings = 1'000'000;
#else
constexpr std::size_t kShowings = 200'000;
#endif

TEST_F(RowShowingsTest, AMillionShowingsKeepACardAndAContextEachAndTheLastCostsWhatTheFirstDid) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  GTEST_SKIP() << "a sanitizer has a heap of its own, that is not told of";
#endif
  constexpr std::size_t kBatches = 4;
  showRows(100);  // what is made once is made now
  double firstSeconds = 0;
  for (std::size_t batch = 0; batch < kBatches; ++batch) {
    const std::size_t bytes = heapBytes();
    const std::size_t contexts = drawingContextCount();
    const double start = processorSeconds();
    const std::size_t shown = showRows(kShowings / kBatches);
    const double seconds = processorSeconds() - start;
    const std::size_t each = (heapBytes() - bytes) / shown;
    RecordProperty("bytesAShowing" + std::to_string(batch), static_cast<int>(each));
    RecordProperty("milliseconds" + std::to_string(batch), static_cast<int>(seconds * 1000));
    EXPECT_EQ(drawingContextCount() - contexts, shown);
    EXPECT_LE(each, 400U);
    EXPECT_GE(each, sizeof(UIView));  // the count does count
    if (batch == 0) firstSeconds = seconds;
    EXPECT_LT(seconds, 3 * firstSeconds);
  }
}

}  // namespace
}  // namespace leafund
