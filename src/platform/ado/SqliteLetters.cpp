#include "platform/ado/SqliteLetters.h"

#include <sqlite3.h>

#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlQuery>
#include <QVariant>
#include <string>
#include <vector>

namespace SqliteLetters {

namespace {

constexpr char32_t SharpS = 0xDF;
constexpr char32_t CapitalDottedI = 0x130;  // its small form is two letters, or "i" alone

// One letter of a pattern.
struct Sign {
  enum Kind { Letter, One, Any };
  Kind kind;
  char32_t letter;
};

// Letter by letter, as UPPER(LOWER(...)) is on the other engines: small first, so that letters with two small forms or
// two capital ones meet.
char32_t Folded(char32_t letter) {
  if (letter < 0x80) return letter >= U'a' && letter <= U'z' ? letter - 32 : letter;
  return letter == CapitalDottedI ? U'I' : QChar::toUpper(QChar::toLower(letter));
}

template <class Append>
void Fold(char32_t letter, Append append) {
  const char32_t folded = Folded(letter);
  if (folded != SharpS) return append(folded);
  append(U'S');
  append(U'S');
}

// Half of a pair stands for itself.
template <class Visit>
void ForEachLetter(const QString& text, Visit visit) {
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar c = text.at(i);
    const bool pair = c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
    visit(pair ? QChar::surrogateToUcs4(c, text.at(i + 1)) : char32_t(c.unicode()));
    if (pair) ++i;
  }
}

std::u32string FoldedText(const QString& text) {
  std::u32string folded;
  folded.reserve(size_t(text.size()));
  ForEachLetter(text, [&](char32_t letter) { Fold(letter, [&](char32_t one) { folded.push_back(one); }); });
  return folded;
}

std::vector<Sign> Signs(const QString& pattern, char32_t escape) {
  std::vector<Sign> signs;
  bool escaped = false;
  ForEachLetter(pattern, [&](char32_t letter) {
    if (!escaped && escape != 0 && letter == escape) {
      escaped = true;
      return;
    }
    if (!escaped && (letter == U'%' || letter == U'_')) {
      signs.push_back({letter == U'%' ? Sign::Any : Sign::One, 0});
    } else {
      Fold(letter, [&](char32_t one) { signs.push_back({Sign::Letter, one}); });
    }
    escaped = false;
  });
  return signs;
}

// Goes back to the last "%" only: what an earlier one could take, this one can take as well.
bool Fits(const std::u32string& text, const std::vector<Sign>& signs) {
  size_t at = 0, sign = 0, lastAny = signs.size(), resume = 0;
  while (at < text.size()) {
    const bool more = sign < signs.size();
    if (more && signs[sign].kind == Sign::Any) {
      lastAny = sign++;
      resume = at;
    } else if (more && (signs[sign].kind == Sign::One || signs[sign].letter == text[at])) {
      ++sign;
      ++at;
    } else if (lastAny < signs.size()) {
      sign = lastAny + 1;
      at = ++resume;
    } else {
      return false;
    }
  }
  while (sign < signs.size() && signs[sign].kind == Sign::Any) ++sign;
  return sign == signs.size();
}

// The letters of a value in a buffer that is used again: the engine asks for each row of a table.
const std::u32string& FoldedValue(sqlite3_value* value) {
  static thread_local std::u32string folded;
  const auto* const bytes = sqlite3_value_text(value);
  const int size = sqlite3_value_bytes(value);
  folded.clear();
  for (int i = 0; i < size; ++i) {
    if (bytes[i] >= 0x80) return folded = FoldedText(QString::fromUtf8(reinterpret_cast<const char*>(bytes), size));
    folded.push_back(Folded(bytes[i]));
  }
  return folded;
}

QString TextOf(sqlite3_value* value) {
  const auto* const bytes = sqlite3_value_text(value);
  return QString::fromUtf8(reinterpret_cast<const char*>(bytes), sqlite3_value_bytes(value));
}

// like(pattern, text [, escape]), as the engine calls it for "text LIKE pattern".
void Like(sqlite3_context* context, int count, sqlite3_value** values) {
  for (int i = 0; i < count; ++i) {
    if (sqlite3_value_type(values[i]) == SQLITE_NULL) return;  // the result is NULL
  }
  // The engine keeps what belongs to an argument that does not change from row to row.
  auto* signs = static_cast<std::vector<Sign>*>(sqlite3_get_auxdata(context, 0));
  std::vector<Sign> own;
  if (signs == nullptr || count == 3) {
    const QList<uint> escape = count == 3 ? TextOf(values[2]).toUcs4() : QList<uint>();
    if (count == 3 && escape.size() != 1) {
      return sqlite3_result_error(context, "ESCAPE expression must be a single character", -1);
    }
    own = Signs(TextOf(values[0]), count == 3 ? char32_t(escape.front()) : 0);
    signs = &own;
  }
  sqlite3_result_int(context, Fits(FoldedValue(values[1]), *signs) ? 1 : 0);
  if (signs == &own && count == 2) {
    const auto release = [](void* kept) { delete static_cast<std::vector<Sign>*>(kept); };
    sqlite3_set_auxdata(context, 0, new std::vector<Sign>(std::move(own)), release);
  }
}

}  // namespace

bool Fits(const QString& text, const QString& pattern, char32_t escape) {
  return Fits(FoldedText(text), Signs(pattern, escape));
}

QString ReplaceLike(QSqlDatabase& database) {
  QSqlQuery query(database);
  const bool told = query.exec(QStringLiteral("SELECT sqlite_source_id()")) && query.next();
  const QVariant handle = database.driver()->handle();
  const bool same = told && query.value(0).toString() == QLatin1String(sqlite3_sourceid()) && handle.isValid() &&
                    qstrcmp(handle.typeName(), "sqlite3*") == 0;
  query.finish();  // no function is replaced while a statement runs
  if (!same) {
    return QStringLiteral(
        "The driver QSQLITE carries another SQLite than this program is linked with. Install the driver of the "
        "package libqt6sql6-sqlite.");
  }
  auto* const session = *static_cast<sqlite3* const*>(handle.constData());
  for (const int arguments : {2, 3}) {
    const int code = sqlite3_create_function_v2(session, "like", arguments, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                                                Like, nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) return QString::fromUtf8(sqlite3_errmsg(session));
  }
  return {};
}

}  // namespace SqliteLetters
