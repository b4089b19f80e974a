#pragma once

#include <QString>
#include <optional>

// What a command says and asks on the terminal.
namespace Terminal {

void Print(const QString& line);  // standard output
void Complain(const QString& line);

// A line typed without echo, asked for twice and equal; from a pipe it is read once. Nothing when the input ends, is
// empty, or the two differ (told already).
std::optional<QString> AskNewPassword(const QString& user);

}  // namespace Terminal
