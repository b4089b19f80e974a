#pragma once

#include <gtest/gtest.h>

#include <QStringList>
#include <QTemporaryDir>
#include <memory>

#include "support/TestDatabase.h"

// A folder with the settings of a site, in which the real tabulon-db is run.
class ToolDesk : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  struct Result {
    int exitCode = -1;
    QString out;
    QString err;
  };
  // `input` is what comes on standard input.
  Result Run(const QStringList& arguments, const QString& input = {}) const;

  // The settings name a database with the full schema.
  void UseDatabase();
  // The settings name a database that does not exist yet; it is removed with the desk.
  const ConnectionSettings& UseFreshDatabase();
  void WriteSettings(const QString& text) const;
  QString Folder() const { return folder_.path(); }

  // A connection of its own to the database of the settings.
  Connection& Client();
  // First field of the first row; "(none)" without a row, "(null)" for NULL.
  QString Ask(const QString& sql);
  int Count(const QString& table, const QString& where = {});
  void Execute(const QString& sql);

 private:
  QTemporaryDir folder_;
  std::unique_ptr<TestDatabase> database_;
  ConnectionSettings settings_;
  std::unique_ptr<Connection> client_;
};
