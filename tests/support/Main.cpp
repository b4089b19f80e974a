// main of every test program that opens windows.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QStyleFactory>

#include "Screens.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QLocale::setDefault(QLocale::c());
  QApplication application(argc, argv);
  QApplication::setApplicationName("Tabulon");
  QApplication::setOrganizationName("Ostana tests");
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  RegisterDialogs();
  return RUN_ALL_TESTS();
}
