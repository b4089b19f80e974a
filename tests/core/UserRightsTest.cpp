// Logon and rights, through the common services.
#include "core/UserRights.h"

#include <QElapsedTimer>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/PasswordCipher.h"
#include "support/Desk.h"

namespace {

class UserRightsTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    AddUser("clerk", "open sesame");
    AddFunction("clerk", "Tabulon", "Y", "Y", "N");
    AddFunction("clerk", "Library Registration", "N", "N", "N");
    ASSERT_TRUE(gclsOF->LoadApplicationSettings("Tabulon", "", "clerk", "open sesame"))
        << gclsOF->LastError().toStdString();
  }

  void AddUser(const QString& user, const QString& password) {
    Another("INSERT INTO ID_USER (USER_ID, USER_PASSWORD) VALUES (" + Quoted(user) + ", '" + Record(password) + "')");
  }
  void AddFunction(const QString& user, const QString& function, const QString& add, const QString& update,
                   const QString& remove) {
    Another("INSERT INTO ID_USER_FUNCTION (USER_ID, FUNCTION_NAME, ADD_FLAG, UPDATE_FLAG, DELETE_FLAG) VALUES (" +
            Quoted(user) + ", '" + function + "', '" + add + "', '" + update + "', '" + remove + "')");
  }
  static QString Record(const QString& password, int iterations = 1000) {
    return PasswordRecord::Make(password, iterations);
  }
  static QString Quoted(QString text) { return "N'" + text.replace("'", "''") + "'"; }
  static bool Valid(const QString& user, const QString& password, const QString& function = "Tabulon") {
    return gclsOF->ID_ValidateLogin(user, password, function);
  }
  static bool ClerkMay(const QString& function) { return Valid(gclsOF->UserId(), gclsOF->UserPassword(), function); }
  static QString Rights() {
    return QString(gclsOF->CanAdd() ? "A" : "-") + (gclsOF->CanUpdate() ? "U" : "-") +
           (gclsOF->CanDelete() ? "D" : "-") + " " + gclsOF->CurrentFunction();
  }
};

}  // namespace

TEST_F(UserRightsTest, RightsAreThoseOfTheFunction) {
  EXPECT_EQ(Rights(), "--- ");
  EXPECT_TRUE(ClerkMay("Tabulon"));
  EXPECT_EQ(Rights(), "AU- Tabulon");
  EXPECT_TRUE(gclsOF->LastError().isEmpty());
}

TEST_F(UserRightsTest, FunctionWithoutAnyRightMayStillBeEntered) {
  EXPECT_TRUE(ClerkMay("Library Registration"));
  EXPECT_EQ(Rights(), "--- Library Registration");
}

TEST_F(UserRightsTest, WrongUserAndWrongPasswordAreToldAlike) {
  EXPECT_FALSE(Valid("clerk", "Open sesame"));
  const QString wrongPassword = gclsOF->LastError();
  EXPECT_FALSE(Valid("nobody", "open sesame"));
  EXPECT_EQ(gclsOF->LastError(), wrongPassword);
  EXPECT_FALSE(Valid("", ""));
  EXPECT_EQ(gclsOF->LastError(), wrongPassword);
  EXPECT_EQ(wrongPassword, "The user id or the password is not valid.");
}

TEST_F(UserRightsTest, EmptyPasswordIsNoPassword) {
  EXPECT_FALSE(Valid("clerk", ""));
  Another("INSERT INTO ID_USER (USER_ID, USER_PASSWORD) VALUES ('blank', '')");
  EXPECT_FALSE(Valid("blank", ""));
}

TEST_F(UserRightsTest, UserWithoutTheFunctionIsRefused) {
  EXPECT_FALSE(ClerkMay("Supplier Registration"));
  EXPECT_EQ(gclsOF->LastError(), "You do not have access to this function");
}

TEST_F(UserRightsTest, RefusalLeavesRightsAndFunction) {
  ASSERT_TRUE(ClerkMay("Tabulon"));
  EXPECT_FALSE(ClerkMay("Supplier Registration"));
  EXPECT_EQ(Rights(), "AU- Tabulon");
  EXPECT_FALSE(Valid("clerk", "wrong"));
  EXPECT_EQ(Rights(), "AU- Tabulon");
}

TEST_F(UserRightsTest, BorrowedFunctionIsGivenBack) {
  ASSERT_TRUE(ClerkMay("Tabulon"));
  const QString saved = gclsOF->CurrentFunction();
  EXPECT_TRUE(ClerkMay("Library Registration"));
  EXPECT_TRUE(ClerkMay(saved));
  EXPECT_EQ(Rights(), "AU- Tabulon");
}

TEST_F(UserRightsTest, AfterAFailedBorrowingTheSavedFunctionHasItsRights) {
  ASSERT_TRUE(ClerkMay("Tabulon"));
  const QString saved = gclsOF->CurrentFunction();
  EXPECT_FALSE(ClerkMay("Patron Registration"));
  EXPECT_TRUE(ClerkMay(saved));
  EXPECT_EQ(Rights(), "AU- Tabulon");
}

TEST_F(UserRightsTest, RightsAreReadAgainEachTime) {
  ASSERT_TRUE(ClerkMay("Tabulon"));
  Another("UPDATE ID_USER_FUNCTION SET UPDATE_FLAG = 'N', DELETE_FLAG = 'Y' WHERE USER_ID = 'clerk'");
  ASSERT_TRUE(ClerkMay("Tabulon"));
  EXPECT_EQ(Rights(), "A-D Tabulon");
}

TEST_F(UserRightsTest, PasswordChangedMeanwhileIsRefused) {
  ASSERT_TRUE(ClerkMay("Tabulon"));
  Another("UPDATE ID_USER SET USER_PASSWORD = '" + Record("another") + "' WHERE USER_ID = 'clerk'");
  EXPECT_FALSE(ClerkMay("Tabulon"));
  EXPECT_TRUE(Valid("clerk", "another"));
}

TEST_F(UserRightsTest, VerifiedPasswordDoesNotOpenAnotherAccount) {
  AddUser("other", "something else");
  AddFunction("other", "Tabulon", "Y", "Y", "Y");
  ASSERT_TRUE(ClerkMay("Tabulon"));
  EXPECT_FALSE(Valid("other", "open sesame"));
}

TEST_F(UserRightsTest, SlowCheckIsMadeOnce) {
  Another("UPDATE ID_USER SET USER_PASSWORD = '" + Record("open sesame", PasswordRecord::Iterations) +
          "' WHERE USER_ID = 'clerk'");
  QElapsedTimer timer;
  timer.start();
  ASSERT_TRUE(ClerkMay("Tabulon"));
  const qint64 first = timer.restart();
  for (int times = 0; times < 20; ++times) ASSERT_TRUE(ClerkMay("Tabulon"));
  EXPECT_LT(timer.elapsed(), 10 * first);
}

TEST_F(UserRightsTest, QuotesInNamesDoNoHarm) {
  AddUser("o'brien", "it's; --");
  AddUser("o''brien", "another");
  AddFunction("o''brien", "Tabulon", "Y", "N", "N");
  EXPECT_FALSE(Valid("o'brien", "it's; --"));
  EXPECT_EQ(gclsOF->LastError(), "You do not have access to this function");
  AddFunction("o'brien", "Tabulon", "Y", "N", "N");
  EXPECT_TRUE(Valid("o'brien", "it's; --"));
  EXPECT_FALSE(Valid("' OR 'a' = 'a", "' OR 'a' = 'a"));
}

TEST_F(UserRightsTest, ClosedConnectionIsReopened) {
  gclsOF->Connection().Close();
  EXPECT_TRUE(ClerkMay("Tabulon"));
}

TEST_F(UserRightsTest, DatabaseWithoutUsersIsAnErrorThatLeavesItsText) {
  Another("ALTER TABLE ID_USER RENAME TO ID_USER_AWAY");
  EXPECT_THROW(ClerkMay("Tabulon"), AdoError);
  EXPECT_FALSE(gclsOF->LastError().isEmpty());
  Another("ALTER TABLE ID_USER_AWAY RENAME TO ID_USER");
}
