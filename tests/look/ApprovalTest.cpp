#include <gtest/gtest.h>

#include <cstdlib>
#include <ostream>
#include <set>

#include "tests/look/ApprovedPicture.h"
#include "tests/look/Stages.h"

// The settled window of every stage is held to a picture that somebody looked at and approved. Only
// tools/approve renews the pictures, by setting LEAFUND_APPROVE.

namespace leafund {
namespace {

namespace fs = std::filesystem;

// The surroundings in which a stage is photographed, and the sizes there.
struct Sitting {
  std::string stage;
  Surroundings surroundings;
  std::vector<QSize> sizes;
};

std::string nameOf(const Sitting& sitting) {
  const auto& [percent, scale] = sitting.surroundings;
  return sitting.stage + (percent == 100 ? "" : "-font" + std::to_string(percent)) +
         (scale == 1 ? "" : "-scale" + std::to_string(scale));
}

std::string fileName(const Sitting& sitting, QSize size) {
  return nameOf(sitting) + "-" + sizeText(size) + ".png";
}

void PrintTo(const Sitting& sitting, std::ostream* out) { *out << nameOf(sitting); }

// Where larger letters move most, and where a finer screen shows other pixels than twice the same.
const std::set<std::string> kInLargeLetters = {"landing-refused", "browse-filled", "campaign-open",
                                               "new-campaign-refused", "update-written"};
const std::set<std::string> kOnFineScreens = {"browse-filled", "campaign-open", "thanks-pledged"};

std::vector<Sitting> sittings() {
  std::vector<Sitting> all;
  for (const auto& stage : stages()) {
    all.push_back({stage.name, {100, 1}, {std::begin(kPhotographed), std::end(kPhotographed)}});
    if (kInLargeLetters.contains(stage.name)) {
      all.push_back({stage.name, {150, 1}, {kSmall, kNatural}});
    }
    if (kOnFineScreens.contains(stage.name)) all.push_back({stage.name, {100, 2}, {kNatural}});
  }
  return all;
}

bool approves() { return std::getenv("LEAFUND_APPROVE") != nullptr; }

void approve(const QImage& now, const fs::path& path) {
  const QImage before(QString::fromStdString(path.string()));
  const auto difference = differenceOf(before, now);
  if (difference && difference->greatest == 0) return;
  ASSERT_TRUE(save(now, path)) << path;
  std::cout << "approved: " << path.filename().string()
            << (before.isNull() ? " (new)" : " (changed)") << std::endl;
}

// All three beside one another, for whoever looks into it.
std::string keepEvidence(const QImage& approved, const QImage& now, const QImage& difference,
                         const std::string& name) {
  const fs::path folder = fs::path(LEAFUND_EVIDENCE_DIR) / name;
  for (const auto& [picture, file] :
       {std::pair{approved, "approved.png"}, {now, "now.png"}, {difference, "difference.png"}}) {
    if (!picture.isNull()) save(picture, folder / file);
  }
  return folder.string();
}

void compare(const QImage& now, const fs::path& path) {
  const std::string name = path.stem().string();
  const QImage approved(QString::fromStdString(path.string()));
  if (approved.isNull()) {
    ADD_FAILURE() << name << " has no approved picture; this is how it looks: "
                  << keepEvidence({}, now, {}, name);
    return;
  }
  const auto difference = differenceOf(approved, now);
  if (!difference) {
    ADD_FAILURE() << name << " has another size: " << keepEvidence(approved, now, {}, name);
    return;
  }
  testing::Test::RecordProperty(name, difference->greatest);
  EXPECT_TRUE(isTheSame(*difference))
      << name << " differs in " << difference->share * 100 << " % of its pixels, by "
      << difference->greatest << " at most; see "
      << keepEvidence(approved, now, difference->picture, name);
}

class ApprovalTest : public testing::TestWithParam<Sitting> {};

TEST_P(ApprovalTest, TheGlassLooksAsApproved) {
  const auto& sitting = GetParam();
  const auto& stage = stageNamed(sitting.stage);
  StageApplication app(sitting.surroundings, stage.pictures, sitting.sizes.front());
  stage.reach(app);
  for (const QSize size : sitting.sizes) {
    app.resize(size);
    const QImage now = app.photograph();
    const fs::path path = fs::path(LEAFUND_APPROVED_DIR) / fileName(sitting, size);
    approves() ? approve(now, path) : compare(now, path);
  }
}

INSTANTIATE_TEST_SUITE_P(Stages, ApprovalTest, testing::ValuesIn(sittings()),
                         [](const auto& each) { return testName(nameOf(each.param)); });

TEST(ApprovedFolderTest, EveryApprovedPictureIsOfAStageAndHasAnUnmistakableName) {
  std::set<std::string> wanted;
  for (const auto& sitting : sittings()) {
    for (const QSize size : sitting.sizes) {
      EXPECT_TRUE(wanted.insert(fileName(sitting, size)).second) << fileName(sitting, size);
    }
  }
  std::set<std::string> there;
  for (const auto& file : fs::directory_iterator(LEAFUND_APPROVED_DIR)) {
    there.insert(file.path().filename().string());
  }
  for (const auto& name : there) {
    if (wanted.contains(name)) continue;
    EXPECT_TRUE(approves()) << name << " is of no stage any more";
    if (!approves()) continue;
    fs::remove(fs::path(LEAFUND_APPROVED_DIR) / name);
    std::cout << "approved: " << name << " (gone)" << std::endl;
  }
  for (const auto& name : wanted) {
    EXPECT_TRUE(approves() || there.contains(name)) << name << " is missing";
  }
}

}  // namespace
}  // namespace leafund
