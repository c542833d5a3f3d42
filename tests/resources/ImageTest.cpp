// Images of files: which variant the screen gets, and what is no image.
#include "simulator/coregraphics/Geometry.h"
#include "tests/resources/PhoneWithFiles.h"

namespace sim {
namespace {

using namespace std::string_literals;

// The beginning of a picture of so many pixels; no more of it is looked at.
std::string png(char width, char height) {
  return "\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR\0\0\0"s + width + "\0\0\0"s + height +
         "\x08\x06\0\0\0\xde\xad\xbe\xef"s;
}

class Images : public PhoneWithFiles {
 protected:
  static objc::Object load(objc::Object path) {
    return objc::send<objc::Object, "imageWithContentsOfFile:">(objc_getClass("UIImage"), path);
  }
  static objc::Object load(const char* path) { return load(string(path)); }
  static CGSize sizeOf(objc::Object image) { return objc::send<CGSize, "size">(image); }
  static double scaleOf(objc::Object image) { return objc::send<double, "scale">(image); }
};

TEST_F(Images, AreTakenInTheScaleOfTheScreen) {
  write("/a/icon.png", png(20, 10));
  EXPECT_EQ(scaleOf(load("/a/icon.png")), 1);
  EXPECT_EQ(sizeOf(load("/a/icon.png")), (CGSize{20, 10}));
  write("/a/icon@2x.png", png(42, 22));
  EXPECT_EQ(scaleOf(load("/a/icon.png")), 2);
  EXPECT_EQ(sizeOf(load("/a/icon.png")), (CGSize{21, 11}));
  write("/a/icon@3x.png", png(66, 36));
  EXPECT_EQ(scaleOf(load("/a/icon.png")), 3);
  EXPECT_EQ(sizeOf(load("/a/icon.png")), (CGSize{22, 12}));
}

TEST_F(Images, AreTakenAsNamedWhenTheNameSaysTheScale) {
  write("/a/icon@2x.png", png(40, 40));
  write("/a/icon@3x.png", png(60, 60));
  EXPECT_EQ(scaleOf(load("/a/icon@2x.png")), 2);
  EXPECT_EQ(sizeOf(load("/a/icon@2x.png")), (CGSize{20, 20}));
}

TEST_F(Images, AreNilWhereNoneIs) {
  write("/a/empty.png", "");
  write("/a/text.png", "no picture at all, but long enough for one");
  write("/a/short.png", png(20, 20).substr(0, 30));
  write("/a/flat.png", png(20, 0));
  std::string otherChunk = png(20, 20);
  otherChunk[12] = 'X';
  write("/a/other.png", otherChunk);
  std::filesystem::create_directories(phone.file("/a/folder.png"));
  for (const auto* path : {"/a/empty.png", "/a/text.png", "/a/short.png", "/a/flat.png",
                           "/a/other.png", "/a/folder.png", "/a/missing.png", ""})
    EXPECT_FALSE(load(path)) << path;
  EXPECT_FALSE(load(objc::Object()));
}

TEST_F(Images, KeepTheirOwnRenderingMode) {
  write("/a/icon@3x.png", png(60, 60));
  const auto image = load("/a/icon.png");
  const auto drawnInTint = objc::send<objc::Object, "imageWithRenderingMode:">(image, 2L);
  EXPECT_EQ((objc::send<long, "renderingMode">(image)), 0);
  EXPECT_EQ((objc::send<long, "renderingMode">(drawnInTint)), 2);
  EXPECT_EQ(sizeOf(drawnInTint), (CGSize{20, 20}));
  EXPECT_EQ(scaleOf(drawnInTint), 3);
  EXPECT_TRUE(description(drawnInTint).ends_with(" {20, 20} renderingMode=alwaysTemplate>"))
      << description(drawnInTint);
}

TEST_F(Images, AreEqualWhenTheyShowTheSameFileAlike) {
  write("/a/icon.png", png(20, 20));
  write("/a/other.png", png(20, 20));
  const auto equal = [](objc::Object left, objc::Object right) {
    return objc::send<bool, "isEqual:">(left, right);
  };
  const auto image = load("/a/icon.png");
  EXPECT_TRUE(equal(image, load("/a/icon.png")));
  EXPECT_FALSE(equal(image, load("/a/other.png")));
  EXPECT_FALSE(equal(image, objc::send<objc::Object, "imageWithRenderingMode:">(image, 2L)));
  EXPECT_FALSE(equal(image, string("icon")));
}

TEST_F(Images, FillAScreenOfThreePixelsAPoint) {
  const auto screen = objc::send<objc::Object, "mainScreen">(objc_getClass("UIScreen"));
  EXPECT_EQ((objc::send<double, "scale">(screen)), 3);
  EXPECT_EQ((objc::send<CGRect, "bounds">(screen)), (CGRect{{0, 0}, {390, 844}}));
  EXPECT_EQ((objc::send<CGRect, "nativeBounds">(screen)), (CGRect{{0, 0}, {1170, 2532}}));
}

}  // namespace
}  // namespace sim
