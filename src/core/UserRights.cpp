#include "core/UserRights.h"

#include <QCryptographicHash>

#include "core/PasswordCipher.h"
#include "platform/ado/Connection.h"
#include "platform/ado/Dialect.h"
#include "platform/ado/Recordset.h"

namespace {

QString Literal(const Connection& connection, const QString& text) {
  return "N'" + connection.dialect().Escape(text) + "'";
}

// A sound record that no password matches: an unknown user takes as long as a wrong password.
QString NobodysRecord() {
  return QStringLiteral("pbkdf2-sha256$%1$%2$%3")
      .arg(PasswordRecord::Iterations)
      .arg(QString(QByteArray(16, '\0').toBase64()), QString(QByteArray(32, '\0').toBase64()));
}

QString ReadPasswordRecord(Connection& connection, const QString& user) {
  Recordset rows;
  rows.Open(connection, "SELECT   USER_PASSWORD FROM " + connection.Settings().ownerPrefix +
                            "ID_USER WHERE    USER_ID = " + Literal(connection, user));
  return rows.EOF_() ? QString() : rows.Fields(0).Value();
}

bool ReadRights(Connection& connection, const QString& user, const QString& function, FunctionRights& rights) {
  Recordset rows;
  rows.Open(connection, "SELECT   ADD_FLAG, UPDATE_FLAG, DELETE_FLAG FROM " + connection.Settings().ownerPrefix +
                            "ID_USER_FUNCTION WHERE    USER_ID = " + Literal(connection, user) +
                            " AND FUNCTION_NAME = " + Literal(connection, function));
  if (rows.EOF_()) return false;
  rights.add = rows.Fields(0).Value() == "Y";
  rights.update = rows.Fields(1).Value() == "Y";
  rights.remove = rows.Fields(2).Value() == "Y";
  return true;
}

}  // namespace

bool UserRights::Read(Connection& connection, const QString& user, const QString& password, const QString& function,
                      FunctionRights& rights, QString& reason) {
  connection.EnsureOpen();
  const QString record = user.isEmpty() ? QString() : ReadPasswordRecord(connection, user);
  const bool right = IsVerified(password, record.isEmpty() ? NobodysRecord() : record);
  if (!right || record.isEmpty()) {
    reason = QStringLiteral("The user id or the password is not valid.");
    return false;
  }
  FunctionRights read;
  if (!ReadRights(connection, user, function, read)) {
    reason = QStringLiteral("You do not have access to this function");
    return false;
  }
  rights = read;
  return true;
}

bool UserRights::IsVerified(const QString& password, const QString& record) {
  const QByteArray pair =
      QCryptographicHash::hash(record.toUtf8() + '\0' + password.toUtf8(), QCryptographicHash::Sha256);
  if (pair == verified_) return true;
  if (!PasswordRecord::Matches(password, record)) return false;
  verified_ = pair;
  return true;
}
