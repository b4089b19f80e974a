#pragma once

#include <QByteArray>
#include <QString>

class Connection;

// What a user may do with a function of the system.
struct FunctionRights {
  bool add = false;
  bool update = false;
  bool remove = false;
};

// Checks users against ID_USER and reads their rights from ID_USER_FUNCTION. The password check is slow on purpose; it
// is made once for a password and the record it was checked against, and again when one of the two has changed.
class UserRights {
 public:
  // True when user and password are right and the user has a row for the function. `rights` changes on True only;
  // `reason` is a sentence for the user on False, the same for a wrong user and a wrong password.
  bool Read(Connection& connection, const QString& user, const QString& password, const QString& function,
            FunctionRights& rights, QString& reason);

 private:
  bool IsVerified(const QString& password, const QString& record);

  QByteArray verified_;  // digest of the pair that was found right
};
