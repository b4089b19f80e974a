#pragma once

#include <QString>

#include "directory/RequestData.h"

// The library on whose behalf a request is placed, and the writing of the request: one row each of ID_REQUEST,
// ID_DELIVERY and ID_QUEUE, and its keywords.
class clsAddRequest {
 public:
  bool RetainLibrary = false, CmdOkCliked = false;
  QString MsgAddress, ClientMsgMethodDescription, DeliveryService, RemoteServer, MsgEmail, MsgFax, FTP, Ariel;
  QString DeliveryEmail, DeliveryFax, MsgMethod, ClientMsgMethod, FileFormat, ClientdocView;
  QString AdditionalReqInfo, ClientDeliverymethodDescription, ClientDeliveryMethodAddress, ClientDeliveryMethod;
  QString ClientFaxNumber, ClientEmailAddress, ClientArielAddress, ClientZipPostalCode, ClientCountry;
  QString ClientStateProvince, ClientCity, ClientStreet2, ClientStreet1, ClientContact, ClientLibraryName;
  QString ClientInstitution, ClientOdysseyAddress;

  // The trimmed text, cut to its leftmost `limit` characters.
  static void EnforceFieldLength(const QString& text, int limit, QString& result);

  // Writes the request of gclsRequestInfo for the current library. False when no number could be had or the database
  // refused; then nothing is written and the reason is in the log. A failure of the keywords is told and leaves the
  // request in place.
  bool UpdateOstanaTables();
};
