#pragma once

#include "interop/InteropDesk.h"

// A desk for the NCIP profiles of one library.
class NCIPProfileDesk : public InteropDesk {
 protected:
  static inline const QString Caption = "Ostana - NCIP Profile";
  static inline const QString Grid1 = "grdNCIPProfile";
  static inline const QString Question =
      "This profile has been updated.\nDo you wish to apply the updates before continuing?";
  static inline const QString ClearQuestion = "Are you sure you wish to clear the screen?";
  static inline const QString WriteFailed =
      "An error has occurred writing settings to the database.  Please check the log file for more information.";
  // Columns of the INSERT.
  static inline const QString Into =
      "INSERT INTO ID_NCIP_PROFILE (LIBRARY_ID, NCIP_PROFILE, NCIP_PROFILE_DESC, NCIP_PATRON_TYPE, NCIP_ALLOW_LOAN, "
      "NCIP_ALLOW_COPY, NCIP_SELECT_DELIVERY_C, NCIP_DELIVERY_METHOD_C, NCIP_DELIVERY_ADDRESS_C, "
      "NCIP_SELECT_DELIVERY_L, NCIP_DELIVERY_METHOD_L, NCIP_DELIVERY_ADDRESS_L, FILE_FORMAT, MSG_FORMAT, "
      "BILLING_TYPE, BILLING_RATE, LOAN_CODE) VALUES (";

  void SetUp() override {
    InteropDesk::SetUp();
    for (const char* row : {"101, 'M', 'Main desk'", "101, 'N', 'North desk'", "202, 'S', 'Server desk'"})
      Another(QString("INSERT INTO ID_PICKUP_LOCATION (LIBRARY_ID, PICKUP_LOCATION, PICKUP_LOCATION_DESC) VALUES (") +
              row + ")");
  }
  // `copy` and `loan`: allow, select, method, address.
  void AddProfile(const QString& code, const QString& copy = "'Y', 'Y', NULL, NULL",
                  const QString& loan = "'Y', 'Y', NULL, NULL", qint32 library = Own) {
    Another(
        "INSERT INTO ID_NCIP_PROFILE (LIBRARY_ID, NCIP_PROFILE, NCIP_PROFILE_DESC, NCIP_PATRON_TYPE, "
        "NCIP_ALLOW_COPY, NCIP_SELECT_DELIVERY_C, NCIP_DELIVERY_METHOD_C, NCIP_DELIVERY_ADDRESS_C, NCIP_ALLOW_LOAN, "
        "NCIP_SELECT_DELIVERY_L, NCIP_DELIVERY_METHOD_L, NCIP_DELIVERY_ADDRESS_L, FILE_FORMAT, MSG_FORMAT, "
        "BILLING_TYPE, BILLING_RATE, LOAN_CODE) VALUES (" +
        QString::number(library) + ", '" + code + "', '" + code + " desc', 'FA', " + copy + ", " + loan +
        ", 'T', 'H', 'I', 'A', NULL)");
  }
  void OpenProfiles() {
    gbSettingsChanged = false;
    Open("frmNCIPProfile");
    Statements();
  }
  void Fill(const QString& code, const QString& description = "Some users") {
    Type("txtProfileCode", code);
    Type("txtDescription", description);
  }
  void Refused(const QString& button, const QString& text, const QString& focus) {
    Prompt().ExpectTitled(text, 16, Caption);
    Click(button);
    EXPECT_EQ(Focus(), focus);
  }
  void CloseAndStore() {
    Prompt().ExpectTitled("Settings updated.", 64, Caption);
    Click("cmdClose");
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(gbSettingsChanged);
  }
  QString Profiles(qint32 library = Own) {
    Recordset rows;
    rows.Open(Database().OtherClient(), "SELECT NCIP_PROFILE FROM ID_NCIP_PROFILE WHERE LIBRARY_ID = " +
                                            QString::number(library) + " ORDER BY NCIP_PROFILE");
    QStringList codes;
    for (; !rows.EOF_(); rows.MoveNext()) codes.append(rows.Fields(0).Value());
    return codes.join(" ");
  }
};
