#include "model/SeedCampaigns.h"

#include <cstddef>
#include <memory>
#include <span>

#include "model/PictureHost.h"

namespace leafund {
namespace {

struct Seed {
  std::string_view title;
  std::string_view creator;
  float totalFunding;
  float currFunding;
  std::string_view campaignDescription;
  std::string_view pictureFile;
  std::string_view shortDescription;
  std::ptrdiff_t dayCreated;
  std::string_view monthCreated;
};

// Each campaign speaks in its creator's own voice.
constexpr Seed otherSeeds[] = {
    {.title = "Vegetarian for PETA",
     .creator = "Arlo",
     .totalFunding = 200.0F,
     .currFunding = 120.0F,
     .campaignDescription =
         "Every year people make animals suffer for the sake of a meal, and I have eaten my share "
         "of those meals. So here's my promise: one year without meat, and every dollar you "
         "pledge goes to PETA to help put that right.",
     .pictureFile = "vegetarian-for-peta.jpg",
     .shortDescription =
         "Hi, my name is Arlo and I'm going to go vegetarian for a year to raise money for PETA!",
     .dayCreated = 16,
     .monthCreated = "Nov"},
    {.title = "Biking to Work!",
     .creator = "Tamsin",
     .totalFunding = 200.0F,
     .currFunding = 67.0F,
     .campaignDescription =
         "Every weekday I drive the 5 miles to work and arrive there grumpy. For one whole year "
         "I'll ride my bike instead, every day, rain or shine. Your pledge goes to UNICEF, and "
         "I'm sure my legs will forgive us all come spring.",
     .pictureFile = "biking-to-work.jpg",
     .shortDescription =
         "Hey, I'm Tamsin, and I plan to bike to work every day for a year in order to raise "
         "money for UNICEF.",
     .dayCreated = 15,
     .monthCreated = "Nov"},
    {.title = "Solar Panel House",
     .creator = "Wren",
     .totalFunding = 300.0F,
     .currFunding = 175.0F,
     .campaignDescription =
         "My town gets over 300 sunny days a year, and so far my roof has done nothing with them "
         "but get warm. With your help I will cover it in solar panels and draw more than 50% of "
         "my energy straight from the sky. It's time that roof got a job!",
     .pictureFile = "solar-panel-house.jpg",
     .shortDescription =
         "I plan to install solar panels to take care of at least 50% of my energy consumption!",
     .dayCreated = 12,
     .monthCreated = "Nov"},
    {.title = "No New Clothes!",
     .creator = "Odile",
     .totalFunding = 125.0F,
     .currFunding = 40.0F,
     .campaignDescription =
         "My closet is full of dresses with the price tags still on, and yet I keep coming home "
         "with more. Enough! For one year I won't buy a single new piece of clothing, and every "
         "dollar we raise goes to the Red Cross. Please hide the catalogs from me.",
     .pictureFile = "no-new-clothes.jpg",
     .shortDescription = "I'll stop buying clothes to help the Red Cross!",
     .dayCreated = 1,
     .monthCreated = "Nov"},
    {.title = "Cool Off!",
     .creator = "Corin",
     .totalFunding = 150.0F,
     .currFunding = 60.0F,
     .campaignDescription =
         "When I get angry, I drive. I pick a road, turn up the radio and come home an hour "
         "later, calmer, with a lot less gas in the tank. It works for me, but it's the air that "
         "pays for it. So for the next 6 months, there will be no hour-long drives to calm down: "
         "I'll walk around the block, count to a hundred, or bake some very angry bread. All the "
         "money goes to the American Heart Association, because a cool head does a heart good. "
         "Please help me keep the car parked!",
     .pictureFile = "cool-off.jpg",
     .shortDescription = "I'll reduce my driving by an hour a week!",
     .dayCreated = 28,
     .monthCreated = "Oct"},
    {.title = "FlyLess!",
     .creator = "Isolde",
     .totalFunding = 200.0F,
     .currFunding = 80.0F,
     .campaignDescription =
         "I fly somewhere almost every weekend, because a window seat and a little bag of "
         "pretzels make me happy. But if we can raise $200 for the Boys and Girls Clubs of "
         "America, I'll drive instead of flying, every weekend, for a whole year. The kids get a "
         "place to go, the sky gets a rest, and I finally get to see what lies down there.",
     .pictureFile = "fly-less.jpg",
     .shortDescription = "I'll fly less for the kids of America!",
     .dayCreated = 24,
     .monthCreated = "Oct"},
    {.title = "Organic Only!",
     .creator = "Barnaby",
     .totalFunding = 50.0F,
     .currFunding = 10.0F,
     .campaignDescription =
         "My kitchen runs on things that come in crinkly bags, and I can't pronounce half of "
         "what's in them. If we raise $50 for Feeding America, I'll give up processed food for a "
         "whole year: no chips, no instant noodles, just honest food I cooked myself. Wish my "
         "smoke alarm luck!",
     .pictureFile = "organic-only.jpg",
     .shortDescription = "I won't eat processed food for Feeding America!",
     .dayCreated = 23,
     .monthCreated = "Oct"},
};

constexpr Seed fundedSeeds[] = {
    {.title = "Compost for Christ!",
     .creator = "Lucan",
     .totalFunding = 100.0F,
     .currFunding = 100.0F,
     .campaignDescription =
         "Every day for six months, my peels, crusts and coffee grounds will go into the compost "
         "and not the trash. Your gifts will pay for Bible study for children, so that while my "
         "garden grows, something good can take root in them, too.",
     .pictureFile = "compost-for-christ.jpg",
     // The small c and the missing full stop are Lucan's own: what people write about their pledge
     // is shown as they wrote it.
     .shortDescription = "I'll be composting my trash to raise money for christian charities",
     .dayCreated = 18,
     .monthCreated = "Nov"},
    {.title = "Lights Out!",
     .creator = "Emrys",
     .totalFunding = 50.0F,
     .currFunding = 50.0F,
     .campaignDescription =
         "I tend to leave the lights on, and at night my house glows like a cruise ship. Now I'm "
         "turning them off, room by room, to raise money for Syrian refugees. Wish me dark "
         "evenings!",
     .pictureFile = "lights-out.jpg",
     .shortDescription = "I'm turning off the lights to give hope to Syrian refugees.",
     .dayCreated = 6,
     .monthCreated = "Nov"},
    {.title = "Carpool for Salvation",
     .creator = "Nell and Ivo",
     .totalFunding = 100.0F,
     .currFunding = 60.0F,
     .campaignDescription =
         "We're co-workers who live just two streets apart, and yet every morning we drive to "
         "work in two cars. How silly is that? From now on we'll share one, singing badly all the "
         "way, and give what we raise to the Salvation Army.",
     .pictureFile = "carpool-for-salvation.jpg",
     .shortDescription = "We're carpooling to work to help the Salvation Army!",
     .dayCreated = 4,
     .monthCreated = "Nov"},
};

// Without a creator: these two belong to whoever is signed in when they are built.
constexpr Seed mySeeds[] = {
    {.title = "Eco-Friendly Stove!",
     .creator = {},
     .totalFunding = 250.0F,
     .currFunding = 45.0F,
     .campaignDescription =
         "Greetings, space aliens! I know you can smell my old wood-burning stove from up there. "
         "Help me burn less wood, and your space dollars will go to a charity that gives "
         "breathing tubes to baby dolphins. They'd do the same for you, space aliens. They really "
         "would.",
     .pictureFile = "eco-friendly-stove.jpg",
     .shortDescription = "I'll buy a new stove to save dolphins!",
     .dayCreated = 14,
     .monthCreated = "Nov"},
    {.title = "Dine Out Less!",
     .creator = {},
     .totalFunding = 150.0F,
     .currFunding = 25.0F,
     .campaignDescription =
         "Greetings, humans! I come from very far away and I eat only caviar, so dining out has "
         "become a costly habit. I'll do less of it, and your dollars will go to a charity that "
         "brings more of my kind to your planet. We are small, polite and excellent at washing "
         "dishes. Plippety plop!",
     .pictureFile = "dine-out-less.jpg",
     .shortDescription = "Glip Glop Plippety Plop!",
     .dayCreated = 10,
     .monthCreated = "Nov"},
};

std::shared_ptr<CampaignClass> campaignFrom(const Seed& seed) {
  return std::make_shared<CampaignClass>(
      std::string(seed.title), std::string(seed.creator), seed.totalFunding, seed.currFunding,
      std::string(seed.campaignDescription), pictureAddress(seed.pictureFile),
      std::string(seed.shortDescription), seed.dayCreated, std::string(seed.monthCreated));
}

CampaignList campaignsFrom(std::span<const Seed> seeds) {
  CampaignList list;
  for (const Seed& seed : seeds) list.push_back(campaignFrom(seed));
  return list;
}

}  // namespace

CampaignList seedOtherCampaigns() { return campaignsFrom(otherSeeds); }

CampaignList seedCampaignsIFunded() { return campaignsFrom(fundedSeeds); }

CampaignList seedMyUnfundedCampaigns(const std::string& creator) {
  auto seeds = std::to_array(mySeeds);
  for (Seed& seed : seeds) seed.creator = creator;
  return campaignsFrom(seeds);
}

constinit const std::array<SeedUpdate, 2> seedUpdates = {{
    {.date = "December 1",
     .text =
         "My first day of composting went better than I dared to hope! I ate an apple, two "
         "bananas and half a melon, and every core and peel went straight into the compost. The "
         "worms look pleased, and so am I. I'm so excited that this campaign got funded! Thank "
         "you, every one of you, and come by for tomatoes next summer.",
     .pictureFile = "update-compost.jpg"},
    // The page shows an update's picture over its text, hence "above".
    {.date = "December 3",
     .text =
         "Turning off the lights turned out to be the easiest thing I've done all year! As the "
         "infographic above shows, I got better at it each day, and tonight every single light in "
         "the house was off. I did walk into the sofa twice, but we've made up since. Thank you "
         "all for helping me bring some hope to Syrian refugees!",
     .pictureFile = "update-lights-out.jpg"},
}};

}  // namespace leafund
