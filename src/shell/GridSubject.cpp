#include "shell/GridSubject.h"

#include <QVariant>
#include <algorithm>

#include "platform/ado/SqlTokens.h"
#include "platform/ado/StatementWords.h"
#include "platform/controls/Grid.h"
#include "schema/TableContent.h"

namespace {

constexpr const char* TableProperty = "subjectTable";
constexpr const char* FieldsProperty = "subjectFields";     // by grid column, from 1 on
constexpr const char* FixedProperty = "subjectConditions";  // column to value

// What "COLUMN = value" in the statement tells of all its rows. Joined tables may have columns of one name: only those
// of a statement on one table count.
QVariantMap Conditions(const QString& select) {
  QVariantMap conditions;
  const std::vector<SqlToken> tokens = Tokenize(select);
  for (size_t i = 0; i < tokens.size(); ++i) {
    if (tokens[i].kind != SqlToken::Symbol || tokens[i].text != u"=" || i == 0) continue;
    size_t before = i - 1;
    while (before > 0 && tokens[before].kind == SqlToken::Blank) --before;
    const size_t behind = StatementWords::NextOf(tokens, i);
    if (behind >= tokens.size() || tokens[before].kind != SqlToken::Word) continue;
    const SqlToken& value = tokens[behind];
    QString text = value.text;
    if (value.kind == SqlToken::NationalLiteral) text.remove(0, 1);
    if (value.kind == SqlToken::NationalLiteral || value.kind == SqlToken::Literal)
      text = text.mid(1, text.size() - 2).replace("''", "'");
    else if (value.kind != SqlToken::Number)
      continue;
    conditions[tokens[before].text.toUpper()] = text;
  }
  return conditions;
}

}  // namespace

void GridSubject::Set(Grid& grid, const QString& select, const std::vector<QString>& fields) {
  const QStringList tables = StatementWords::TablesOfSelect(select);
  const SchemaTable* const table = tables.isEmpty() ? nullptr : SchemaModel::Get().Find(tables.front());
  grid.setProperty(TableProperty, table ? table->name : QString());
  grid.setProperty(FieldsProperty, QStringList(fields.begin(), fields.end()));
  grid.setProperty(FixedProperty, tables.size() == 1 ? Conditions(select) : QVariantMap());
}

QString GridSubject::Table(const Grid& grid) {
  return grid.property(TableProperty).toString();
}

std::optional<std::vector<std::optional<QString>>> GridSubject::Key(const Grid& grid, int row) {
  const SchemaTable* const table = SchemaModel::Get().Find(Table(grid));
  const std::optional<QStringList> names = table ? Content::RowKey(*table) : std::nullopt;
  if (!names || row < 1 || row >= grid.Rows()) return std::nullopt;
  const QStringList fields = grid.property(FieldsProperty).toStringList();
  const QVariantMap fixed = grid.property(FixedProperty).toMap();
  std::vector<std::optional<QString>> key;
  for (const QString& name : *names) {
    const qsizetype field = fields.indexOf(name);
    if (field < 0 && !fixed.contains(name)) return std::nullopt;
    const QString value = field < 0 ? fixed[name].toString() : grid.Text(row, static_cast<int>(field) + 1);
    const bool null = value.isEmpty() && !table->Find(name)->required;
    key.push_back(null ? std::nullopt : std::optional(value));
  }
  return key;
}
