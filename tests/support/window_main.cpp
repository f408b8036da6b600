// SPDX-License-Identifier: MIT
// Runs the window tests on Qt's offscreen platform. Without the listed font Qt draws boxes for
// letters and says nothing, so its absence fails the run here.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFontDatabase>
#include <cstdio>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  if (!QFontDatabase::families().contains(QStringLiteral("Liberation Sans"))) {
    std::fputs("The font package fonts-liberation is missing.\n", stderr);
    return 1;
  }
  return RUN_ALL_TESTS();
}
