#pragma once

#include <QString>
#include <QWidget>

#include "platform/ado/AdoError.h"
#include "platform/desktop/Prompts.h"

class CodeComboBox;
class Grid;
class MemoBox;
class OptionGroup;
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

// The question before a changed record is left. True: the changes are to be written.
bool WantsChangesApplied(QWidget* form);

// Closing texts that end with the engine's own words.
QString UnableToAdd(const AdoError& error);
QString LoadingFormFailed(const AdoError& error);
QString LoadingFieldsFailed(const AdoError& error);
QString NotifySupport(const AdoError& error);

// Whether a data row other than `row` holds the text in the column.
bool StandsElsewhere(const Grid& grid, const QString& text, int col, int row);

// An UPDATE that means a record on screen. When another client has deleted it, that is a failure
// (AdoNumber::RowChanged), not a change that is lost in silence.
void UpdateRecord(const QString& sql, const QString& failureLine);

// Sets the form's flag whenever the user, not code, changes the control.
void MarkEdits(bool& changed, TextBox* box);
void MarkEdits(bool& changed, MemoBox* box);
void MarkEdits(bool& changed, CodeComboBox* box);
void MarkEdits(bool& changed, OptionGroup* pair);
template <class... Controls>
requires(sizeof...(Controls) > 1) void MarkEdits(bool& changed, Controls*... controls) {
  (MarkEdits(changed, controls), ...);
}

}  // namespace Reference
