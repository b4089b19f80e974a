#include "reference/RecordDialog.h"

#include "core/ModuleState.h"
#include "core/SqlText.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/Grid.h"
#include "platform/controls/MemoBox.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/TextBox.h"
#include "shell/Messages.h"

namespace Reference {

bool WantsChangesApplied(QWidget* form) {
  return Confirm(form, "This record has been modified.\nDo you wish to apply the updates before continuing?");
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

bool StandsElsewhere(const Grid& grid, const QString& text, int col, int row) {
  int found = grid.FindRow(text, col);
  if (found > 0 && found == row) found = grid.FindRow(text, col, row + 1);
  return found > 0;
}

void UpdateRecord(const QString& sql, const QString& failureLine) {
  if (Execute(sql, failureLine) > 0) return;
  gstrErrorMessage = failureLine;
  throw AdoError(AdoNumber::RowChanged, "The record is no longer in the table.", "Tabulon");
}

void MarkEdits(bool& changed, TextBox* box) {
  QObject::connect(box, &TextBox::Edited, box, [&changed] { changed = true; });
}

void MarkEdits(bool& changed, MemoBox* box) {
  QObject::connect(box, &MemoBox::Edited, box, [&changed] { changed = true; });
}

void MarkEdits(bool& changed, CodeComboBox* box) {
  QObject::connect(box, &CodeComboBox::Click, box, [&changed] { changed = true; });
}

void MarkEdits(bool& changed, OptionGroup* pair) {
  QObject::connect(pair, &OptionGroup::Click, pair, [&changed] { changed = true; });
}

}  // namespace Reference
