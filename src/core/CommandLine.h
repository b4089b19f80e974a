#pragma once

#include <QString>
#include <array>

// Positions 1 to 5 of the quoted arguments; index 0 is not used.
using AppArguments = std::array<QString, 6>;

// Fills the positions from a text of arguments in double quotes. False for a text shorter than 3 characters; True
// otherwise, however many positions were filled.
bool ID_DecodeAppArguments(const QString& commandLine, AppArguments& arguments);

// The command line as one text. A shell strips quotes, so that arguments without any get them back.
QString QuotedCommandLine(int argc, char** argv);

// Overwrites argument 3, the password, in the process's own argument list.
void ForgetPassword(int argc, char** argv);
