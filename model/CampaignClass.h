#pragma once

#include <cstddef>
#include <string>
#include <utility>

namespace leafund {

// One personal environmental pledge: its goal, what was raised, its texts, the address of its
// picture and at most one update. Held by std::shared_ptr; two records denote the same campaign
// only when they are the same object, so a record is neither copied nor compared.
//
// The record enforces no relation between its fields: limits on pledges belong to the screens that
// change `currFunding`. Money is single-precision dollars. Read and written on the main thread
// only.
class CampaignClass {
 public:
  // Stores the nine values unchanged and leaves the three update fields empty: a campaign starts
  // without an update.
  CampaignClass(std::string title, std::string creator, float totalFunding, float currFunding,
                std::string campaignDescription, std::string photo, std::string shortDescription,
                std::ptrdiff_t dayCreated, std::string monthCreated)
      : title_(std::move(title)),
        creator_(std::move(creator)),
        totalFunding_(totalFunding),
        currFunding_(currFunding),
        campaignDescription_(std::move(campaignDescription)),
        photo_(std::move(photo)),
        shortDescription_(std::move(shortDescription)),
        dayCreated_(dayCreated),
        monthCreated_(std::move(monthCreated)) {}
  CampaignClass(const CampaignClass&) = delete;
  CampaignClass& operator=(const CampaignClass&) = delete;

  const std::string& title() const { return title_; }
  void setTitle(std::string title) { title_ = std::move(title); }

  // One free-text name: two people behind one pledge are joined with "and".
  const std::string& creator() const { return creator_; }
  void setCreator(std::string creator) { creator_ = std::move(creator); }

  // The goal, in dollars.
  float totalFunding() const { return totalFunding_; }
  void setTotalFunding(float totalFunding) { totalFunding_ = totalFunding; }

  // Raised so far, in dollars; may be negative or lie above the goal.
  float currFunding() const { return currFunding_; }
  void setCurrFunding(float currFunding) { currFunding_ = currFunding; }

  const std::string& campaignDescription() const { return campaignDescription_; }
  void setCampaignDescription(std::string campaignDescription) {
    campaignDescription_ = std::move(campaignDescription);
  }

  // The address of the picture, as it was typed; the picture itself is never held here.
  const std::string& photo() const { return photo_; }
  void setPhoto(std::string photo) { photo_ = std::move(photo); }

  // The one sentence that list rows show.
  const std::string& shortDescription() const { return shortDescription_; }
  void setShortDescription(std::string shortDescription) {
    shortDescription_ = std::move(shortDescription);
  }

  // The date of creation is a day of the month, 1 to 31, and a three-letter English month ("Nov").
  // It has no year, as nothing sorts or compares by it.
  std::ptrdiff_t dayCreated() const { return dayCreated_; }
  void setDayCreated(std::ptrdiff_t dayCreated) { dayCreated_ = dayCreated; }
  const std::string& monthCreated() const { return monthCreated_; }
  void setMonthCreated(std::string monthCreated) { monthCreated_ = std::move(monthCreated); }

  // The update: one slot and no list, because the update page shows the latest alone; writing the
  // next one replaces it. All three are "" while there is none. The date is a free-text label
  // ("December 1").
  const std::string& updateOnePhoto() const { return updateOnePhoto_; }
  void setUpdateOnePhoto(std::string photo) { updateOnePhoto_ = std::move(photo); }
  const std::string& updateOneText() const { return updateOneText_; }
  void setUpdateOneText(std::string text) { updateOneText_ = std::move(text); }
  const std::string& updateOneDate() const { return updateOneDate_; }
  void setUpdateOneDate(std::string date) { updateOneDate_ = std::move(date); }

 private:
  std::string title_;
  std::string creator_;
  float totalFunding_;
  float currFunding_;
  std::string campaignDescription_;
  std::string photo_;
  std::string shortDescription_;
  std::ptrdiff_t dayCreated_;
  std::string monthCreated_;
  std::string updateOnePhoto_;
  std::string updateOneText_;
  std::string updateOneDate_;
};

}  // namespace leafund
