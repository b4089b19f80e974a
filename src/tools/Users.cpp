#include "tools/Users.h"

#include <algorithm>

#include "schema/SchemaSql.h"

namespace {

QString WhereUser(Connection& connection, const QString& name) {
  return " WHERE USER_ID = " + SchemaSql::Literal(connection, name);
}

QString Flag(bool value) {
  return value ? QStringLiteral("'Y'") : QStringLiteral("'N'");
}

void DeleteRight(Connection& connection, const QString& name, const QString& function) {
  connection.Execute("DELETE FROM " + SchemaSql::Table(connection, "ID_USER_FUNCTION") + WhereUser(connection, name) +
                     " AND FUNCTION_NAME = " + SchemaSql::Literal(connection, function));
}

}  // namespace

QStringList Users::KnownFunctions() {
  return {"Tabulon", "Library Registration", "Patron Registration", "Supplier Registration", "User Maintenance"};
}

QString Users::FunctionName(const QString& name) {
  const QStringList known = KnownFunctions();
  const auto found = std::find_if(known.begin(), known.end(), [&](const QString& function) {
    return function.compare(name, Qt::CaseInsensitive) == 0;
  });
  return found == known.end() ? name : *found;
}

bool Users::Exists(Connection& connection, const QString& name) {
  return !SchemaSql::Values(connection, "SELECT USER_ID FROM " + SchemaSql::Table(connection, "ID_USER") +
                                            WhereUser(connection, name))
              .isEmpty();
}

void Users::Add(Connection& connection, const QString& name, const QString& record) {
  connection.Execute("INSERT INTO " + SchemaSql::Table(connection, "ID_USER") + " (USER_ID, USER_PASSWORD) VALUES (" +
                     SchemaSql::Literal(connection, name) + ", " + SchemaSql::Literal(connection, record) + ')');
}

void Users::SetPassword(Connection& connection, const QString& name, const QString& record) {
  connection.Execute("UPDATE " + SchemaSql::Table(connection, "ID_USER") +
                     " SET USER_PASSWORD = " + SchemaSql::Literal(connection, record) + WhereUser(connection, name));
}

void Users::SetRight(Connection& connection, const QString& name, const Right& right) {
  Transaction transaction(connection);
  DeleteRight(connection, name, right.function);
  connection.Execute("INSERT INTO " + SchemaSql::Table(connection, "ID_USER_FUNCTION") +
                     " (USER_ID, FUNCTION_NAME, ADD_FLAG, UPDATE_FLAG, DELETE_FLAG) VALUES (" +
                     SchemaSql::Literal(connection, name) + ", " + SchemaSql::Literal(connection, right.function) +
                     ", " + Flag(right.add) + ", " + Flag(right.update) + ", " + Flag(right.remove) + ')');
  transaction.Commit();
}

void Users::RemoveRight(Connection& connection, const QString& name, const QString& function) {
  DeleteRight(connection, name, function);
}

void Users::Remove(Connection& connection, const QString& name) {
  Transaction transaction(connection);
  connection.Execute("DELETE FROM " + SchemaSql::Table(connection, "ID_USER_FUNCTION") + WhereUser(connection, name));
  connection.Execute("DELETE FROM " + SchemaSql::Table(connection, "ID_USER") + WhereUser(connection, name));
  transaction.Commit();
}

std::vector<Users::User> Users::List(Connection& connection) {
  std::vector<User> users;
  for (const QString& name : SchemaSql::Values(
           connection, "SELECT USER_ID FROM " + SchemaSql::Table(connection, "ID_USER") + " ORDER BY USER_ID"))
    users.push_back({name, {}});
  const QString rights = "SELECT USER_ID, FUNCTION_NAME, ADD_FLAG, UPDATE_FLAG, DELETE_FLAG FROM " +
                         SchemaSql::Table(connection, "ID_USER_FUNCTION") + " ORDER BY FUNCTION_NAME";
  for (const QStringList& row : SchemaSql::Rows(connection, rights)) {
    const auto user = std::find_if(users.begin(), users.end(), [&](const User& one) { return one.name == row[0]; });
    if (user != users.end()) user->rights.push_back({row[1], row[2] == "Y", row[3] == "Y", row[4] == "Y"});
  }
  return users;
}
