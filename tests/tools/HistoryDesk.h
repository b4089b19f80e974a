#pragma once

#include "platform/ado/Dialect.h"
#include "schema/History.h"
#include "schema/SchemaSql.h"
#include "tools/ToolDesk.h"

// A site whose changes are recorded.
class HistoryDesk : public ToolDesk {
 protected:
  void SetUp() override {
    ToolDesk::SetUp();
    UseDatabase();
    MustDo({"history", "on"});
  }

  Result MustDo(const QStringList& arguments) const {
    const Result result = Run(arguments);
    EXPECT_EQ(result.exitCode, 0) << arguments.join(' ').toStdString() << '\n'
                                  << result.out.toStdString() << result.err.toStdString();
    return result;
  }
  // What is recorded of the last transactions, the moments left out; user and program of each stay.
  QString Listed(const QStringList& options = {}) const {
    QString out = MustDo(QStringList{"history", "list"} + options).out.trimmed();
    out.replace(QRegularExpression("^(\\d+)  \\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3}",
                                   QRegularExpression::MultilineOption),
                "#");
    return out;
  }
  // Numbers of the transactions, the newest first.
  QStringList Ids(const QStringList& options = {}) const {
    QStringList ids;
    for (const QString& line : MustDo(QStringList{"history", "list"} + options).out.split('\n'))
      if (!line.isEmpty() && line.at(0).isDigit()) ids += line.section(' ', 0, 0);
    return ids;
  }
  int Changes(const QString& where = {}) { return Count("ID_HISTORY_CHANGE", where); }

  // A program of ours at which that user is logged on.
  std::unique_ptr<Connection> LoggedOn(const QString& user) {
    auto connection = std::make_unique<Connection>(Client().Settings());
    connection->Tell(user, "Tabulon");
    connection->Open();
    return connection;
  }
  // A moment behind all that was done, and before all that comes.
  QString Moment() {
    const QString moment = History::Now(Client());
    while (History::Now(Client()) <= moment) continue;
    return moment;
  }
  static QString ForeignUser() {
    return TestDatabase::TestEngine() == Engine::Sqlite ? QString() : "  " + qEnvironmentVariable("TABULON_TEST_USER");
  }
  QStringList Objects() {
    QStringList names;
    for (const QString& select : Client().dialect().recording().Present()) names += SchemaSql::Values(Client(), select);
    return names;
  }
};
