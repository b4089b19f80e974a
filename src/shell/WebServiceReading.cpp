#include "shell/WebServiceReading.h"

#include <QFileInfo>
#include <array>
#include <cmath>

#include "core/ModuleState.h"
#include "core/Numbers.h"
#include "core/OstanaFunctions.h"
#include "core/ProcessEnd.h"
#include "shell/Messages.h"

namespace {

const QString Service = QStringLiteral("BL Web Services");
const QString UpdateFile = QStringLiteral("Create Update File");
constexpr int MostSkipped = 50;
constexpr double DefaultFee = 300, SmallestFee = 0.01;

struct ServiceKey {
  const char* name;
  bool required;
};

// In the order in which the log lists the gaps. "ServerAddress" stands before them, with a message of its own.
constexpr std::array<ServiceKey, 15> ServiceKeys{{{"ServerPort", false},
                                                  {"HTTPVersion", false},
                                                  {"AssignCopyrightService", true},
                                                  {"FindSerialMethod_SoapAction", true},
                                                  {"FindSerialMethod_BarcodeParameter", true},
                                                  {"FindSerialMethod_ShelfmarkParameter", true},
                                                  {"RegisterMethod_SoapAction", true},
                                                  {"RegisterMethod_BarcodeParameter", true},
                                                  {"RegisterMethod_DetailParameter", true},
                                                  {"RegisterMethod_ItemParameter", true},
                                                  {"ConfirmMethod_SoapAction", true},
                                                  {"DebitService", true},
                                                  {"DebitAccountMethod_SoapAction", true},
                                                  {"RepliesService", true},
                                                  {"AddReplyMethod_SoapAction", true}}};

bool FatalExit(const QString& text) {
  ShowMessage(text, MessageStyle::Stop);
  EndProcess(1);
  return false;
}

void LogGap(const QString& key) {
  gclsOF->WriteLog("The Web Service '" + key + "' setting has not been configured.", {}, "L");
}

QString Read(const QString& file, const QString& section, const QString& key) {
  return gclsOF->ReadProfileString(section, key, file);
}

// As a currency amount, which has four decimals.
double ReadFee(const QString& file) {
  const double fee = std::round(Numbers::Val(Read(file, Service, "MaximumCopyrightFee")) * 10000) / 10000;
  return fee < SmallestFee ? DefaultFee : fee;
}

// False when a required key is empty; all of them are read, so that the log names every gap at once.
bool ReadServiceKeys(const QString& file) {
  bool complete = true;
  for (const ServiceKey& key : ServiceKeys) {
    const QString value = Read(file, Service, key.name);
    gWebService.texts[key.name] = value;
    if (!key.required || !value.isEmpty()) continue;
    LogGap(key.name);
    complete = false;
  }
  gWebService.maximumCopyrightFee = ReadFee(file);
  const QString delivered = Read(file, Service, "DeliveredCode");
  gWebService.deliveredCode = delivered.isEmpty() ? QStringLiteral("DEL") : delivered;
  return complete;
}

QString ReadSkipped(const QString& file, const QString& prefix) {
  QString list = QStringLiteral("~");
  for (int number = 1; number <= MostSkipped; ++number) {
    const QString value = Read(file, UpdateFile, prefix + QString::number(number));
    if (value.isEmpty()) break;
    list += value + '~';
  }
  return list;
}

void ReadUpdateFileKeys(const QString& file) {
  gWebService.gbSkipIFM = Read(file, UpdateFile, "SkipIFM") != "N";
  gWebService.skipRequestTypes = ReadSkipped(file, "SkipRequestType_");
  gWebService.skipCustomerCodes = ReadSkipped(file, "SkipCustomerCode_");
}

}  // namespace

bool ReadWebServiceSettings() {
  const QString file = gclsOF->SystemFile("Ostana.ini");
  if (!QFileInfo(file).isFile()) {
    const QString message = "Error accessing the 'Ostana.ini' file in '" + gclsOF->ApplicationPath() +
                            "'.\n\nMake sure the 'Ostana.ini' file is in the application directory and try again.";
    gclsOF->WriteLog(message, {}, "C");
    return FatalExit("Terminating Application: " + message);
  }
  gbUseWebService = false;
  gstrWebServiceName = "BL";
  gWebService = WebServiceSettings();
  if (Read(file, Service, "Use") != "Y") return true;

  gbUseWebService = true;
  gWebService.texts["ServerAddress"] = Read(file, Service, "ServerAddress");
  if (gWebService.texts["ServerAddress"].isEmpty()) {
    LogGap("ServerAddress");
    return FatalExit("The BL Web Service settings have not been configured.  See the application log for details.");
  }
  const bool complete = ReadServiceKeys(file);
  ReadUpdateFileKeys(file);
  if (complete) return true;
  return FatalExit(
      "One or more [BL Web Service] settings have not been configured.  See the application log for details.");
}
