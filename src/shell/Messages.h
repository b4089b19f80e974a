#pragma once

#include <QString>
#include <QWidget>

#include "platform/desktop/Prompts.h"

// The one message box of the system. Style: MessageStyle bits (16 stop, 36 question with Yes and No, 48 warning,
// 64 information). An empty title is the application's; without an owner it is the form that has the focus. The
// answer is the platform's code (6 Yes, 7 No).
int ShowMessage(const QString& text, int style, const QString& title = {}, const QString& icon = {},
                QWidget* owner = nullptr);

// What nearly every message is: the caption of the form's window as title, the window as owner. The answer.
int Tell(QWidget* form, const QString& text, int style);
// How a test of an entry ends: the message, then the focus on its field (none when null). Always False.
bool Refuse(QWidget* form, const QString& text, int style, QWidget* focus);
// True when the answer is Yes.
bool Confirm(QWidget* form, const QString& question, int style = MessageStyle::Question);

// Closing texts that several screens share, letter for letter.
namespace Texts {
inline const QString DatabaseError =
    "A database error has occurred.  Please verify your data entry\nand your Database structure.";
inline const QString NotifySupport = "An error has occurred.  Please Notify Support.";
inline const QString DeleteFailed = "An error has occurred while attempting to delete the record.";
inline const QString Referenced = "The Code is referenced by another table in the database.";
inline const QString Persists = "If the error persists notify support.";
inline const QString NoAccess = "You do not have access to this function";
// A row that is not, or no longer, in the table.
inline const QString NoSuchCode = "This Code does not exist in the table.  Please select a Valid Code to Update.";
inline const QString NoSuchRow = "Please select a valid record from the table.";
inline const QString NothingDeleted = "Nothing was deleted.  Make sure you have a valid record selected.";
inline const QString DeleteQuestion = "Are you sure you wish to Delete this record?";
}  // namespace Texts

class AdoError;
// DeleteFailed, two line breaks, and Referenced or Persists, by the error's number.
QString DeleteFailureText(const AdoError& error);
