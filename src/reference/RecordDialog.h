#pragma once

#include <QString>
#include <QWidget>

#include "core/Record.h"
#include "core/UserRights.h"
#include "platform/ado/AdoError.h"
#include "platform/desktop/Prompts.h"

class CodeComboBox;
class Grid;
class MemoBox;
class OptionGroup;
class QPushButton;
class TextBox;

// What the reference dialogs do and say in the same way. A dialog writes out its own order of tests, its own words and
// its own statements, also where they stand close to those of its neighbours.
namespace Reference {

namespace Words {
inline const QString Added = "Record has been added.";
inline const QString Updated = "Record has been updated.";
inline const QString Deleted = "Record has been deleted.";
inline const QString NothingChanged = "Nothing has been changed.";
inline const QString DeleteQuestion = "Are you sure you want to delete this record?";
inline const QString NoSuchCode = "This code does not exist in the table. Please select a valid code to update.";
inline const QString SameDescription = "Description already exists in table.";
inline const QString KeyIsFixed =
    "To change the Code or Library Symbol you must delete the current record and add it back in with the new code.";
inline const QString UpdateFailed =
    "An error has occurred while attempting to update the record.\n\nIf the error persists notify support.";
// Dialogs with two tabs, about each of them.
inline const QString ChooseToAdd = "Please choose a record to be Added";
inline const QString ChooseToDelete = "Please choose a record to be Deleted";
inline const QString SelectValidRecord = "Please select a valid record from the table.";
}  // namespace Words

// The question before a changed record is left, of a user who may write it. True: the changes are to be written.
bool WantsChangesApplied(QWidget* form, const Record& record, const FunctionRights& rights);

// Closing texts that end with the engine's own words.
QString UnableToAdd(const AdoError& error);
QString LoadingFormFailed(const AdoError& error);
QString LoadingFieldsFailed(const AdoError& error);
QString NotifySupport(const AdoError& error);

// The row of buttons of a dialog: Add, Update, Delete and, where it has one, Clear, which goes with the last two.
struct WritingButtons {
  QPushButton* add;
  QPushButton* update;
  QPushButton* remove;
  QPushButton* clear = nullptr;
};
// Switches off what the rights do not allow.
void ApplyRights(const FunctionRights& rights, const WritingButtons& buttons);

// Whether a data row other than `row` holds the text in the column.
bool StandsElsewhere(const Grid& grid, const QString& text, int col, int row);

// An UPDATE and a DELETE that mean a record on screen. False when another client has removed it meanwhile: the user has
// been told, and the focus is on `focus`.
bool UpdateRecord(QWidget* form, const QString& sql, const QString& failureLine, QWidget* focus,
                  const QString& gone = Words::NoSuchCode);
bool DeleteRecord(QWidget* form, const QString& sql, const QString& failureLine, QWidget* focus);

// Touches the record whenever the user, not code, changes the control.
void MarkEdits(Record& record, TextBox* box);
void MarkEdits(Record& record, MemoBox* box);
void MarkEdits(Record& record, CodeComboBox* box);
void MarkEdits(Record& record, OptionGroup* pair);
template <class... Controls>
requires(sizeof...(Controls) > 1) void MarkEdits(Record& record, Controls*... controls) {
  (MarkEdits(record, controls), ...);
}

}  // namespace Reference
