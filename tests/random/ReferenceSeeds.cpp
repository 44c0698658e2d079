#include <utility>

#include "tests/random/ReferenceApp.h"

// The demonstration data: who pledges what, how much of it is raised, and since when.
namespace leafund::random {

PledgeRef ReferenceApp::seed(const char* title, std::string creator, float goal, float raised,
                             long day, const char* month, const char* pitch) const {
  return std::make_shared<Pledge>(Pledge{.title = title,
                                         .creator = std::move(creator),
                                         .goal = goal,
                                         .raised = raised,
                                         .description = wording_.descriptions.at(title),
                                         .photo = wording_.photos.at(title),
                                         .pitch = pitch,
                                         .day = day,
                                         .month = month});
}

void ReferenceApp::plantSeeds() {
  others_ = {
      seed("Vegetarian for PETA", "Arlo", 200, 120, 16, "Nov",
           "Hi, my name is Arlo and I'm going to go vegetarian for a year to raise money for "
           "PETA!"),
      seed("Biking to Work!", "Tamsin", 200, 67, 15, "Nov",
           "Hey, I'm Tamsin, and I plan to bike to work every day for a year in order to raise "
           "money for UNICEF."),
      seed("Solar Panel House", "Wren", 300, 175, 12, "Nov",
           "I plan to install solar panels to take care of at least 50% of my energy "
           "consumption!"),
      seed("No New Clothes!", "Odile", 125, 40, 1, "Nov",
           "I'll stop buying clothes to help the Red Cross!"),
      seed("Cool Off!", "Corin", 150, 60, 28, "Oct", "I'll reduce my driving by an hour a week!"),
      seed("FlyLess!", "Isolde", 200, 80, 24, "Oct", "I'll fly less for the kids of America!"),
      seed("Organic Only!", "Barnaby", 50, 10, 23, "Oct",
           "I won't eat processed food for Feeding America!")};
  funded_ = {seed("Compost for Christ!", "Lucan", 100, 100, 18, "Nov",
                  "I'll be composting my trash to raise money for christian charities"),
             seed("Lights Out!", "Emrys", 50, 50, 6, "Nov",
                  "I'm turning off the lights to give hope to Syrian refugees."),
             seed("Carpool for Salvation", "Nell and Ivo", 100, 60, 4, "Nov",
                  "We're carpooling to work to help the Salvation Army!")};
}

void ReferenceApp::writeSeedUpdates() {
  static constexpr const char* kDates[] = {"December 1", "December 3"};
  for (std::size_t at = 0; at < 2; ++at) {
    Pledge& pledge = *funded_.at(at);
    pledge.updateDate = kDates[at];
    pledge.updateText = wording_.updateTexts[at];
    pledge.updatePhoto = wording_.updatePhotos[at];
  }
}

}  // namespace leafund::random
