// main of every test program that opens windows.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QSettings>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <cstdio>

#include "Screens.h"

namespace {

// The offscreen platform says this of every window.
void WithoutSizeHints(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (!text.contains("propagateSizeHints") && !text.contains("does not support raise"))
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

// The offscreen platform's own screen is smaller than the smallest one that the program is made for: 1280 x 800 below a
// title bar, or what TABULON_TEST_SCREEN says ("2560x1440", pixels of the device).
void PutUpScreen(const QString& folder) {
  QFile file(QDir(folder).filePath("screen.json"));
  if (!file.open(QIODevice::WriteOnly)) return;
  const QStringList size = qEnvironmentVariable("TABULON_TEST_SCREEN", "1280x832").split('x');
  file.write(QString(R"({"screens": [{"name": "desk", "x": 0, "y": 0, "width": %1, "height": %2,
                     "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                 .arg(size.first(), size.last())
                 .toUtf8());
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toUtf8());
}

}  // namespace

int main(int argc, char** argv) {
  qInstallMessageHandler(WithoutSizeHints);
  testing::InitGoogleTest(&argc, argv);
  // What the program remembers of its user stays in a folder of this process.
  const QTemporaryDir userSettings;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, userSettings.path());
  const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
  if (platform.isEmpty() || platform == "offscreen") PutUpScreen(userSettings.path());
  QLocale::setDefault(QLocale::c());
  QApplication application(argc, argv);
  QApplication::setApplicationName("Tabulon");
  QApplication::setApplicationVersion("1.0.0");
  QApplication::setOrganizationName("Ostana tests");
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  RegisterDialogs();
  return RUN_ALL_TESTS();
}
