#pragma once

#include <QString>

// The registry of the machine. On Windows the real one; elsewhere an INI-like tree in the file "registry.ini" of the
// system's configuration folder (the folder named by OSTANA_REGISTRY when set), one section per key path.
namespace Registry {
enum class Root { LocalMachine, CurrentUser };

// Opens the key, reads the value's type and bytes, closes the key. Text loses its final zero; a double word becomes
// "&h" with its hexadecimal digits. Any other type and any failure is False with `value` untouched.
bool GetKeyValue(Root root, const QString& keyName, const QString& valueName, QString& value);
}  // namespace Registry
