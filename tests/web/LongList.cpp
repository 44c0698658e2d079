// The application with a million campaigns to browse.
#include "bench/Campaigns.h"

namespace {

[[maybe_unused]] const bool lengthened =
    (leafund::resizeList(leafund::otherCampaigns(), 1'000'000), true);

}  // namespace
