#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QTest>

#include "core/Clock.h"
#include "directory/LibraryDesk.h"
#include "platform/controls/DateBox.h"
#include "platform/controls/TextBox.h"

// A desk for the contact screen, at noon of a day of its own.
class LibraryContactDesk : public LibraryDesk {
 protected:
  static inline const QDateTime Noon{QDate(2024, 3, 5), QTime(12, 30, 15)};
  static inline const QString Caption = "Ostana - Contact Information";

  void SetUp() override {
    LibraryDesk::SetUp();
    Clock::Set([] { return Noon; });
  }
  void OpenScreen(qint32 id = North) { OpenLibrary("frmLibraryContactInfo", id); }
  DateBox* Date(const QString& name) { return Find<DateBox>(name); }
  // By hand: the check before the date.
  void TickDate(const QString& name) { Date(name)->findChild<QAbstractButton*>("qt_datebox_check")->click(); }
  // Leaves a date by Tab, as a hand does.
  void Leave(const QString& name) {
    auto* const check = Date(name)->findChild<QWidget*>("qt_datebox_check");
    QApplication::setActiveWindow(check->window());
    check->setFocus();
    QTest::keyClick(check, Qt::Key_Backtab);
    QCoreApplication::processEvents();
  }
  bool HasFocus(const QString& date) { return Date(date)->isAncestorOf(QApplication::focusWidget()); }
  void Saves() {
    Prompt().ExpectTitled("Library Symbol: (NORTH) has been updated.", MessageStyle::Information, Caption);
    Click("cmdUpdate");
  }
  void Refused(const QString& text, const QString& box) {
    Prompt().ExpectTitled(text, MessageStyle::Stop, Caption);
    Click("cmdUpdate");
    EXPECT_EQ(Focus(), box);
    EXPECT_EQ(Find<TextBox>(box)->selectedText(), Text(box)) << "text selected";
    EXPECT_TRUE(Writing().isEmpty());
  }
  void AddServer(qint32 library) {
    Another(
        "INSERT INTO ID_NCIP_CONNECT (LIBRARY_ID, NCIP_ILS_SYSTEM, NCIP_CONNECT_TYPE, NCIP_HOST_ADDRESS, "
        "NCIP_HOST_PORT) VALUES (" +
        QString::number(library) + ", 'KELDRY', 'HTTP', 'h', 1)");
  }
  void AddConnection(const QString& id) {
    Another(
        "INSERT INTO ID_ISO18626_CONNECT (ISO18626_CONNECTION_ID, ILL_SYSTEM, ISO18626_CONNECT_TYPE, "
        "ISO18626_HOST_ADDRESS, ISO18626_HOST_PORT, ISO18626_VERSION, ISO18626_AUTHN_TYPE, RT_RETRY, "
        "RST_TRANSFER_REQUEST, TRANSFER_PATRON_INFO, TRANSFER_PATRON_EMAIL, TRANSFER_PATRON_ADDRESS, "
        "ACTION_CANCEL, ACTION_RENEW, ACTION_NOTIFICATION, RFM_REQUEST_RESPONSE, RFM_NOTIFICATION) VALUES ('" +
        id + "', 'TALVERNE', 'HTTPS', 'h', 443, '1.2', 'BASIC', 'N', 'N', 'N', 'N', 'N', 'N', 'N', 'N', 'N', 'N')");
  }
};
