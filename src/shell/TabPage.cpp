#include "shell/TabPage.h"

#include "platform/controls/Grid.h"
#include "shell/GridTable.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/Screen.h"

TabPage::TabPage(frmTabulon& shell) : shell_(shell) {}

Grid* TabPage::CurrentGrid() const {
  const GridLayout* const layout = FindGridLayout(GridKey());
  return layout ? findChild<Grid*>(layout->grid) : nullptr;
}

void TabPage::ConfigureGrid() {
  const GridLayout* const layout = FindGridLayout(GridKey());
  if (!layout) return;
  if (Grid* const grid = CurrentGrid()) ShapeGrid(*grid, *layout);
}

void TabPage::LoadGrid() {
  const GridRows* const rows = FindGridRows(GridKey());
  if (!rows) return;
  if (Grid* const grid = CurrentGrid()) FillGrid(*grid, *rows);
}

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
