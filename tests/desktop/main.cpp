#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/appearance.h"
#include "desktop/plain_words.h"
#include "desktop/screen_room.h"
#include "tests/desktop/desk.h"

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  desktop::applyAppearance(desktop::Shade::Light);
  desktop::showWordsPlain();
  desktop::setScreenRoom(support::usualRoom);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
