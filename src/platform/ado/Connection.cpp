#include "platform/ado/Connection.h"

#include "platform/ado/ConnectionPrivate.h"
#include "platform/ado/StatementWords.h"

namespace {

const QString ExecuteSource = QStringLiteral("Connection.Execute");

}  // namespace

// --- Private ---

void Connection::Private::EnsureOpen() {
  if (session.IsOpen()) return;
  columns.clear();
  driver.Call([this] { session.Open(); });
  unit = Unit::None;
}

void Connection::Private::CheckReady(const QString& source) {
  switch (unit) {
    case Unit::None:
    case Unit::Open:
      break;
    case Unit::Broken:
      throw AdoError(AdoNumber::Unspecified,
                     QStringLiteral("A statement of this transaction has failed; the transaction must be rolled back."),
                     source);
    case Unit::Lost:
      // Run now, this statement would be stored without those before it.
      throw AdoError(AdoNumber::ObjectClosed,
                     QStringLiteral("The connection was lost inside a transaction; nothing of it was stored."), source);
  }
  EnsureOpen();
}

void Connection::Private::NoteFailure() {
  if (unit == Unit::Open) unit = session.IsOpen() ? Unit::Broken : Unit::Lost;
  if (unit == Unit::Broken && !session.IsOpen()) unit = Unit::Lost;
}

qint64 Connection::Private::Observed(const QString& text, int allowed, const QString& source,
                                     const std::function<qint64()>& body) {
  StatementRecord record{text};
  QElapsedTimer timer;
  timer.start();
  const auto tell = [&](qint64 affected, bool failed) {
    record.milliseconds = timer.elapsed();
    record.affectedRows = affected;
    record.failed = failed;
    for (const auto& observer : observers) observer(record);
  };
  qint64 affected = -1;
  try {
    const QString refusal = WhyRefused(text, allowed);
    if (!refusal.isEmpty()) throw AdoError(AdoNumber::TextRefused, refusal, source);
    CheckReady(source);
    driver.Call([&] { affected = body(); });
  } catch (const AdoError& error) {
    NoteFailure();
    tell(-1, true);
    throw error.Of(text);
  }
  if (unit == Unit::Open) lastOfUnit = text;
  tell(affected, false);
  return affected;
}

qint64 Connection::Private::RunOne(const QString& statement, const QString& source) {
  QSqlQuery query = session.Run(statement, source);
  if (StatementWords::IsModification(statement)) return query.numRowsAffected();
  columns.clear();  // whatever else it was, it may have changed tables
  return 0;
}

// --- Connection ---

Connection::Connection(ConnectionSettings settings)
    : d_(std::make_unique<Private>(settings, Dialect::For(settings.engine))) {}

Connection::Connection(ConnectionSettings settings, const Dialect& dialect)
    : d_(std::make_unique<Private>(std::move(settings), dialect)) {}

Connection::~Connection() {
  Close();
}

int Connection::State() const {
  return d_->session.IsOpen() ? Opened : Closed;
}

void Connection::Open(const QString&, const QString&, const QString&, int) {
  if (d_->session.IsOpen()) {
    throw AdoError(AdoNumber::Unspecified, QStringLiteral("The connection is open already."),
                   QStringLiteral("Connection.Open"));
  }
  d_->EnsureOpen();
}

void Connection::Close() {
  RollbackTrans();
  d_->driver.Call([this] { d_->session.Close(); });
}

void Connection::EnsureOpen() {
  d_->EnsureOpen();
}

void Connection::BeginTrans() {
  const QString source = QStringLiteral("Connection.BeginTrans");
  if (InTransaction()) {
    throw AdoError(AdoNumber::Unspecified, QStringLiteral("A transaction is open already."), source);
  }
  d_->unit = Private::Unit::None;
  d_->EnsureOpen();
  d_->driver.Call([&] { d_->session.Run(d_->session.dialect().BeginStatement(), source); });
  d_->unit = Private::Unit::Open;
  d_->lastOfUnit.clear();
}

void Connection::CommitTrans() {
  const QString source = QStringLiteral("Connection.CommitTrans");
  if (d_->unit == Private::Unit::None) {
    throw AdoError(AdoNumber::Unspecified, QStringLiteral("No transaction is open."), source);
  }
  try {
    d_->CheckReady(source);
    d_->driver.Call([&] { d_->session.Run(QStringLiteral("COMMIT"), source); });
    d_->unit = Private::Unit::None;
  } catch (const AdoError& error) {
    d_->NoteFailure();
    RollbackTrans();
    throw error.Of(d_->lastOfUnit);
  }
}

void Connection::RollbackTrans() {
  const Private::Unit unit = d_->unit;
  d_->unit = Private::Unit::None;
  if (unit == Private::Unit::None || unit == Private::Unit::Lost || !d_->session.IsOpen()) return;
  d_->driver.Call([this] {
    QSqlQuery query(d_->session.Database());
    if (query.exec(QStringLiteral("ROLLBACK"))) return;
    // Either the engine has rolled back by itself, or the transaction is in doubt: it ends with the session.
    query = QSqlQuery();
    d_->session.Close();
  });
}

bool Connection::InTransaction() const {
  return d_->unit == Private::Unit::Open || d_->unit == Private::Unit::Broken;
}

qint64 Connection::Execute(const QString& text, int statements) {
  return d_->Observed(text, statements, ExecuteSource, [&]() -> qint64 {
    const QStringList parts = SplitStatements(text);
    const bool own = parts.size() > 1 && !InTransaction();
    qint64 affected = 0;
    if (own) {
      Transaction transaction(*this);
      for (const QString& part : parts) affected = d_->RunOne(part, ExecuteSource);
      transaction.Commit();
      return affected;
    }
    for (const QString& part : parts) affected = d_->RunOne(part, ExecuteSource);
    return affected;
  });
}

const std::vector<ColumnInfo>& Connection::Columns(const QString& table) {
  const QString key = table.toUpper();
  const auto known = d_->columns.find(key);
  if (known != d_->columns.end()) return known->second;
  d_->CheckReady(QStringLiteral("Connection.Columns"));
  try {
    std::vector<ColumnInfo> columns;
    d_->driver.Call([&] { columns = d_->session.dialect().ReadColumns(d_->session.Database(), key); });
    return d_->columns[key] = std::move(columns);
  } catch (const AdoError& error) {
    if (error.ConnectionLost()) d_->driver.Call([this] { d_->session.Close(); });
    d_->NoteFailure();
    throw;
  }
}

QStringList Connection::Tables() {
  d_->CheckReady(QStringLiteral("Connection.Tables"));
  try {
    QStringList tables;
    d_->driver.Call([&] { tables = d_->session.dialect().ReadTables(d_->session.Database()); });
    return tables;
  } catch (const AdoError& error) {
    if (error.ConnectionLost()) d_->driver.Call([this] { d_->session.Close(); });
    d_->NoteFailure();
    throw;
  }
}

const Dialect& Connection::dialect() const {
  return d_->session.dialect();
}

const ConnectionSettings& Connection::Settings() const {
  return d_->session.Settings();
}

QString Connection::LinkDescription() const {
  return d_->session.LinkDescription();
}

void Connection::AddObserver(std::function<void(const StatementRecord&)> observer) {
  d_->observers.push_back(std::move(observer));
}

// --- Transaction ---

Transaction::Transaction(Connection& connection) : connection_(connection) {
  connection_.BeginTrans();
}

Transaction::~Transaction() {
  if (open_) connection_.RollbackTrans();
}

void Transaction::Commit() {
  open_ = false;
  connection_.CommitTrans();
}
