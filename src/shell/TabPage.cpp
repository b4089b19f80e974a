#include "shell/TabPage.h"

#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/Screen.h"

TabPage::TabPage(frmTabulon& shell) : shell_(shell) {}

void TabPage::ConfigureGrdTable() {
  Procedure("frmTabulon.ConfigureGrdTable", this).Run([this] { ConfigureGrid(); });
}

bool TabPage::LoadDataInGrid() {
  Procedure procedure("frmTabulon.LoadDataInGrid", this);
  const Hourglass hourglass;
  return procedure.Run([this] { LoadGrid(); });
}

int TabPage::Tell(const QString& text, int style) {
  return ::Tell(this, text, style);
}

bool TabPage::Refuse(const QString& text, int style, QWidget* focus) {
  return ::Refuse(this, text, style, focus);
}
