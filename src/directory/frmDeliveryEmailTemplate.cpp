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
  connect(rdForExternalURL, &OptionGroup::Click, this, &frmDeliveryEmailTemplate::Load_TextBoxes);
  connect(cmdSetSystemDefault, &QPushButton::clicked, this, [this] {
    target_.Toggle();
    Load_TextBoxes();
  });
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

int frmDeliveryEmailTemplate::Tell(const QString& text, int style) {
  return ShowMessage(text, style, Caption(), {}, this);
}

void frmDeliveryEmailTemplate::Form_Load() {
  rdForExternalURL->Select(1);
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
  const QString patron = target_.PatronId();
  return " WHERE    LIBRARY_ID = " + Sql::Number(target_.LibraryId()) +
         (patron.isEmpty() ? QString(" AND PATRON_ID IS Null") : " AND PATRON_ID = " + Sql::National(patron));
}

void frmDeliveryEmailTemplate::Load_TextBoxes() {
  Procedure("frmDeliveryEmailTemplate.Load_TextBoxes", this).Run([this] {
    fraTemplate->setTitle(QString("Message") + (Family() == "SED_" ? " (Template for External URL)"
                                                                   : " (Template for Electronic Delivery)"));
    ClearBoxes();
    mbRowRead = false;
    txtInstitution->SetText(target_.Institution());
    ForEachRow("SELECT   * FROM " + Sql::Table("ID_EMAIL_MESSAGE") + OfTarget(),
               "***** SQL error on ID_EMAIL_MESSAGE  (Select) *****", [this](Recordset& rows) {
                 mbRowRead = true;
                 txtSubject->SetText(Value(rows, Family() + "MESSAGE_SUBJECT"));
                 txtRequestInfo->SetText(Value(rows, Family() + "MESSAGE_REQUEST"));
                 txtBody->SetText(Value(rows, Family() + "MESSAGE_BODY"));
                 rdSkipHeaderAndFooter->Select(Value(rows, Family() + "SKIP_HEADER_FOOTER") == "N" ? 1 : 0);
               });
    txtPatronName->SetText(target_.PatronName());
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
  const QString patron = target_.PatronId();
  return "UPDATE " + Sql::Table("ID_EMAIL_MESSAGE") + " SET " + Family() +
         "SKIP_HEADER_FOOTER = " + (rdSkipHeaderAndFooter->IsSet(1) ? "N'N'" : "N'Y'") + ", " + Family() +
         "MESSAGE_SUBJECT = " + Sql::NationalOr(txtSubject->Text(), "Null") + ", " + Family() +
         "MESSAGE_REQUEST = " + Sql::NationalOr(txtRequestInfo->Text(), "Null") + ", " + Family() +
         "MESSAGE_BODY = " + Sql::NationalOr(txtBody->Text(), "Null") +
         " WHERE    LIBRARY_ID = " + Sql::Number(target_.LibraryId()) + " " +
         (patron.isEmpty() ? QString("AND      PATRON_ID IS NULL") : "AND      PATRON_ID = " + Sql::National(patron));
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
  QString statement;
  Procedure procedure("frmDeliveryEmailTemplate.cmdOK_Click", this);
  procedure.OnFailure(Failed)
      .Finally([&statement] {
        if (!statement.isEmpty()) gclsOF->WriteLog("SQL statement: " + statement, {}, "S");
      })
      .Run([&] {
        QWidget* const empty = txtSubject->Text().isEmpty() ? static_cast<QWidget*>(txtSubject)
                               : txtBody->Text().isEmpty()  ? txtBody
                                                            : nullptr;
        if (empty) {
          Tell("This field is required.", MessageStyle::Stop);
          empty->setFocus();
          return;
        }
        const bool exists = mbRowRead || RowExists();
        statement = exists ? UpdateStatement() : InsertStatement();
        if (gclsOF->Tracing())
          gclsOF->WriteLog((exists ? "Update Statement: " : "Insert Statement: ") + statement, {}, "L");
        const qint64 written =
            ExecuteInTransaction(statement, exists ? "***** SQL Error on ID_EMAIL_MESSAGE (Update) *****"
                                                   : "***** SQL Error on ID_EMAIL_MESSAGE (Insert) *****");
        mbRowRead = written != 0;
        if (written == 0) {
          gclsOF->WriteLog("SQL statement: " + statement, {}, "L");
          Tell("Cannot add/update this record.", MessageStyle::Stop);
          return;
        }
        Tell("Email settings Updated.", MessageStyle::Information);
      });
}

void frmDeliveryEmailTemplate::cmdDelete_Click() {
  Procedure("frmDeliveryEmailTemplate.cmdDelete_Click", this).OnFailure(Texts::NotifySupport).Run([this] {
    if (Tell("Are you sure you wish to delete this record ?", MessageStyle::Question) != MessageAnswer::Yes) return;
    const QString patron = target_.PatronId();
    ExecuteInTransaction(
        "DELETE FROM " + Sql::Table("ID_EMAIL_MESSAGE") + " WHERE    LIBRARY_ID = " + Sql::Number(target_.LibraryId()) +
            (patron.isEmpty() ? QString(" AND PATRON_ID IS NULL ") : " AND PATRON_ID = " + Sql::National(patron)),
        "***** SQL error on ID_EMAIL_MESSAGE (Delete) *****");
    mbRowRead = false;
    Tell("Record deleted.", MessageStyle::Information);
    ClearBoxes();
  });
}
