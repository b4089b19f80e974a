#include "shell/TabPage.h"

#include "platform/controls/Grid.h"
#include "shell/GridTable.h"
#include "shell/Messages.h"
#include "shell/frmTabulon.h"

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

int TabPage::Tell(const QString& text, int style) {
  return ShowMessage(text, style, shell_.Caption(), {}, &shell_);
}

bool TabPage::Refuse(const QString& text, int style, QWidget* focus) {
  Tell(text, style);
  if (focus) focus->setFocus();
  return false;
}
