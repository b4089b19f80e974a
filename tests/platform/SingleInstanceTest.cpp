#include "platform/files/SingleInstance.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QProcess>
#include <QStandardPaths>

namespace {

QString LockFile(const QString& name) {
  return QDir(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation)).filePath(name + ".lock");
}

// This program itself, started a second time, says what it is told (see main).
QByteArray AskInAnotherProcess(const QString& name, const QString& end = "end") {
  QProcess child;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("TABULON_TEST_RUNTIME", qEnvironmentVariable("XDG_RUNTIME_DIR"));
  child.setProcessEnvironment(environment);
  child.start(QCoreApplication::applicationFilePath(), {"another-is-running", name, end});
  EXPECT_TRUE(child.waitForFinished());
  return child.readAllStandardOutput().trimmed();
}

TEST(SingleInstanceTest, SecondProcessIsTold) {
  EXPECT_FALSE(SingleInstance::AnotherIsRunning("TabulonTest"));
  EXPECT_FALSE(SingleInstance::AnotherIsRunning("TabulonTest"));
  EXPECT_TRUE(QFile::exists(LockFile("TabulonTest")));
  EXPECT_EQ(AskInAnotherProcess("TabulonTest"), "another");
}

TEST(SingleInstanceTest, CrashedProcessLocksNobodyOut) {
  EXPECT_EQ(AskInAnotherProcess("TabulonCrashed", "crash"), "first");
  ASSERT_TRUE(QFile::exists(LockFile("TabulonCrashed")));
  EXPECT_EQ(AskInAnotherProcess("TabulonCrashed"), "first");
  EXPECT_FALSE(SingleInstance::AnotherIsRunning("TabulonCrashed"));
}

TEST(SingleInstanceTest, LiveProcessIsNeverTakenForStale) {
  QLockFile other(LockFile("TabulonOther"));
  ASSERT_TRUE(other.tryLock(0));
  EXPECT_TRUE(SingleInstance::AnotherIsRunning("TabulonOther"));
}

}  // namespace
