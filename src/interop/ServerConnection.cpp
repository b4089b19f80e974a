#include "interop/ServerConnection.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "interop/CodeLists.h"
#include "interop/StatementReport.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

namespace {

QString Select(const QString& code, const QString& table) {
  return "SELECT   " + code + ", " + CodeLists::DescriptionColumn(code) + " FROM " + Sql::Table(table);
}

QString OfLibrary(qint32 libraryId) {
  return "WHERE   LIBRARY_ID = " + Sql::Number(libraryId);
}

}  // namespace

ServerConnection::ServerConnection(const Facts& facts, qint32 libraryId, QWidget* parent)
    : Screen(facts.formName, facts.caption, parent),
      cmbSystem(new CodeComboBox(this, facts.systemBox)),
      txtUrl(new TextBox(this, facts.urlBox, 80)),
      txtPort(new TextBox(this, "txtPort", facts.portDigits)),
      facts_(facts),
      libraryId_(libraryId) {
  connect(cmdOK, &QPushButton::clicked, this, &ServerConnection::cmdOK_Click);
  connect(cmdDelete, &QPushButton::clicked, this, &ServerConnection::cmdDelete_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(); });
}

void ServerConnection::Compose(QWidget* content) {
  Form::Require({cmbSystem, cmbConnect, txtServerAddress, txtPort});
  QVBoxLayout* const column = Form::Column(this, {content});
  column->addStretch();
  column->addLayout(Form::ButtonRow({cmdOK, cmdDelete, cmdCancel}));
}

// --- Loading ---

void ServerConnection::Form_Load() {
  Procedure(facts_.loadName, this)
      .OnFailure("An error has occurred loading the form.  Please Notify Support.")
      .Run([this] { LoadForm(); });
  ApplyRights();
  cmbSystem->setFocus(Qt::OtherFocusReason);
}

// Whether there is a row, and what it holds, is known only when all was read.
void ServerConnection::ApplyRights() {
  const bool known = record_.Status() != Record::State::Torn;
  cmdOK->setEnabled(known && (mbRecordExists ? rights_.update : rights_.add));
  cmdDelete->setEnabled(known && rights_.remove);
}

void ServerConnection::LoadForm() {
  mbRecordExists = false;
  Record::Reading reading(record_);
  reading.Replaces();
  CodeLists::Fill(*cmbSystem, Select("NCIP_ILS_SYSTEM", "ID_NCIP_ILS_SYSTEM"),
                  "***** SQL error on ID_NCIP_ILS_SYSTEM  (Select) *****", "NCIP_ILS_SYSTEM");
  CodeLists::Fill(*cmbConnect, Select("NCIP_CONNECT_TYPE", "ID_NCIP_CONNECT_TYPE"),
                  "***** SQL error on ID_NCIP_CONNECT_TYPE  (Select) *****", "NCIP_CONNECT_TYPE");
  Recordset rows;
  OpenRows(rows, "SELECT   * FROM " + Sql::Table(facts_.table) + " " + OfLibrary(libraryId_),
           "***** SQL error on " + facts_.table + " (Select) *****");
  if (rows.EOF_()) {
    reading.Ended();
    return record_.Gone();
  }
  CodeLists::ShowCode(*cmbSystem, Value(rows, facts_.systemColumn));
  CodeLists::ShowCode(*cmbConnect, Value(rows, facts_.typeColumn));
  txtServerAddress->SetText(Value(rows, facts_.hostColumn));
  txtUrl->SetText(Value(rows, facts_.urlColumn));
  txtPort->SetText(Value(rows, facts_.portColumn));
  ShowRow(rows);
  mbRecordExists = true;
  reading.Ended();
}

// --- Frames ---

void ServerConnection::RunWrite(const QString& logName, const std::function<void()>& body) {
  StatementReport report;
  if (report.Try(body)) return;
  gclsOF->WriteLog(logName, report.ErrorText(), "L");
  Tell(this, "An error occurred writing settings to database.  Please check log file for more information.",
       MessageStyle::Stop);
}

// --- OK ---

bool ServerConnection::Validate() {
  if (cmbSystem->IsEmptyOrNone()) return Refuse(this, "ILS System is a required field.", MessageStyle::Stop, cmbSystem);
  if (cmbConnect->IsEmptyOrNone())
    return Refuse(this, "Connection Type is a required field.", MessageStyle::Stop, cmbConnect);
  if (txtServerAddress->Text().isEmpty())
    return Refuse(this, "Server Address is a required field.", MessageStyle::Stop, txtServerAddress);
  if (txtPort->Text().isEmpty()) return Refuse(this, "Port is a required field.", MessageStyle::Stop, txtPort);
  return true;
}

QString ServerConnection::WriteStatement() const {
  const QString table = Sql::Table(facts_.table);
  QStringList names, values, assignments;
  for (const auto& [column, value] : Values()) {
    names.append(column);
    values.append(value);
    assignments.append(column + " = " + value);
  }
  if (mbRecordExists) return "UPDATE " + table + " SET " + assignments.join(", ") + " " + OfLibrary(libraryId_);
  return "INSERT INTO " + table + " (LIBRARY_ID, " + names.join(", ") + ") VALUES (" + Sql::Number(libraryId_) + ", " +
         values.join(", ") + ")";
}

// Neither statement runs in a transaction, and how many rows it found is not asked.
void ServerConnection::cmdOK_Click() {
  RunWrite(facts_.okName, [this] {
    for (TextBox* box : {txtServerAddress, txtUrl, txtPort}) box->TrimInPlace();
    TrimFields();
    if (!Validate()) return;
    Execute(WriteStatement(),
            "***** SQL error on " + facts_.table + (mbRecordExists ? " (Update) *****" : " (Insert) *****"));
    Tell(this, mbRecordExists ? "Settings updated." : "Settings added.", MessageStyle::Information);
    Unload();
  });
}

// --- Delete ---

// Libraries that use the row are not asked for.
void ServerConnection::cmdDelete_Click() {
  RunWrite(facts_.deleteName, [this] {
    if (!mbRecordExists) {
      Tell(this, "There is no record to delete.", MessageStyle::Stop);
      return;
    }
    if (!Confirm(this, "Are you sure you want to delete this record?")) return;
    Execute("DELETE FROM " + Sql::Table(facts_.table) + " " + OfLibrary(libraryId_),
            "***** SQL error on " + facts_.table + " (Delete) *****");
    Tell(this, "Settings deleted.", MessageStyle::Information);
    Unload();
  });
}
