#pragma once

#include "platform/ado/Recordset.h"

// Type, size and scale of a column from the words that an engine's catalogue writes for its type: "VARCHAR(3)",
// "character varying(3)", "decimal(6,2)", "int(11)", "timestamp without time zone". Name and nullability stay open.
ColumnInfo DeclaredType(const QString& declared);
