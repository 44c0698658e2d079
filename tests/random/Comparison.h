#pragma once

#include <string>
#include <unordered_map>

#include "model/Catalogue.h"
#include "tests/random/AppUnderTest.h"
#include "tests/random/ReferenceApp.h"

namespace leafund::random {

// Holds the application to the reference.
class Comparison {
 public:
  // Where they differ, readable; empty when they are at one.
  std::string differences(const ReferenceApp& reference, AppUnderTest& app,
                          std::string_view printed);

 private:
  std::string catalogueDifference(const ReferenceApp& reference);
  std::string listDifference(const char* name, const PledgeList& expected,
                             const CampaignList& list);

  Sheet expected_, seen_;
  // A campaign is the same object in every list it stands in.
  std::unordered_map<const Pledge*, const CampaignClass*> twins_;
};

// The words of the application's own scenes, and the wordings and addresses of its demonstration
// data.
FreeWording wordingOfTheApplication();

}  // namespace leafund::random
