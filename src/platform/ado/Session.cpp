#include "platform/ado/Session.h"

#include <QSqlError>
#include <QVariant>
#include <atomic>

#include "platform/ado/DriverLink.h"
#include "platform/ado/Nodes.h"

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
  End();
  for (std::thread& stopper : stoppers_) stopper.join();
}

void Session::End() {
  Close();
  database_ = QSqlDatabase();
  if (QSqlDatabase::contains(handle_)) QSqlDatabase::removeDatabase(handle_);
}

void Session::Open() {
  CheckDriver();
  if (!database_.isValid()) database_ = QSqlDatabase::addDatabase(dialect_.DriverName(), handle_);
  const std::vector<ConnectionSettings> nodes = NodesOf(settings_);
  QStringList reasons;
  for (size_t tried = 0; tried < nodes.size(); ++tried) {
    try {
      OpenNode(nodes[node_]);
      if (nodes.size() == 1 || takesChanges_) return;
      Close();
      reasons += QStringLiteral("%1 on %2 takes no changes.").arg(dialect_.EngineName(), nodes[node_].host);
    } catch (const AdoError& error) {
      if (nodes.size() == 1) throw;
      reasons += error.Description();
    }
    const std::lock_guard<std::mutex> lock(link_);
    node_ = (node_ + 1) % nodes.size();
  }
  throw AdoError(AdoNumber::Unspecified, reasons.join(u'\n'), OpenSource);
}

void Session::OpenNode(const ConnectionSettings& node) {
  QString reason = WhyNoEncryption(node);
  if (!reason.isEmpty() || !dialect_.Prepare(database_, node, &reason))
    throw AdoError(AdoNumber::Unspecified, reason, OpenSource);
  database_.setNumericalPrecisionPolicy(QSql::HighPrecision);
  if (!database_.open()) {
    const QSqlError error = database_.lastError();
    const QString advice = dialect_.OpenAdvice(error, node);
    throw AdoError(AdoNumber::Unspecified, WithoutPassword(advice + u'\n' + dialect_.EngineText(error)), OpenSource);
  }
  open_ = true;
  KnowLink(true);
  SetUp(node);
}

void Session::CheckDriver() const {
  if (QSqlDatabase::isDriverAvailable(dialect_.DriverName())) return;
  throw AdoError(AdoNumber::Unspecified,
                 QStringLiteral("The driver %1 for %2 is not installed. Install the package %3 and start again.")
                     .arg(dialect_.DriverName(), dialect_.EngineName(), dialect_.DriverPackage()),
                 OpenSource);
}

void Session::SetUp(const ConnectionSettings& node) {
  QSqlQuery query(database_);
  QStringList statements = dialect_.SessionSetup(node);
  const QString check = dialect_.SessionCheck();
  if (!check.isEmpty()) statements += check;
  for (const QString& statement : statements) {
    if (query.exec(statement)) continue;
    const QSqlError error = query.lastError();
    const quint32 number = dialect_.Translate(error, OpenSource).Number();
    const QString advice = dialect_.OpenAdvice(error, node);
    query = QSqlQuery();
    GiveUp(advice + u'\n' + dialect_.EngineText(error), number);
  }
  if (check.isEmpty()) return;
  const bool accepted = query.next() && query.value(0).toString() == u"1";
  cipher_ = dialect_.KnowsEncryption() ? query.value(1).toString() : QString();
  if (dialect_.KnowsEncryption()) {
    const std::lock_guard<std::mutex> lock(link_);
    name_ = query.value(2).toString();
    takesChanges_ = query.value(3).toString() == u"1";
  }
  query = QSqlQuery();
  if (!accepted) {
    GiveUp(QStringLiteral("%1 did not accept the settings that every session needs. Ask the database's "
                          "administrator to lift the server's limits on session settings.")
               .arg(dialect_.EngineName()));
  }
  if (node.encryption != Encryption::Off && dialect_.KnowsEncryption() && cipher_.isEmpty())
    GiveUp(LinkAdvice::NotEncrypted(dialect_.EngineName(), node));
}

void Session::GiveUp(const QString& reason, quint32 number) {
  Close();
  throw AdoError(number, WithoutPassword(reason), OpenSource);
}

QString Session::LinkDescription() const {
  if (!open_) return QStringLiteral("not open");
  if (settings_.engine == Engine::Sqlite) return QStringLiteral("a file");
  const QString cipher = cipher_.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(cipher_);
  switch (settings_.encryption) {
    case Encryption::Off:
      break;
    case Encryption::Required:
      return QStringLiteral("encrypted%1; the server's certificate is not verified").arg(cipher);
    case Encryption::Verify:
      return QStringLiteral("encrypted%1; the server's certificate is verified").arg(cipher);
  }
  if (!cipher.isEmpty()) return QStringLiteral("encrypted") + cipher;
  if (!dialect_.KnowsEncryption()) return QStringLiteral("as the driver was told to make it");
  return QStringLiteral("not encrypted");
}

void Session::Close() {
  KnowLink(false);
  open_ = false;
  cipher_.clear();
  if (database_.isValid()) database_.close();
}

// --- A statement that another thread wants to end ---

void Session::KnowLink(bool open) {
  const std::lock_guard<std::mutex> lock(link_);
  socket_ = open ? DriverLink::SocketOf(database_) : -1;
  embedded_ = open ? DriverLink::EmbeddedEngineOf(database_) : nullptr;
  name_.clear();
}

void Session::Stop() {
  const int number = statement_;
  stopped_ = number;
  const std::lock_guard<std::mutex> lock(link_);
  if (embedded_) return DriverLink::Interrupt(embedded_);
  const QString statement = name_.isEmpty() ? QString() : dialect_.StopStatement(name_);
  if (statement.isEmpty()) return;
  // Where the server hangs this hangs as well.
  stoppers_.emplace_back([this, node = NodesOf(settings_)[node_], statement, number] {
    AskToStop(node, dialect_, statement, [this, number] { return statement_ == number; });
  });
}

void Session::AskToStop(const ConnectionSettings& settings, const Dialect& dialect, const QString& statement,
                        const std::function<bool()>& stillRuns) {
  try {
    Session session(settings, dialect);
    session.Open();
    // The next statement is another one, which nobody wants to stop.
    if (stillRuns()) session.Run(statement, OpenSource);
  } catch (const AdoError&) {
    // The link is cut in the end.
  }
}

void Session::CutLink() {
  const std::lock_guard<std::mutex> lock(link_);
  DriverLink::Cut(socket_);
}

// --- Statements ---

QSqlQuery Session::Run(const QString& statement, const QString& source) {
  ++statement_;
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
  if (!lost && stopped_ == statement_)
    return {AdoNumber::Unspecified, QStringLiteral("The statement was stopped. ") + dialect_.EngineText(error), source};
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
