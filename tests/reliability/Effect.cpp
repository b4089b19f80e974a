#include "reliability/Effect.h"

namespace {

QStringList Values(const QList<RowCells>& rows, const QString& column) {
  QStringList values;
  for (const RowCells& row : rows) values += row[column].isNull() ? QString("\x1f") : row[column];
  values.sort();
  return values;
}

}  // namespace

Effect EffectOf(const DatabaseContents& before, const DatabaseContents& after) {
  Effect effect;
  for (auto table = before.begin(); table != before.end(); ++table) {
    const QList<RowCells> gone = table.value().Without(after[table.key()]);
    const QList<RowCells> come = after[table.key()].Without(table.value());
    if (gone.isEmpty() && come.isEmpty()) continue;
    TableEffect& change = effect[table.key()];
    change.gone = int(gone.size());
    change.come = int(come.size());
    if (gone.isEmpty() || come.isEmpty()) continue;
    for (const QString& column : gone.front().keys())
      if (Values(gone, column) != Values(come, column)) change.columns.insert(column);
  }
  return effect;
}

QString Told(const Effect& effect) {
  QStringList tables;
  for (auto table = effect.begin(); table != effect.end(); ++table) {
    QStringList columns = table->columns.values();
    columns.sort();
    tables += QString("%1 -%2 +%3 %4").arg(table.key()).arg(table->gone).arg(table->come).arg(columns.join(','));
  }
  return tables.isEmpty() ? "nothing" : tables.join("; ");
}
