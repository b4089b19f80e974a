#include "about/frmAboutApp.h"

#include <QApplication>

#include "about/Manifest.h"
#include "shell/Procedure.h"

frmAboutApp::frmAboutApp(QWidget* parent) : Screen("frmAboutApp", "About Tabulon", parent) {
  for (TextBox* box : {txtTitle, txtVersion, txtLegalCopyright}) {
    box->setReadOnly(true);
    box->setFrame(false);
  }
  txtTitle->setAccessibleName("Title");
  txtVersion->setAccessibleName("Version");
  txtLegalCopyright->setAccessibleName("Rights");
  txtComments->setAccessibleName("Comments");
  txtComments->setReadOnly(true);
  QVBoxLayout* const column = Form::Column(this, {txtTitle, txtVersion, txtLegalCopyright});
  column->addWidget(txtComments, 1);
  column->addLayout(Form::ButtonRow({nullptr, cmdOK}));
  resize(480, 300);
  connect(cmdOK, &QPushButton::clicked, this, [this] { Unload(); });
}

void frmAboutApp::Form_Load() {
  Procedure procedure("frmAboutApp.Form_Load");
  SetCaption("About " + QApplication::applicationName());
  txtTitle->SetText("  " + QApplication::applicationName());
  txtVersion->SetText("  " + QApplication::applicationVersion());
  procedure.Step([this] { txtLegalCopyright->SetText(Manifest::RightsLine()); });
  txtComments->SetText(
      "Maintains the system tables of Ostana, the interlibrary loan and document delivery system: code tables, "
      "delivery and messaging methods, rates, exceptions, loan policies, notices, the directory of libraries and the "
      "connections to other systems.");
}
