#include <gtest/gtest.h>
#include <malloc.h>

#include <cstdlib>
#include <memory>
#include <new>
#include <utility>

#include "platform/uikit/UIView.h"

// Counts what this executable keeps on the heap, block by block as the allocator rounds it.
namespace {
std::size_t keptBytes = 0;
constexpr std::size_t kBlockHeader = sizeof(std::size_t);

std::size_t costOf(void* block) { return malloc_usable_size(block) + kBlockHeader; }
}  // namespace

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  void* block = std::malloc(size == 0 ? 1 : size);
  if (block != nullptr) __atomic_add_fetch(&keptBytes, costOf(block), __ATOMIC_RELAXED);
  return block;
}
void* operator new(std::size_t size) {
  void* block = operator new(size, std::nothrow);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}
void operator delete(void* block) noexcept {
  if (block != nullptr) __atomic_sub_fetch(&keptBytes, costOf(block), __ATOMIC_RELAXED);
  std::free(block);
}
void operator delete(void* block, std::size_t) noexcept { operator delete(block); }

namespace leafund {
namespace {

static_assert(sizeof(UIView) <= 112, "a view is kept for every showing of a row");
static_assert(sizeof(CALayer) <= 64, "so is its layer");

// What a list screen does at each showing of a row.
void showCard(UIView& content) {
  auto card = std::make_shared<UIView>(CGRect{0, 10, 390, 145});
  auto& layer = card->layer();
  layer.setBackgroundColor(UIColor::initWithRedGreenBlueAlpha(1, 1, 1, 1).CGColor());
  layer.setCornerRadius(2);
  layer.setShadowOffset({-1, 1});
  layer.setShadowOpacity(0.2);
  content.addSubview(card);
  content.sendSubviewToBack(card);
}

TEST(UIViewCostTest, ACardCostsAtMost300BytesTheLastLikeTheFirst) {
  constexpr std::size_t kCards = 50'000;
  UIView content;
  showCard(content);  // the list of subviews itself is no card's cost
  for (int batch = 0; batch < 2; ++batch) {
    const std::size_t before = keptBytes;
    for (std::size_t i = 0; i < kCards; ++i) showCard(content);
    const std::size_t each = (keptBytes - before) / kCards;
    RecordProperty("bytesACard" + std::to_string(batch), static_cast<int>(each));
    EXPECT_LE(each, 300U);
    EXPECT_GE(each, sizeof(UIView) + sizeof(CALayer));  // the count does count
  }
}

TEST(UIViewCostTest, APlainViewAllocatesNothingBesideItself) {
  EXPECT_TRUE(UIView().subviews().empty());  // the one empty list that all such views share
  const std::size_t before = keptBytes;
  const auto view = std::make_shared<UIView>(CGRect{0, 0, 10, 10});
  const std::size_t itself = keptBytes - before;
  view->setFrame({0, 0, 20, 20});
  view->setHidden(true);
  EXPECT_EQ(std::as_const(*view).layer(), CALayer());
  EXPECT_TRUE(view->subviews().empty() && view->name().empty());
  EXPECT_EQ(keptBytes - before, itself);
}

}  // namespace
}  // namespace leafund
