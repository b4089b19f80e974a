#include "platform/ado/Session.h"

#include <QSqlError>
#include <QVariant>
#include <atomic>

namespace {

const QString OpenSource = QStringLiteral("Connection.Open");

QString NextHandle() {
  static std::atomic<int> count{0};
  return QStringLiteral("ado-%1").arg(++count);
}

}  // namespace

Session::Session(ConnectionSettings settings, const Dialect& dialect)
    : settings_(std::move(settings)), dialect_(dialect), handle_(NextHandle()) {}

Session::~Session() {
  Close();
  database_ = QSqlDatabase();
  if (QSqlDatabase::contains(handle_)) QSqlDatabase::removeDatabase(handle_);
}

void Session::Open() {
  CheckDriver();
  if (!database_.isValid()) database_ = QSqlDatabase::addDatabase(dialect_.DriverName(), handle_);
  QString reason;
  if (!dialect_.Prepare(database_, settings_, &reason)) throw AdoError(AdoNumber::Unspecified, reason, OpenSource);
  database_.setNumericalPrecisionPolicy(QSql::HighPrecision);
  if (!database_.open()) {
    const QSqlError error = database_.lastError();
    const QString advice = dialect_.OpenAdvice(error, settings_);
    throw AdoError(AdoNumber::Unspecified, WithoutPassword(advice + u'\n' + dialect_.EngineText(error)), OpenSource);
  }
  if (const QString unusable = dialect_.Opened(database_); !unusable.isEmpty()) {
    Close();
    throw AdoError(AdoNumber::Unspecified, unusable, OpenSource);
  }
  open_ = true;
  SetUp();
}

void Session::CheckDriver() const {
  if (QSqlDatabase::isDriverAvailable(dialect_.DriverName())) return;
  throw AdoError(AdoNumber::Unspecified,
                 QStringLiteral("The driver %1 for %2 is not installed. Install the package %3 and start again.")
                     .arg(dialect_.DriverName(), dialect_.EngineName(), dialect_.DriverPackage()),
                 OpenSource);
}

void Session::SetUp() {
  QSqlQuery query(database_);
  QStringList statements = dialect_.SessionSetup(settings_);
  const QString check = dialect_.SessionCheck();
  if (!check.isEmpty()) statements += check;
  for (const QString& statement : statements) {
    if (query.exec(statement)) continue;
    const QSqlError error = query.lastError();
    const quint32 number = dialect_.Translate(error, OpenSource).Number();
    const QString advice = dialect_.OpenAdvice(error, settings_);
    query = QSqlQuery();
    Close();
    throw AdoError(number, WithoutPassword(advice + u'\n' + dialect_.EngineText(error)), OpenSource);
  }
  if (check.isEmpty() || (query.next() && query.value(0).toString() == u"1")) return;
  query = QSqlQuery();
  Close();
  throw AdoError(AdoNumber::Unspecified,
                 QStringLiteral("%1 did not accept the settings that every session needs. Ask the database's "
                                "administrator to lift the server's limits on session settings.")
                     .arg(dialect_.EngineName()),
                 OpenSource);
}

void Session::Close() {
  open_ = false;
  if (database_.isValid()) database_.close();
}

QSqlQuery Session::Run(const QString& statement, const QString& source) {
  // A failure here comes again with the statement itself.
  if (const QString refresh = dialect_.SchemaRefresh(); !refresh.isEmpty()) QSqlQuery(database_).exec(refresh);
  QSqlQuery query(database_);
  query.setForwardOnly(dialect_.ReadsForwardOnly());
  if (query.exec(dialect_.Carry(statement, settings_))) return query;
  const QSqlError error = query.lastError();
  query = QSqlQuery();
  throw Failed(error, source);
}

QSqlRecord Session::Shape(QSqlQuery& query) {
  // PostgreSQL's driver asks the server for the name of each table it sees first, a round trip for each, unless it
  // takes the rows for some that are still coming.
  const bool forwardOnly = query.isForwardOnly();
  query.setForwardOnly(true);
  const QSqlRecord shape = query.record();
  query.setForwardOnly(forwardOnly);
  return shape;
}

void Session::CheckEnd(const QSqlQuery& query, const QString& source) {
  if (query.lastError().isValid()) throw Failed(query.lastError(), source);
}

AdoError Session::Failed(const QSqlError& error, const QString& source) {
  AdoError translated = dialect_.Translate(error, source);
  // PostgreSQL's driver sometimes tells a loss only by being closed.
  const bool lost = translated.ConnectionLost() || !database_.isOpen();
  if (!lost) return translated;
  Close();
  if (translated.ConnectionLost()) return translated;
  return {AdoNumber::Unspecified,
          QStringLiteral("The connection to the database was lost. ") + translated.Description(), source, true};
}

QString Session::WithoutPassword(QString text) const {
  text = text.trimmed();
  return settings_.password.isEmpty() ? text : text.replace(settings_.password, QLatin1String("***"));
}
