#include "core/OstanaFunctions.h"

#include <QFileInfo>
#include <stdexcept>

#include "core/FieldChecks.h"
#include "core/KeywordLists.h"
#include "core/LogFiles.h"
#include "core/Logon.h"
#include "core/PasswordCipher.h"
#include "core/RequestCounter.h"
#include "core/SecretMask.h"
#include "core/SiteSettings.h"
#include "core/StatementLog.h"
#include "platform/ado/Dialect.h"
#include "platform/files/IniFile.h"
#include "platform/files/SingleInstance.h"

namespace {

// The path with its file name in the letters that it has on the disk.
QString OnDisk(const QString& file) {
  const QFileInfo info(file);
  return Files::FindIgnoringCase(info.path(), info.fileName());
}

}  // namespace

struct OstanaFunctions::Private {
  SiteSettings settings;
  std::unique_ptr<::Connection> connection;
  std::unique_ptr<PasswordCipherHelper> cipher;
  UserRights userRights;
  FunctionRights rights;
  KeywordLists keywords;

  QString applicationName;
  QString applicationCode;
  QString site;
  QString user;
  QString password;
  QString currentFunction;
  QString callingFunction;
  QString lastError;
  QString lastSql;
  QString patronId;
  QString languageSuffix;
  qint32 libraryId = 0;

  // False stands for an expected failure: the reason goes to LastError.
  bool Refuse(const QString& reason) {
    lastError = reason;
    return false;
  }
};

OstanaFunctions::OstanaFunctions() : d_(std::make_unique<Private>()) {}
OstanaFunctions::~OstanaFunctions() = default;

// --- Session state ---

Connection& OstanaFunctions::Connection() {
  if (!d_->connection) throw AdoError(AdoNumber::ObjectClosed, "No settings are loaded.", "OstanaFunctions");
  return *d_->connection;
}

const QString& OstanaFunctions::OwnerPrefix() const {
  return d_->settings.connection.ownerPrefix;
}

qint16 OstanaFunctions::DatabaseType() const {
  return qint16(d_->settings.databaseType);
}

const QString& OstanaFunctions::ApplicationPath() const {
  return d_->settings.applicationPath;
}

const QString& OstanaFunctions::CustomConfigFile() const {
  return d_->settings.customConfigFile;
}

const QString& OstanaFunctions::UserId() const {
  return d_->user;
}

const QString& OstanaFunctions::UserPassword() const {
  return d_->password;
}

const QString& OstanaFunctions::ApplicationName() const {
  return d_->applicationName;
}

QString OstanaFunctions::ApplicationCode() const {
  return d_->applicationCode;
}

void OstanaFunctions::SetApplicationCode(const QString& code) {
  d_->applicationCode = code;
}

bool OstanaFunctions::SingleInstance() const {
  return d_->settings.singleInstance;
}

const QString& OstanaFunctions::CurrentFunction() const {
  return d_->currentFunction;
}

const QString& OstanaFunctions::CallingFunction() const {
  return d_->callingFunction;
}

void OstanaFunctions::SetCallingFunction(const QString& function) {
  d_->callingFunction = function;
}

const FunctionRights& OstanaFunctions::Rights() const {
  return d_->rights;
}

bool OstanaFunctions::CanAdd() const {
  return d_->rights.add;
}

bool OstanaFunctions::CanUpdate() const {
  return d_->rights.update;
}

bool OstanaFunctions::CanDelete() const {
  return d_->rights.remove;
}

bool OstanaFunctions::Tracing() const {
  return d_->settings.tracing;
}

const QString& OstanaFunctions::LastError() const {
  return d_->lastError;
}

void OstanaFunctions::SetLastError(const QString& text) {
  d_->lastError = text;
}

const QString& OstanaFunctions::LastSQL() const {
  return d_->lastSql;
}

void OstanaFunctions::SetLastSQL(const QString& text) {
  d_->lastSql = text;
}

qint32 OstanaFunctions::LibraryId() const {
  return d_->libraryId;
}

void OstanaFunctions::SetLibraryId(qint32 id) {
  d_->libraryId = id;
}

const QString& OstanaFunctions::PatronId() const {
  return d_->patronId;
}

void OstanaFunctions::SetPatronId(const QString& id) {
  d_->patronId = id;
}

bool OstanaFunctions::SingleLanguage() const {
  return d_->settings.singleLanguage;
}

const QString& OstanaFunctions::LanguageSuffix() const {
  return d_->languageSuffix;
}

void OstanaFunctions::SetLanguageSuffix(const QString& suffix) {
  d_->languageSuffix = suffix;
}

const QString& OstanaFunctions::DateDisplayFormat() const {
  return d_->settings.dateDisplayFormat;
}

bool OstanaFunctions::FaxAvailable() const {
  return d_->settings.faxAvailable;
}

const QString& OstanaFunctions::ContactName() const {
  return d_->settings.contactName;
}

const QString& OstanaFunctions::InstitutionName() const {
  return d_->settings.institutionName;
}

qint32 OstanaFunctions::SiteNumber() const {
  return d_->settings.siteNumber;
}

// --- Settings and login ---

bool OstanaFunctions::LoadApplicationSettings(const QString& application, const QString& site, const QString& user,
                                              const QString& password) {
  d_->lastError.clear();
  d_->applicationName = application;
  d_->site = site;
  QString reason;
  if (!LoadSiteSettings(site, d_->settings, reason)) return d_->Refuse(reason);
  if (!OpenConnection()) return false;
  d_->cipher = std::make_unique<PasswordCipherHelper>(KeyFileOf(d_->settings.settingsFile));

  for (const QString& sentence : ReadableByOthers(d_->settings)) WriteLog(sentence, {}, "L");
  QString givenUser = user, givenPassword = password;
  if (givenUser.isEmpty() && !AskForLogon(givenUser, givenPassword)) return d_->Refuse("The logon was cancelled.");
  d_->user = givenUser;
  d_->password = givenPassword;
  return true;
}

// Opened once here, so that a wrong setting is told at the start and not by the first screen.
bool OstanaFunctions::OpenConnection() {
  d_->connection = std::make_unique<::Connection>(d_->settings.connection);
  if (!d_->settings.statementLog.isEmpty()) AttachStatementLog();
  try {
    d_->connection->Open();
    return true;
  } catch (const AdoError& error) {
    const QString text = QStringLiteral("The database '%1' cannot be opened: %2  The settings are those of '%3'.");
    return d_->Refuse(text.arg(d_->settings.connection.name, error.Description(), d_->settings.settingsFile));
  }
}

void OstanaFunctions::AttachStatementLog() {
  const auto log = std::make_shared<StatementLog>(d_->settings.statementLog);
  d_->connection->AddObserver([this, log, told = false](const StatementRecord& statement) mutable {
    if (log->Write(statement) || told) return;
    told = true;
    WriteLog("The statement log cannot be written.", d_->settings.statementLog, "L");
  });
}

bool OstanaFunctions::ID_ValidateLogin(const QString& user, const QString& password, const QString& function) {
  d_->lastError.clear();
  try {
    QString reason;
    if (!d_->userRights.Read(Connection(), user, password, function, d_->rights, reason)) return d_->Refuse(reason);
  } catch (const AdoError& error) {
    d_->lastError = error.Description();
    throw;
  }
  d_->currentFunction = function;
  return true;
}

bool OstanaFunctions::CheckPreviousInstance(bool earlierCopyReported) {
  // Asked in any case: the answer also tells later copies that this one runs.
  const bool locked = SingleInstance::AnotherIsRunning(d_->applicationName);
  return locked || earlierCopyReported;
}

// --- Values ---

QString OstanaFunctions::FieldValue(const Field& field, qint16, qint16) const {
  return field.IsNull() ? QString("") : field.Value();
}

QString OstanaFunctions::SqlEscape(const QString& text, qint16, qint16) const {
  return Dialect::For(d_->settings.connection.engine).Escape(text);
}

QString OstanaFunctions::SqlDate(const QDate& date) const {
  if (!date.isValid()) throw std::invalid_argument("SqlDate was given no date.");
  return Dialect::For(d_->settings.connection.engine).DateLiteral(date);
}

QString OstanaFunctions::SqlDate(const QDateTime& moment) const {
  if (!moment.isValid()) throw std::invalid_argument("SqlDate was given no date.");
  return Dialect::For(d_->settings.connection.engine).DateTimeLiteral(moment);
}

PasswordCipherHelper& OstanaFunctions::PasswordCipher() {
  if (!d_->cipher) throw std::logic_error("No settings are loaded.");
  return *d_->cipher;
}

// --- Look-ups ---

bool OstanaFunctions::FindLibraryId(const QString& symbol, qint32& id) {
  id = 0;
  const QString text = symbol.trimmed();
  if (text.isEmpty()) return false;
  Recordset rows;
  rows.Open(Connection(), "SELECT   LIBRARY_ID FROM " + OwnerPrefix() + "ID_LIBRARY WHERE    LIBRARY_SYMBOL = N'" +
                              SqlEscape(text) + "'");
  if (rows.EOF_()) {
    id = text.contains('%') ? -1 : 0;
    return false;
  }
  id = rows.Fields(0).Value().toInt();
  return true;
}

bool OstanaFunctions::ValidateField(const QString& kind, const QString& value) {
  QString reason;
  bool valid = false;
  if (kind == "E") {
    valid = FieldChecks::IsEmailAddress(value, reason);
  } else if (kind == "A") {
    valid = FieldChecks::IsNetworkAddress(value, reason);
  } else if (kind == "F") {
    valid = FieldChecks::IsFaxNumber(value, reason);
  } else {
    throw std::invalid_argument("ValidateField knows the kinds E, A and F.");
  }
  d_->lastError = reason;
  return valid;
}

bool OstanaFunctions::ValidateNetworkAddress(const QString& address, QString& reason) {
  reason.clear();
  return FieldChecks::IsNetworkAddress(address, reason);
}

void OstanaFunctions::LoadKeywordLists() {
  d_->keywords = ReadKeywordLists(d_->settings.settingsFile);
}

const QStringList& OstanaFunctions::KeywordNoiseStrings() const {
  return d_->keywords.noiseStrings;
}

const QStringList& OstanaFunctions::KeywordStopWords() const {
  return d_->keywords.stopWords;
}

QString OstanaFunctions::NextRequestNumber(const QString& prefix) {
  d_->lastError.clear();
  const int number = RequestCounter::Take(Connection(), d_->lastError);
  return number == 0 ? QString() : prefix + QStringLiteral("%1").arg(number, 8, 10, QChar('0'));
}

// --- Files ---

QString OstanaFunctions::ReadProfileString(const QString& section, const QString& key, const QString& file,
                                           qint32& maxLength) const {
  return IniFile::ReadValue(OnDisk(file), section, key, maxLength);
}

QString OstanaFunctions::ReadProfileString(const QString& section, const QString& key, const QString& file) const {
  qint32 maxLength = IniFile::LongestValue;
  return ReadProfileString(section, key, file, maxLength);
}

void OstanaFunctions::WriteProfileString(const QString& section, const QString& key, const QString& value,
                                         const QString& file) {
  d_->lastError.clear();
  IniFile::WriteValue(OnDisk(file), section, key, value, &d_->lastError);
}

QString OstanaFunctions::SystemFile(const QString& name) const {
  return Files::FindIgnoringCase(d_->settings.applicationPath, name);
}

void OstanaFunctions::WriteLog(const QString& text, const QString& detail, const QString& level) {
  const QString application = d_->applicationName.isEmpty() ? QStringLiteral("Tabulon") : d_->applicationName;
  WriteLogLines(application, d_->site, MaskSecrets(text), MaskSecrets(detail), level);
}
