#include "editors/ExceptionDesk.h"

#include "platform/controls/CodeComboBox.h"

void ExceptionDesk::SetUp() {
  Desk::SetUp();
  Transaction rows(Database().OtherClient());
  for (const char* table :
       {"ID_EXCEPTION_NOTE", "ID_EXCEPTION_PROCESS", "ID_ACCESS_EXCEPTION", "ID_EXCEPTION_ISO", "ID_REJ_CALL_NUMBER",
        "ID_REJ_LIB_SYMBOL", "ID_RATE_SUPPLY", "ID_RATE_REJECT", "ID_EXCEPTION_CODE", "ID_EXCEPTION_TYPE",
        "ID_PROCESS_TYPE", "ID_ISO_UNFILLED", "ID_ACCESS_GROUP", "ID_SUPPLIER"})
    Another(QString("DELETE FROM ") + table);
  const auto insert = [this](const QString& into, const QStringList& rows) {
    for (const QString& row : rows) Another("INSERT INTO " + into + " VALUES(" + row + ")");
  };
  insert("ID_EXCEPTION_TYPE (EXCEPTION_TYPE, EXCEPTION_TYPE_DESC)",
         {"'B', 'Book reject'", "'C', 'Charge'", "'L', 'Loan reject'", "'N', 'Neutral type'"});
  insert("ID_EXCEPTION_CODE (EXCEPTION_CODE, EXCEPTION_CODE_DESC, EXCEPTION_TYPE, SERVICE_CHARGE)",
         {"'AAA', 'Alpha', 'B', NULL", "'BBB', 'Beta', 'C', 5.00", "'CCC', 'Gamma', 'L', 12.50",
          "'NNN', 'Neutral', 'N', NULL"});
  insert("ID_PROCESS_TYPE (PROCESS_TYPE, PROCESS_TYPE_DESC)",
         {"'LON', 'Loan'", "'REN', 'Renewal'", "'REQ', 'Request'"});
  insert("ID_LIBRARY (LIBRARY_ID, LIBRARY_SYMBOL, INSTITUTION_NAME)", {"9001, 'XXX9', 'Test Library'"});
  insert("ID_SUPPLIER (LIBRARY_ID, SUPPLIER_CODE, SUPPLIER_CAT)", {"9001, 'SUP1', 'I'", "9001, 'MAIL', 'M'"});
  insert("ID_EXCEPTION_PROCESS (EXCEPTION_CODE, PROCESS_TYPE, MESSAGE, REROUTE, DELIVERY, EXCEPTION_NOTE)",
         {"'AAA', 'LON', 'Alpha loan', 'Next', 'M', NULL", "'BBB', 'REN', NULL, 'Hold', 'P', 'First'",
          "'AAA', 'REQ', 'Alpha request', NULL, 'D', 'Only note'"});
  insert("ID_EXCEPTION_NOTE (EXCEPTION_CODE, PROCESS_TYPE, EXCEPTION_NOTE_SEQ, EXCEPTION_NOTE)",
         {"'BBB', 'REN', 1, 'First'", "'BBB', 'REN', 2, 'Second'", "'AAA', 'REQ', 1, 'Only note'"});
  insert("ID_ACCESS_GROUP (ACCESS_GROUP, ACCESS_GROUP_DESC)", {"'STU', 'Students'", "'STF', 'Staff'"});
  insert("ID_ACCESS_EXCEPTION (ACCESS_GROUP, EXCEPTION_CODE)", {"'STU', 'AAA'", "'STU', 'BBB'"});
  insert("ID_ISO_UNFILLED (ISO_UNFILLED, ISO_UNFILLED_DESC)", {"1, 'Not available'", "2, 'At bindery'", "3, 'Lost'"});
  insert("ID_EXCEPTION_ISO (EXCEPTION_CODE, ISO_UNFILLED)", {"'AAA', 1"});
  rows.Commit();
}

void ExceptionDesk::Enter(SubTab subTab) {
  Start();
  SelectTab("sstabtables", frmTabulon::ExceptionsTab);
  if (subTab != Codes) Go(subTab);
  Statements();
}

void ExceptionDesk::ShowText(const QString& combo, const QString& text) {
  if (auto* const box = Find<CodeComboBox>(combo)) box->SetText(text);
}

QStringList ExceptionDesk::Entries(const QString& combo) const {
  QStringList entries;
  if (const auto* const box = Find<CodeComboBox>(combo))
    for (int index = 0; index < box->Count(); ++index) entries.append(box->TextAt(index));
  return entries;
}
