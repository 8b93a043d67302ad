#include "Quorix/QuorixMain.hpp"
#include "Quorix/QuorixResources.hpp"
#include "Resources/Language.hpp"
#include "TW/Image.hpp"
#include "Text.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <string_view>

namespace {

bool delayStart = true;
// The loader asks before static objects are made, so this is none that is made.
char delayedImage[64];

}  // namespace

// This program is a host that starts the library itself.
extern "C" bool TWDelayImageStart(const char* imageName) {
  std::strncpy(delayedImage, imageName, sizeof(delayedImage) - 1);
  return delayStart;
}

namespace {

TEST(StartUp, WaitsForAHostThatWantsItSo) {
  EXPECT_LT(QX::GetQuorixResModule(), 1);
  EXPECT_EQ(TWInitImage(), 0);
  EXPECT_LT(QX::GetQuorixResModule(), 1) << "the host still says wait";
  EXPECT_TRUE(std::string_view(delayedImage).starts_with("libQuorix.so")) << delayedImage;

  delayStart = false;
  EXPECT_EQ(TWInitImage(), 0);
  EXPECT_GE(QX::GetQuorixResModule(), 1);
  EXPECT_EQ(TWInitImage(), 0) << "starting again is harmless";
  EXPECT_GE(QX::GetQuorixResModule(), 1);

  TWTermImage();
  TWTermImage();
  EXPECT_LT(QX::GetQuorixResModule(), 1);
  Resources::SetLanguage("en");
  EXPECT_EQ(QX::GetResourceString(106, 13).Substring(0, 11), TW::UniString(u"The divisor")) << "built-in texts remain";
  EXPECT_TRUE(QX::GetResourceString(106, 99).IsEmpty());
}

TEST(Image, IsFoundByAnAddressOfIts) {
  const std::string path = TW::FindImagePath(reinterpret_cast<const void*>(&TWInitImage));
  EXPECT_TRUE(path.starts_with("/")) << path;
  EXPECT_NE(path.find("libQuorix.so"), std::string::npos) << path;
  const int onTheStack = 0;
  EXPECT_EQ(TW::FindImagePath(&onTheStack), "");
}

}  // namespace
