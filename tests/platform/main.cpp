#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>
#include <cstdio>
#include <cstdlib>

#include "platform/files/SingleInstance.h"

namespace {

// The offscreen platform says of each window what it cannot do with it.
void Report(QtMsgType, const QMessageLogContext&, const QString& message) {
  if (!message.startsWith(QLatin1String("This plugin does not support")))
    std::fprintf(stderr, "%s\n", qPrintable(message));
}

// The second process of the cases about a single instance; a crash leaves its lock behind.
int SayWhetherAnotherIsRunning(const char* name, bool crash) {
  std::puts(SingleInstance::AnotherIsRunning(QString::fromLocal8Bit(name)) ? "another" : "first");
  std::fflush(stdout);
  if (crash) std::_Exit(3);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  static const QTemporaryDir runtime;  // outlives the locks that are held to the end
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // A process that a case starts shares the folder of its parent.
  const QByteArray shared = qgetenv("TABULON_TEST_RUNTIME");
  qputenv("XDG_RUNTIME_DIR", shared.isEmpty() ? runtime.path().toLocal8Bit() : shared);
  qInstallMessageHandler(Report);
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, runtime.path());
  QApplication application(argc, argv);
  QApplication::setOrganizationName("Ostana tests");
  QApplication::setApplicationName("Tabulon");
  if (argc == 4 && qstrcmp(argv[1], "another-is-running") == 0)
    return SayWhetherAnotherIsRunning(argv[2], qstrcmp(argv[3], "crash") == 0);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
