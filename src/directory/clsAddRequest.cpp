#include "directory/clsAddRequest.h"

#include <QRegularExpression>
#include <vector>

#include "core/Clock.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "directory/RequestKeywords.h"
#include "platform/controls/TextInput.h"
#include "shell/Procedure.h"

namespace {

const QString Source = "clsAddRequest.UpdateOstanaTables";
// On whose behalf a request without a library is placed.
constexpr qint32 UnregisteredLibrary = 9999999;

// Columns of an INSERT with their values, in order.
class Insert {
 public:
  explicit Insert(QString table) : table_(std::move(table)) {}
  Insert& Add(const QString& column, const QString& value) {
    columns_.append(column);
    values_.append(value);
    return *this;
  }
  QString Text() const {
    return "INSERT INTO " + Sql::Table(table_) + " (" + columns_.join(", ") + ") VALUES (" + values_.join(", ") + ")";
  }

 private:
  QString table_;
  QStringList columns_, values_;
};

QString Piece(const QString& text) {
  return Sql::NationalOr(text.trimmed(), "NULL");
}

// Cut by characters: half of a letter outside the basic plane is not left behind.
QString Limited(const QString& text, int limit) {
  QString cut;
  clsAddRequest::EnforceFieldLength(text, limit, cut);
  return Sql::NationalOr(cut, "NULL");
}

// The short text and the note share the one column there is for them.
QString Notes() {
  return Limited(QStringList{gstrRequestNotes1.trimmed(), gstrRequestNote.trimmed()}.join("\n"), 1000);
}

// The year is the first run of four digits of the publication date.
QString Year(const QString& publicationDate) {
  static const QRegularExpression fourDigits("\\d{4}");
  return Sql::NationalOr(fourDigits.match(publicationDate).captured(), "NULL");
}

// The date literal. An AdoError when the text is no date.
QString SubmittedOn(const clsRequestInfo& info) {
  const QString text = info.DateSubmitted.trimmed();
  if (text.isEmpty()) return gclsOF->SqlDate(Clock::Now());
  QDateTime moment = QDateTime::fromString(text, Qt::ISODate);
  if (!moment.isValid()) moment = QDateTime::fromString(text, "yyyy-MM-dd hh:mm:ss");
  if (!moment.isValid())
    throw AdoError(AdoNumber::Unspecified, "The date of submission \"" + text + "\" cannot be read", Source);
  return gclsOF->SqlDate(moment);
}

// What is known of the request before anything is written.
struct RequestFacts {
  QString submitted;  // date literal
  QString request;    // "REG" and eight digits
  QString sortKey;    // the digits as a number
};

void AddHead(Insert& insert, const RequestFacts& facts) {
  insert.Add("REQUEST_NUMBER", Sql::National(facts.request))
      .Add("SORT_KEY", facts.sortKey)
      .Add("LIBRARY_ID", Sql::Number(gclsOF->LibraryId()));
}

void AddCommon(Insert& insert, const clsRequestInfo& info, const RequestFacts& facts) {
  insert.Add("REQUEST_TYPE", Piece(gstrRequestType))
      .Add("INFO_SOURCE", Limited(info.InfoSource, 200))
      .Add("NOTES1", Notes())
      .Add("CALL_NUMBER", Limited(info.CallNumber, 200))
      .Add("DATE_ENTERED", gclsOF->SqlDate(Clock::Now()))
      .Add("DATE_SUBMITTED", facts.submitted)
      .Add("REQUEST_SRC", Piece(info.RequestSource))
      .Add("SERVICE_TYPE", Piece(info.ServiceType))
      .Add("SERVICE_LEVEL", Piece(info.ServiceLevel));
}

void AddPublication(Insert& insert, const clsRequestInfo& info) {
  insert.Add("PUBLICATION_YEAR", Year(info.PublicationDate))
      .Add("PUBLICATION_DATE", Piece(info.PublicationDate))
      .Add("PUBLICATION_TYPE", Piece(info.PublicationType))
      .Add("PUBLICATION_PLACE", Limited(info.PublicationPlace, 25));
}

void AddSystems(Insert& insert, const clsRequestInfo& info) {
  insert.Add("BIBLIOGRAPHY_NUM", Limited(info.BibliographyNum, 25))
      .Add("BIBLIOGRAPHY", Piece(info.BibliographyType))
      .Add("SYSTEM_NUMBER", Limited(info.SystemNum, 25))
      .Add("SYSTEM_SOURCE", Piece(info.SystemSource))
      .Add("ADD_NUMS_LETTERS", Limited(info.AddNumsLetters, 50));
}

QString BookForm(const clsRequestInfo& info, const RequestFacts& facts) {
  Insert insert("ID_REQUEST");
  AddHead(insert, facts);
  AddCommon(insert, info, facts);
  insert.Add("AUTHOR", Limited(info.Author, 100))
      .Add("TITLE", Limited(info.Title, 200))
      .Add("PUBLISHER", Limited(info.Publisher, 250));
  AddPublication(insert, info);
  insert.Add("SERIES_TITLE", Limited(info.SeriesTitle, 120))
      .Add("EDITION", Limited(info.Edition, 20))
      .Add("ISBN", Limited(info.ISBN, 17));
  AddSystems(insert, info);
  return insert.Text();
}

QString ArticleForm(const clsRequestInfo& info, const RequestFacts& facts) {
  Insert insert("ID_REQUEST");
  AddHead(insert, facts);
  AddCommon(insert, info, facts);
  insert.Add("TITLE", Limited(info.TitleOfJournal, 200))
      .Add("ARTICLE_AUTHOR", Limited(info.AuthorOfArticle, 120))
      .Add("ARTICLE_TITLE", Limited(info.TitleOfArticle, 120));
  AddPublication(insert, info);
  insert.Add("VOLUME", Limited(info.Volume, 200))
      .Add("ISSUE", Limited(info.Issue, 200))
      .Add("ISSN", Limited(info.ISSN, 9))
      .Add("PAGES_REQUESTED", Limited(info.Pages, 50));
  AddSystems(insert, info);
  return insert.Text();
}

// Without data from the forms. The words are those of this one statement; the request's own data stay as they are.
QString BareForm(const RequestFacts& facts) {
  const QString serviceLevel = gclsOF->SiteNumber() == 1002 ? "N'C'" : "N'X'";
  Insert insert("ID_REQUEST");
  AddHead(insert, facts);
  insert.Add("REQUEST_TYPE", "N'REG'")
      .Add("SERVICE_TYPE", "N'R'")
      .Add("SERVICE_LEVEL", serviceLevel)
      .Add("REQUEST_SRC", "N'M'")
      .Add("PUBLICATION_TYPE", "N'J'")
      .Add("DATE_ENTERED", gclsOF->SqlDate(Clock::Now()))
      .Add("DATE_SUBMITTED", facts.submitted);
  return insert.Text();
}

struct Methods {
  QString message = "NULL";
  QString delivery = "NULL";
};

Methods MethodsOfLibrary() {
  Methods methods;
  ForEachRow("SELECT MSG_METHOD, DELIV_METHOD_COPY FROM " + Sql::Table("ID_LIBRARY") +
                 " WHERE LIBRARY_ID = " + Sql::Number(gclsOF->LibraryId()),
             "***** SQL error on ID_LIBRARY (Select) *****", [&methods](Recordset& rows) {
               methods.message = Piece(Value(rows, 0));
               methods.delivery = Piece(Value(rows, 1));
             });
  return methods;
}

void WriteRequest(const QString& request, const RequestFacts& facts, const Methods& methods) {
  Transaction transaction(gclsOF->Connection());
  Execute(request, "***** SQL error on ID_REQUEST (Insert) *****");
  Execute(Insert("ID_DELIVERY")
              .Add("REQUEST_NUMBER", Sql::National(facts.request))
              .Add("PROCESS_TYPE", "N'1'")
              .Add("MSG_METHOD", methods.message)
              .Add("DELIV_METHOD", methods.delivery)
              .Text(),
          "***** SQL error on ID_DELIVERY (Insert) *****");
  Execute(Insert("ID_QUEUE")
              .Add("REQUEST_NUMBER", Sql::National(facts.request))
              .Add("EVENT_ID", "1000")
              .Add("QUEUE_TYPE", "N'0'")
              .Add("SUPPLIER_SEQ_SENT", "1")
              .Add("DATE_UPDATE", gclsOF->SqlDate(Clock::Now()))
              .Text(),
          "***** SQL error on ID_QUEUE (Insert) *****");
  transaction.Commit();
}

// For the time of a call a request without a library belongs to the library of unregistered readers.
class LibraryOfRequest {
 public:
  LibraryOfRequest() : before_(gclsOF->LibraryId()) {
    if (before_ == 0) gclsOF->SetLibraryId(UnregisteredLibrary);
  }
  ~LibraryOfRequest() { gclsOF->SetLibraryId(before_); }
  LibraryOfRequest(const LibraryOfRequest&) = delete;
  LibraryOfRequest& operator=(const LibraryOfRequest&) = delete;

 private:
  qint32 before_;
};

}  // namespace

void clsAddRequest::EnforceFieldLength(const QString& text, int limit, QString& result) {
  result = TextInput::Fitting(text.trimmed(), limit);
}

bool clsAddRequest::UpdateOstanaTables() {
  const clsRequestInfo& info = *gclsRequestInfo;
  const LibraryOfRequest library;
  RequestFacts facts;
  gstrErrorMessage.clear();
  const std::optional<AdoError> error = Procedure::Try([&] {
    facts.submitted = SubmittedOn(info);
    facts.request = gclsOF->NextRequestNumber("REG");
    if (facts.request.isEmpty()) return;
    facts.sortKey = QString::number(facts.request.right(8).toInt());
    const Methods methods = MethodsOfLibrary();
    const bool fromForms = CmdOkCliked && info.CmdOkCliked;
    WriteRequest(!fromForms                    ? BareForm(facts)
                 : info.PublicationType == "B" ? BookForm(info, facts)
                                               : ArticleForm(info, facts),
                 facts, methods);
  });
  if (error) {
    gclsOF->WriteLog("Error: " + error->NumberText() + " - " + error->Description(), {}, "L");
    gclsOF->WriteLog(gstrErrorMessage, {}, "S");
    return false;
  }
  if (facts.request.isEmpty()) return false;
  UpdateKeywordTables(facts.request, info);
  gbRequestAdded = true;
  return true;
}
