#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "tests/look/StageApplication.h"
#include "tests/look/WindowItems.h"

// Where every view stands in the window, and what it says, on the walk that tests/web/road.mjs
// takes through the page: the page is held to it by tests/web/places.mjs. Only tools/approve-walk
// renews the texts, by setting LEAFUND_APPROVE.

namespace leafund {
namespace {

void collectNames(const UIView& root, std::set<std::string>& names) {
  for (const auto& view : root.subviews()) {
    if (view->kind() == ViewKind::Cell) continue;
    if (!view->name().empty()) names.insert(view->name());
    collectNames(*view, names);
  }
}

// A line of the text. What is a hair's breadth wider in another text rendering is rounded to the
// next point: so much less or more is the same.
struct Place {
  std::string name;
  std::array<int, 4> numbers{};
  std::string words;

  bool operator==(const Place& other) const {
    const bool same = std::equal(numbers.begin(), numbers.end(), other.numbers.begin(),
                                 [](int one, int two) { return std::abs(one - two) <= 1; });
    return same && name == other.name && words == other.words;
  }
  friend std::ostream& operator<<(std::ostream& out, const Place& place) {
    out << place.name;
    for (const int number : place.numbers) out << ' ' << number;
    return out << place.words;
  }
};

std::vector<Place> places(const std::string& text) {
  std::vector<Place> places;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    Place& place = places.emplace_back();
    words >> place.name;
    if (place.name != "#") {
      for (int& number : place.numbers) words >> number;
    }
    std::getline(words, place.words);
  }
  return places;
}

class PlacesTest : public testing::TestWithParam<QSize> {
 protected:
  void tell(const std::string& screen) {
    app_.settle();
    std::set<std::string> names;
    collectNames(*app_.navigation().topViewController()->view(), names);
    told_ << "# " << screen << "\n";
    for (const auto* item : shownItems(app_.page())) {
      if (!names.contains(item->objectName().toStdString())) continue;
      const auto place =
          item->mapRectToScene(isInput(*item) ? hitArea(*item) : QRectF(QPointF(), item->size()));
      if (place.height() == 0) continue;
      told_ << item->objectName().toStdString();
      for (const double number : {place.x(), place.y(), place.width(), place.height()}) {
        told_ << ' ' << std::lround(number);
      }
      told_ << ' ' << item->property("text").toString().simplified().toStdString() << "\n";
    }
    told_ << "\n";
  }
  void compare() const {
    const auto size =
        std::to_string(GetParam().width()) + "x" + std::to_string(GetParam().height());
    const std::string path = LEAFUND_PLACES_DIR "/Places-" + size + ".txt";
    if (std::getenv("LEAFUND_APPROVE") != nullptr) {
      std::ofstream(path) << told_.str();
      return;
    }
    std::ifstream file(path);
    const std::string approved{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(places(told_.str()), places(approved))
        << "If this is how it should be: tools/approve-walk";
  }

  StageApplication app_{{}, StageApplication::Pictures::Served, GetParam()};

 private:
  std::ostringstream told_;
};

TEST_P(PlacesTest, EveryViewStandsWhereItWasApproved) {
  tell("LandingPageVC");
  app_.tap("signInButton");
  tell("LandingPageVC refused");
  app_.tap("signUpButton");
  tell("SignUpVC");
  app_.goBack();
  app_.signIn();
  tell("OtherCampaignsTableViewController");
  app_.tapRow(0);
  tell("OneCampaignViewController");
  app_.type("dollarAmountField", "a lot");
  app_.tap("FundButton");
  tell("OneCampaignViewController refused");
  app_.type("dollarAmountField", "80");
  app_.tap("FundButton");
  tell("ConfirmPageVC");
  app_.tap("yesButton");
  tell("ThankYouVC");
  app_.tap("homeButton");
  app_.tap("fundedTab");
  tell("FundCampaignVC");
  app_.tapRow(1);
  tell("OneCampaignViewController funded");
  app_.tap("campaignUpdates");
  tell("UpdatePageVC");
  app_.goBack();
  app_.goBack();
  app_.tap("newsTab");
  tell("NewsFeedVC");
  app_.tap("mineTab");
  tell("MyProfileVC");
  app_.tap("newButton");
  tell("NewCampaignVC");
  app_.tap("createButton");
  tell("NewCampaignVC refused");
  compare();
}

INSTANTIATE_TEST_SUITE_P(Sizes, PlacesTest, testing::Values(QSize(390, 844), QSize(1280, 800)),
                         [](const auto& size) {
                           return "w" + std::to_string(size.param.width()) + "h" +
                                  std::to_string(size.param.height());
                         });

}  // namespace
}  // namespace leafund
