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

TEST(SingleInstanceTest, WhatIsNoLockKeepsNobodyOut) {
  const QByteArray contents[] = {"", "garbage", "12345\nTabulon\nanother machine\n\n\n", QByteArray(1, '\0')};
  for (const QByteArray& content : contents) {
    static int count = 0;
    const QString name = "TabulonOdd" + QString::number(++count);
    QFile file(LockFile(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    EXPECT_FALSE(SingleInstance::AnotherIsRunning(name)) << content.constData();
    EXPECT_EQ(AskInAnotherProcess(name), "another") << content.constData();
  }
  ASSERT_TRUE(QDir().mkpath(LockFile("TabulonFolder") + "/inside"));
  EXPECT_FALSE(SingleInstance::AnotherIsRunning("TabulonFolder"));
  ASSERT_TRUE(QFile::link("/dev/null", LockFile("TabulonLink")));
  EXPECT_FALSE(SingleInstance::AnotherIsRunning("TabulonLink"));
}

TEST(SingleInstanceTest, LiveProcessIsNeverTakenForStale) {
  QLockFile other(LockFile("TabulonOther"));
  ASSERT_TRUE(other.tryLock(0));
  EXPECT_TRUE(SingleInstance::AnotherIsRunning("TabulonOther"));
}

}  // namespace
