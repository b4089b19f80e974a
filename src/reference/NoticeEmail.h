#pragma once

#include <QPushButton>
#include <vector>

#include "core/Record.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/MemoBox.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/TextBox.h"
#include "shell/Screen.h"

class QGridLayout;
class QStackedWidget;

// One column of ID_COVER_INFO that a notice dialog edits, and its box.
struct NoticeColumn {
  enum Group { Text, Pdf };  // of the text message or of the PDF message
  enum Box { Line, Memo };
  QString name;
  Group group;
  QString control;
  QString caption;
  int limit = 0;  // characters; 0 leaves the length to the database
  Box box = Line;
};

struct NoticeBrowse {
  QString button;
  QString title;   // of the file dialog
  QString report;  // the box beside the button; empty: one button for the box of the option in force
};

// What one notice dialog is made of.
struct NoticeSheet {
  QString form;
  QString caption;
  QString loadLogName, okLogName;
  std::vector<NoticeColumn> columns;  // in the order of the update
  std::vector<NoticeBrowse> browse;
  bool logsQuery = false;  // a failed update is followed by its statement in the log
};

// What the four dialogs of the notice e-mails share: a few columns of the row of one request type
// (gstrCoverRequestType), for a text message and, in most of them, a PDF message, each with the report that renders it.
class NoticeEmail : public Screen {
  Q_OBJECT

 protected:
  NoticeEmail(NoticeSheet sheet, QWidget* parent);

  void Form_Load() override;

  // The message that is left blank: the box that takes the focus when the user does not mean that. Null when nothing is
  // to be asked.
  virtual QWidget* BlankMessage() const { return nullptr; }
  bool AllEmpty(std::initializer_list<const char*> controls) const;
  bool PdfChosen() const { return options_ && options_->IsSet(NoticeColumn::Pdf); }
  QWidget* Box(const QString& control) const;

 private:
  struct Field {
    NoticeColumn column;
    TextBox* line = nullptr;  // one of the two
    MemoBox* memo = nullptr;
    QString stored;

    QString Text() const { return line ? line->Text() : memo->Text(); }
    void SetText(const QString& text) { line ? line->SetText(text) : memo->SetText(text); }
  };

  void BuildControls();
  QWidget* BuildGroup(NoticeColumn::Group group);
  void PlaceGroups(QVBoxLayout* column);
  QPushButton* BrowseButton(const NoticeBrowse& browse);
  void ConnectBox(Field& field);
  void AlignLabels();
  void ShowGroup(int group);
  void PopulateForm();
  void Browse(const NoticeBrowse& browse);
  void cmdOK_Click();
  QString UpdateStatement() const;

  const NoticeSheet sheet_;
  std::vector<Field> fields_;
  std::vector<QGridLayout*> forms_;  // one below the other
  // The record on the controls was edited.
  bool mbRecordChanged() const { return record_.Modified(); }

  Record record_;

  TextBox* const txtRequestType = new TextBox(this, "txtRequestType", 3);
  TextBox* const txtRequestTypeDesc = new TextBox(this, "txtRequestTypeDesc");
  OptionGroup* options_ = nullptr;  // optText and optPDF; null on the dialog without a PDF message
  QStackedWidget* groups_ = nullptr;
  QPushButton* cmdOK = nullptr;
  QPushButton* cmdCancel = nullptr;
};
