#include "registry/photo_fit.h"

#include <gtest/gtest.h>

#include "registry/frm_max.h"
#include "tests/registry/card_fixture.h"

namespace {

using support::Card;
using Frame = forms::Picture::Frame;

TEST(PhotoFit, KeepsTheProportionsInTheMiddle) {
  struct Case {
    registry::Extent picture;
    registry::Extent panel;
    Frame frame;
  };
  const Case cases[] = {
      {{100, 200}, {100, 100}, {25, 0, 50, 100}},
      {{200, 100}, {100, 100}, {0, 25, 100, 50}},
      {{10, 10}, {100, 100}, {0, 0, 100, 100}},
      {{1, 100000}, {100, 100}, {49, 0, 1, 100}},
      {{60000, 60000}, {90, 120}, {0, 15, 90, 90}},
      {{0, 100}, {100, 100}, {}},
      {{100, 100}, {0, 100}, {}},
      {{-5, 100}, {100, 100}, {}},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(registry::fitted(c.picture, c.panel), c.frame)
        << c.picture.width << "x" << c.picture.height;
  }
}

TEST(PhotoPan, GoesAsFarAsThePictureIsLarger) {
  EXPECT_EQ(registry::pan(300, 100).maximum, 200);
  EXPECT_EQ(registry::pan(300, 100).smallChange, 20);
  EXPECT_EQ(registry::pan(300, 100).largeChange, 100);
  EXPECT_EQ(registry::pan(100, 300).maximum, 0);
}

TEST_F(Card, APhotographThatIsNoneLeavesTheFrameEmptyAndThePathInPlace) {
  main.ImgFoto.Resize(100, 100);
  desk.host.pictures["/resim/ayse.jpg"] = {200, 100};
  main.txtfoto.setText("/resim/ayse.jpg");
  EXPECT_EQ(main.ImgFoto.path(), "/resim/ayse.jpg");
  EXPECT_EQ(main.ImgFoto.frame(), (Frame{0, 25, 100, 50}));
  main.txtfoto.setText("/resim/yok.jpg");
  EXPECT_EQ(main.ImgFoto.path(), "");
  EXPECT_EQ(main.txtfoto.text(), "/resim/yok.jpg");
}

TEST_F(Card, AFullSizePhotographIsPannedAsFarAsItIsLarger) {
  desk.host.pictures["/resim/ayse.jpg"] = {300, 80};
  main.txtfoto.setText("/resim/ayse.jpg");
  registry::FrmMax photo(desk.station);
  photo.Load();
  photo.ImgFoto.Resize(100, 100);
  EXPECT_EQ(photo.ImgFoto.frame(), (Frame{0, 10, 300, 80}));
  EXPECT_TRUE(photo.SclYatay.visible());
  EXPECT_FALSE(photo.SclDüşey.visible());
  photo.SclYatay.setValue(999);
  EXPECT_EQ(photo.ImgFoto.frame(), (Frame{-200, 10, 300, 80}));
  photo.ImgFoto.Resize(400, 400);
  EXPECT_EQ(photo.ImgFoto.frame(), (Frame{50, 160, 300, 80}));
  EXPECT_FALSE(photo.SclYatay.visible());
}

}  // namespace
