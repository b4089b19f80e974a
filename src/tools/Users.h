#pragma once

#include <QStringList>
#include <vector>

#include "platform/ado/Connection.h"

// Users of the programs and their rights.
namespace Users {

// Functions that the programs of the system ask for.
QStringList KnownFunctions();
// The known function of that name in other letters, otherwise the name as it stands.
QString FunctionName(const QString& name);

struct Right {
  QString function;
  bool add = false;
  bool update = false;
  bool remove = false;
};

struct User {
  QString name;
  std::vector<Right> rights;
};

inline constexpr int LongestName = 20;  // characters
inline constexpr int LongestFunction = 50;

bool Exists(Connection& connection, const QString& name);
// `record` is what PasswordRecord::Make gives.
void Add(Connection& connection, const QString& name, const QString& record);
void SetPassword(Connection& connection, const QString& name, const QString& record);
void SetRight(Connection& connection, const QString& name, const Right& right);
// The user has no access to the function any more.
void RemoveRight(Connection& connection, const QString& name, const QString& function);
void Remove(Connection& connection, const QString& name);
std::vector<User> List(Connection& connection);

}  // namespace Users
