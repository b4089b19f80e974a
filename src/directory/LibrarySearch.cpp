#include "directory/LibrarySearch.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/Screen.h"

namespace {

const QString SelectFailed = "***** SQL error on ID_LIBRARY (Select) *****";

bool Refuse(const QString& text, int style = MessageStyle::Stop) {
  ShowMessage(text, style, "Ostana");
  return false;
}

// "Enter search criteria." and "Search string too broad." in the words of both searches.
bool IsSearchable(const QString& text) {
  if (text.isEmpty()) return Refuse("Enter search criteria.");
  if (text == "%") return Refuse("Search string too broad.");
  return true;
}

// Fills gLibraryMatches with the first rows of the statement: id, symbol. Returns their count.
qint32 CollectMatches(const QString& sql) {
  gLibraryMatches.clear();
  Recordset rows;
  rows.MaxRecords = MostLibraryMatches;
  OpenRows(rows, sql, SelectFailed);
  for (; !rows.EOF_(); rows.MoveNext()) gLibraryMatches.push_back({Value(rows, 0).toInt(), Value(rows, 1)});
  return static_cast<qint32>(gLibraryMatches.size());
}

}  // namespace

bool SearchLibrarySymbol(bool recordDisplayed, const QString& displayedSymbol, const QString& text, qint32& libraryId,
                         qint32& count) {
  libraryId = 0;
  count = 0;
  if (recordDisplayed) {
    if (displayedSymbol.isEmpty()) return Refuse("Enter search criteria.");
    ShowMessage("This record is currently being displayed.", MessageStyle::Information, "Ostana");
    libraryId = -1;
    return true;
  }
  if (!IsSearchable(text)) return false;

  {
    const Hourglass hourglass;
    gstrErrorMessage = SelectFailed;
    if (gclsOF->FindLibraryId(text, libraryId)) {
      count = 1;
      gLibraryMatches.clear();
    } else if (libraryId == -1) {
      // The look-up's -1 means a wildcard; to the caller it would mean the record on show.
      libraryId = 0;
      count = CollectMatches(
          "SELECT   LIBRARY_ID, LIBRARY_SYMBOL "
          " FROM    " +
          Sql::Table("ID_LIBRARY") + " WHERE  LIBRARY_SYMBOL LIKE  " + LikePattern(text, Sql::National) +
          " Order By LIBRARY_SYMBOL");
      gstrErrorMessage.clear();
      return true;
    }
    gstrErrorMessage.clear();
  }
  return libraryId >= 1 || Refuse("Record not found.", MessageStyle::Information);
}

bool SearchSymbol(const QString& text, qint32& libraryId, qint32& count, const QString& column) {
  libraryId = 0;
  count = 0;
  if (!IsSearchable(text)) return false;
  {
    const Hourglass hourglass;
    if (FindLibrarySymbol(text, libraryId, column)) {
      count = 1;
      gLibraryMatches.clear();
      return true;
    }
    if (libraryId == -1) {
      libraryId = 0;
      count = CollectMatches(
          " SELECT   LIBRARY_ID, LIBRARY_SYMBOL "
          " FROM    " +
          Sql::Table("ID_LIBRARY") + " WHERE  " + column + " LIKE  " + LikePattern(text, Sql::National) + " Order By " +
          column + " ");
      return true;
    }
  }
  return Refuse("Record not found.", MessageStyle::Information);
}

bool FindLibrarySymbol(const QString& text, qint32& libraryId, const QString& column) {
  libraryId = 0;
  const QString symbol = text.trimmed();
  if (symbol.isEmpty()) return false;
  if (symbol.contains('%')) {
    libraryId = -1;
    return false;
  }
  const QString sql = "SELECT   LIBRARY_ID, LIBRARY_SYMBOL, " + column + " FROM " + Sql::Table("ID_LIBRARY") +
                      " WHERE    " + column + " = " + Sql::National(symbol);
  const auto failure = Procedure::Try([&] {
    bool found = false;
    const QString id = FirstValue(sql, SelectFailed, &found);
    if (found) libraryId = id.toInt();
  });
  if (failure) {
    // To the caller the symbol is not found; what was asked stands in the log.
    gclsOF->WriteLog("FindLibrarySymbol", "Error: " + failure->NumberText() + " - " + failure->Description(), "L");
    gclsOF->WriteLog("Database Statement: " + sql, {}, "S");
  }
  return libraryId >= 1;
}

// What engines take for a wildcard besides "%" is made an ordinary character; the clause stands only where needed.
QString LikePattern(const QString& text, QString (*quoted)(const QString&)) {
  if (!text.contains('_') && !text.contains('[')) return quoted(text);
  QString pattern;
  for (const QChar letter : text) {
    if (letter == '_' || letter == '[' || letter == '!') pattern += '!';
    pattern += letter;
  }
  return quoted(pattern) + " ESCAPE '!'";
}
