#include "directory/frmLibraryAnnotationTemplate.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

namespace {

const QString DefaultSize = "8";  // points
const QString DefaultOrientation = "BottomLeft";
const QString SeriousFailure = "A serious error has occurred.  Please contact suppler.";

}  // namespace

frmLibraryAnnotationTemplate::frmLibraryAnnotationTemplate(QWidget* parent)
    : Screen("frmLibraryAnnotationTemplate", "Ostana - Annotation Template", parent) {
  BuildControls();
  connect(cmdSetSystemDefault, &QPushButton::clicked, this,
          [this] { target_.Toggle([this] { return LoadTemplate(); }); });
  connect(cmdOK, &QPushButton::clicked, this, &frmLibraryAnnotationTemplate::cmdOK_Click);
  connect(cmdDelete, &QPushButton::clicked, this, &frmLibraryAnnotationTemplate::cmdDelete_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(); });
}

void frmLibraryAnnotationTemplate::BuildControls() {
  for (TextBox* box : {txtInstitution, txtPatronName}) {
    box->setReadOnly(true);
    box->setFocusPolicy(Qt::ClickFocus);
  }
  for (const char* size : {"8", "10", "12"}) cmbTextFontSize->Add(size);
  for (const char* place : {"BottomLeft", "BottomCenter", "BottomRight", "TopLeft", "TopCenter", "TopRight", "LeftTop",
                            "LeftCenter", "LeftBottom", "RightTop", "RightCenter", "RightBottom"})
    cmbTextOrientation->Add(place);
  auto* const fields = new QWidget(this);
  Form::Rows rows(fields);
  rows.Add("lblInstitution", "Institution:", txtInstitution);
  rows.Add("lblPatronName", "Patron:", txtPatronName);
  rows.Add("lblUseAnnotation", "Use Annotation:", optUseAnnotation->Row());
  rows.Add("lblAnnotationText", "&Annotation Text:", txtAnnotationText);
  rows.Add("lblTextFontSize", "Text &Font Size:", cmbTextFontSize);
  rows.Add("lblTextOrientation", "Text Or&ientation:", cmbTextOrientation);
  QVBoxLayout* const column = Form::Column(this, {fields});
  column->addStretch();
  column->addLayout(Form::ButtonRow({cmdSetSystemDefault, nullptr, cmdOK, cmdDelete, cmdCancel}));
  resize(720, 320);
}

void frmLibraryAnnotationTemplate::Form_Load() {
  ShowDefaults();
  LoadTemplate();
  txtAnnotationText->setFocus();
}

void frmLibraryAnnotationTemplate::ShowDefaults() {
  optUseAnnotation->Select(0);
  txtAnnotationText->SetText({});
  cmbTextFontSize->SetText(DefaultSize);
  cmbTextOrientation->SetText(DefaultOrientation);
}

// The same in all statements.
QString frmLibraryAnnotationTemplate::OfTarget() const {
  return " WHERE        LIBRARY_ID  = " + Sql::Number(target_.LibraryId()) +
         target_.PatronIs(" AND PATRON_ID", " IS NULL");
}

QString frmLibraryAnnotationTemplate::SelectStatement() const {
  return "SELECT   * FROM " + Sql::Table("ID_ANNOTATION") + OfTarget();
}

bool frmLibraryAnnotationTemplate::LoadTemplate() {
  QString query;
  return Procedure("frmLibraryAnnotationTemplate.LoadTemplate", this)
      .OnFailure([&query](const AdoError& error) {
        query = error.Statement();
        return gstrErrorMessage;
      })
      .Finally([&query] {
        if (!query.isEmpty()) gclsOF->WriteLog("Query: " + query, {}, "S");
      })
      .Run([this] {
        Record::Reading reading(record_);
        const QString institution = target_.Institution(), patron = target_.PatronName();
        std::optional<QStringList> row;
        ForEachRow(SelectStatement(), "***** SQL error on ID_ANNOTATION (Select) *****", [&row](Recordset& rows) {
          row.emplace();
          for (const char* column : {"USE_ANNOTATION", "ANNOTATION", "TEXT_FONT_SIZE", "TEXT_ORIENTATION"})
            row->append(Value(rows, column));
        });
        reading.Replaces();
        txtInstitution->SetText(institution);
        txtPatronName->SetText(patron);
        mbRowRead = row.has_value();
        ShowDefaults();
        if (row) ShowTemplate(*row);
        reading.Ended();
      });
}

void frmLibraryAnnotationTemplate::ShowTemplate(const QStringList& row) {
  optUseAnnotation->Select(row[0] == "N" ? 1 : 0);
  txtAnnotationText->SetText(row[1]);
  // A value that is not in its list falls back to the default.
  if (cmbTextFontSize->IndexOfText(row[2]) >= 0) cmbTextFontSize->SetText(row[2]);
  if (cmbTextOrientation->IndexOfText(row[3]) >= 0) cmbTextOrientation->SetText(row[3]);
}

QString frmLibraryAnnotationTemplate::UpdateStatement() const {
  const QString text = txtAnnotationText->Text();
  return "UPDATE " + Sql::Table("ID_ANNOTATION") + " SET LIBRARY_ID = " + Sql::Number(target_.LibraryId()) +
         (optUseAnnotation->IsSet(0) ? ",USE_ANNOTATION = N'Y' " : ",USE_ANNOTATION = N'N' ") +
         (text.isEmpty() ? QString(", ANNOTATION = NULL ") : ", ANNOTATION = " + Sql::National(text) + " ") +
         ", TEXT_FONT_SIZE = " + cmbTextFontSize->Text() +
         ", TEXT_ORIENTATION = " + Sql::National(cmbTextOrientation->Text()) + OfTarget();
}

QString frmLibraryAnnotationTemplate::InsertStatement() const {
  const QString patron = target_.PatronId();
  return "INSERT INTO " + Sql::Table("ID_ANNOTATION") + " ( " +
         "LIBRARY_ID, PATRON_ID, USE_ANNOTATION, ANNOTATION, TEXT_FONT_SIZE, TEXT_ORIENTATION ) " + "VALUES ( " +
         Sql::Number(target_.LibraryId()) + (patron.isEmpty() ? QString(", NULL ") : ", " + Sql::National(patron)) +
         (optUseAnnotation->IsSet(0) ? ", N'Y'" : ", N'N'") + ", " +
         Sql::NationalOr(txtAnnotationText->Text(), "NULL") + ", " + cmbTextFontSize->Text() + ", " +
         Sql::National(cmbTextOrientation->Text()) + ")";
}

void frmLibraryAnnotationTemplate::LogFailure(const QString& opening, const QString& statement, const QString& error) {
  gclsOF->WriteLog(opening + statement, {}, "L");
  gclsOF->WriteLog("SQL Error: " + error, {}, "L");
  gclsOF->WriteLog("Values: " + QStringList{QString::number(target_.LibraryId()), target_.PatronId(),
                                            optUseAnnotation->IsSet(0) ? "Y" : "N", txtAnnotationText->Text(),
                                            cmbTextFontSize->Text(), cmbTextOrientation->Text()}
                                    .join(", "),
                   {}, "L");
  gclsOF->WriteLog("Fields: LIBRARY_ID, PATRON_ID, USE_ANNOTATION, ANNOTATION, TEXT_FONT_SIZE, TEXT_ORIENTATION", {},
                   "L");
}

void frmLibraryAnnotationTemplate::cmdOK_Click() {
  QString opening;  // of the log line, as soon as there is something to write
  Procedure("frmLibraryAnnotationTemplate.cmdOK_Click", this)
      .OnFailure([&](const AdoError& error) {
        if (!opening.isEmpty()) LogFailure(opening, error.Statement(), error.Description());
        return SeriousFailure;
      })
      .Answers([&] {
        // Asked before a row is added: two rows without a patron break no key, and another client's may stand there.
        bool exists = mbRowRead;
        if (!exists) FirstValue(SelectStatement(), "***** SQL error on ID_ANNOTATION (Select) *****", &exists);
        opening = exists ? "Update SQL: " : "Insert Statement: ";
        const QString statement = exists ? UpdateStatement() : InsertStatement();
        mbRowRead = ExecuteInTransaction(statement, exists ? "***** SQL Error on ID_ANNOTATION (Update) *****"
                                                           : "***** SQL Error on ID_ANNOTATION (Insert) *****") != 0;
        if (!mbRowRead) {
          LogFailure(opening, statement, "no row was written");
          return Refuse(this, "Cannot add record to database.", MessageStyle::Stop, nullptr);
        }
        Tell(this, "Annotation Email settings Updated.", MessageStyle::Information);
        return true;
      });
}

void frmLibraryAnnotationTemplate::cmdDelete_Click() {
  Procedure("frmLibraryAnnotationTemplate.cmdDelete_Click", this).OnFailure(SeriousFailure).Answers([this] {
    if (!Confirm(this, "Are you sure you wish to delete this record ?")) return false;
    const qint64 deleted = ExecuteInTransaction("DELETE FROM " + Sql::Table("ID_ANNOTATION") + OfTarget(),
                                                "***** SQL error on ID_ID_ANNOTATION (Delete) *****");
    mbRowRead = false;
    if (deleted == 0) return Refuse(this, NothingDeleted, MessageStyle::Warning, nullptr);
    Tell(this, "Record deleted.", MessageStyle::Information);
    ShowDefaults();
    return true;
  });
}
