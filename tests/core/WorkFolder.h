#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "core/Clock.h"
#include "core/ModuleState.h"

// A folder of its own for each case: current directory and OSTANA_HOME, with module state as at process start.
class WorkFolder : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(folder_.isValid());
    before_ = QDir::currentPath();
    homeBefore_ = qgetenv("OSTANA_HOME");
    QDir::setCurrent(folder_.path());
    qputenv("OSTANA_HOME", folder_.path().toUtf8());
    ResetModuleState();
  }

  void TearDown() override {
    ResetModuleState();
    Clock::Set({});
    QDir::setCurrent(before_);
    homeBefore_.isEmpty() ? qunsetenv("OSTANA_HOME") : qputenv("OSTANA_HOME", homeBefore_);
  }

  QString Path(const QString& name) const { return folder_.filePath(name); }

  QString Store(const QString& name, const QByteArray& bytes) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
    return Path(name);
  }

  QByteArray Bytes(const QString& name) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

 private:
  QTemporaryDir folder_;
  QString before_;
  QByteArray homeBefore_;
};
