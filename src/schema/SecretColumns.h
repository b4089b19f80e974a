#pragma once

#include <QString>

// Whether the text, a statement or the name of a column, names a column that no log and no export tells: passwords,
// card data, and what a server of a partner takes for a password.
bool NamesSecretColumn(const QString& text);
