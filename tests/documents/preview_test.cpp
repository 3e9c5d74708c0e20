#include <gtest/gtest.h>

#include "documents/frm_preview1.h"
#include "documents/frm_prewive.h"
#include "documents/print_job.h"
#include "tests/documents/print_desk.h"

namespace {

using documents::Point;
using support::PrintDesk;
using Frame = forms::Picture::Frame;

page::Pages somePages(std::size_t count) {
  page::Pages pages;
  pages.pages.resize(count);
  return pages;
}

struct OnePage : testing::Test {
  OnePage() {
    preview.sayfalariAl(somePages(1));
    preview.Load();
    preview.picgor.Resize(1200, 850);
  }
  [[nodiscard]] bool bars() const {
    return preview.SclDüşey.visible() && preview.Sclyatay.visible() && preview.Picköşe.visible();
  }
  PrintDesk desk;
  documents::FrmPrewive preview{desk.station};
};

TEST_F(OnePage, ShowsThePageWholeAtFirst) {
  EXPECT_EQ(preview.KS.caption(), "4");
  EXPECT_EQ(preview.picgor.frame(), (Frame{300, 0, 600, 850}));
  EXPECT_FALSE(preview.SclDüşey.visible() || preview.Sclyatay.visible() ||
               preview.Picköşe.visible());
  preview.picgor.Resize(600, 1000);
  EXPECT_EQ(preview.picgor.frame(), (Frame{0, 75, 600, 850}));
}

TEST_F(OnePage, AClickZoomsAndKeepsItsPoint) {
  const Point point{600, 425};  // the middle of the page
  const char* divisors[]{"2", "1", "4"};
  const int widths[]{984, 1967, 600};  // 12000/2 and 12000/1 against 12000/(4/1.22)
  for (std::size_t click = 0; click < 3; ++click) {
    preview.picgor.Click(point);
    EXPECT_EQ(preview.KS.caption(), divisors[click]);
    const Frame frame = preview.picgor.frame();
    EXPECT_EQ(frame.width, widths[click]);
    EXPECT_NEAR(frame.left + frame.width / 2, point.x, 2);
    EXPECT_NEAR(frame.top + frame.height / 2, point.y, 2);
    EXPECT_EQ(bars(), click == 1);
  }
}

TEST_F(OnePage, APointNearTheEdgeStaysInView) {
  preview.picgor.Click({600, 850});
  preview.picgor.Click({600, 850});
  EXPECT_EQ(preview.SclDüşey.value(), preview.SclDüşey.maximum());
  preview.SclDüşey.setValue(0);
  EXPECT_EQ(preview.picgor.frame().top, 0);
  preview.picgor.Wheel(100);
  EXPECT_EQ(preview.picgor.frame().top, -100);
}

TEST_F(OnePage, KeysZoomStepByStep) {
  const auto press = [this](forms::MenuItem& entry) {
    entry.press();
    return preview.KS.caption();
  };
  EXPECT_EQ(press(preview.mnuküçült), "4");
  EXPECT_EQ(press(preview.mnubüyüt), "2");
  EXPECT_EQ(press(preview.mnubüyüt), "1");
  EXPECT_EQ(press(preview.mnubüyüt), "1");
  EXPECT_EQ(press(preview.mnuküçült), "2");
  preview.mnusayfaeni.press();
  EXPECT_EQ(preview.picgor.frame().width, 1200);
  EXPECT_EQ(preview.picgor.frame().left, 0);
  EXPECT_EQ(press(preview.mnubüyüt), "1");
}

TEST(Preview1, TurnsPagesAndZoomsInSteps) {
  PrintDesk desk;
  documents::FrmPreview1 preview(desk.station);
  preview.sayfalariAl(somePages(3));
  preview.Load();
  preview.Picture1.Resize(1000, 700);
  const auto enabled = [&](const char* key) { return preview.tbToolBar.button(key)->enabled; };
  const auto* const first = preview.Picture1.page();
  EXPECT_FALSE(enabled("pre"));
  preview.tbToolBar.press("post");
  EXPECT_EQ(preview.Picture1.page(), first + 1);
  preview.pageno.setText("99");
  EXPECT_EQ(preview.Picture1.page(), first + 2);
  EXPECT_FALSE(enabled("post"));
  preview.tbToolBar.press("pre");
  EXPECT_EQ(preview.pageno.text(), "2");
  EXPECT_EQ(preview.lblsayfa.caption(), "/ 3");

  EXPECT_EQ(preview.Picture1.frame().width, page::a4.width / page::twipsPerPixel);
  preview.Picture1.Click({500, 350});
  EXPECT_EQ(preview.txtsize.text(), "125%");
  for (int press = 0; press < 10; ++press) preview.tbToolBar.press("big");
  EXPECT_EQ(preview.txtsize.text(), "200%");
  EXPECT_FALSE(enabled("big"));
  EXPECT_TRUE(preview.SV1.visible() && preview.SH1.visible());
  for (int press = 0; press < 10; ++press) preview.tbToolBar.press("small");
  EXPECT_EQ(preview.txtsize.text(), "25%");
  EXPECT_FALSE(enabled("small") || preview.SV1.visible());
}

TEST(Preview1, KeepsItsWindow) {
  PrintDesk desk;
  {
    documents::FrmPreview1 preview(desk.station);
    preview.Load();
    preview.width = 640;
    preview.height = 480;
    preview.Unload();
    preview.windowState = forms::WindowState::Maximised;
    preview.width = 1920;
    preview.Unload();
  }
  documents::FrmPreview1 again(desk.station);
  again.Load();
  EXPECT_EQ(again.width, 640);
  EXPECT_EQ(again.height, 480);
  EXPECT_EQ(again.windowState, forms::WindowState::Maximised);
  EXPECT_EQ(desk.settings.get("Sanavel4", "Main", "paper size"), "11906 x 16838");
}

TEST(PrintJob, ManyPagesHaveAPreviewOfTheirOwn) {
  PrintDesk desk;
  desk.host.modal["frmpreview1"] = [](forms::Form& form) {
    dynamic_cast<documents::FrmPreview1&>(form).tbToolBar.press("print");
  };
  EXPECT_TRUE(documents::sayfalariGoster(desk.station, somePages(2)));
  desk.host.modal["frmpreview1"] = [](forms::Form& form) {
    dynamic_cast<documents::FrmPreview1&>(form).tbToolBar.press("exitt");
  };
  EXPECT_FALSE(documents::sayfalariGoster(desk.station, somePages(2)));
}

}  // namespace
