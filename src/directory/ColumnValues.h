#pragma once

#include <QString>
#include <QStringList>

#include "core/SqlText.h"

// Columns and their values in the order of a statement.
class ColumnValues {
 public:
  // As it stands: a number, a date literal, a word.
  ColumnValues& Bare(const QString& column, const QString& value) {
    columns_.append(column);
    values_.append(value);
    return *this;
  }
  // A national literal, also of an empty text.
  ColumnValues& Literal(const QString& column, const QString& text) { return Bare(column, Sql::National(text)); }
  // A national literal, or Null when the text is empty.
  ColumnValues& Text(const QString& column, const QString& text) { return Bare(column, Sql::NationalOr(text, "Null")); }
  // Bare with a point, or Null when the text is empty.
  ColumnValues& Number(const QString& column, const QString& text) { return Bare(column, Sql::NumberOr(text, "Null")); }
  ColumnValues& Null(std::initializer_list<const char*> columns) {
    for (const char* const column : columns) Bare(column, "Null");
    return *this;
  }

  QString Assignments() const {
    QStringList pairs;
    for (qsizetype index = 0; index < columns_.size(); ++index) pairs.append(columns_[index] + " = " + values_[index]);
    return pairs.join(", ");
  }
  QString Columns() const { return columns_.join(", "); }
  QString Values() const { return values_.join(", "); }

 private:
  QStringList columns_;
  QStringList values_;
};
