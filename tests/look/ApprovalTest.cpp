#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <ostream>
#include <set>

#include "tests/look/ApprovedPicture.h"
#include "tests/look/MaskedPicture.h"
#include "tests/look/Stages.h"
#include "tests/look/TextRendering.h"
#include "tests/look/WindowItems.h"

// The settled window of every stage is held to a picture that somebody looked at and approved: to
// every pixel with the text rendering that it was approved with, with another one to every pixel
// beside the letters. Only tools/approve renews the pictures, by setting LEAFUND_APPROVE.

namespace leafund {
namespace {

namespace fs = std::filesystem;

// The surroundings in which a stage is photographed, and the sizes there.
struct Sitting {
  std::string stage;
  Surroundings surroundings;
  std::vector<QSize> sizes;
};

std::string nameOf(const Sitting& sitting) { return sitting.stage + nameOf(sitting.surroundings); }

std::string fileName(const Sitting& sitting, QSize size) {
  return nameOf(sitting) + "-" + sizeText(size) + ".png";
}

void PrintTo(const Sitting& sitting, std::ostream* out) { *out << nameOf(sitting); }

// Where larger letters move most, and where a finer screen shows other pixels than twice the same.
const std::set<std::string> kInLargeLetters = {"landing-refused", "browse-filled", "campaign-open",
                                               "new-campaign-refused", "update-written"};
const std::set<std::string> kOnFineScreens = {"browse-filled", "campaign-open", "thanks-pledged"};
// One a scene that holds fields, cards or pictures.
const std::set<std::string> kByNight = {"landing-refused",      "browse-filled",  "campaign-open",
                                        "confirm-asked",        "thanks-pledged", "update-written",
                                        "new-campaign-refused", "news-filled"};

std::vector<Sitting> sittings() {
  std::vector<Sitting> all;
  for (const auto& stage : stages()) {
    all.push_back({stage.name, {100, 1}, {std::begin(kPhotographed), std::end(kPhotographed)}});
    if (kInLargeLetters.contains(stage.name)) {
      all.push_back({stage.name, {150, 1}, {kSmall, kNatural}});
    }
    if (kOnFineScreens.contains(stage.name)) all.push_back({stage.name, {100, 2}, {kNatural}});
    if (kByNight.contains(stage.name)) all.push_back({stage.name, {100, 1, true}, {kNatural}});
  }
  return all;
}

// What the pictures were approved with. tools/approve keeps it.
const char* const kRecord = "text-rendering.txt";

bool isRenderedAlike(const std::string& picture) {
  static const RenderingRecord record(fs::path(LEAFUND_APPROVED_DIR) / kRecord);
  return record.of(picture) == textRendering();
}

// Where texts are seen, in pixels of the photograph. Antialiasing may touch one pixel more.
std::vector<QRect> placesOfLetters(const QQuickWindow& window) {
  const QTransform toPixels =
      QTransform::fromScale(window.effectiveDevicePixelRatio(), window.effectiveDevicePixelRatio());
  std::vector<QRect> places;
  for (const auto* item : shownItems(*window.contentItem())) {
    if (!isText(*item)) continue;
    const QRectF seen = seenPart(*item, QRectF(QPointF(0, 0), item->size()));
    if (seen.isEmpty()) continue;
    places.push_back(toPixels.mapRect(seen).toAlignedRect().adjusted(-1, -1, 1, 1));
  }
  return places;
}

// Texts that just fit, or just do not: with another rendering their lines break at other words, a
// sum's flag stands further on, or a picture below them begins at another part of a pixel and
// doubles another row.
const std::set<std::string> kHangOnWidths = {
    "browse-filled-320x568.png",           "browse-no-picture-320x568.png",
    "campaign-largest-sums-1024x768.png",  "campaign-long-texts-1024x768.png",
    "campaign-long-texts-390x844.png",     "campaign-long-texts-430x932.png",
    "new-campaign-long-texts-390x844.png", "new-campaign-refused-430x932.png",
    "update-written-320x568.png",          "update-written-font150-320x568.png"};

bool isComparable(const std::string& picture) {
  return isRenderedAlike(picture) || !kHangOnWidths.contains(picture);
}

bool approves() { return std::getenv("LEAFUND_APPROVE") != nullptr; }

// A picture that only another text rendering makes different stays as it is.
void approve(const QImage& now, const fs::path& path, const QQuickWindow& window) {
  const QImage before(QString::fromStdString(path.string()));
  const auto exact = differenceOf(before, now);
  if (exact && exact->greatest == 0) return;
  if (exact && !isComparable(path.filename())) return;
  if (exact && !isRenderedAlike(path.filename()) &&
      isTheSame(*maskedDifferenceOf(before, now, placesOfLetters(window)))) {
    return;
  }
  ASSERT_TRUE(save(now, path)) << path;
  std::cout << "approved: " << path.filename().string()
            << (before.isNull() ? " (new)" : " (changed)") << " with " << textRendering()
            << std::endl;
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

void compare(const QImage& now, const fs::path& path, const QQuickWindow& window) {
  if (!isComparable(path.filename())) return;
  const std::string name = path.stem().string();
  const QImage approved(QString::fromStdString(path.string()));
  if (approved.isNull() || approved.size() != now.size()) {
    ADD_FAILURE() << name << " has no approved picture of this size: "
                  << keepEvidence(approved, now, {}, name);
    return;
  }
  const auto difference = isRenderedAlike(path.filename())
                              ? MaskedDifference{*differenceOf(approved, now), 0}
                              : *maskedDifferenceOf(approved, now, placesOfLetters(window));
  testing::Test::RecordProperty(name, difference.beside.greatest);
  EXPECT_TRUE(isTheSame(difference))
      << name << " differs in " << difference.beside.share * 100 << " % of its pixels, by "
      << difference.beside.greatest << " at most, and its letters by " << difference.letters
      << " in the mean; see " << keepEvidence(approved, now, difference.beside.picture, name);
}

class ApprovalTest : public testing::TestWithParam<Sitting> {};

TEST_P(ApprovalTest, TheWindowLooksAsApproved) {
  const auto& sitting = GetParam();
  const auto& stage = stageNamed(sitting.stage);
  StageApplication app(sitting.surroundings, stage.pictures, sitting.sizes.front());
  stage.reach(app);
  for (const QSize size : sitting.sizes) {
    app.resize(size);
    const QImage now = app.photograph();
    const fs::path path = fs::path(LEAFUND_APPROVED_DIR) / fileName(sitting, size);
    (approves() ? approve : compare)(now, path, app.window());
  }
}

INSTANTIATE_TEST_SUITE_P(Stages, ApprovalTest, testing::ValuesIn(sittings()),
                         [](const auto& each) { return testName(nameOf(each.param)); });

// Says, too, what ./test then says beside the result.
TEST(ApprovedFolderTest, EveryPictureHasARenderingThatItWasApprovedWith) {
  const StageApplication app({}, StageApplication::Pictures::Silent, kNatural);
  const std::string here = textRendering();
  const RenderingRecord record(fs::path(LEAFUND_APPROVED_DIR) / kRecord);
  std::map<std::string, std::pair<int, int>> others;  // with them, and not compared
  for (const auto& sitting : sittings()) {
    for (const QSize size : sitting.sizes) {
      const std::string name = fileName(sitting, size);
      const std::string& rendering = record.of(name);
      EXPECT_TRUE(approves() || rendering.starts_with("Qt ")) << name;
      if (rendering == here) continue;
      ++others[rendering].first;
      others[rendering].second += !isComparable(name);
    }
  }
  for (const auto& name : record.named()) {
    EXPECT_TRUE(fs::exists(fs::path(LEAFUND_APPROVED_DIR) / name)) << name;
  }
  for (const auto& [rendering, count] : others) {
    std::cout << "note: letters masked in " << count.first - count.second << " pictures and "
              << count.second << " left out: approved with " << rendering << ", here " << here
              << std::endl;
  }
}

TEST(ApprovedFolderTest, EveryApprovedPictureIsOfAStageAndHasAnUnmistakableName) {
  std::set<std::string> wanted = {kRecord};
  for (const auto& sitting : sittings()) {
    for (const QSize size : sitting.sizes) {
      EXPECT_TRUE(wanted.insert(fileName(sitting, size)).second) << fileName(sitting, size);
    }
  }
  for (const auto& name : kHangOnWidths) EXPECT_TRUE(wanted.contains(name)) << name;
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
