#pragma once

#include <gtest/gtest.h>

#include <ostream>

#include "platform/ado/Dialect.h"
#include "platform/ado/Recordset.h"
#include "support/TestDatabase.h"

// Shows texts in the messages of failed expectations.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}

// Each case has an empty database and a connection to it.
class AdoTest : public testing::Test {
 protected:
  AdoTest() : connection(database.Settings()) { connection.Open(); }

  qint64 Run(const QString& sql, int statements = 1) { return connection.Execute(sql, statements); }
  // First field of the first row; "(none)" without a row, "(null)" for NULL.
  QString Value(const QString& sql) { return Value(connection, sql); }
  static QString Value(Connection& on, const QString& sql);
  static int Count(Connection& on, const QString& table);
  int Count(const QString& table) { return Count(connection, table); }
  // The first fields of all rows, joined by ",".
  QString Column(const QString& sql);

  // Ends all other sessions of this database from a session of its own.
  void KillSession();

  EmptyDatabase database;
  Connection connection;
};

// Runs the body, which must fail.
template <class Body>
AdoError ErrorOf(Body body) {
  try {
    body();
  } catch (const AdoError& error) {
    return error;
  }
  ADD_FAILURE() << "no AdoError was thrown";
  return {0, {}, {}};
}
