#include "platform/desktop/Registry.h"

#include <QDir>
#include <QStandardPaths>

#include "platform/files/IniFile.h"

#ifdef Q_OS_WIN
#include <qt_windows.h>

#include <cstring>
#include <vector>
#endif

namespace {

QString DoubleWordText(quint32 value) {
  return QStringLiteral("&h") + QString::number(value, 16).toUpper();
}

#ifdef Q_OS_WIN

// Type and bytes of a value; false when key or value cannot be read.
bool ReadBytes(Registry::Root root, const QString& keyName, const QString& valueName, DWORD& type,
               std::vector<char>& bytes) {
  HKEY key = nullptr;
  const HKEY rootKey = root == Registry::Root::LocalMachine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
  if (RegOpenKeyExA(rootKey, keyName.toLocal8Bit().constData(), 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
  const QByteArray name = valueName.toLocal8Bit();
  DWORD size = 0;
  bool done = RegQueryValueExA(key, name.constData(), nullptr, &type, nullptr, &size) == ERROR_SUCCESS;
  if (done) {
    bytes.resize(size);
    done = RegQueryValueExA(key, name.constData(), nullptr, &type, reinterpret_cast<BYTE*>(bytes.data()), &size) ==
           ERROR_SUCCESS;
    bytes.resize(done ? size : 0);
  }
  RegCloseKey(key);
  return done;
}

#else

// The machine's own tree, and the user's beside it; one folder for both where the environment names it.
QString TreeFile(Registry::Root root) {
  const QString folder = qEnvironmentVariable("OSTANA_REGISTRY");
  const bool machine = root == Registry::Root::LocalMachine;
  if (!folder.isEmpty()) return QDir(folder).filePath(machine ? "registry.ini" : "registry-user.ini");
  if (machine) return QStringLiteral("/etc/ostana/registry.ini");
  return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)).filePath("ostana/registry.ini");
}

// A value that is there but empty cannot be told from none by its text.
bool Exists(const QString& file, const QString& keyName, const QString& valueName) {
  return IniFile::Keys(file, keyName).contains(valueName, Qt::CaseInsensitive);
}

#endif

}  // namespace

namespace Registry {

#ifdef Q_OS_WIN

bool GetKeyValue(Root root, const QString& keyName, const QString& valueName, QString& value) {
  DWORD type = REG_NONE;
  std::vector<char> bytes;
  if (!ReadBytes(root, keyName, valueName, type, bytes)) return false;
  if (type == REG_SZ) {
    if (!bytes.empty() && bytes.back() == '\0') bytes.pop_back();
    value = QString::fromLocal8Bit(bytes.data(), static_cast<qsizetype>(bytes.size()));
    return true;
  }
  if (type != REG_DWORD || bytes.size() != sizeof(quint32)) return false;
  quint32 number = 0;
  std::memcpy(&number, bytes.data(), sizeof number);
  value = DoubleWordText(number);
  return true;
}

#else

// Value types are told by what stands before the colon, as in an exported tree; a value without one is text.
bool GetKeyValue(Root root, const QString& keyName, const QString& valueName, QString& value) {
  const QString file = TreeFile(root);
  if (!Exists(file, keyName, valueName)) return false;
  const QString stored = IniFile::ReadValue(file, keyName, valueName);
  if (stored.startsWith(QLatin1String("hex"), Qt::CaseInsensitive) && stored.contains(u':')) return false;
  if (!stored.startsWith(QLatin1String("dword:"), Qt::CaseInsensitive)) {
    value = stored;
    return true;
  }
  bool isNumber = false;
  const quint32 number = stored.mid(6).trimmed().toUInt(&isNumber, 16);
  if (isNumber) value = DoubleWordText(number);
  return isNumber;
}

#endif

}  // namespace Registry
