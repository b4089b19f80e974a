#pragma once

#include <QString>

class CodeComboBox;
class CustomText;
class QWidget;

// What a list of codes starts on for a new record: the built-in code, or the one that the site's custom texts name.
class DefaultCode {
 public:
  // Where the code's description is read from, and what is said of a code that the list does not hold.
  struct Facts {
    const char* key;     // of the custom text
    const char* select;  // "SELECT   BILLING_TYPE_DESC", without the language's ending
    const char* table;
    const char* column;  // of the code
    const char* failureLine;
    const char* warning;  // opening of the warning; empty where there is none
    const char* builtIn;  // code; empty for the list's none entry
  };

  DefaultCode(CodeComboBox* box, Facts facts) : box_(box), facts_(facts) {}

  void Configure(const CustomText& texts);
  // Chooses the start entry. A configured code that the list does not hold is told once and forgotten, unless the list
  // was not read: then nobody knows, and the code is held.
  void Choose(QWidget* form, bool listWasRead);
  const QString& Code() const { return code_; }
  const CodeComboBox* Box() const { return box_; }

 private:
  CodeComboBox* box_;
  Facts facts_;
  QString code_;         // configured; empty for none
  QString description_;  // of the code, in the working language; empty when its row is gone
};
