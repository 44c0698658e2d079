#include <gtest/gtest.h>

#include <thread>

#include "screens/lists/PictureFetch.h"
#include "tests/support/Pictures.h"
#include "tests/support/ProbeHost.h"

namespace leafund {
namespace {

class PictureFetchTest : public testing::Test {
 protected:
  void fetch(const std::string& address) {
    fetchPicture(address, "Test", [this](const NSData& applied) { bodies.push_back(applied); });
  }
  // Ends a download on a thread of its own, and then lets the main queue run.
  void complete(std::size_t position, NSData body, std::optional<NSURLResponse> response,
                std::optional<NSError> error) {
    std::thread([&] { host.transfers.at(position).second(body, response, error); }).join();
    for (const auto& step : std::exchange(host.steps, {})) step();
  }

  ProbeHost host;
  const NSData picture = std::make_shared<const std::string>(pictureBody(8, 8));
  std::vector<NSData> bodies;
};

TEST_F(PictureFetchTest, ABodyThatComesWithAnErrorIsNotApplied) {
  fetch("http://example.org/a");
  complete(0, picture, NSURLResponse{200}, NSError{"reset"});
  EXPECT_TRUE(bodies.empty());
}

TEST_F(PictureFetchTest, ABodyIsAppliedWhateverTheResponse) {
  for (const auto& response : {std::optional<NSURLResponse>{}, {NSURLResponse{500}}}) {
    fetch("http://example.org/a");
    complete(host.transfers.size() - 1, picture, response, std::nullopt);
  }
  EXPECT_EQ(bodies, (std::vector{picture, picture}));
}

TEST_F(PictureFetchTest, AnAddressThatIsAskedForAgainWhileUnderWayIsDownloadedAgain) {
  fetch("http://example.org/a");
  fetch("http://example.org/a");
  ASSERT_EQ(host.transfers.size(), 2U);
  const auto other = std::make_shared<const std::string>(pictureBody(9, 9));
  complete(1, other, NSURLResponse{200}, std::nullopt);
  complete(0, picture, NSURLResponse{200}, std::nullopt);
  EXPECT_EQ(bodies, (std::vector<NSData>{other, picture}));
}

}  // namespace
}  // namespace leafund
