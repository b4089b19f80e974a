#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QTemporaryDir>
#include <cstdio>

namespace {

// The offscreen platform says of each window what it cannot do with it.
void Report(QtMsgType, const QMessageLogContext&, const QString& message) {
  if (!message.startsWith(QLatin1String("This plugin does not support")))
    std::fprintf(stderr, "%s\n", qPrintable(message));
}

}  // namespace

int main(int argc, char** argv) {
  const QTemporaryDir runtime;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
  qInstallMessageHandler(Report);
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
