#include <gtest/gtest.h>

#include <ostream>

#include "tests/look/Measure.h"
#include "tests/look/Stages.h"

namespace leafund {
namespace {

// A stage in surroundings; each size is tried in turn.
struct Case {
  std::string stage;
  Surroundings surroundings;
};

std::string nameOf(const Case& tried) { return tried.stage + nameOf(tried.surroundings); }

void PrintTo(const Case& tried, std::ostream* out) { *out << nameOf(tried); }

std::vector<Case> cases() {
  std::vector<Case> all;
  for (const auto& stage : stages()) {
    all.push_back({stage.name, {}});
    all.push_back({stage.name, {.fontPercent = 150}});
    all.push_back({stage.name, {.night = true}});
    if (!stage.ordinary) continue;
    all.push_back({stage.name, {.fontPercent = 200}});
    all.push_back({stage.name, {.scale = 1.5}});
    all.push_back({stage.name, {.scale = 2}});
    all.push_back({stage.name, {.mirrored = true}});
    all.push_back({stage.name, {.contrast = true}});
  }
  return all;
}

class MeasureTest : public testing::TestWithParam<Case> {
 protected:
  void expectNone(const std::vector<Fault>& faults, QSize size) {
    for (const auto& fault : faults) {
      ADD_FAILURE() << "fault: " << nameOf(GetParam()) << " " << sizeText(size) << ": " << fault;
    }
  }
};

TEST_P(MeasureTest, EverythingIsWholeLegibleAndInReach) {
  const auto& stage = stageNamed(GetParam().stage);
  StageApplication app(GetParam().surroundings, stage.pictures, kLeast);
  stage.reach(app);
  for (const QSize size : kMeasured) {
    app.resize(size);
    app.settle();
    expectNone(faultsOf(app.window(), app.page()), size);
    if (size == kNatural) expectNone(faultsInUse(app.window(), app.page()), size);
  }
}

INSTANTIATE_TEST_SUITE_P(Stages, MeasureTest, testing::ValuesIn(cases()),
                         [](const auto& each) { return testName(nameOf(each.param)); });

}  // namespace
}  // namespace leafund
