#pragma once

#include <QString>
#include <functional>

// Asks for user and password when the program was started without a user. False when the user cancelled.
using LogonQuestion = std::function<bool(QString& user, QString& password)>;

// What asks instead of the dialog frmLogon while it is set.
inline LogonQuestion gLogonDialog;

bool AskForLogon(QString& user, QString& password);
