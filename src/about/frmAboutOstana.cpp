#include "about/frmAboutOstana.h"

#include <QFileInfo>
#include <QProcess>

#include "about/Manifest.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/desktop/Registry.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

frmAboutOstana::frmAboutOstana(QWidget* parent) : Screen("frmAboutOstana", "About Ostana", parent) {
  BuildControls();
  connect(cmdOtherInfo, &QPushButton::clicked, this, &frmAboutOstana::cmdOtherInfo_Click);
  connect(cmdSysInfo, &QPushButton::clicked, this,
          [this] { Procedure("frmAboutOstana.cmdSysInfo_Click", this).Run([this] { StartSysInfo(); }); });
  connect(cmdOK, &QPushButton::clicked, this, [this] { Unload(); });
}

void frmAboutOstana::BuildControls() {
  auto* const title = Form::Label(this, "lblTitle", "Ostana");
  QFont large = title->font();
  large.setPointSizeF(large.pointSizeF() * 2);
  large.setBold(true);
  title->setFont(large);
  lblDisclaimer->setText(
      "This program is protected by law. Copying or passing on this program, or any part of it, without permission is "
      "not allowed.");
  lblDisclaimer->setWordWrap(true);
  txtMoreInfo->setAccessibleName("More information");
  txtMoreInfo->setReadOnly(true);
  txtMoreInfo->hide();

  auto* const table = new QWidget(this);
  Form::Rows rows(table);
  rows.Add(lblVersion, lblVersionValue);
  rows.Add(lblEdition, lblEditionValue);
  QVBoxLayout* const column = Form::Column(
      this, {title, lblContact, lblInstitution, table, lblSupport, lblCopyright, lblDisclaimer, txtMoreInfo});
  column->addStretch();
  column->addLayout(Form::ButtonRow({cmdOtherInfo, cmdSysInfo, nullptr, cmdOK}));
  resize(520, 360);
}

void frmAboutOstana::Form_Load() {
  Procedure procedure("frmAboutOstana.Form_Load");
  procedure.Step([this] {
    lblContact->setText(gclsOF->ContactName());
    lblInstitution->setText(gclsOF->InstitutionName());
    const QString version = Manifest::Value("Vendor-Version");
    lblVersionValue->setText(version);
    lblVersion->setVisible(!version.isEmpty());
    lblVersionValue->setVisible(!version.isEmpty());
    const QString edition = Manifest::Value("Package-Name");
    lblEditionValue->setText(edition);
    lblEdition->setVisible(!edition.isEmpty());
    lblEditionValue->setVisible(!edition.isEmpty());
    const QString email = Manifest::Value("Support-Email");
    const QString phone = email.isEmpty() ? QString() : Manifest::Value("Support-Phone");
    if (!phone.isEmpty()) lblSupport->setText("E-Mail: " + email + "   Phone: " + phone);
    lblCopyright->setText(Manifest::RightsLine());
  });
  procedure.Step([this] {
    if (lblVersionValue->text().isEmpty()) return;
    const QString key = Manifest::VendorKey(lblVersionValue->text());
    QString edition, version;
    Registry::GetKeyValue(Registry::Root::LocalMachine, key, "Edition", edition);
    Registry::GetKeyValue(Registry::Root::LocalMachine, key, "Version", version);
    if (!edition.isEmpty()) lblEditionValue->setText(edition);
    if (!version.isEmpty()) lblVersionValue->setText(version);
  });
}

void frmAboutOstana::cmdOtherInfo_Click() {
  const bool show = txtMoreInfo->isHidden();
  if (show && txtMoreInfo->Text().isEmpty())
    txtMoreInfo->SetText(
        "Images of delivered pages are read and written with imaging library components that are "
        "licensed from their makers. Their rights remain with them.");
  txtMoreInfo->setVisible(show);
  cmdOtherInfo->setText(show ? "&Less Info." : "&More Info.");
}

void frmAboutOstana::StartSysInfo() {
  QString path;
  bool found =
      Registry::GetKeyValue(Registry::Root::LocalMachine, "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH", path);
  if (!found && Registry::GetKeyValue(Registry::Root::LocalMachine, "SOFTWARE\\Microsoft\\Shared Tools Location",
                                      "MSINFO", path)) {
    path += "\\MSINFO32.EXE";
    found = QFileInfo::exists(path);
  }
  if (!found || !QProcess::startDetached(path, {}))
    ShowMessage("System Information Is Unavailable At This Time", MessageStyle::Warning, Caption(), {}, this);
}
