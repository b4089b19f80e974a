#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QStringList>
#include <ostream>

// Shows texts in the messages of failed expectations.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QStringList& texts, std::ostream* out) {
  *out << '"' << texts.join("\", \"").toStdString() << '"';
}
