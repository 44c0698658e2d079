#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#include "model/Catalogue.h"
#include "model/PictureHost.h"

namespace leafund {
namespace {

// The twelve campaign pictures, the pictures of the two updates, and the placeholder.
std::vector<std::string> allAddresses() {
  writeSeedUpdates();
  std::vector<std::string> addresses;
  for (const CampaignList* list :
       {&otherCampaigns(), &campaignsIFunded(), &myUnfundedCampaigns()}) {
    for (const auto& campaign : *list) addresses.push_back(campaign->photo());
  }
  for (std::size_t position : {0U, 1U}) {
    addresses.push_back(campaignsIFunded()[position]->updateOnePhoto());
  }
  addresses.push_back(placeholderPictureAddress());
  return addresses;
}

std::filesystem::path drawnFileOf(const std::string& address) {
  return std::filesystem::path(LEAFUND_PICTURES_DIR) / address.substr(address.rfind('/') + 1);
}

// No std::regex: g++ 12 warns inside its own header when the sanitizers are on.
bool isAbsoluteJpegAddress(const std::string& address) {
  const std::string scheme = "http://";
  const bool hasHost = address.find('/', scheme.size()) > scheme.size();
  const bool isPlain = std::ranges::all_of(address, [](char c) { return c > ' ' && c <= '~'; });
  return address.starts_with(scheme) && hasHost && isPlain && address.ends_with(".jpg");
}

bool isJpeg(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::string start(3, '\0');
  file.read(start.data(), 3);
  return start == "\xFF\xD8\xFF";  // Start of image, and the first byte of the next marker.
}

TEST(PictureHostTest, AnAddressIsTheBaseASlashAndTheFileName) {
  const std::string base = pictureAddress("").substr(0, pictureAddress("").size() - 1);

  EXPECT_EQ(pictureAddress("a.jpg"), base + "/a.jpg");
  EXPECT_FALSE(base.ends_with('/'));
  EXPECT_EQ(placeholderPictureAddress(), base + "/placeholder.jpg");
}

TEST(PictureHostTest, EveryAddressIsAnAbsoluteHttpAddressOfAJpeg) {
  for (const std::string& address : allAddresses()) {
    EXPECT_TRUE(isAbsoluteJpegAddress(address)) << address;
  }
}

TEST(PictureHostTest, AllFifteenAddressesAreDifferent) {
  const std::vector<std::string> addresses = allAddresses();

  EXPECT_EQ(addresses.size(), 15U);
  EXPECT_EQ(std::set<std::string>(addresses.begin(), addresses.end()).size(), 15U);
}

TEST(PictureHostTest, EveryAddressedPictureIsAJpegAmongTheDrawings) {
  for (const std::string& address : allAddresses()) {
    EXPECT_TRUE(isJpeg(drawnFileOf(address))) << drawnFileOf(address);
  }
}

}  // namespace
}  // namespace leafund
