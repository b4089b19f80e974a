#include "directory/TemplateTarget.h"

#include <QPushButton>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/Record.h"
#include "core/SqlText.h"

TemplateTarget::TemplateTarget(Record& record, QPushButton* toggle, QPushButton* save, QPushButton* remove)
    : record_(record), toggle_(toggle), save_(save), remove_(remove) {
  record.Observe([this] { ShowState(); });
  ShowState();
}

void TemplateTarget::Toggle(const std::function<bool()>& load) {
  systemDefault_ = !systemDefault_;
  if (!load()) systemDefault_ = !systemDefault_;
  ShowState();
}

void TemplateTarget::ShowState() {
  toggle_->setText(systemDefault_ ? "&Return" : "&Set System Default");
  toggle_->setToolTip(systemDefault_ ? "Return to previous template." : "Set the system's default template.");
  save_->setToolTip(systemDefault_ ? "Save the system's default template." : "Save this template.");
  remove_->setToolTip(systemDefault_ ? "The system's default template cannot be deleted." : "Delete this template.");
  save_->setEnabled(record_.MayBeWritten());
  remove_->setEnabled(record_.MayBeWritten() && !systemDefault_);
}

qint32 TemplateTarget::LibraryId() const {
  return systemDefault_ ? 0 : gclsOF->LibraryId();
}

QString TemplateTarget::PatronId() const {
  return systemDefault_ ? QString() : gclsOF->PatronId();
}

QString TemplateTarget::PatronIs(const QString& column, const QString& none) const {
  return column + (PatronId().isEmpty() ? none : " = " + Sql::National(PatronId()));
}

QString TemplateTarget::Institution() const {
  if (systemDefault_) return "System Default";
  return FirstValue("SELECT   INSTITUTION_NAME FROM " + Sql::Table("ID_LIBRARY") +
                        " WHERE    LIBRARY_ID = " + Sql::Number(LibraryId()),
                    "***** SQL error on ID_LIBRARY  (Select) *****");
}

QString TemplateTarget::PatronName() const {
  if (PatronId().isEmpty()) return {};
  QString name;
  ForEachRow("SELECT   PATRON_NAME, PATRON_SURNAME FROM " + Sql::Table("ID_PATRON") +
                 " WHERE    LIBRARY_ID = " + Sql::Number(LibraryId()) + " AND PATRON_ID = " + Sql::National(PatronId()),
             "***** SQL error on ID_PATRON  (Select) *****",
             [&name](Recordset& rows) { name = (Value(rows, 0) + " " + Value(rows, 1)).trimmed(); });
  return name;
}
