#include "reference/NoticeEmail.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QStackedWidget>
#include <algorithm>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "shell/Editing.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

NoticeEmail::NoticeEmail(NoticeSheet sheet, QWidget* parent)
    : Screen(sheet.form, sheet.caption, parent), sheet_(std::move(sheet)) {
  for (const NoticeColumn& column : sheet_.columns) fields_.push_back({column, nullptr, nullptr, {}});
  BuildControls();
}

// --- Controls ---

void NoticeEmail::BuildControls() {
  for (TextBox* box : {txtRequestType, txtRequestTypeDesc}) {
    box->setReadOnly(true);
    box->setFocusPolicy(Qt::ClickFocus);
  }
  txtRequestTypeDesc->setAccessibleName("Description of the request type");
  const bool hasPdf = std::any_of(sheet_.columns.begin(), sheet_.columns.end(),
                                  [](const NoticeColumn& column) { return column.group == NoticeColumn::Pdf; });
  auto* const head = new QWidget(this);
  Form::Rows rows(head);
  rows.Add("lblRequestType", "Request Type:", txtRequestType, txtRequestTypeDesc);
  if (hasPdf) {
    options_ = new OptionGroup(this, {{"optText", "&Text message"}, {"optPDF", "&PDF message"}});
    rows.Add("lblMessage", "Message:", options_->Row());
    connect(options_, &OptionGroup::Click, this, [this](int group) {
      ShowGroup(group);
      record_.Touched();
    });
  }
  groups_ = new QStackedWidget(this);
  groups_->addWidget(BuildGroup(NoticeColumn::Text));
  if (hasPdf) groups_->addWidget(BuildGroup(NoticeColumn::Pdf));

  QVBoxLayout* const column = Form::Column(this, {head});
  PlaceGroups(column);
  cmdOK = Form::Button(this, "cmdOK", "&OK");
  cmdCancel = Form::Button(this, "cmdCancel", "&Cancel");
  connect(cmdOK, &QPushButton::clicked, this, &NoticeEmail::cmdOK_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(); });
  column->addLayout(Form::ButtonRow({nullptr, cmdOK, cmdCancel}));
  forms_.push_back(rows.Layout());
  AlignLabels();
  // Without a message there is nothing that takes the room.
  if (findChild<MemoBox*>() == nullptr) resize(width(), sizeHint().height());
}

// A Browse button of both messages stands behind the report, the last field of either.
void NoticeEmail::PlaceGroups(QVBoxLayout* column) {
  const auto ofBoth = [](const NoticeBrowse& browse) { return browse.report.isEmpty(); };
  const auto browse = std::find_if(sheet_.browse.begin(), sheet_.browse.end(), ofBoth);
  if (browse == sheet_.browse.end()) return column->addWidget(groups_, 1);
  groups_->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
  auto* const both = new QHBoxLayout;
  both->addWidget(groups_, 0, Qt::AlignBottom);
  both->addWidget(BrowseButton(*browse), 0, Qt::AlignBottom);
  both->addStretch();
  column->addLayout(both);
  column->addStretch(1);
}

void NoticeEmail::AlignLabels() {
  int widest = 0;
  for (const QGridLayout* form : forms_)
    for (int row = 0; row < form->rowCount(); ++row)
      if (const QLayoutItem* const label = form->itemAtPosition(row, 0))
        widest = std::max(widest, label->sizeHint().width());
  for (QGridLayout* form : forms_) form->setColumnMinimumWidth(0, widest);
}

QWidget* NoticeEmail::BuildGroup(NoticeColumn::Group group) {
  auto* const page = new QWidget(this);
  Form::Rows rows(page);
  for (Field& field : fields_) {
    const NoticeColumn& column = field.column;
    if (column.group != group) continue;
    QWidget* box = nullptr;
    if (column.box == NoticeColumn::Memo)
      box = field.memo = new MemoBox(page, column.control, column.limit);
    else
      box = field.line = new TextBox(page, column.control, column.limit);
    QWidget* beside = nullptr;
    for (const NoticeBrowse& browse : sheet_.browse)
      if (browse.report == column.control) beside = BrowseButton(browse);
    rows.Add("lbl" + column.control.mid(3), column.caption, box, beside);
    ConnectBox(field);
  }
  forms_.push_back(rows.Layout());
  const bool grows = std::any_of(fields_.begin(), fields_.end(),
                                 [group](const Field& field) { return field.column.group == group && field.memo; });
  if (!grows) rows.Stretch();
  return page;
}

QPushButton* NoticeEmail::BrowseButton(const NoticeBrowse& browse) {
  QPushButton* const button = Form::Button(this, browse.button, "&Browse...", "Choose the report file");
  connect(button, &QPushButton::clicked, this, [this, browse] { Browse(browse); });
  return button;
}

void NoticeEmail::ConnectBox(Field& field) {
  const auto changed = [this] { record_.Touched(); };
  if (field.line)
    connect(field.line, &TextBox::Change, this, changed);
  else
    connect(field.memo, &MemoBox::Change, this, changed);
}

void NoticeEmail::ShowGroup(int group) {
  groups_->setCurrentIndex(group);
}

QWidget* NoticeEmail::Box(const QString& control) const {
  return findChild<QWidget*>(control);
}

bool NoticeEmail::AllEmpty(std::initializer_list<const char*> controls) const {
  return std::all_of(fields_.begin(), fields_.end(), [&](const Field& field) {
    const bool asked = std::any_of(controls.begin(), controls.end(),
                                   [&](const char* name) { return field.column.control == QLatin1String(name); });
    return !asked || field.Text().isEmpty();
  });
}

// --- Load ---

void NoticeEmail::Form_Load() {
  if (options_) options_->Select(NoticeColumn::Text);
  ShowGroup(NoticeColumn::Text);
  // What could not be read must not be written over.
  Procedure(sheet_.loadLogName, this).Run([this] {
    Record::Reading reading(record_);
    reading.Replaces();
    PopulateForm();
    reading.Ended();
  });
  cmdOK->setEnabled(record_.MayBeWritten() && rights_.update);
}

void NoticeEmail::PopulateForm() {
  const QString ofType = "WHERE    REQUEST_TYPE = " + Sql::Plain(gstrCoverRequestType);
  txtRequestType->SetText(gstrCoverRequestType);
  txtRequestTypeDesc->SetText(FirstValue(
      "SELECT   REQUEST_TYPE_DESC" + gclsOF->LanguageSuffix() + " FROM " + Sql::Table("ID_REQUEST_TYPE") + " " + ofType,
      "***** SQL error on ID_REQUEST_TYPE (Select) *****"));
  QStringList names;
  for (const Field& field : fields_) names.append(field.column.name);
  ForEachRow("SELECT   " + names.join(", ") + " FROM " + Sql::Table("ID_COVER_INFO") + " " + ofType,
             "***** SQL error on ID_COVER_INFO (Select) *****", [this](Recordset& rows) {
               for (Field& field : fields_) {
                 field.stored = Value(rows, field.column.name);
                 field.SetText(field.stored);
               }
             });
}

// --- Reports ---

void NoticeEmail::Browse(const NoticeBrowse& browse) {
  Procedure procedure(sheet_.form + "." + browse.button + "_Click", this);
  procedure.Run([&] {
    const std::optional<QString> file =
        Prompts().OpenFile({browse.title, gclsOF->SystemFile("Reports"), "*.rpt", this});
    if (!file) return;
    const QString control = !browse.report.isEmpty() ? browse.report
                            : PdfChosen()            ? QString("txtPDFReport")
                                                     : QString("txtTextReport");
    for (Field& field : fields_)
      if (field.column.control == control) field.SetText(QFileInfo(*file).fileName());
  });
}

// --- OK ---

void NoticeEmail::cmdOK_Click() {
  Procedure procedure(sheet_.okLogName, this);
  if (sheet_.logsQuery) procedure.LogStatement("Query: ");
  procedure.Run([&] {
    if (!mbRecordChanged()) {
      Tell(this, "Nothing has been changed.", MessageStyle::Stop);
      return;
    }
    QWidget* const blank = BlankMessage();
    if (blank && !Confirm(this, "Are you sure you wish to leave the message blank?")) {
      blank->setFocus();
      return;
    }
    ExecuteInTransaction(UpdateStatement(), "***** SQL error on ID_COVER_INFO (Update) *****");
    Tell(this, "Record has been updated.", MessageStyle::Information);
    Unload();
  });
}

// Both messages are saved, whichever is on screen.
QString NoticeEmail::UpdateStatement() const {
  QStringList settings;
  for (const Field& field : fields_) settings.append(field.column.name + " = " + Sql::PlainOr(field.Text(), "Null"));
  return "UPDATE   " + Sql::Table("ID_COVER_INFO") + " SET      " + settings.join(", ") +
         " WHERE    REQUEST_TYPE = " + Sql::Plain(gstrCoverRequestType);
}
