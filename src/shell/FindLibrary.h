#pragma once

#include <QString>

class QWidget;

struct FoundLibrary {
  bool allowed = false;  // False: the right was refused and the user has been told
  qint32 id = 0;         // below 1: nothing chosen
  QString symbol;        // of the library chosen
};

// The library search that many screens offer: borrows the right "Library Registration", shows the registration screen
// and takes its current library as the answer. Function, rights, calling function and library id come back on every
// path. What an empty answer does to the caller's box is the caller's matter.
FoundLibrary FindLibrary(QWidget* form, int refusedStyle = 16);

// Symbol of a library by id; empty when there is no such row.
QString LibrarySymbolOf(qint32 id);
// Id of the row whose symbol equals the text exactly (letter case counts), -1 when there is none; reads with
// "SELECT LIBRARY_SYMBOL, LIBRARY_ID FROM  ". `quoted` is Sql::Plain on the tabs, Sql::National elsewhere.
qint32 LibraryIdOfExactSymbol(const QString& symbol, QString (*quoted)(const QString&), const QString& failureLine);
