#pragma once

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "shell/Screen.h"
#include "support/Desk.h"

// A desk with a few libraries: two that edit, and a server that both use.
class InteropDesk : public Desk {
 protected:
  static constexpr qint32 Own = 101, Server = 202, Other = 303;

  void SetUp() override {
    Desk::SetUp();
    AddLibrary(Own, "OWN");
    AddLibrary(Server, "SERVER");
    AddLibrary(Other, "OTHER");
    Logon();
    gclsOF->SetLibraryId(Own);
    glngNCIPLibraryId = Server;
    Statements();
  }

  void AddLibrary(qint32 id, const QString& symbol) {
    Another("INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_ACTIVE, LIBRARY_SYMBOL, INSTITUTION_NAME) VALUES (" +
            QString::number(id) + ", 'Y', '" + symbol + "', '" + symbol + " INSTITUTION')");
  }
  // Takes the rights of another user, as from the next login on.
  void WithoutUpdateRight() {
    Another("UPDATE ID_USER_FUNCTION SET UPDATE_FLAG = 'N'");
    ASSERT_TRUE(gclsOF->ID_ValidateLogin(gclsOF->UserId(), gclsOF->UserPassword(), gclsOF->CurrentFunction()));
    ASSERT_FALSE(gclsOF->CanUpdate());
  }
  // Log lines whose text holds the words.
  QStringList Logged(const QString& words) { return LogLines().filter(words); }
  // The last entries of the log, without date and mark.
  QString LastLog(int back = 0) {
    const QStringList lines = LogLines();
    return lines.value(lines.size() - 1 - back).section("* ", 1);
  }
  // Where Tab leads from the first control on.
  QStringList TabStops(const QString& first, int count) {
    QStringList stops;
    Find<QWidget>(first)->setFocus();
    for (int stop = 0; stop < count; ++stop) {
      stops.append(Focus());
      Press(Focus(), Qt::Key_Tab);
    }
    return stops;
  }
  bool IsOpen() const { return Window() != nullptr && Window()->isVisible(); }
};
