// Start-up of the main screen: from the quoted command line to the first tab.
#include "core/Clock.h"
#include "core/CommandLine.h"
#include "core/Languages.h"
#include "core/LogFiles.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/ProcessEnd.h"
#include "shell/Messages.h"
#include "shell/NumericFields.h"
#include "shell/Procedure.h"
#include "shell/Screens.h"
#include "shell/WebServiceReading.h"
#include "shell/frmTabulon.h"

#include <QCoreApplication>
#include <QSysInfo>
#include <QTabWidget>
#include <optional>

namespace {

const QString FailureTitle = "Ostana - System Maintenance";
const QString ClassFailed = "Failed to Load the Application Class Settings.  Terminating.....";

QString TrueOrFalse(bool value) {
  return value ? "True" : "False";
}

// Whoever tries passwords has to wait for each answer.
constexpr std::chrono::seconds RefusalTakes{2};

// Who logged on from where, for those who look into it later.
QString WhoAndWhere(const QString& user) {
  return QString("user '%1', machine '%2', process %3")
      .arg(user, QSysInfo::machineHostName())
      .arg(QCoreApplication::applicationPid());
}

// An underscore at the start or a length of four lets a working language pass.
bool LanguagePasses(const QString& language) {
  return language.startsWith(QLatin1Char('_')) || language.size() == 4;
}

}  // namespace

void frmTabulon::Form_Initialize() {
  SetDecimalSeparator();
  Form_Load();
  // The first touch of the tab control has loaded the form; the first tab is set up afterwards.
  if (Tab() == CodeTablesTab)
    sstabtables_Click(CodeTablesTab);
  else
    SetTab(CodeTablesTab);
  ShowStatus();
}

void frmTabulon::Form_Load() {
  Procedure procedure("frmTabulon.Form_Load");
  mbFormLoaded = false;
  std::optional<Hourglass> hourglass(std::in_place);
  ID_DecodeAppArguments(commandLine_, arguments_);
  QString language = arguments_[5];
  if (!LanguagePasses(language)) language.clear();
  ID_WriteStartupLogEntry("Tabulon", arguments_[1]);
  if (!LoadSettings()) return;
  if (!language.isEmpty()) gclsOF->SetLanguageSuffix(language);
  if (!Logon(procedure)) return;
  bool second = false;
  procedure.Step([&] { second = RefuseSecondCopy(); });
  if (second) return;
  if (arguments_[2].isEmpty()) procedure.Step([] { ShowModal("frmSplash"); });
  gclsOF->SetApplicationCode("3");
  NameTabs();
  hourglass.reset();
  procedure.Step([this] { FinishLoad(); });
}

bool frmTabulon::LoadSettings() {
  bool loaded = false;
  const std::optional<AdoError> unusable = Procedure::Try(
      [&] { loaded = gclsOF->LoadApplicationSettings("Tabulon", arguments_[1], arguments_[2], arguments_[3]); });
  if (unusable) {
    // The one path that logs without the common services.
    QString qualifier;
    ID_WriteClassFailedLog(
        ClassFailed,
        "Error: " + unusable->NumberText() + "  " + unusable->Description() + " Source: " + unusable->Source(), "L",
        qualifier);
    ShowMessage(ClassFailed + "\n\nPlease check the application log file for more details.", MessageStyle::Stop,
                Caption());
  } else if (!loaded) {
    const QString reason = gclsOF->LastError();
    if (!reason.isEmpty()) {
      gclsOF->WriteLog(reason, "Terminating.....", "C");
      ShowMessage(reason + "  Terminating.....", MessageStyle::Stop, FailureTitle);
    } else {
      gclsOF->WriteLog("Failed to Load the Application Settings.", "Terminating.....", "C");
      ShowMessage("Error: Failed to Load the Application Class Settings.  Terminating.....", MessageStyle::Stop,
                  FailureTitle);
    }
  }
  if (!loaded) EndProcess(1);
  return loaded;
}

bool frmTabulon::Logon(Procedure& procedure) {
  bool valid = false;
  procedure.Step(
      [&] { valid = gclsOF->ID_ValidateLogin(gclsOF->UserId(), gclsOF->UserPassword(), gclsOF->ApplicationName()); });
  const QString who = WhoAndWhere(gclsOF->UserId());
  if (valid) {
    gclsOF->WriteLog("Logon: " + who, {}, "L");
    return true;
  }
  gclsOF->WriteLog("Logon refused: " + who, gclsOF->LastError(), "L");
  Clock::Pause(RefusalTakes);
  if (gclsOF->Tracing()) gclsOF->WriteLog("gclsOF.ID_ValidateLogin: Not valid. ", {}, "L");
  ShowMessage(gclsOF->LastError(), MessageStyle::Stop, Caption());
  EndProcess(1);
  return false;
}

bool frmTabulon::RefuseSecondCopy() {
  const bool single = gclsOF->SingleInstance();
  const bool earlierCopy = gclsOF->CheckPreviousInstance(false);
  if (!single || !earlierCopy) return false;
  gclsOF->WriteLog("The application is already running.", "Terminating second instance.....", "C");
  return true;
}

void frmTabulon::NameTabs() {
  const QStringList captions = {"Code Tables",  "Cover Pages",        "Departments", "Printers",
                                "Auto Rejects", "Delivery/Messaging", "Loans",       "Invoicing",
                                "Exceptions",   "Request Type",       "Audit Codes", "Miscellaneous"};
  for (int index = 0; index < TabCount; ++index) sstabtables_->setTabText(index, captions[index]);
}

void frmTabulon::FinishLoad() {
  rights_ = gclsOF->Rights();
  if (gclsOF->Tracing())
    gclsOF->WriteLog("ADD: " + TrueOrFalse(rights_.add) + " , Update: " + TrueOrFalse(rights_.update) +
                         " , Delete: " + TrueOrFalse(rights_.remove),
                     {}, "L");
  buttonState();
  if (rights_.add || rights_.update || rights_.remove) {
    if (gstrWebServiceName.isEmpty() && !ReadWebServiceSettings()) return;
    if (!gclsOF->SingleLanguage()) LoadLanguageCodes({});
  }
  mbFormLoaded = true;
}

void frmTabulon::Form_Activate() {
  if (gbSkipActivate) {
    gbSkipActivate = false;
    return;
  }
  if (!mbFormLoaded) {
    gclsOF->WriteLog("Form_Activate - Logon Failed", {}, "C");
    EndProcess(1);
    return;
  }
  if (gclsOF->Tracing()) gclsOF->WriteLog("Form_Activate - Logon Worked", {}, "L");
}
