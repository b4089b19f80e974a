#pragma once

#include <QMap>
#include <QString>

// The settings of the document supply web services, sections "BL Web Services" and "Create Update File" of the
// settings file, kept for the run. This program itself uses only `gbUseWebService`.
inline bool gbUseWebService = false;
inline QString gstrWebServiceName;  // empty until the settings were read, then "BL"

struct WebServiceSettings {
  QMap<QString, QString> texts;      // by key of section "BL Web Services"
  double maximumCopyrightFee = 300;  // currency amount
  QString deliveredCode = "DEL";
  bool gbSkipIFM = true;
  QString skipRequestTypes = "~";  // "~REG~ILL~": every value between two tildes
  QString skipCustomerCodes = "~";
};
inline WebServiceSettings gWebService;
