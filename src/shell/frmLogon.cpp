#include "shell/frmLogon.h"

#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>

#include "core/Logon.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/controls/FormLayout.h"
#include "shell/Help.h"

namespace {

const QString LastUser = QStringLiteral("Logon/LastUser");

QSettings AccountSettings() {
  return QSettings(QSettings::IniFormat, QSettings::UserScope, "Ostana", "Tabulon");
}

}  // namespace

bool AskForLogon(QString& user, QString& password) {
  if (gLogonDialog) return gLogonDialog(user, password);
  frmLogon dialog;
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
  auto* const lblSite = new QLabel("Site: " + gclsOF->ApplicationPath(), this);
  lblSite->setObjectName("lblSite");
  lblSite->setTextFormat(Qt::PlainText);
  auto* const column = Form::Column(this, {lblSite, fields});
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
