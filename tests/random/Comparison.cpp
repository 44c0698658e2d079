#include "tests/random/Comparison.h"

#include "model/PictureHost.h"
#include "model/SeedCampaigns.h"
#include "shell/Storyboard.h"
#include "tests/support/AmountTexts.h"

namespace leafund::random {

namespace {

// The first field that differs; null when none does.
const char* differingField(const Pledge& expected, const CampaignClass& seen) {
  if (expected.title != seen.title()) return "title";
  if (expected.creator != seen.creator()) return "creator";
  if (!sameAmount(expected.goal, seen.totalFunding())) return "goal";
  if (!sameAmount(expected.raised, seen.currFunding())) return "raised";
  if (expected.description != seen.campaignDescription()) return "description";
  if (expected.photo != seen.photo()) return "photo";
  if (expected.pitch != seen.shortDescription()) return "pitch";
  if (expected.day != seen.dayCreated()) return "day";
  if (expected.month != seen.monthCreated()) return "month";
  if (expected.updatePhoto != seen.updateOnePhoto()) return "update photo";
  if (expected.updateText != seen.updateOneText()) return "update text";
  if (expected.updateDate != seen.updateOneDate()) return "update date";
  return nullptr;
}

}  // namespace

std::string Comparison::differences(const ReferenceApp& reference, AppUnderTest& app,
                                    std::string_view printed) {
  if (printed != reference.printed) {
    return "  expected printed: " + readable(reference.printed) +
           "\n  seen printed:     " + readable(printed) + "\n";
  }
  expected_.clear();
  reference.describe(expected_);
  seen_.clear();
  app.describe(seen_);
  if (expected_.lines() != seen_.lines()) {
    return random::differences(expected_.lines(), seen_.lines());
  }
  return catalogueDifference(reference);
}

std::string Comparison::catalogueDifference(const ReferenceApp& reference) {
  if (reference.userName() != currentUserName()) {
    return "  expected user name: " + readable(reference.userName()) +
           "\n  seen user name:     " + readable(currentUserName()) + "\n";
  }
  auto told = listDifference("otherCampaigns", reference.others(), otherCampaigns());
  if (told.empty())
    told = listDifference("campaignsIFunded", reference.funded(), campaignsIFunded());
  // Looking at the own list would make it, so only when it is there.
  if (told.empty() && reference.mine()) {
    told = listDifference("myUnfundedCampaigns", *reference.mine(), myUnfundedCampaigns());
  }
  return told;
}

std::string Comparison::listDifference(const char* name, const PledgeList& expected,
                                       const CampaignList& list) {
  const std::string place = std::string("  in ") + name;
  if (expected.size() != list.size()) {
    return place + ": expected " + std::to_string(expected.size()) + " entries, seen " +
           std::to_string(list.size()) + "\n";
  }
  for (std::size_t at = 0; at < list.size(); ++at) {
    const std::string entry = place + " at " + std::to_string(at) + ": ";
    if (const char* field = differingField(*expected[at], *list[at])) {
      return entry + "another " + field + "\n";
    }
    const auto twin = twins_.emplace(expected[at].get(), list[at].get()).first;
    if (twin->second != list[at].get()) return entry + "another object\n";
  }
  return {};
}

FreeWording wordingOfTheApplication() {
  FreeWording wording;
  for (const auto& scene : mainStoryboard().scenes()) {
    wording.scenes[scene.name] = wordsOf(*mainStoryboard().draft(scene.name));
  }
  for (const auto& list :
       {seedOtherCampaigns(), seedCampaignsIFunded(), seedMyUnfundedCampaigns("")}) {
    for (const auto& campaign : list) {
      wording.descriptions[campaign->title()] = campaign->campaignDescription();
      wording.photos[campaign->title()] = campaign->photo();
    }
  }
  for (std::size_t at = 0; at < seedUpdates.size(); ++at) {
    wording.updateTexts[at] = seedUpdates[at].text;
    wording.updatePhotos[at] = pictureAddress(seedUpdates[at].pictureFile);
  }
  wording.placeholderPhoto = placeholderPictureAddress();
  return wording;
}

}  // namespace leafund::random
