#include "shell/FirstField.h"

#include "platform/controls/CodeComboBox.h"
#include "platform/controls/Grid.h"
#include "platform/controls/MemoBox.h"
#include "platform/controls/TextBox.h"

namespace {

bool TakesText(const QWidget* widget) {
  const auto* const box = qobject_cast<const TextBox*>(widget);
  const auto* const memo = qobject_cast<const MemoBox*>(widget);
  return (box != nullptr && !box->isReadOnly()) || (memo != nullptr && !memo->isReadOnly());
}

}  // namespace

void GoToFirstField(const Grid& grid) {
  QWidget* const page = grid.parentWidget();
  QWidget* other = nullptr;
  for (QWidget* at = page->nextInFocusChain(); at != page; at = at->nextInFocusChain()) {
    const bool isField = page->isAncestorOf(at) && !grid.isAncestorOf(at) && at->isVisible() && at->isEnabled();
    if (!isField) continue;
    if (other == nullptr && qobject_cast<CodeComboBox*>(at) != nullptr) other = at;
    if (!TakesText(at)) continue;
    at->setFocus(Qt::TabFocusReason);
    return;
  }
  if (other != nullptr) other->setFocus(Qt::TabFocusReason);
}

void LeadFromListsToFields(const QWidget& window) {
  for (Grid* grid : window.findChildren<Grid*>())
    if (!grid->HasRowEntered()) QObject::connect(grid, &Grid::RowEntered, grid, [grid] { GoToFirstField(*grid); });
}
