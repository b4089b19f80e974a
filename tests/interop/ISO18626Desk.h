#pragma once

#include "interop/InteropDesk.h"

// A desk for the ISO 18626 connections.
class ISO18626Desk : public InteropDesk {
 protected:
  static inline const QString Caption = "Ostana - ISO 18626 Connection Configuration and Selection";
  static inline const QString Grid1 = "grdISO18626Connections";

  void AddConnection(const QString& id, const QString& flags = "'N', 'N', 'N', 'N', 'N', 'N', 'N', 'N', 'N', 'N'",
                     const QString& system = "TALVERNE") {
    Another(
        "INSERT INTO ID_ISO18626_CONNECT (ISO18626_CONNECTION_ID, ILL_SYSTEM, ISO18626_CONNECT_TYPE, "
        "ISO18626_HOST_ADDRESS, ISO18626_HOST_URL, ISO18626_HOST_PORT, ISO18626_VERSION, ISO18626_AUTHN_TYPE, "
        "RT_RETRY, RST_TRANSFER_REQUEST, TRANSFER_PATRON_INFO, TRANSFER_PATRON_EMAIL, TRANSFER_PATRON_ADDRESS, "
        "ACTION_CANCEL, ACTION_RENEW, ACTION_NOTIFICATION, RFM_REQUEST_RESPONSE, RFM_NOTIFICATION) VALUES ('" +
        id + "', '" + system + "', 'HTTPS', 'iso.example.org', '/iso', 8443, '1.2', 'BASIC', " + flags + ")");
  }
  void OpenPicker(const QString& id = {}) {
    gstrISO18626ConnectionId = id;
    Open("frmISO18626Connect");
    Statements();
  }
  void OpenMaintenance() {
    gbISO18626SelectionMode = false;
    OpenPicker();
  }
  void Fill(const QString& id) {
    Type("txtConnectionID", id);
    Choose("cmbILLSystem", "Talverne");
    Choose("cmbVersion", "ISO 18626:2021");
    Choose("cmbAuthType", "User and password");
    Choose("cmbConnectionType", "HTTPS");
    Type("txtHostAddress", "iso.example.org");
  }
  QString Stored(const QString& column, const QString& id) {
    return Ask("SELECT " + column + " FROM ID_ISO18626_CONNECT WHERE ISO18626_CONNECTION_ID = '" + id + "'");
  }
  void ExpectNoSelection() {
    EXPECT_EQ(Row(Grid1), 0);
    EXPECT_TRUE(IsEnabled("txtConnectionID"));
    EXPECT_TRUE(IsEnabled("cmdAdd"));
    for (const char* button : {"cmdUpdate", "cmdSelect", "cmdDelete"}) EXPECT_FALSE(IsEnabled(button)) << button;
  }
  void ExpectSelected(const QString& id) {
    EXPECT_EQ(Cell(Grid1, Row(Grid1), 1), id);
    EXPECT_EQ(Text("txtConnectionID"), id);
    EXPECT_FALSE(IsEnabled("txtConnectionID"));
    EXPECT_FALSE(IsEnabled("cmdAdd"));
    for (const char* button : {"cmdUpdate", "cmdSelect", "cmdDelete"}) EXPECT_TRUE(IsEnabled(button)) << button;
  }
};
