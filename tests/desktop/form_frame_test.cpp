#include "desktop/form_frame.h"

#include <QLineEdit>
#include <QVBoxLayout>

#include "desktop/bind/bind_button.h"
#include "desktop/bind/bind_text.h"
#include "tests/desktop/desk.h"

namespace {

using namespace desktop;

struct FrameForm : forms::Form {
  FrameForm() : Form("frame") {
    for (forms::Control* control : controls()) {
      control->GotFocus.connect([this, control] { log += "+" + control->name(); });
      control->LostFocus.connect([this, control] { log += "-" + control->name(); });
    }
    cancel.Click.connect([this] { log += "!"; });
  }
  bool QueryUnload() override { return mayClose; }
  void Unload() override { log += "u"; }
  void Activate() override { log += "a"; }

  forms::TextBox first{*this, "first"};
  forms::TextBox second{*this, "second"};
  forms::CommandButton cancel{*this, "butkapat"};
  bool mayClose = true;
  std::string log;
};

struct FrameTest : testing::Test {
  FrameForm form;
  QWidget window;
  QVBoxLayout layout{&window};
  QLineEdit* first = new QLineEdit(&window);
  QLineEdit* second = new QLineEdit(&window);
  QPushButton* cancel = new QPushButton(&window);
  FormFrame* frame = nullptr;

  FrameTest() {
    bind(*first, form.first);
    bind(*second, form.second);
    bind(*cancel, form.cancel);
    for (QWidget* each : std::initializer_list<QWidget*>{first, second, cancel})
      layout.addWidget(each);
    form.width = 333;
    form.height = 222;
    frame = new FormFrame(window, form, FormFrame::EscapeKey::Closes);
    frame->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    first->setFocus();
    form.log.clear();
  }
};

TEST_F(FrameTest, EnterGoesToTheNextField) {
  QTest::keyClick(first, Qt::Key_Return);
  EXPECT_TRUE(second->hasFocus());
  EXPECT_EQ(form.log, "-first+second");
  EXPECT_EQ(form.activeControl(), &form.second);
}

TEST_F(FrameTest, TheFormMovesTheFocus) {
  form.second.setFocus();
  EXPECT_TRUE(second->hasFocus());
}

TEST_F(FrameTest, EscIsTheButtonThatCloses) {
  QTest::keyClick(first, Qt::Key_Escape);
  EXPECT_EQ(form.log, "!");
  form.cancel.setVisible(false);
  QTest::keyClick(first, Qt::Key_Escape);
  EXPECT_EQ(form.log, "!u");
}

TEST_F(FrameTest, AFormMayRefuseToClose) {
  form.mayClose = false;
  EXPECT_FALSE(window.close());
  EXPECT_TRUE(window.isVisible());
  form.mayClose = true;
  EXPECT_TRUE(window.close());
  EXPECT_TRUE(frame->isClosed());
  form.first.setText("the form is on its own again");
  EXPECT_EQ(first->text(), QString());
}

TEST_F(FrameTest, CaptionAndSizeAreExchanged) {
  form.setCaption("Seçenek");
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Seçenek"));
  EXPECT_EQ(window.size(), QSize(333, 222));
  window.resize(400, 300);
  EXPECT_EQ(form.width, 400);
  EXPECT_EQ(form.height, 300);
  window.showMaximized();
  support::settle();
  EXPECT_EQ(form.windowState, forms::WindowState::Maximised);
  EXPECT_EQ(form.width, 400);
}

TEST_F(FrameTest, TheFontOfTheFormIsTheWindows) {
  form.setFont({.name = "DejaVu Serif", .size = 14, .bold = true});
  EXPECT_EQ(first->font().pointSize(), 14);
  EXPECT_TRUE(first->font().bold());
}

}  // namespace
