#include "shell/frmLogon.h"

#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>

#include "core/Logon.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/controls/ElidedLabel.h"
#include "platform/controls/FormLayout.h"
#include "shell/Help.h"
#include "shell/Screen.h"
#include "shell/SiteStrip.h"

namespace {

const QString LastUser = QStringLiteral("Logon/LastUser");

QSettings AccountSettings() {
  return QSettings(QSettings::IniFormat, QSettings::UserScope, "Ostana", "Tabulon");
}

}  // namespace

bool AskForLogon(QString& user, QString& password) {
  if (gLogonDialog) return gLogonDialog(user, password);
  frmLogon dialog;
  const NoHourglass pointer;
  if (dialog.exec() != QDialog::Accepted) return false;
  user = dialog.User();
  password = dialog.Password();
  return true;
}

frmLogon::frmLogon(QWidget* parent) : QDialog(parent) {
  setObjectName("frmLogon");
  setWindowTitle("Ostana - Logon");
  BuildControls();
  txtUser->SetText(AccountSettings().value(LastUser).toString());
  (txtUser->Trimmed().isEmpty() ? txtUser : txtPassword)->setFocus();
  EnableOK();
  Help::OpenByF1(*this, [this] { return objectName(); });
}

void frmLogon::BuildControls() {
  txtPassword->setEchoMode(QLineEdit::Password);
  cmdOK = Form::Button(this, "cmdOK", "OK");
  cmdOK->setDefault(true);
  cmdCancel = Form::Button(this, "cmdCancel", "Cancel");

  auto* const fields = new QWidget(this);
  Form::Rows rows(fields);
  rows.Add("lblUser", "&User:", txtUser);
  rows.Add("lblPassword", "&Password:", txtPassword);
  // Both as wide as most entries need; a longer password scrolls.
  for (TextBox* field : {txtUser, txtPassword}) field->setFixedWidth(Form::FieldWidth(field, 30));
  // A test site and the real one have databases of the same name. Where the file comes from is what tells them apart.
  auto* const lblSite = new ElidedLabel(this);
  lblSite->setObjectName("lblSitePath");
  lblSite->setText("Site: " + gclsOF->ApplicationPath());
  auto* const column = Form::Column(this, {lblSite, fields});
  if (SiteStrip::IsSet()) column->insertWidget(0, new SiteStrip(this));
  auto* const database = new ElidedLabel(this);
  database->setObjectName("lblDatabase");
  if (!gclsOF->DatabaseName().isEmpty()) database->setText("Database: " + gclsOF->DatabaseName());
  column->addWidget(database);
  column->addLayout(Form::ButtonRow({nullptr, cmdOK, cmdCancel}));

  connect(txtUser, &TextBox::Change, this, &frmLogon::EnableOK);
  connect(cmdOK, &QPushButton::clicked, this, &frmLogon::accept);
  connect(cmdCancel, &QPushButton::clicked, this, &frmLogon::reject);
}

void frmLogon::EnableOK() {
  cmdOK->setEnabled(!txtUser->Trimmed().isEmpty());
}

void frmLogon::accept() {
  QSettings settings = AccountSettings();
  settings.setValue(LastUser, User());
  QDialog::accept();
}
