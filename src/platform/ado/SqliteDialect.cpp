#include "platform/ado/SqliteDialect.h"

#include <QDir>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QUrl>

#include "platform/ado/SqliteLetters.h"
#include "platform/ado/StatementOrder.h"
#include "platform/ado/StatementWords.h"

namespace {

constexpr int BusyMilliseconds = 2000;  // longer would freeze the window

}  // namespace

bool SqliteDialect::Prepare(QSqlDatabase& database, const ConnectionSettings& settings, QString* reason) const {
  const QFileInfo file(settings.name);
  const QString shown = QDir::toNativeSeparators(settings.name);
  if (settings.name.isEmpty()) {
    *reason = QStringLiteral("No database file is named. Set Name in the database section of the settings file.");
  } else if (!file.exists()) {
    *reason = QStringLiteral(
                  "The database file \"%1\" does not exist. Create the database with tabulon-db create, or "
                  "correct Name in the database section of the settings file.")
                  .arg(shown);
  } else if (file.isDir()) {
    *reason = QStringLiteral(
                  "\"%1\" is a folder, not a database file. Correct Name in the database section of the "
                  "settings file.")
                  .arg(shown);
  } else if (!file.isReadable()) {
    *reason = QStringLiteral(
                  "The database file \"%1\" may not be read by this user. Ask its owner for the right to "
                  "read and write it.")
                  .arg(shown);
  }
  if (!reason->isEmpty()) return false;

  // As an address the file is opened without being created, even when it vanishes after the check above.
  QUrl address = QUrl::fromLocalFile(file.absoluteFilePath());
  address.setQuery(QStringLiteral("mode=rw"));
  database.setDatabaseName(address.toString(QUrl::FullyEncoded));
  database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_URI;QSQLITE_BUSY_TIMEOUT=%1").arg(BusyMilliseconds) +
                             (settings.options.isEmpty() ? QString() : u';' + settings.options));
  return true;
}

QString SqliteDialect::OpenAdvice(const QSqlError& error, const ConnectionSettings& settings) const {
  const QString shown = QDir::toNativeSeparators(settings.name);
  switch (error.nativeErrorCode().toInt() & 0xff) {
    case 26:
      return QStringLiteral(
                 "The file \"%1\" is not an SQLite database. Correct Name in the database section of the "
                 "settings file, or bring the file back from a backup.")
          .arg(shown);
    case 11:
      return QStringLiteral("The database file \"%1\" is damaged. Bring it back from a backup.").arg(shown);
    case 5:
    case 6:
      return QStringLiteral(
                 "The database file \"%1\" is locked by another program. Try again when that program has "
                 "finished.")
          .arg(shown);
    default:
      return QStringLiteral(
                 "The database file \"%1\" could not be opened. Check that this user may read and write the "
                 "file and its folder.")
          .arg(shown);
  }
}

QStringList SqliteDialect::SessionSetup(const ConnectionSettings&) const {
  return {QStringLiteral("PRAGMA foreign_keys=ON")};
}

QString SqliteDialect::SessionCheck() const {
  // Counting the tables reads the file's first page: a file that is no database is told here and not at first use.
  return QStringLiteral(
      "SELECT (SELECT COUNT(*) FROM sqlite_master) >= 0 AND (SELECT foreign_keys FROM pragma_foreign_keys) = 1");
}

QString SqliteDialect::Opened(QSqlDatabase& database) const {
  return SqliteLetters::ReplaceLike(database);
}

QString SqliteDialect::Carry(const QString& statement, const ConnectionSettings& settings) const {
  StatementWords::Tokens tokens = StatementWords::InCommonSql(statement, settings.ownerPrefix);
  StatementWords::OrderTies(tokens, settings.keyOf);
  return Join(tokens);
}

Dialect::Failure SqliteDialect::Classify(const QSqlError& error) const {
  const int code = error.nativeErrorCode().toInt();
  switch (code) {
    case 1555:  // primary key
    case 2067:  // unique key
    case 2579:  // rowid
      return Failure::Duplicate;
    case 787:
    case 1811:  // by a trigger, as a restricted foreign key is
      return Failure::Reference;
    default:
      break;
  }
  switch (code & 0xff) {
    case 19:
      return Failure::Constraint;
    case 1:
    case 20:
    case 21:
    case 25:
      return Failure::Refused;
    case 5:
    case 6:
      return Failure::Busy;
    default:
      return Failure::Other;
  }
}

QString SqliteDialect::ColumnsStatement(const QString& table) const {
  return QStringLiteral("SELECT name, type, 1 - \"notnull\" FROM pragma_table_info('%1') ORDER BY cid")
      .arg(Escape(table));
}

QString SqliteDialect::TablesStatement() const {
  return QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' AND substr(upper(name), 1, 3) = 'ID_'");
}
