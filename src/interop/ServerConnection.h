#pragma once

#include "core/Record.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/TextBox.h"
#include "shell/Screen.h"

class Recordset;
class StatementReport;

// What the two dialogs of a library's server connection share. Each keeps one row: the dialog loads it, OK writes it,
// Delete removes it. They differ in whose row it is, in its table and in most of its fields.
class ServerConnection : public Screen {
  Q_OBJECT

 public:
  // What a dialog says of itself.
  struct Facts {
    QString formName;
    QString caption;
    QString systemBox;  // object name of the first list
    QString urlBox;
    QString table;
    QString systemColumn, typeColumn;
    QString hostColumn, urlColumn, portColumn;
    int portDigits;
    QString loadName, okName, deleteName;  // of the log, as its readers know them
  };
  // A column and its value as it stands in a statement.
  using Columns = std::vector<std::pair<QString, QString>>;

 protected:
  ServerConnection(const Facts& facts, qint32 libraryId, QWidget* parent);

  void Form_Load() override;

  // The fields beyond those below.
  virtual void ShowRow(const Recordset& rows) = 0;
  virtual void TrimFields() = 0;
  // All columns but the key, in the order of the table.
  virtual Columns Values() const = 0;

  // Lays out the dialog around its fields; behind the last of them Tab leads to the buttons.
  void Compose(QWidget* content);

  CodeComboBox* const cmbSystem;  // the name is the dialog's own
  CodeComboBox* const cmbConnect = new CodeComboBox(this, "cmbConnect");
  TextBox* const txtServerAddress = new TextBox(this, "txtServerAddress", 80);
  TextBox* const txtUrl;  // the name is the dialog's own
  QLabel* const lblPort = Form::Label(this, "lblPort", "Port:");
  TextBox* const txtPort;
  QPushButton* const cmdOK = Form::Button(this, "cmdOK", "&OK");
  QPushButton* const cmdDelete = Form::Button(this, "cmdDelete", "&Delete");
  QPushButton* const cmdCancel = Form::Button(this, "cmdCancel", "&Cancel");

 private:
  void LoadForm();
  void cmdOK_Click();
  void cmdDelete_Click();
  bool Validate();
  QString WriteStatement() const;
  // Runs a procedure that writes; a failure is logged and told, and the dialog stays.
  void RunWrite(const QString& logName, const std::function<void()>& body);
  void ApplyRights();

  const Facts facts_;
  const qint32 libraryId_;  // whose row it is
  Record record_;           // none where the library has no row yet
  bool mbRecordExists = false;
};
