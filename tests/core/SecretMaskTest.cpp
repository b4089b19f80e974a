#include "core/SecretMask.h"

#include <gtest/gtest.h>

#include "schema/SchemaModel.h"
#include "schema/SecretColumns.h"

namespace {

void ExpectUnchanged(const QString& text) {
  EXPECT_EQ(MaskSecrets(text), text);
}

}  // namespace

TEST(SecretMask, AssignedPasswordsAreMasked) {
  EXPECT_EQ(MaskSecrets("UPDATE   ID_LIBRARY SET USER_LOGIN = N'lib', USER_PASSWORD = N'secret', NOTE = N'it''s' WHERE "
                        "LIBRARY_ID = 5"),
            "UPDATE   ID_LIBRARY SET USER_LOGIN = N'lib', USER_PASSWORD = N'***', NOTE = N'it''s' WHERE LIBRARY_ID = "
            "5");
}

TEST(SecretMask, EverySecretColumnIsKnown) {
  for (const char* column : {"USER_PASSWORD", "VORN_PASSWORD", "BL_PASSWORD", "RAPID_PASSWORD", "CREDIT_CARD_NAME",
                             "CREDIT_CARD_NUM", "CREDIT_CARD_EXP", "CREDIT_CARD_CODE", "NCIP_FROM_AGENCY_AUTH",
                             "PASSWORD", "vorn_password", "L.BL_PASSWORD", "[PASSWORD]"}) {
    EXPECT_EQ(MaskSecrets(QString("UPDATE T SET ") + column + "='secret'"),
              QString("UPDATE T SET ") + column + "='***'");
  }
}

// The same columns that an export leaves out.
TEST(SecretMask, NoOtherColumnOfTheSchemaIsSecret) {
  QStringList secret;
  for (const SchemaTable& table : SchemaModel::Get().tables)
    for (const SchemaColumn& column : table.columns)
      if (NamesSecretColumn(column.name)) secret += table.name + '.' + column.name;
  EXPECT_EQ(secret.join(' ').toStdString(),
            "ID_USER.USER_PASSWORD ID_LIBRARY.USER_PASSWORD ID_LIBRARY.VORN_PASSWORD ID_LIBRARY.RAPID_PASSWORD "
            "ID_LIBRARY.BL_PASSWORD ID_LIBRARY.CREDIT_CARD_NAME ID_LIBRARY.CREDIT_CARD_NUM "
            "ID_LIBRARY.CREDIT_CARD_EXP ID_LIBRARY.CREDIT_CARD_CODE ID_NCIP_CONNECT.NCIP_FROM_AGENCY_AUTH");
}

TEST(SecretMask, OtherColumnsStay) {
  ExpectUnchanged("UPDATE T SET CREDIT_CARD = N'BC', LIBRARY_ACCOUNT = '12/30', NOTE = 'my password'");
  ExpectUnchanged("SELECT   USER_PASSWORD, NOTE FROM ID_LIBRARY WHERE    LIBRARY_SYMBOL = N'ABC'");
}

TEST(SecretMask, NullAndSpacingStay) {
  ExpectUnchanged("UPDATE T SET USER_PASSWORD = NULL , CREDIT_CARD_NUM=Null WHERE  X = N'y'");
}

TEST(SecretMask, QuotesSemicolonsAndCommasInsideAPasswordAreMaskedWithIt) {
  EXPECT_EQ(MaskSecrets("UPDATE T SET USER_PASSWORD = N'a''b; -- c, d = ''e', X = 'y'"),
            "UPDATE T SET USER_PASSWORD = N'***', X = 'y'");
}

TEST(SecretMask, BareNumbersAndExpressionsAreMasked) {
  EXPECT_EQ(MaskSecrets("UPDATE T SET CREDIT_CARD_NUM = 4111, X = 1"), "UPDATE T SET CREDIT_CARD_NUM = '***', X = 1");
  EXPECT_EQ(MaskSecrets("UPDATE T SET USER_PASSWORD = UPPER('a') || 'b' WHERE X = 'y'"),
            "UPDATE T SET USER_PASSWORD = UPPER('***') || '***' WHERE X = 'y'");
}

TEST(SecretMask, ComparedPasswordsAreMasked) {
  EXPECT_EQ(MaskSecrets("SELECT 1 FROM T WHERE USER_PASSWORD = 'a' AND X = 'b'"),
            "SELECT 1 FROM T WHERE USER_PASSWORD = '***' AND X = 'b'");
  EXPECT_EQ(MaskSecrets("SELECT 1 FROM T WHERE USER_PASSWORD IN ('a', 'b') OR X LIKE 'c'"),
            "SELECT 1 FROM T WHERE USER_PASSWORD IN ('***', '***') OR X LIKE 'c'");
  EXPECT_EQ(MaskSecrets("SELECT 1 FROM T WHERE USER_PASSWORD <> 'a'"), "SELECT 1 FROM T WHERE USER_PASSWORD <> '***'");
}

TEST(SecretMask, InsertedPasswordsAreMaskedByPosition) {
  EXPECT_EQ(MaskSecrets("INSERT INTO  OSTANA.ID_USER(USER_ID, USER_PASSWORD, NOTE) VALUES (N'a', N'secret', N'b')"),
            "INSERT INTO  OSTANA.ID_USER(USER_ID, USER_PASSWORD, NOTE) VALUES (N'a', N'***', N'b')");
}

TEST(SecretMask, EveryRowOfAnInsertIsMasked) {
  EXPECT_EQ(MaskSecrets("INSERT INTO T (PASSWORD, A) VALUES ('x', '1'), ('y', '2')"),
            "INSERT INTO T (PASSWORD, A) VALUES ('***', '1'), ('***', '2')");
}

TEST(SecretMask, CommasInsideOfValuesDoNotShiftThePositions) {
  EXPECT_EQ(MaskSecrets("INSERT INTO T (A, PASSWORD, B) VALUES (COALESCE('1, 2', '3'), 'x', '4')"),
            "INSERT INTO T (A, PASSWORD, B) VALUES (COALESCE('1, 2', '3'), '***', '4')");
}

TEST(SecretMask, InsertFromASelectIsMasked) {
  EXPECT_EQ(MaskSecrets("INSERT INTO T (A, PASSWORD) SELECT 'a', 'x' FROM U WHERE B = 'c'"),
            "INSERT INTO T (A, PASSWORD) SELECT 'a', '***' FROM U WHERE B = 'c'");
}

TEST(SecretMask, SeveralStatementsAreMasked) {
  EXPECT_EQ(MaskSecrets("INSERT INTO T (PASSWORD) VALUES ('x'); UPDATE T SET PASSWORD = 'y'; SELECT 'z'"),
            "INSERT INTO T (PASSWORD) VALUES ('***'); UPDATE T SET PASSWORD = '***'; SELECT 'z'");
}

TEST(SecretMask, WordsBeforeTheStatementDoNotHideIt) {
  EXPECT_EQ(MaskSecrets("It's lost. Database Statement: UPDATE T SET PASSWORD = 'x', A = 'b'"),
            "It's lost. Database Statement: UPDATE T SET PASSWORD = '***', A = 'b'");
  EXPECT_EQ(MaskSecrets("***** SQL error on T (INSERT INTO) ***** UPDATE T SET PASSWORD = 'x'"),
            "***** SQL error on T (INSERT INTO) ***** UPDATE T SET PASSWORD = '***'");
}

TEST(SecretMask, StatementThatWasCutIsMasked) {
  EXPECT_FALSE(MaskSecrets("UPDATE T SET PASSWORD = 'secr").contains("secr"));
  EXPECT_FALSE(MaskSecrets("INSERT INTO T (A, PASSWORD) VALUES ('a', 'secr").contains("secr"));
}

TEST(SecretMask, CommentsAreMaskedWhole) {
  EXPECT_FALSE(MaskSecrets("UPDATE T SET A = 1 -- PASSWORD = 'secret'").contains("secret"));
}

TEST(SecretMask, TextsWithoutSecretsComeBackAsTheyAre) {
  ExpectUnchanged("");
  ExpectUnchanged("It's a quarter past 'nine");
  ExpectUnchanged("Please enter the password.");
  ExpectUnchanged("INSERT INTO");
  ExpectUnchanged("INSERT INTO T (PASSWORD");
}
