#pragma once

#include <QMetaType>
#include <QVariant>

#include "platform/ado/Recordset.h"

// AdoType of a column that no catalogue describes: an expression.
int TypeOfDriver(QMetaType type);

// The driver's value as the text that the system reads; null for NULL. The shape gives values of SQLite the form of
// their column; the servers' values have it already, and come with an empty shape. A moment that the clock of this
// machine leaps over in spring is invalid as a QDateTime but keeps its date and its time.
QString TextOf(const QVariant& value, const ColumnInfo& shape);
