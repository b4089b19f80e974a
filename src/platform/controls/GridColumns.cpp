// What a person makes of the columns of a Grid: how wide they are drawn, and which are hidden. Both are kept in the
// user's settings by form, grid and heading.
#include <QHeaderView>
#include <QMenu>
#include <QScopedValueRollback>
#include <QUrl>

#include "platform/controls/Grid.h"
#include "platform/controls/GridModel.h"
#include "platform/desktop/UserSettings.h"

namespace {
constexpr auto Widths = "Columns", Away = "HiddenColumns";
constexpr int NarrowestByHand = 16, WidestByHand = 4000;  // pixels

std::size_t At(int index) {
  return static_cast<std::size_t>(index);
}
}  // namespace

void Grid::HideCol(int col, bool hidden) {
  if (col < 0 || col >= Cols()) return;
  columns_[At(col)].hidden = hidden;
  PutColumn(col);
}

bool Grid::ColHidden(int col) const {
  return col >= 0 && col < Cols() && columns_[At(col)].hidden;
}

void Grid::TakeAway(int col, bool away) {
  columns_[At(col)].away = away;
  PutColumn(col);
}

void Grid::PutColumn(int col) {
  const Column& column = columns_[At(col)];
  if (isColumnHidden(col) == (column.hidden || column.away)) return;
  {
    // What a column shrinks to and comes back from is no width that somebody gave it.
    const QScopedValueRollback stretching(stretching_, true);
    setColumnHidden(col, column.hidden || column.away);
  }
  if (!filter_.isEmpty()) SetFilter(filter_);
  ShareRoom();
}

// Empty where nothing can be kept: the marker, a column without a heading, a grid that stands in no window yet.
QString Grid::SettingsKey(const char* group, int col) const {
  const QString form = window()->objectName(), heading = model_->Heading(col);
  if (col == 0 || form.isEmpty() || heading.isEmpty() || window() == this) return {};
  // A heading may hold the mark that divides the parts of a key.
  return QStringLiteral("%1/%2/%3/").arg(QLatin1String(group), form, objectName()) +
         QString::fromLatin1(QUrl::toPercentEncoding(heading));
}

void Grid::RecallColumn(int col) {
  const QString key = SettingsKey(Widths, col);
  if (key.isEmpty()) return;
  const UserSettings settings;
  TakeAway(col, settings.value(SettingsKey(Away, col)).toBool());
  const int width = settings.value(key).toInt();
  if (width <= 0) return;
  columns_[At(col)].pixels = std::clamp(width, NarrowestByHand, WidestByHand);
  columns_[At(col)].drawn = true;
}

void Grid::RememberWidths() {
  for (int col = 1; col < Cols(); ++col) {
    if (!std::exchange(columns_[At(col)].byHand, false)) continue;
    if (const QString key = SettingsKey(Widths, col); !key.isEmpty())
      UserSettings().setValue(key, columns_[At(col)].pixels);
  }
}

// Columns that the screen shows and that have a heading. One always stays, and so does what is edited in the grid.
void Grid::AddColumnChoices(QMenu& menu) {
  for (int col = 1; col < Cols(); ++col) {
    const QString key = SettingsKey(Away, col);
    if (columns_[At(col)].hidden || key.isEmpty()) continue;
    QAction* const choice = menu.addAction(model_->Heading(col).replace(u'&', QLatin1String("&&")));
    choice->setCheckable(true);
    choice->setChecked(!columns_[At(col)].away);
    choice->setEnabled(columns_[At(col)].away || (VisibleCols().size() > 1 && !model_->IsEditable(col)));
    connect(choice, &QAction::toggled, this, [this, col, key](bool shown) {
      TakeAway(col, !shown);
      if (shown)
        UserSettings().remove(key);
      else
        UserSettings().setValue(key, true);
    });
  }
  menu.addSeparator();
  QAction* const all = menu.addAction(tr("&All columns"), this, [this] {
    for (int col = 1; col < Cols(); ++col) {
      if (!columns_[At(col)].away) continue;
      TakeAway(col, false);
      UserSettings().remove(SettingsKey(Away, col));
    }
  });
  all->setEnabled(std::any_of(columns_.begin(), columns_.end(), [](const Column& column) { return column.away; }));
}
