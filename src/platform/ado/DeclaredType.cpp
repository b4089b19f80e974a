#include "platform/ado/DeclaredType.h"

#include <array>

namespace {

struct TypeWord {
  QLatin1String word;  // the first word of a declared type
  int type;
  int digits;  // of a number whose declaration names no size
};

constexpr std::array typeWords{
    TypeWord{QLatin1String("int"), AdoType::Integer, 10},
    TypeWord{QLatin1String("integer"), AdoType::Integer, 10},
    TypeWord{QLatin1String("smallint"), AdoType::Integer, 5},
    TypeWord{QLatin1String("tinyint"), AdoType::Integer, 3},
    TypeWord{QLatin1String("mediumint"), AdoType::Integer, 7},
    TypeWord{QLatin1String("bigint"), AdoType::Integer, 19},
    TypeWord{QLatin1String("numeric"), AdoType::Numeric, 0},
    TypeWord{QLatin1String("decimal"), AdoType::Numeric, 0},
    TypeWord{QLatin1String("double"), AdoType::Numeric, 0},
    TypeWord{QLatin1String("real"), AdoType::Numeric, 0},
    TypeWord{QLatin1String("float"), AdoType::Numeric, 0},
    TypeWord{QLatin1String("date"), AdoType::Date, 0},
    TypeWord{QLatin1String("timestamp"), AdoType::TimeStamp, 0},
    TypeWord{QLatin1String("datetime"), AdoType::TimeStamp, 0},
    TypeWord{QLatin1String("datetime2"), AdoType::TimeStamp, 0},
    TypeWord{QLatin1String("char"), AdoType::WChar, 0},
    TypeWord{QLatin1String("nchar"), AdoType::WChar, 0},
    TypeWord{QLatin1String("character"), AdoType::WChar, 0},
};

QStringView FirstWord(QStringView text) {
  qsizetype length = 0;
  while (length < text.size() && text.at(length).isLetterOrNumber()) ++length;
  return text.first(length);
}

}  // namespace

ColumnInfo DeclaredType(const QString& declared) {
  const QString text = declared.trimmed().toLower();
  const QStringView word = FirstWord(text);
  ColumnInfo column;
  column.type = AdoType::VarWChar;
  for (const TypeWord& known : typeWords) {
    if (word != known.word) continue;
    column.type = known.type;
    column.definedSize = known.digits;
  }
  if (text.startsWith(QLatin1String("character varying"))) column.type = AdoType::VarWChar;

  const bool sizeIsDeclared =
      column.type == AdoType::Numeric || column.type == AdoType::WChar || column.type == AdoType::VarWChar;
  const qsizetype open = text.indexOf(u'(');
  const qsizetype close = text.indexOf(u')', open);
  if (sizeIsDeclared && open >= 0 && close > open) {
    const QString sizes = text.mid(open + 1, close - open - 1);
    column.definedSize = sizes.section(u',', 0, 0).trimmed().toInt();
    column.scale = sizes.section(u',', 1, 1).trimmed().toInt();
  }
  return column;
}
