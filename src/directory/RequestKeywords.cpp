#include "directory/RequestKeywords.h"

#include <QApplication>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "directory/RequestData.h"
#include "platform/controls/TextInput.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

namespace {

const QString Null = "NULL";
constexpr int CallNumberLength = 25;  // UTF-16 units
constexpr int LongestKeyword = 200;   // UTF-16 units, width of the column

// Upper case, without "NULL" (also inside a word) and apostrophes; hyphens, commas and full stops part words.
QString Normalised(const QStringList& texts) {
  QString text = TextInput::Upper(texts.join(' '));
  text.remove(Null);
  text.remove('\'');
  for (const char mark : {'-', ',', '.'}) text.replace(mark, ' ');
  return text;
}

void InsertKeyword(const QString& table, const QString& keyword, const QString& requestNumber) {
  Execute("INSERT INTO  " + Sql::Table(table) + " (KEYWORD, REQUEST_NUMBER) " + "VALUES (" + Sql::National(keyword) +
              ", " + Sql::National(requestNumber) + ")",
          "***** SQL error on " + table + " (INSERT INTO) *****");
}

// Words that repeat are entered again; the tables have no key.
void InsertWords(const QString& table, QString text, const QString& requestNumber) {
  if (text.trimmed().isEmpty()) return;
  for (const QString& noise : gclsOF->KeywordNoiseStrings()) text.remove(noise.toUpper());
  for (const QString& word : text.split(' ', Qt::SkipEmptyParts)) {
    const QString keyword = TextInput::Fitting(word.trimmed(), LongestKeyword);
    if (keyword.size() > 1 && !gclsOF->KeywordStopWords().contains(keyword, Qt::CaseInsensitive))
      InsertKeyword(table, keyword, requestNumber);
  }
}

}  // namespace

void UpdateKeywordTables(const QString& requestNumber, const clsRequestInfo& info) {
  gstrErrorMessage.clear();
  const std::optional<AdoError> error = Procedure::Try([&] {
    gclsOF->LoadKeywordLists();
    InsertWords("ID_KEYWORD_TITLE",
                Normalised({info.Title, info.SeriesTitle, info.TitleOfJournal, info.TitleOfArticle}), requestNumber);
    InsertWords("ID_KEYWORD_AUTHOR", Normalised({info.Author, info.AuthorOfArticle}), requestNumber);
    const QString callNumber = TextInput::Upper(info.CallNumber).remove(Null);
    if (callNumber.size() > 1)
      InsertKeyword("ID_KEYWORD_CALL_NO", TextInput::Fitting(callNumber, CallNumberLength), requestNumber);
  });
  if (!error) return;
  ShowMessage(Texts::NotifySupport, MessageStyle::Stop);
  gclsOF->WriteLog("frmMain.UpdateKeywordTables", gstrErrorMessage, "L");
  gclsOF->WriteLog("Error: " + error->NumberText() + " - " + error->Description(), {}, "S");
}
