// SPDX-License-Identifier: MIT
#include <QApplication>

#include "app/program.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("vk480q-controller"));
  // No display name: Qt would hang it behind the title of every window.
  // The program ends by its own stages, not with whichever window closes last.
  QApplication::setQuitOnLastWindowClosed(false);
  return vk::runProgram();
}
