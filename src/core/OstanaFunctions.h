#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

#include "core/UserRights.h"
#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"

class PasswordCipherHelper;

// The common services that all desktop programs of the system share: the one connection, the user's rights, the log,
// the configuration files and the session state. The global instance is gclsOF. Operations that fail in an expected
// way answer False and leave the reason in LastError; anything else is an exception.
class OstanaFunctions {
 public:
  OstanaFunctions();
  ~OstanaFunctions();

  // --- Session state ---
  ::Connection& Connection();               // AdoError while no settings are loaded
  const QString& OwnerPrefix() const;       // empty, or an owner with its closing point
  qint16 DatabaseType() const;              // 5: the column NOTE is written [NOTE]
  const QString& ApplicationPath() const;   // root directory of the system, ending in a separator
  const QString& CustomConfigFile() const;  // name without directory; empty where the site has none
  const QString& UserId() const;
  const QString& UserPassword() const;
  const QString& ApplicationName() const;
  QString ApplicationCode() const;
  void SetApplicationCode(const QString& code);
  bool SingleInstance() const;
  const QString& CurrentFunction() const;
  const QString& CallingFunction() const;
  void SetCallingFunction(const QString& function);
  // Of the function validated last. A screen keeps the rights it was opened under; a borrowed function is none of its
  // own.
  const FunctionRights& Rights() const;
  bool CanAdd() const;
  bool CanUpdate() const;
  bool CanDelete() const;
  bool Tracing() const;
  const QString& LastError() const;
  void SetLastError(const QString& text);
  const QString& LastSQL() const;
  void SetLastSQL(const QString& text);
  qint32 LibraryId() const;  // below 1: none
  void SetLibraryId(qint32 id);
  const QString& PatronId() const;
  void SetPatronId(const QString& id);
  bool SingleLanguage() const;
  const QString& LanguageSuffix() const;  // "_" and a code, or empty for the default language
  void SetLanguageSuffix(const QString& suffix);
  const QString& DateDisplayFormat() const;
  bool FaxAvailable() const;
  const QString& ContactName() const;
  const QString& InstitutionName() const;
  qint32 SiteNumber() const;
  // What the site calls itself, and its colour as "#RRGGBB"; both may be empty.
  const QString& SiteName() const;
  const QString& SiteColour() const;
  const QString& DatabaseName() const;  // of the settings: a file, or the name on the server

  // --- Settings and login ---
  // The application's name and the first three command-line arguments: site, user id, password.
  bool LoadApplicationSettings(const QString& application, const QString& site, const QString& user,
                               const QString& password);
  // On True the rights and CurrentFunction are those of the function; on False nothing changes but LastError.
  bool ID_ValidateLogin(const QString& user, const QString& password, const QString& function);
  bool CheckPreviousInstance(bool earlierCopyReported);

  // --- Values ---
  // The field's value, NULL as empty text. The two integers are always 0.
  QString FieldValue(const Field& field, qint16 first = 0, qint16 second = 0) const;
  QString SqlEscape(const QString& text, qint16 first = 0, qint16 second = 0) const;
  QString SqlDate(const QDate& date) const;
  QString SqlDate(const QDateTime& moment) const;
  PasswordCipherHelper& PasswordCipher();

  // --- Look-ups ---
  // True when the symbol belongs to a registered library. Otherwise id is -1 for a text with a wildcard ("%"), else 0.
  bool FindLibraryId(const QString& symbol, qint32& id);
  // Kind "E" e-mail, "A" network address, "F" fax number. LastError tells why it is False.
  bool ValidateField(const QString& kind, const QString& value);
  bool ValidateNetworkAddress(const QString& address, QString& reason);
  void LoadKeywordLists();
  const QStringList& KeywordNoiseStrings() const;
  const QStringList& KeywordStopWords() const;
  // The prefix and eight digits, none twice; empty with LastError when the counter could not be taken.
  QString NextRequestNumber(const QString& prefix);

  // --- Files ---
  QString ReadProfileString(const QString& section, const QString& key, const QString& file, qint32& maxLength) const;
  QString ReadProfileString(const QString& section, const QString& key, const QString& file) const;
  void WriteProfileString(const QString& section, const QString& key, const QString& value, const QString& file);
  // Full path of a file below ApplicationPath, letter case ignored.
  QString SystemFile(const QString& name) const;
  void WriteLog(const QString& text, const QString& detail, const QString& level);

 private:
  struct Private;
  bool OpenConnection();
  void AttachStatementLog();
  std::unique_ptr<Private> d_;
};
