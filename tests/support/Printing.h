#pragma once

#include <QString>
#include <QStringList>
#include <ostream>

// How GoogleTest shows Qt's texts.
QT_BEGIN_NAMESPACE
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QStringList& texts, std::ostream* out) {
  for (const QString& text : texts) *out << "\n  \"" << text.toStdString() << '"';
}
QT_END_NAMESPACE
