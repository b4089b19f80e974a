#pragma once

#include <QMap>

#include "support/Desk.h"

// A desk for the library screens: three libraries, the way into a screen as another application takes it, and chains
// of screens that hand a record on.
class LibraryDesk : public Desk {
 protected:
  static constexpr qint32 North = 101, South = 102, Gone = 999;

  void SetUp() override;

  // All forms by their names, those of other applications included.
  static void RegisterForms();
  // A row of ID_LIBRARY; `values` are SQL values by column.
  void AddLibrary(qint32 id, const QString& symbol, const QMap<QString, QString>& values = {});
  void SetColumn(qint32 id, const QString& column, const QString& value);
  QString Column(const QString& column, qint32 id = North);

  // Logged on, this library in hand, on behalf of a calling application.
  void Begin(qint32 libraryId = 0, const QString& caller = "Library Registration");
  Screen& OpenLibrary(const QString& formName, qint32 libraryId = 0, const QString& caller = "Library Registration");
  // Opens the screen modally, as the program does, and acts on it; returns when the whole chain is closed.
  void InSession(const QString& formName, std::function<void()> act);
  // Rights of the logged-on user on the function in force.
  void Rights(const QString& rights);

  // First line of the guard and its second one.
  static QString GuardText(const QString& firstLine);
  static constexpr auto Registered = "The Library Registration has been modified for this record.";
  static constexpr auto Modified = "This record has been modified.";
  bool LogHolds(const QString& text) const;
};
