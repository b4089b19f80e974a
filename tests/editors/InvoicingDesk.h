#pragma once

#include <QLocale>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "support/Desk.h"

// The tab "Invoicing", entered, on the reference rows: billing rates A, C, N and R.
class InvoicingDesk : public Desk {
 protected:
  inline static const QString DatabaseError =
      "A database error has occurred.  Please verify your data entry\nand your Database structure.";

  void TearDown() override {
    Desk::TearDown();
    QLocale::setDefault(QLocale::c());
  }
  // On a machine whose decimal separator is ",".
  void EnterWithComma() {
    QLocale::setDefault(QLocale("de_DE"));
    Enter();
  }
  void Enter() {
    Start();
    SelectTab("sstabtables", frmTabulon::InvoicingTab);
    Statements();
  }
  void Pick(const QString& rateTable) {
    Choose("cmb7RateTable", rateTable);
    Statements();
  }
  void Refused(const QString& text, int style, const QString& button, const QString& focus) {
    Prompt().ExpectTitled(text, style, "Ostana - System Maintenance");
    Click(button);
    EXPECT_EQ(Focus(), focus) << text.toStdString();
    EXPECT_TRUE(Writing().isEmpty());
  }
  void Done(const QString& text, const QString& button) {
    Prompt().Expect(text, 64);
    Click(button);
    EXPECT_FALSE(gbRecordModified);
  }
  void AnswerDelete(int answer) { Prompt().Expect("Are you sure you wish to Delete this record?", 36, answer); }
  // A text in a box that no key and no paste has brought there.
  void Put(const QString& box, const QString& text) { Find<TextBox>(box)->SetText(text); }
};
