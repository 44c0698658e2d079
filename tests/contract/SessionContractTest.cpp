#include <algorithm>
#include <atomic>
#include <mutex>

#include "platform/dispatch/MainQueue.h"
#include "platform/foundation/NSURLSession.h"
#include "tests/contract/ContractTest.h"

namespace leafund {
namespace {

using testing::ElementsAre;

// One fetch and all that its completion was given, so often as it was called.
class Fetch {
 public:
  struct Completion {
    NSData body;
    std::optional<NSURLResponse> response;
    std::optional<NSError> error;
    bool onMain;
  };

  explicit Fetch(const std::string& address)
      : task_(NSURLSession::sharedSession().dataTaskWithRequestCompletionHandler(
            NSURLRequest::initWithURL(*NSURL::initWithString(address)),
            [record = record_](NSData body, auto response, auto error) {
              const std::lock_guard lock(record->mutex);
              record->completions.push_back(
                  {std::move(body), response, error, currentHost().onMain()});
            })) {}

  void resume() { task_->resume(); }
  std::vector<Completion> completions() const {
    const std::lock_guard lock(record_->mutex);
    return record_->completions;
  }

 private:
  struct Record {
    std::mutex mutex;
    std::vector<Completion> completions;
  };
  std::shared_ptr<Record> record_ = std::make_shared<Record>();
  std::shared_ptr<NSURLSessionDataTask> task_;
};

class SessionContract : public ContractTest {
 protected:
  Fetch::Completion fetched(const std::string& address) {
    Fetch fetch(address);
    fetch.resume();
    EXPECT_TRUE(underTest->runUntil([&] { return !fetch.completions().empty(); })) << address;
    settle();
    EXPECT_EQ(fetch.completions().size(), 1U) << address;
    return fetch.completions().at(0);
  }
};

TEST_F(SessionContract, ABodyArrivesWholeWithItsStatusAndWithoutAnError) {
  std::string bytes(300'000, '\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i % 251);
  const auto completion = fetched(underTest->serve("/bytes", bytes, 200));
  ASSERT_NE(completion.body, nullptr);
  EXPECT_TRUE(*completion.body == bytes);
  EXPECT_EQ(completion.response->statusCode, 200);
  EXPECT_FALSE(completion.error);
}

TEST_F(SessionContract, TheBodyOfAnErrorPageGoesOnWithoutAnError) {
  for (const int status : {403, 404, 500}) {
    const auto path = "/error" + std::to_string(status);
    const auto completion = fetched(underTest->serve(path, "an error page", status));
    ASSERT_NE(completion.body, nullptr) << status;
    EXPECT_EQ(*completion.body, "an error page");
    EXPECT_EQ(completion.response->statusCode, status);
    EXPECT_FALSE(completion.error);
  }
}

TEST_F(SessionContract, AnEmptyBodyIsNoBody) {
  const auto completion = fetched(underTest->serve("/empty", "", 200));
  EXPECT_EQ(completion.body, nullptr);
  EXPECT_FALSE(completion.error);
}

TEST_F(SessionContract, AHostThatCannotBeReachedGivesAnErrorAndNoBody) {
  const auto completion = fetched(underTest->deadAddress());
  EXPECT_EQ(completion.body, nullptr);
  EXPECT_TRUE(completion.error);
}

TEST_F(SessionContract, AnAddressThatIsNotOfTheWebGivesAnErrorAndReadsNothing) {
  for (const char* address : {"file:///etc/hostname", "foo", "http://", "data:,body"}) {
    const auto completion = fetched(address);
    EXPECT_EQ(completion.body, nullptr) << address;
    EXPECT_TRUE(completion.error) << address;
  }
}

TEST_F(SessionContract, TheCompletionComesOffTheMainThread) {
  EXPECT_FALSE(fetched(underTest->serve("/body", "body", 200)).onMain);
  EXPECT_FALSE(fetched(underTest->deadAddress()).onMain);
  EXPECT_FALSE(fetched("file:///etc/hostname").onMain);
}

TEST_F(SessionContract, ATaskFetchesOnceHoweverOftenItIsResumed) {
  Fetch fetch(underTest->serve("/body", "body", 200));
  fetch.resume();
  fetch.resume();
  EXPECT_TRUE(underTest->runUntil([&] { return !fetch.completions().empty(); }));
  fetch.resume();
  fetched(underTest->serve("/other", "other", 200));
  settle();
  EXPECT_EQ(fetch.completions().size(), 1U);
}

TEST_F(SessionContract, ManyFetchesEndEachWithItsOwnBody) {
  std::vector<std::unique_ptr<Fetch>> fetches;
  for (int i = 0; i < 30; ++i) {
    const auto text = std::to_string(i);
    fetches.push_back(std::make_unique<Fetch>(underTest->serve("/many" + text, text, 200)));
    fetches.back()->resume();
  }
  EXPECT_TRUE(underTest->runUntil([&] {
    return std::all_of(fetches.begin(), fetches.end(),
                       [](const auto& fetch) { return !fetch->completions().empty(); });
  }));
  for (std::size_t i = 0; i < fetches.size(); ++i) {
    const auto completions = fetches[i]->completions();
    ASSERT_EQ(completions.size(), 1U);
    ASSERT_NE(completions[0].body, nullptr);
    EXPECT_EQ(*completions[0].body, std::to_string(i));
  }
}

// What a screen is to a fetch: alive until the body is applied, and ending on the main thread.
struct Owner {
  Owner(std::atomic<int>& live, std::atomic<bool>& onMain) : alive(live), endedOnMain(onMain) {
    ++alive;
  }
  Owner(const Owner&) = delete;
  Owner& operator=(const Owner&) = delete;
  ~Owner() {
    endedOnMain = currentHost().onMain();
    --alive;
  }
  std::atomic<int>& alive;
  std::atomic<bool>& endedOnMain;
};

void fetchFor(std::shared_ptr<Owner> owner, const std::string& address,
              std::function<void()> apply) {
  NSURLSession::sharedSession()
      .dataTaskWithRequestCompletionHandler(
          NSURLRequest::initWithURL(*NSURL::initWithString(address)),
          [owner = std::move(owner), apply = std::move(apply)](const NSData& body, auto, auto) {
            if (!body) return;
            dispatch_async(dispatch_get_main_queue(), [owner, apply] { apply(); });
          })
      ->resume();
}

TEST_F(SessionContract, AnOwnerLivesUntilItsBodyIsAppliedOnTheMainThreadAndEndsThere) {
  std::atomic<int> alive = 0;
  std::atomic<bool> endedOnMain = false;
  bool appliedAlive = false;
  fetchFor(std::make_shared<Owner>(alive, endedOnMain), underTest->serve("/body", "body", 200),
           [&] { appliedAlive = alive == 1 && underTest->host().onMain(); });
  EXPECT_EQ(alive, 1);
  EXPECT_TRUE(underTest->runUntil([&] { return alive == 0; }));
  EXPECT_TRUE(appliedAlive);
  EXPECT_TRUE(endedOnMain);
}

TEST_F(SessionContract, AnOwnerOfAFetchThatFailsEndsOnTheMainThreadWithoutAnApply) {
  for (const auto& address : {underTest->deadAddress(), std::string("file:///etc/hostname")}) {
    std::atomic<int> alive = 0;
    std::atomic<bool> endedOnMain = false;
    bool applied = false;
    fetchFor(std::make_shared<Owner>(alive, endedOnMain), address, [&] { applied = true; });
    EXPECT_TRUE(underTest->runUntil([&] { return alive == 0; })) << address;
    EXPECT_TRUE(endedOnMain) << address;
    EXPECT_FALSE(applied) << address;
  }
}

}  // namespace
}  // namespace leafund
