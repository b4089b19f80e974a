// main of every test program that opens windows.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QStyleFactory>
#include <cstdio>

#include "Screens.h"

namespace {

// The offscreen platform says this of every window.
void WithoutSizeHints(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (!text.contains("propagateSizeHints")) std::fprintf(stderr, "%s\n", qPrintable(text));
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(WithoutSizeHints);
  testing::InitGoogleTest(&argc, argv);
  QLocale::setDefault(QLocale::c());
  QApplication application(argc, argv);
  QApplication::setApplicationName("Tabulon");
  QApplication::setApplicationVersion("1.0.0");
  QApplication::setOrganizationName("Ostana tests");
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  RegisterDialogs();
  return RUN_ALL_TESTS();
}
