#include "interop/ISO18626Record.h"

#include "core/SqlText.h"

namespace {

QString Flag(bool set) {
  return set ? "N'Y'" : "N'N'";
}

}  // namespace

QString ISO18626Record::Insert() const {
  const bool patron = transfer && patronInfo;
  return "INSERT INTO " + Sql::Table("ID_ISO18626_CONNECT") +
         " (ISO18626_CONNECTION_ID, ILL_SYSTEM, ISO18626_CONNECT_TYPE, ISO18626_HOST_ADDRESS, ISO18626_HOST_URL, "
         "ISO18626_HOST_PORT, ISO18626_VERSION, ISO18626_AUTHN_TYPE, RT_RETRY, RST_TRANSFER_REQUEST, "
         "TRANSFER_PATRON_INFO, TRANSFER_PATRON_EMAIL, TRANSFER_PATRON_ADDRESS, ACTION_CANCEL, ACTION_RENEW, "
         "ACTION_NOTIFICATION, RFM_REQUEST_RESPONSE, RFM_NOTIFICATION) VALUES (" +
         Sql::National(id) + ", " + Sql::National(illSystem) + ", " + Sql::National(connectType) + ", " +
         Sql::National(hostAddress) + ", " + Sql::NationalOr(hostUrl, "Null") + ", " + hostPort + ", " +
         Sql::National(version) + ", " + Sql::National(authnType) + ", " + Flag(retry) + ", " + Flag(transfer) + ", " +
         (patron ? "N'Y', " + Flag(patronEmail) + ", " + Flag(patronAddress) : QString("N'N', N'N', N'N'")) + ", " +
         Flag(cancel) + ", " + Flag(renew) + ", " + Flag(notification) + ", " + Flag(requestResponse) + ", " +
         Flag(reasonNotification) + ")";
}

// Three columns stand before their "=" without a blank.
QString ISO18626Record::Update() const {
  const QString patron =
      transfer && patronInfo
          ? ", TRANSFER_PATRON_INFO = N'Y', TRANSFER_PATRON_EMAIL= " + Flag(patronEmail) +
                ", TRANSFER_PATRON_ADDRESS= " + Flag(patronAddress)
          : QString(", TRANSFER_PATRON_INFO = N'N', TRANSFER_PATRON_EMAIL= N'N', TRANSFER_PATRON_ADDRESS= N'N'");
  return "UPDATE " + Sql::Table("ID_ISO18626_CONNECT") + " SET ISO18626_CONNECTION_ID= " + Sql::National(id) +
         ", ILL_SYSTEM = " + Sql::National(illSystem) + ", ISO18626_CONNECT_TYPE = " + Sql::National(connectType) +
         ", ISO18626_HOST_ADDRESS = " + Sql::National(hostAddress) +
         ", ISO18626_HOST_URL = " + Sql::NationalOr(hostUrl, "Null") + ", ISO18626_HOST_PORT = " + hostPort +
         ", ISO18626_VERSION = " + Sql::National(version) + ", ISO18626_AUTHN_TYPE = " + Sql::National(authnType) +
         ", RT_RETRY = " + Flag(retry) + ", RST_TRANSFER_REQUEST = " + Flag(transfer) + patron +
         ", ACTION_CANCEL = " + Flag(cancel) + ", ACTION_RENEW = " + Flag(renew) +
         ", ACTION_NOTIFICATION = " + Flag(notification) + ", RFM_REQUEST_RESPONSE = " + Flag(requestResponse) +
         ", RFM_NOTIFICATION = " + Flag(reasonNotification) + " WHERE ISO18626_CONNECTION_ID = " + Sql::National(id);
}
