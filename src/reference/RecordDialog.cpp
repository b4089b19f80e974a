#include "reference/RecordDialog.h"

#include <QPushButton>

#include "core/ModuleState.h"
#include "core/SqlText.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/Grid.h"
#include "platform/controls/MemoBox.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/TextBox.h"
#include "shell/Messages.h"

namespace Reference {

bool WantsChangesApplied(QWidget* form, const Record& record, const FunctionRights& rights) {
  return record.Modified() && rights.update &&
         Confirm(form, "This record has been modified.\nDo you wish to apply the updates before continuing?");
}

QString UnableToAdd(const AdoError& error) {
  return "Unable to Add a new record.\n\n" + error.Description();
}

QString LoadingFormFailed(const AdoError& error) {
  return "An error has occurred loading the form.  Please Notify Support.\n\n" + error.Description();
}

QString LoadingFieldsFailed(const AdoError& error) {
  return "An error has occurred loading the fields.  Please Notify Support.\n\n" + error.Description();
}

QString NotifySupport(const AdoError& error) {
  return Texts::NotifySupport + "\n\n" + error.Description();
}

void ApplyRights(const FunctionRights& rights, const WritingButtons& buttons) {
  buttons.add->setEnabled(rights.add);
  buttons.update->setEnabled(rights.update);
  buttons.remove->setEnabled(rights.remove);
  if (buttons.clear != nullptr) buttons.clear->setEnabled(rights.update && rights.remove);
}

bool StandsElsewhere(const Grid& grid, const QString& text, int col, int row) {
  int found = grid.FindRow(text, col);
  if (found > 0 && found == row) found = grid.FindRow(text, col, row + 1);
  return found > 0;
}

bool UpdateRecord(QWidget* form, const QString& sql, const QString& failureLine, QWidget* focus, const QString& gone) {
  return Execute(sql, failureLine) > 0 || Refuse(form, gone, MessageStyle::Warning, focus);
}

bool DeleteRecord(QWidget* form, const QString& sql, const QString& failureLine, QWidget* focus) {
  return Execute(sql, failureLine) > 0 ||
         Refuse(form, "Nothing was deleted.  Make sure you have a valid record selected.", MessageStyle::Warning,
                focus);
}

void MarkEdits(Record& record, TextBox* box) {
  QObject::connect(box, &TextBox::Edited, box, [&record] { record.Touched(); });
}

void MarkEdits(Record& record, MemoBox* box) {
  QObject::connect(box, &MemoBox::Edited, box, [&record] { record.Touched(); });
}

void MarkEdits(Record& record, CodeComboBox* box) {
  QObject::connect(box, &CodeComboBox::Click, box, [&record] { record.Touched(); });
}

void MarkEdits(Record& record, OptionGroup* pair) {
  QObject::connect(pair, &OptionGroup::Click, pair, [&record] { record.Touched(); });
}

}  // namespace Reference
