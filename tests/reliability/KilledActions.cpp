#include "reliability/KilledActions.h"

#include <QTest>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/clsAddRequest.h"
#include "platform/ado/Recordset.h"

namespace {

constexpr int Length = 10;  // of every list
const QString Owner = QString::number(ReliabilityDesk::Auenfels);

// --- Marks ---

QString Mark(int item, int round) {
  return QString("%1 OF ROUND %2").arg(item).arg(round);
}
QString RoundOf(const QString& text) {
  const qsizetype at = text.indexOf("OF ROUND ");
  return at < 0 ? "no round" : text.mid(at);
}

// All texts of a SELECT, row by row.
QStringList Texts(Connection& connection, const QString& sql) {
  QStringList texts;
  Recordset rows;
  for (rows.Open(connection, sql); !rows.EOF_(); rows.MoveNext())
    for (int i = 0; i < rows.FieldCount(); ++i) texts += rows.Fields(i).Value();
  return texts;
}
int Number(Connection& connection, const QString& sql) {
  return Texts(connection, sql).value(0).toInt();
}

// `count` texts, all of the same round.
QString NotOfOneRound(const QStringList& texts, int count) {
  QSet<QString> rounds;
  for (const QString& text : texts) rounds += RoundOf(text);
  if (texts.size() == count && rounds.size() == 1) return {};
  return QString("%1 texts of %2: ").arg(texts.size()).arg(count) + texts.join(" | ");
}
std::function<QString(Connection&)> OneRound(const QString& sql, int count = Length) {
  return [=](Connection& connection) { return NotOfOneRound(Texts(connection, sql), count); };
}

// --- Lists ---

// The rows of a list of the library in hand are replaced by `Length` others.
std::function<void(Connection&)> Rows(const QString& table, const QString& where, const QString& columns,
                                      const QString& values) {
  return [=](Connection& connection) {
    connection.Execute("DELETE FROM " + table + (where.isEmpty() ? QString() : " WHERE " + where));
    for (int row = 1; row <= Length; ++row)
      connection.Execute("INSERT INTO " + table + " (" + columns + ") VALUES (" + QString(values).arg(row) + ")");
  };
}

void NoRows(Connection&) {}

// Every row of the list gets a text of the round.
void Mark(ReliabilityDesk& desk, const char* grid, const char* box, int round, const char* button = "cmdUpdate") {
  for (int row = 1; row < desk.Rows(grid); ++row) {
    desk.SelectRow(grid, row);
    desk.Paste(box, Mark(row, round));
    desk.Click(button);
  }
}

KilledAction ListOfLibrary(const char* name, const QString& table, const QString& column, const QString& columns,
                           const QString& values, const char* form, const char* grid, const char* box) {
  return {name, Rows(table, "LIBRARY_ID = " + Owner, columns, values),
          [=](ReliabilityDesk& desk, int round) {
            glngNCIPLibraryId = ReliabilityDesk::Auenfels;
            desk.OpenLibraryScreen(form);
            Mark(desk, grid, box, round);
            desk.Click("cmdClose");
          },
          OneRound("SELECT " + column + " FROM " + table + " WHERE LIBRARY_ID = " + Owner)};
}

void WriteNotes(ReliabilityDesk& desk, int round) {
  gstrNotesExceptionCode = "BIB";
  gstrNotesProcessType = "SEA";
  desk.OpenDialog("frmAddExceptionNotes");
  while (desk.Rows("grdExceptionNote") > 1) {
    desk.SelectRow("grdExceptionNote", 1);
    desk.Click("cmdDelete");
  }
  for (int note = 1; note <= Length; ++note) {
    desk.Paste("txtExceptionNote", Mark(note, round));
    desk.Click("cmdAdd");
  }
  desk.Click("cmdClose");
}

// The first note stands at the pair as well.
QString NotesHalfDone(Connection& connection) {
  const QString ofPair = " WHERE EXCEPTION_CODE = 'BIB' AND PROCESS_TYPE = 'SEA'";
  return NotOfOneRound(Texts(connection, "SELECT EXCEPTION_NOTE FROM ID_EXCEPTION_NOTE" + ofPair) +
                           Texts(connection, "SELECT EXCEPTION_NOTE FROM ID_EXCEPTION_PROCESS" + ofPair),
                       Length + 1);
}

void WriteServiceLevels(ReliabilityDesk& desk, int round) {
  desk.OpenDialog("frmISOServiceLevels");
  for (int row = 1; row < desk.Rows("grdServiceLevel"); ++row) {
    desk.SelectRow("grdServiceLevel", row);
    desk.ChooseCode("cmbServiceLevel", round % 2 ? "X" : "U");
  }
  desk.Click("cmdUpdate");
}

QString ServiceLevelsHalfDone(Connection& connection) {
  const QStringList levels = Texts(connection, "SELECT SERVICE_LEVEL FROM ID_ISO_SERVICE_LEVEL");
  return levels.size() == Length && levels.count(levels.front()) == Length ? QString() : levels.join(' ');
}

// The first supplier becomes the last, so that every number changes.
void WriteSequence(ReliabilityDesk& desk, int) {
  desk.OpenLibraryScreen("frmLibrarySequence");
  desk.SelectRow("grdSupplierSequencing", 1);
  for (int row = 2; row < desk.Rows("grdSupplierSequencing"); ++row) desk.Click("cmdDown");
  desk.Click("cmdSequence");
}

QString SequenceHalfDone(Connection& connection) {
  const QStringList numbers =
      Texts(connection, "SELECT LIBRARY_SEQ FROM ID_SUPPLIER WHERE LIBRARY_ID = " + Owner + " ORDER BY LIBRARY_SEQ");
  const QSet<QString> distinct(numbers.begin(), numbers.end());
  return distinct.size() == numbers.size() && numbers.size() >= Length ? QString() : numbers.join(' ');
}

// --- Records ---

void WriteCode(ReliabilityDesk& desk, int round) {
  desk.EnterTab(frmTabulon::CodeTablesTab);
  if (desk.Find<CodeComboBox>("cmb0Tables")->Code() != u"ID_LIBRARY_CAT")
    desk.ChooseCode("cmb0Tables", "ID_LIBRARY_CAT");
  desk.Click("cmdClear");
  if (round == 0) desk.ChooseCode("cmb0Tables", "ID_LIBRARY_CAT");  // an empty grid is loaded by choosing its table
  desk.Paste("txt0Code", "ZZ");
  desk.Paste("txt0Description", "Added, " + Mark(1, round));
  desk.Click("cmdAdd");
  desk.Paste("txt0Description", "Changed, " + Mark(2, round));
  desk.Click("cmdUpdate");
  desk.Click("cmdDelete");
  desk.ChooseCode("cmb0Tables", "ID_LIBRARY_CAT");
}

// No row, or one with all its languages.
QString CodeHalfDone(Connection& connection) {
  const QStringList texts =
      Texts(connection,
            "SELECT LIBRARY_CAT_DESC, LIBRARY_CAT_DESC_ENG, LIBRARY_CAT_DESC_FRE, LIBRARY_CAT_DESC_GER FROM "
            "ID_LIBRARY_CAT WHERE LIBRARY_CAT = 'ZZ'");
  return texts.isEmpty() ? QString() : NotOfOneRound(texts, 4);
}

void WriteLoanPolicy(ReliabilityDesk& desk, int round) {
  desk.OpenDialog("frmLoans");
  desk.SelectRow("grd6aTable", 1);
  for (const char* box : {"txt6MessageRenewal", "txt6MessageRenewalRefused", "txt6MessageRecall", "txt6MessageOverdue1",
                          "txt6MessageOverdue2", "txt6MessageOverdue3", "txt6MessageFinal"})
    desk.Paste(box, Mark(1, round));
  desk.Click("cmdUpdate");
}

// The base moves between two currencies: one statement takes it away, another one gives it.
void MoveBase(ReliabilityDesk& desk, int) {
  desk.OpenDialog("frmCurrencyCodes");
  auto* const grid = desk.Find<Grid>("grdCurrencyCode");
  constexpr int Base = 4;
  const int row = grid->Text(1, Base) == u"*" ? 2 : 1;
  const QModelIndex cell = grid->model()->index(row - 1, Base);
  grid->scrollTo(cell);
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier, grid->visualRect(cell).center());
  desk.Click("cmdUpdate");
}

QString BaseHalfDone(Connection& connection) {
  const int bases = Number(connection, "SELECT COUNT(*) FROM ID_CURRENCY_CODE WHERE CURRENCY_BASE = '*'");
  return bases == 1 ? QString() : QString("%1 base currencies").arg(bases);
}

// --- Libraries and requests ---

void RegisterLibrary(ReliabilityDesk& desk, int round) {
  desk.OpenLibraryScreen("frmLibraryRegistration");
  desk.Paste("txtLibrarySymbol", "KILLED " + QString::number(round));
  desk.Paste("txtInstitution", Mark(1, round));
  desk.Paste("txtStreet1", Mark(2, round));
  desk.Click("cmdAdd");
}

// The counter is taken first: a library never lies ahead of it. The billing address is that of the street.
QString RegistrationHalfDone(Connection& connection) {
  const QString killed = "LIBRARY_SYMBOL LIKE 'KILLED %'";
  const QStringList ids = Texts(connection, "SELECT MAX(LIBRARY_ID) FROM ID_LIBRARY WHERE " + killed);
  if (ids.value(0).toInt() >= Number(connection, "SELECT NEXT_LIBRARY FROM ID_NEXT_LIBRARY"))
    return "library " + ids.value(0) + " lies ahead of the counter";
  QStringList wrong;
  Recordset rows;
  rows.Open(connection,
            "SELECT LIBRARY_SYMBOL, INSTITUTION_NAME, PRIME_ADDRESS1, BILL_ADDRESS1 FROM ID_LIBRARY WHERE " + killed);
  for (; !rows.EOF_(); rows.MoveNext()) {
    const QString round = "OF ROUND " + rows.Fields(0).Value().section(' ', 1);
    for (int i = 1; i < rows.FieldCount(); ++i)
      if (RoundOf(rows.Fields(i).Value()) != round) wrong += rows.Fields(0).Value() + ' ' + rows.Fields(i).Value();
  }
  return wrong.join(" | ");
}

// As the request forms of other applications place one.
void PlaceRequest(ReliabilityDesk& desk, int round) {
  desk.OpenLibraryScreen("frmLibraryRegistration");
  gclsRequestInfo->CmdOkCliked = gclsAddRequest->CmdOkCliked = true;
  gclsRequestInfo->PublicationType = "B";
  gclsRequestInfo->ServiceType = "L";
  gclsRequestInfo->ServiceLevel = "X";
  gclsRequestInfo->RequestSource = "M";
  gclsRequestInfo->Title = "Killed " + Mark(1, round);
  gstrRequestType = "REG";
  gstrRequestNotes1 = "killed";
  EXPECT_TRUE(gclsAddRequest->UpdateOstanaTables()) << desk.Said().Transcript().toStdString();
}

QString RequestHalfDone(Connection& connection) {
  QStringList wrong;
  for (const char* table : {"ID_DELIVERY", "ID_QUEUE"}) {
    const QString of = QString(table) + " T WHERE T.REQUEST_NUMBER = R.REQUEST_NUMBER";
    wrong += Texts(
        connection,
        "SELECT REQUEST_NUMBER FROM ID_REQUEST R WHERE NOTES1 = 'killed' AND 1 <> (SELECT COUNT(*) FROM " + of + ")");
    wrong += Texts(connection,
                   QString("SELECT REQUEST_NUMBER FROM %1 WHERE REQUEST_NUMBER NOT IN (SELECT REQUEST_NUMBER FROM "
                           "ID_REQUEST)")
                       .arg(table));
  }
  const QString last = Texts(connection, "SELECT MAX(SORT_KEY) FROM ID_REQUEST WHERE NOTES1 = 'killed'").value(0);
  if (last.toInt() >= Number(connection, "SELECT NEXT_REQUEST FROM ID_NEXT_REQUEST")) wrong += "number " + last;
  return wrong.join(" | ");
}

}  // namespace

const std::vector<KilledAction>& KilledActions() {
  static const std::vector<KilledAction> actions{
      {"ExceptionNotes", NoRows, WriteNotes, NotesHalfDone},
      ListOfLibrary("NCIPStatusCodes", "ID_NCIP_STATUS", "NCIP_STATUS", "LIBRARY_ID, NCIP_STATUS, NCIP_ALLOW_ILL",
                    Owner + ", 'S%1', 'Y'", "frmNCIPStatusCodes", "grdNCIPStatusCodes", "txtNCIPStatusCode"),
      ListOfLibrary("NCIPProfiles", "ID_NCIP_PROFILE", "NCIP_PROFILE_DESC",
                    "LIBRARY_ID, NCIP_PROFILE, NCIP_PROFILE_DESC, NCIP_PATRON_TYPE, NCIP_ALLOW_COPY, "
                    "NCIP_SELECT_DELIVERY_C, NCIP_ALLOW_LOAN, NCIP_SELECT_DELIVERY_L, FILE_FORMAT, MSG_FORMAT, "
                    "BILLING_TYPE, BILLING_RATE",
                    Owner + ", 'P%1', 'before', 'FA', 'Y', 'Y', 'Y', 'Y', 'T', 'H', 'I', 'A'", "frmNCIPProfile",
                    "grdNCIPProfile", "txtDescription"),
      ListOfLibrary("NCIPUnitLibraries", "ID_NCIP_LIBRARY", "NCIP_LIBRARY", "LIBRARY_ID, NCIP_LIBRARY, UNIT_LIBRARY_ID",
                    Owner + ", 'U%1', " + Owner, "frmNCIPUnitLibraryMapping", "grdLibraryMapping", "txtNCIPLibrary"),
      {"ISOServiceLevels",
       Rows("ID_ISO_SERVICE_LEVEL", {}, "ISO_SERVICE_SYMBOL, ISO_SERVICE_HANDLING, ISO_SERVICE_SEARCH, SERVICE_LEVEL",
            "'%1', 'Normal', 'Local', 'X'"),
       WriteServiceLevels, ServiceLevelsHalfDone},
      {"SupplierSequence",
       Rows("ID_SUPPLIER", "LIBRARY_ID = " + Owner + " AND SUPPLIER_CODE LIKE 'KILL%'",
            "LIBRARY_ID, SUPPLIER_CODE, LIBRARY_SEQ", Owner + ", 'KILL%1', %1"),
       WriteSequence, SequenceHalfDone},
      {"Code", NoRows, WriteCode, CodeHalfDone},
      {"LoanPolicy", NoRows, WriteLoanPolicy,
       OneRound("SELECT REN_MSG, RR_MSG, REC_MSG, OV1_MSG, OV2_MSG, OV3_MSG, FIN_MSG FROM ID_LOAN_CODE WHERE REN_MSG "
                "LIKE '%OF ROUND%' OR FIN_MSG LIKE '%OF ROUND%'",
                7)},
      {"CurrencyBase", NoRows, MoveBase, BaseHalfDone},
      {"Registration", NoRows, RegisterLibrary, RegistrationHalfDone},
      {"Request", NoRows, PlaceRequest, RequestHalfDone},
  };
  return actions;
}
