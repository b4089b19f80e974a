#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <array>

#include "shell/FormName.h"

// The five screens that edit one row of ID_LIBRARY between them.
enum class LibrarySibling { Registration, Contact, Login, Statistics, Billing };
inline constexpr std::array AllLibrarySiblings = {LibrarySibling::Registration, LibrarySibling::Contact,
                                                  LibrarySibling::Login, LibrarySibling::Statistics,
                                                  LibrarySibling::Billing};

// How the other screens reach one of the five.
struct LibrarySiblingDoor {
  FormName formName;
  QString button;  // object name and, with "_Click", name of its handler
  QString caption;
  QString entry;        // object name of its entry in mnuDisplay
  QString failureLine;  // what a failed hand-over leaves in a traced log; empty where nothing is written
};

// First lines of the question before changed fields are lost. They differ between the screens on purpose; an empty
// one asks nothing.
struct GuardWords {
  QString clear;
  QString search;  // cmdSearch and cmdAdvanced
  QString close;
  QString request;        // cmdArticle and cmdBook
  QString siblingButton;  // asked by the button before it hands over
  QString unload;         // asked while the screen unloads, whatever unloads it
};

// Log lines around the hand-over to the Statistical screen, at level "L" of a traced log.
struct HandOverTrace {
  QString beforeUnload;
  QString afterUnload;
  QString beforeShow;
  QString afterShow;
  bool Wanted() const { return !beforeUnload.isEmpty(); }
};

// Who tells that no record is on show before a request is placed, and when.
enum class RequestOrder {
  RecordThenGuard,  // the screen's caption as title
  GuardThenRecord   // "Ostana - Book/Article" as title
};

// What one of the five has of its own in the steps that they share.
struct LibraryScreenFacts {
  QString caption;
  QString readProcedure;  // name of the procedure that reads the record
  QString textSection;    // of the custom text file
  QString textProcedure;  // log name of its reader, as the log readers know it
  GuardWords guard;
  RequestOrder requestOrder;
  QStringList noRequestsFor;  // calling applications that place no requests
  HandOverTrace toStatistics;
  QMap<QString, QString> logNames;  // of handlers whose log name is not form, point and handler
};

const LibrarySiblingDoor& DoorTo(LibrarySibling sibling);
const LibraryScreenFacts& FactsOf(LibrarySibling sibling);
