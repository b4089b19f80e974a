// main of every test program that opens windows.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>
#include <cstdio>

#include "Screens.h"
#include "platform/controls/OwnStyle.h"

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
  QStringList screens;
  auto put = [&screens, x = 0](const QString& name, const QString& size, double ratio) mutable {
    const QStringList sides = size.split('x');
    screens.append(QString(R"({"name": "%1", "x": %2, "y": 0, "width": %3, "height": %4,
                           "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": %5})")
                       .arg(name)
                       .arg(x)
                       .arg(sides.first(), sides.last())
                       .arg(ratio));
    x += sides.first().toInt();
  };
  put("desk", qEnvironmentVariable("TABULON_TEST_SCREEN", "1280x832"), 1);
  // Displays that cases choose by name: the pixels that windows count, and how many of the device make one.
  put("1024x768", "1024x768", 1);
  put("1280x800", "1280x800", 1);
  put("1280x800 at 150 %", "853x533", 1.5);
  put("1280x800 at 200 %", "640x400", 2);
  put("1920x1080 at 200 %", "960x540", 2);
  file.write(QString(R"({"screens": [%1]})").arg(screens.join(',')).toUtf8());
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
  QApplication::setStyle(new OwnStyle("Fusion"));
  RegisterDialogs();
  return RUN_ALL_TESTS();
}
