#pragma once

#include <QString>
#include <functional>

// Asks for user and password when the program was started without a user. False when the user cancelled.
using LogonQuestion = std::function<bool(QString& user, QString& password)>;

bool AskForLogon(QString& user, QString& password);
