#pragma once

#include <QString>

// One row of ID_ISO18626_CONNECT as the screen holds it, and the statements that write it. Texts are raw; the port is
// a text of digits.
struct ISO18626Record {
  QString id;
  QString illSystem;  // codes
  QString connectType;
  QString hostAddress;
  QString hostUrl;  // empty is stored as Null
  QString hostPort;
  QString version;
  QString authnType;
  bool retry = false;
  bool transfer = false;
  bool patronInfo = false;   // counts with transfer only
  bool patronEmail = false;  // these two with transfer and patronInfo only
  bool patronAddress = false;
  bool cancel = false;
  bool renew = false;
  bool notification = false;
  bool requestResponse = false;
  bool reasonNotification = false;

  QString Insert() const;
  QString Update() const;
};
