#pragma once

#include <QString>

// The text with every literal that a statement in it compares with, assigns to or inserts into a column of passwords
// or card data replaced by '***'. A text that names no such column comes back as it is.
QString MaskSecrets(const QString& sql);
