#include "directory/frmDeliveryEmailTemplate.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

namespace {
const QString Failed = "A problem occurred while updating this record.  If the problem persists contact support.";
}

frmDeliveryEmailTemplate::frmDeliveryEmailTemplate(QWidget* parent)
    : Screen("frmDeliveryEmailTemplate", "Ostana - E-mail Message Template (Electronic Delivery)", parent) {
  BuildControls();
  connect(rdForExternalURL, &OptionGroup::Click, this, &frmDeliveryEmailTemplate::rdForExternalURL_Click);
  connect(cmdSetSystemDefault, &QPushButton::clicked, this,
          [this] { target_.Toggle([this] { return Load_TextBoxes(); }); });
  connect(cmdOK, &QPushButton::clicked, this, &frmDeliveryEmailTemplate::cmdOK_Click);
  connect(cmdDelete, &QPushButton::clicked, this, &frmDeliveryEmailTemplate::cmdDelete_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(); });
}

void frmDeliveryEmailTemplate::BuildControls() {
  for (TextBox* box : {txtInstitution, txtPatronName}) {
    box->setReadOnly(true);
    box->setFocusPolicy(Qt::ClickFocus);
  }
  auto* const head = new QWidget(this);
  Form::Rows whose(head);
  whose.Add("lblInstitution", "Institution:", txtInstitution);
  whose.Add("lblPatronName", "Patron:", txtPatronName);
  whose.Add("lblForExternalURL", "For External URL:", rdForExternalURL->Row());
  Form::Rows rows(fraTemplate);
  rows.Add("lblSkipHeaderAndFooter", "Skip Header and Footer:", rdSkipHeaderAndFooter->Row());
  rows.Add("lblSubject", "Sub&ject:", txtSubject);
  rows.Add("lblRequestInfo", "Request &Info:", txtRequestInfo);
  rows.Add("lblBody", "Bod&y:", txtBody);
  QVBoxLayout* const column = Form::Column(this, {head});
  column->addWidget(fraTemplate, 1);
  column->addLayout(Form::ButtonRow({cmdSetSystemDefault, nullptr, cmdOK, cmdDelete, cmdCancel}));
  resize(820, 620);
}

void frmDeliveryEmailTemplate::Form_Load() {
  rdForExternalURL->Select(1);
  rdSkipHeaderAndFooter->Select(0);
  family_ = Family();
  Load_TextBoxes();
  txtSubject->setFocus();
}

QString frmDeliveryEmailTemplate::Family() const {
  return rdForExternalURL->IsSet(0) ? "SED_" : "EMAIL_";
}

void frmDeliveryEmailTemplate::ClearBoxes() {
  txtSubject->SetText({});
  txtRequestInfo->SetText({});
  txtBody->SetText({});
  rdSkipHeaderAndFooter->Select(0);
}

// The row of library and patron, in the letters of the two SELECTs; UPDATE and DELETE have their own.
QString frmDeliveryEmailTemplate::OfTarget() const {
  return " WHERE    LIBRARY_ID = " + Sql::Number(target_.LibraryId()) + target_.PatronIs(" AND PATRON_ID", " IS Null");
}

// The family on show is not read again: what was typed stays.
void frmDeliveryEmailTemplate::rdForExternalURL_Click() {
  if (Family() == family_ && record_.MayBeWritten()) return;
  if (!Load_TextBoxes()) rdForExternalURL->Select(family_ == "SED_" ? 0 : 1);
}

bool frmDeliveryEmailTemplate::Load_TextBoxes() {
  return Procedure("frmDeliveryEmailTemplate.Load_TextBoxes", this).Run([this] {
    Record::Reading reading(record_);
    const QString institution = target_.Institution();
    std::optional<QStringList> row;
    ForEachRow("SELECT   * FROM " + Sql::Table("ID_EMAIL_MESSAGE") + OfTarget(),
               "***** SQL error on ID_EMAIL_MESSAGE  (Select) *****", [&](Recordset& rows) {
                 row.emplace();
                 for (const char* column : {"MESSAGE_SUBJECT", "MESSAGE_REQUEST", "MESSAGE_BODY", "SKIP_HEADER_FOOTER"})
                   row->append(Value(rows, Family() + column));
               });
    const QString patron = target_.PatronName();
    reading.Replaces();
    family_ = Family();
    fraTemplate->setTitle(QString("Message") +
                          (family_ == "SED_" ? " (Template for External URL)" : " (Template for Electronic Delivery)"));
    txtInstitution->SetText(institution);
    txtPatronName->SetText(patron);
    mbRowRead = row.has_value();
    ClearBoxes();
    if (row) {
      txtSubject->SetText(row->at(0));
      txtRequestInfo->SetText(row->at(1));
      txtBody->SetText(row->at(2));
      rdSkipHeaderAndFooter->Select(row->at(3) == "N" ? 1 : 0);
    }
    reading.Ended();
  });
}

// Asked before a row is added: two rows without a patron break no key, so another client's would stand beside it.
bool frmDeliveryEmailTemplate::RowExists() const {
  bool found = false;
  FirstValue("SELECT   LIBRARY_ID FROM " + Sql::Table("ID_EMAIL_MESSAGE") + OfTarget(),
             "***** SQL error on ID_EMAIL_MESSAGE  (Select) *****", &found);
  return found;
}

QString frmDeliveryEmailTemplate::UpdateStatement() const {
  return "UPDATE " + Sql::Table("ID_EMAIL_MESSAGE") + " SET " + Family() +
         "SKIP_HEADER_FOOTER = " + (rdSkipHeaderAndFooter->IsSet(1) ? "N'N'" : "N'Y'") + ", " + Family() +
         "MESSAGE_SUBJECT = " + Sql::NationalOr(txtSubject->Text(), "Null") + ", " + Family() +
         "MESSAGE_REQUEST = " + Sql::NationalOr(txtRequestInfo->Text(), "Null") + ", " + Family() +
         "MESSAGE_BODY = " + Sql::NationalOr(txtBody->Text(), "Null") +
         " WHERE    LIBRARY_ID = " + Sql::Number(target_.LibraryId()) +
         target_.PatronIs(" AND      PATRON_ID", " IS NULL");
}

QString frmDeliveryEmailTemplate::InsertStatement() const {
  QString columns = "LIBRARY_ID", values = Sql::Number(target_.LibraryId());
  const auto add = [&](const QString& column, const QString& value) {
    columns += ", " + column;
    values += ", " + value;
  };
  if (!target_.PatronId().isEmpty()) add("PATRON_ID", Sql::National(target_.PatronId()));
  add(Family() + "SKIP_HEADER_FOOTER", rdSkipHeaderAndFooter->IsSet(1) ? "N'N'" : "N'Y'");
  add(Family() + "MESSAGE_SUBJECT", Sql::National(txtSubject->Text()));
  if (!txtRequestInfo->Text().isEmpty()) add(Family() + "MESSAGE_REQUEST", Sql::National(txtRequestInfo->Text()));
  add(Family() + "MESSAGE_BODY", Sql::National(txtBody->Text()));
  return QString("INSERT ") + "INTO " + Sql::Table("ID_EMAIL_MESSAGE") + " (" + columns + ") VALUES (" + values + ")";
}

void frmDeliveryEmailTemplate::cmdOK_Click() {
  QString failing;
  Procedure("frmDeliveryEmailTemplate.cmdOK_Click", this)
      .OnFailure([&failing](const AdoError& error) {
        failing = error.Statement();
        return Failed;
      })
      .Finally([&failing] {
        if (!failing.isEmpty()) gclsOF->WriteLog("SQL statement: " + failing, {}, "S");
      })
      .Answers([this] {
        for (QWidget* box : std::initializer_list<QWidget*>{txtSubject, txtBody})
          if ((box == txtSubject ? txtSubject->Text() : txtBody->Text()).isEmpty())
            return Refuse(this, "This field is required.", MessageStyle::Stop, box);
        const bool exists = mbRowRead || RowExists();
        const QString statement = exists ? UpdateStatement() : InsertStatement();
        if (gclsOF->Tracing())
          gclsOF->WriteLog((exists ? "Update Statement: " : "Insert Statement: ") + statement, {}, "L");
        mbRowRead = ExecuteInTransaction(statement, exists ? "***** SQL Error on ID_EMAIL_MESSAGE (Update) *****"
                                                           : "***** SQL Error on ID_EMAIL_MESSAGE (Insert) *****") != 0;
        if (!mbRowRead) {
          gclsOF->WriteLog("SQL statement: " + statement, {}, "L");
          return Refuse(this, "Cannot add/update this record.", MessageStyle::Stop, nullptr);
        }
        Tell(this, "Email settings Updated.", MessageStyle::Information);
        return true;
      });
}

void frmDeliveryEmailTemplate::cmdDelete_Click() {
  Procedure("frmDeliveryEmailTemplate.cmdDelete_Click", this).OnFailure(Texts::NotifySupport).Answers([this] {
    if (!Confirm(this, "Are you sure you wish to delete this record ?")) return false;
    const qint64 deleted = ExecuteInTransaction("DELETE FROM " + Sql::Table("ID_EMAIL_MESSAGE") +
                                                    " WHERE    LIBRARY_ID = " + Sql::Number(target_.LibraryId()) +
                                                    target_.PatronIs(" AND PATRON_ID", " IS NULL "),
                                                "***** SQL error on ID_EMAIL_MESSAGE (Delete) *****");
    mbRowRead = false;
    if (deleted == 0) return Refuse(this, NothingDeleted, MessageStyle::Warning, nullptr);
    Tell(this, "Record deleted.", MessageStyle::Information);
    ClearBoxes();
    return true;
  });
}
