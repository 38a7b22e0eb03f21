// SPDX-License-Identifier: MIT
#include "document/picture_path.h"

#include <gtest/gtest.h>

namespace kev {
namespace {

class Shelf final : public PictureSource {
 public:
  PictureAnswer Look(std::string_view path) override {
    if (path == "http://host/far.png") return {"\\Cache\\far.png", std::nullopt, true};
    if (path == "http://host/off.png") return {std::string(kMissingPicture), std::nullopt, true};
    if (path == "broken.png") return {std::string(path), std::nullopt};
    if (path.find("good.png") == std::string_view::npos) return {std::string(kMissingPicture), std::nullopt};
    return {std::string(path), TextExtent{1500, 750}};
  }
};

class PicturePath : public testing::Test {
 protected:
  bool May(std::string_view path) { return MayShowPicture(path, settings_, shelf_); }
  ObjectRecord Taken(const char* path, Flag fixedWidth = kFalse) {
    ObjectRecord record;
    record.Width = record.Height = 500;
    record.PicturePath = path;
    record.PictureFixedWidth = fixedWidth;
    TakePicture(record, shelf_);
    return record;
  }

  DocumentSettings settings_;
  Shelf shelf_;
};

TEST_F(PicturePath, MayBeEmptyAValueAnAddressOrAPicture) {
  for (const char* path : {"", "@photo", "$photo", "http://host/far.png", "http://host/off.png", "/a/good.png"})
    EXPECT_TRUE(May(path)) << path;
}

TEST_F(PicturePath, MayNotBeMissingUnreadableOrPartTheItemsOfATemplate) {
  for (const char* path : {"none.png", "broken.png", "/a,b/good.png", "/a;b/good.png", "/{a/good.png",
                           "/a}/good.png", "@a,b", "@a;b"})
    EXPECT_FALSE(May(path)) << path;
}

TEST_F(PicturePath, TheBlockCharactersAreThoseOfTheDocument) {
  settings_[Setting::Open] = "<";
  settings_[Setting::Close] = ">";
  EXPECT_TRUE(May("/{a}/good.png"));
  EXPECT_FALSE(May("/<a/good.png"));
  EXPECT_FALSE(May("/a>/good.png"));
}

TEST_F(PicturePath, APictureGivesItsFileAndTheSizesThatAreNotFixed) {
  const ObjectRecord own = Taken("good.png");
  EXPECT_EQ(own.PictureFile, "good.png");
  EXPECT_EQ(own.Width, 1500);
  EXPECT_EQ(own.Height, 750);
  const ObjectRecord fixed = Taken("good.png", kTrue);
  EXPECT_EQ(fixed.Width, 500);
  EXPECT_EQ(fixed.Height, 250);
  const ObjectRecord missing = Taken("none.png");
  EXPECT_EQ(missing.PictureFile, kMissingPicture);
  EXPECT_EQ(missing.Width, 500);
}

}  // namespace
}  // namespace kev
