#include "core/SiteSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <array>
#include <exception>
#include <optional>

#include "core/PasswordCipher.h"
#include "platform/ado/Dialect.h"
#include "platform/files/IniFile.h"
#include "platform/files/IniText.h"
#include "schema/TableContent.h"

namespace {

const QString SettingsName = QStringLiteral("Ostana.INI");
constexpr int LongestSetting = 4000;  // characters; connection options can be long

struct EngineName {
  const char* name;
  Engine engine;
};
constexpr std::array<EngineName, 4> EngineNames{{{"SQLITE", Engine::Sqlite},
                                                 {"POSTGRESQL", Engine::PostgreSql},
                                                 {"MARIADB", Engine::MariaDb},
                                                 {"SQLSERVER", Engine::SqlServer}}};

// Reads the settings of one section and keeps the first complaint.
class SectionReader {
 public:
  SectionReader(const IniText& text, const QString& file, const QString& section, QString& error)
      : text_(text), file_(file), section_(section), error_(error) {}

  QString Text(const QString& key, const QString& otherwise = {}) const {
    const QString value = IniFile::Value(text_, section_, key, LongestSetting);
    return value.trimmed().isEmpty() ? otherwise : value;
  }

  bool Flag(const QString& key, bool otherwise) const {
    const QString value = Text(key).trimmed().toUpper();
    if (value.isEmpty()) return otherwise;
    if (QStringList{"Y", "YES", "TRUE", "ON", "1"}.contains(value)) return true;
    if (!QStringList{"N", "NO", "FALSE", "OFF", "0"}.contains(value)) Refuse(key, value, "Write Y or N.");
    return false;
  }

  int Number(const QString& key, int lowest, int highest, int otherwise) const {
    const QString value = Text(key).trimmed();
    if (value.isEmpty()) return otherwise;
    bool numeric = false;
    const int number = value.toInt(&numeric);
    if (numeric && number >= lowest && number <= highest) return number;
    Refuse(key, value, QStringLiteral("Write a number from %1 to %2.").arg(lowest).arg(highest));
    return otherwise;
  }

  void Refuse(const QString& key, const QString& value, const QString& advice) const {
    Complain(key, value.isEmpty() ? QStringLiteral("is missing") : QStringLiteral("is '%1'").arg(value), advice);
  }

  void Complain(const QString& key, const QString& state, const QString& advice) const {
    if (!error_.isEmpty()) return;
    error_ =
        QStringLiteral("The setting '%1' in section [%2] of '%3' %4.  %5").arg(key, section_, file_, state, advice);
  }

 private:
  const IniText& text_;
  const QString& file_;
  QString section_;
  QString& error_;
};

QString WithSeparator(const QString& directory) {
  const QString path = QDir::toNativeSeparators(directory);
  return path.endsWith(QDir::separator()) ? path : path + QDir::separator();
}

bool HoldsSettings(const QString& directory) {
  return QFileInfo::exists(Files::FindIgnoringCase(directory, SettingsName));
}

QString BelowApplicationPath(const QString& name, const QString& applicationPath) {
  return name.isEmpty() ? QString() : QDir::cleanPath(QDir(applicationPath).absoluteFilePath(name));
}

bool ReadSettingsFile(SiteSettings& settings, IniText& text, QString& error) {
  settings.applicationPath = FindApplicationPath();
  settings.settingsFile = Files::FindIgnoringCase(settings.applicationPath, SettingsName);
  if (!QFileInfo::exists(settings.settingsFile)) {
    error = QStringLiteral(
                "The settings file '%1' was not found in '%2'.  Start the program in the directory of the system, or "
                "set OSTANA_HOME to that directory.")
                .arg(SettingsName, settings.applicationPath);
    return false;
  }
  QString reason;
  if (IniFile::Read(settings.settingsFile, text, &reason)) return true;
  error = QStringLiteral("The settings file cannot be used.  %1  Put a copy of a sound settings file in its place.")
              .arg(reason);
  return false;
}

std::optional<QString> FindDatabaseSection(const QString& site, const IniText& text, const QString& file,
                                           QString& error) {
  const QString common = QStringLiteral("Database");
  const QStringList sections = text.Sections();
  const QString own = common + ' ' + site;
  if (!site.isEmpty() && sections.contains(own, Qt::CaseInsensitive)) return own;
  if (sections.contains(common, Qt::CaseInsensitive)) return common;
  error =
      QStringLiteral("The settings file '%1' has no section [%2].  Add the section with the settings Engine and Name.")
          .arg(file, common);
  return std::nullopt;
}

std::optional<Engine> ReadEngine(const SectionReader& section) {
  const QString value = section.Text("Engine").trimmed();
  for (const EngineName& known : EngineNames) {
    if (value.compare(QLatin1String(known.name), Qt::CaseInsensitive) == 0) return known.engine;
  }
  section.Refuse("Engine", value, "Write SQLITE, POSTGRESQL, MARIADB or SQLSERVER.");
  return std::nullopt;
}

QString ReadPassword(const SectionReader& section, const QString& settingsFile) {
  const QString encoded = section.Text("PasswordEncoded").trimmed();
  if (encoded.isEmpty()) return section.Text("Password");
  try {
    return PasswordCipherHelper(KeyFileOf(settingsFile)).Decode(encoded);
  } catch (const std::exception& failure) {
    section.Complain("PasswordEncoded", "cannot be used",
                     QString::fromUtf8(failure.what()) + "  Encode the password again, or write it as Password.");
    return {};
  }
}

QString ReadOwnerPrefix(const SectionReader& section) {
  const QString owner = section.Text("OwnerPrefix").trimmed();
  return owner.isEmpty() || owner.endsWith('.') ? owner : owner + '.';
}

void ReadDatabase(const SectionReader& section, SiteSettings& settings) {
  ConnectionSettings& connection = settings.connection;
  const std::optional<Engine> engine = ReadEngine(section);
  if (!engine) return;
  connection.engine = *engine;
  connection.name = section.Text("Name").trimmed();
  if (connection.name.isEmpty())
    section.Refuse("Name", {}, "Write the file of the database, or its name on the server.");
  if (connection.engine == Engine::Sqlite)
    connection.name = BelowApplicationPath(connection.name, settings.applicationPath);
  connection.host = section.Text("Host").trimmed();
  connection.port = section.Number("Port", 1, 65535, 0);
  connection.user = section.Text("User").trimmed();
  connection.password = ReadPassword(section, settings.settingsFile);
  connection.options = section.Text("Options").trimmed();
  connection.ownerPrefix = ReadOwnerPrefix(section);
  connection.keyOf = Content::OrderOf;
  settings.databaseType = section.Number("DatabaseType", 0, 32767, Dialect::For(connection.engine).DatabaseType());
}

void ReadSystem(const SectionReader& section, SiteSettings& settings) {
  settings.singleInstance = section.Flag("SingleInstance", settings.singleInstance);
  settings.tracing = section.Flag("Tracing", settings.tracing);
  settings.singleLanguage = section.Flag("SingleLanguage", settings.singleLanguage);
  settings.faxAvailable = section.Flag("FaxAvailable", settings.faxAvailable);
  settings.dateDisplayFormat = section.Text("DateDisplayFormat", "yyyy-MM-dd");
  settings.contactName = section.Text("ContactName");
  settings.institutionName = section.Text("InstitutionName");
  settings.customConfigFile = section.Text("CustomConfigFile").trimmed();
  settings.siteNumber = section.Number("SiteNumber", 0, 2147483647, 0);
  settings.statementLog = BelowApplicationPath(section.Text("StatementLog").trimmed(), settings.applicationPath);
}

}  // namespace

QString FindApplicationPath() {
  const QString home = qEnvironmentVariable("OSTANA_HOME");
  if (!home.isEmpty()) return WithSeparator(QDir(home).absolutePath());
  if (HoldsSettings(QDir::currentPath())) return WithSeparator(QDir::currentPath());
  return WithSeparator(QCoreApplication::applicationDirPath());
}

QString KeyFileOf(const QString& settingsFile) {
  return Files::FindIgnoringCase(QFileInfo(settingsFile).absolutePath(), "Ostana.key");
}

bool LoadSiteSettings(const QString& site, SiteSettings& settings, QString& error) {
  error.clear();
  SiteSettings read;
  IniText text;
  if (!ReadSettingsFile(read, text, error)) return false;
  const std::optional<QString> database = FindDatabaseSection(site, text, read.settingsFile, error);
  if (!database) return false;
  ReadDatabase(SectionReader(text, read.settingsFile, *database, error), read);
  ReadSystem(SectionReader(text, read.settingsFile, "System", error), read);
  if (!error.isEmpty()) return false;
  settings = read;
  return true;
}
