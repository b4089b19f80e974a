#pragma once

#include <QHash>
#include <QMenu>

#include "directory/CustomText.h"
#include "directory/LibraryScreenFacts.h"
#include "platform/ado/Recordset.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/TextBox.h"
#include "shell/Screen.h"

class ColumnValues;
class DateBox;
class OptionGroup;
class QCheckBox;

// What the five library screens share. A library is one row of ID_LIBRARY; each screen edits its slice of it, and the
// record goes with the user from one to the next through the current library id of the common services. A screen adds
// its fields, the columns it reads, how it shows and empties them, its checks and its UPDATE.
class LibraryScreen : public Screen {
  Q_OBJECT

 public:
  LibraryScreen(LibrarySibling self, QWidget* parent);

  void Form_Activate() override;

 protected:
  // --- What a screen tells of itself ---
  // Columns it reads besides active letter, symbol, institution, library and contact, each with a leading ", ".
  virtual QString Columns() const = 0;
  // Fills the fields of the screen. Further reads that belong to the record are made here.
  virtual void ShowRecord(const Recordset& rows) = 0;
  // Empties the fields of the screen, lists and defaults included; symbol, banner and state are done already.
  virtual void ClearFields() = 0;
  virtual void cmdUpdate_Click() = 0;
  virtual void PopulateComboBoxes() {}
  // Its keys beyond those that all five have, and what of its section is no caption.
  virtual std::span<const TextKey> TextKeys() const { return {}; }
  virtual void ReadFurtherText(const CustomText&) {}
  // Settings that the rest of the load stands on.
  virtual void LoadSettings() {}
  // How the screen looks when it is loaded with no library in hand; a record that is read comes over it.
  virtual void ShowNoRecord() {}
  // Hides what the user's rights do not allow.
  virtual void ApplyRights();
  // Buttons and entries that work on the record on show.
  virtual void EnableRecord(bool enabled);
  // The answer No: the edits are dropped, the record stays.
  virtual void DropEdits() { mbRecordModified = false; }
  // Whether the record on show may be given requests.
  virtual bool RecordIsActive() const { return mstrActiveLetter != "N"; }

  // --- Building ---
  // Puts the screen together around its own fields: menu, symbol row, banner, content, the ways to other screens
  // (`doors` besides the siblings), the row of commands.
  void Compose(QWidget* content, std::initializer_list<QWidget*> commands,
               std::initializer_list<QPushButton*> doors = {});
  // An entry that clicks the button and mirrors it.
  QAction* AddEntry(QMenu* menu, const QString& name, const QString& caption, QPushButton* button,
                    QAction* before = nullptr);
  void Enable(QPushButton* button, bool enabled);
  void ShowButton(QPushButton* button, bool shown);
  QPushButton* SiblingButton(LibrarySibling sibling) const { return siblings_.value(sibling); }
  // The banner's boxes are for reading unless a screen makes them its own.
  static void MakeReadOnly(TextBox* box);
  static void MakeEditable(TextBox* box);
  // Any change of these counts as a change of the record, unless code is filling the screen.
  void Watch(std::initializer_list<TextBox*> boxes);
  void Watch(std::initializer_list<CodeComboBox*> boxes);
  void Watch(std::initializer_list<OptionGroup*> groups);
  void Watch(std::initializer_list<DateBox*> boxes);
  void MarkModified();

  // --- Steps ---
  // The frame of an event procedure of this screen; `handler` as in "cmdSearch_Click".
  bool Run(const QString& handler, const std::function<void()>& body);
  // The same around a statement that writes the record: a failure leaves the statement in the log as well.
  bool RunUpdate(const QString& handler, const QString& closingText, const std::function<void()>& body);
  // Executes and remembers the statement as the one that may fail.
  static qint64 ExecuteUpdate(const QString& sql, const QString& failureLine, bool inTransaction = true);
  QString LogName(const QString& handler) const;
  int Tell(const QString& text, int style, const QString& title = {});
  // A stop message, then the box has the focus with its text selected. Always False.
  bool Refuse(const QString& text, QWidget* box);
  // True when the handler may go on. Empty words ask nothing.
  bool GuardPassed(const QString& firstLine);
  // The first two tests of Update: that something was changed (`unchanged` is what is said otherwise), and that a
  // record is on show.
  bool HasRecordToUpdate(const QString& unchanged = "Nothing has been changed.");
  // "Library Symbol is a required field." and "Please enter a value." on a line of its own.
  bool SymbolIsGiven();
  // LAST_MODIFIED and DATE_ENTERED of a statement written now.
  static QString PresentDate();
  // "UPDATE ID_LIBRARY SET ..." of the current library.
  static QString UpdateOfRecord(const ColumnValues& values);
  // "Library Symbol: (...) has been updated."; nothing is left to save.
  void TellUpdated();
  // Sets the request counters of all libraries to 0. Rows found.
  static qint64 ResetLoadBalancing();

  enum class ReadResult { Found, NoRow, Failed };
  // Reads the library and makes it the current one. A failure has been told and leaves the screen as it stood.
  ReadResult Read(qint32 libraryId);
  // As after a search: a record that is gone empties the screen.
  void ReadOrClear(qint32 libraryId);
  void ShowActiveLetter(const QString& letter);
  void Display(const QString& what);  // "TextBox" or "ComboBox"
  void ClearScreen();
  void FocusSymbol();
  // One search from the text in a box: test, look-up, record or list of matches.
  void SearchFrom(TextBox* box, const std::function<bool(const QString& text, qint32& id, qint32& count)>& lookUp);
  // Unloads this screen and shows the other one in its place.
  void HandOver(LibrarySibling target);
  // Unloads this screen and shows the form in its place; `afterwards` runs when it and what follows it are closed.
  void UnloadAndShow(const QString& formName, std::function<void()> afterwards = {});

  bool mbRecordModified = false;
  bool mbRecordDisplayed = false;
  QString mstrDisplayedSymbol;
  QString mstrEnteredSymbol;
  QString mstrActiveLetter;  // LIBRARY_ACTIVE as read last

  TextBox* const txtLibrarySymbol = new TextBox(this, "txtLibrarySymbol", 25);
  CodeComboBox* const cmbLibrarySymbol = new CodeComboBox(this, "cmbLibrarySymbol");
  QLabel* const lblLibrarySymbol = Form::Label(this, "lblLibrarySymbol", "Library Symbol:");
  QLabel* const lblFound = Form::Label(this, "lblFound", "Found:");
  TextBox* const txtFound = new TextBox(this, "txtFound", 5);
  QLabel* const lblInstitution = Form::Label(this, "lblInstitution", "Institution:");
  TextBox* const txtInstitution = new TextBox(this, "txtInstitution", 100);
  QLabel* const lblLibraryName = Form::Label(this, "lblLibraryName", "Library Name:");
  TextBox* const txtLibraryName = new TextBox(this, "txtLibraryName", 100);
  QLabel* const lblContact = Form::Label(this, "lblContact", "Contact:");
  TextBox* const txtContact = new TextBox(this, "txtContact", 50);
  QLabel* const lblLibraryInactiveMessage = Form::Label(this, "lblLibraryInactiveMessage", "Library Inactive");
  QLabel* const lblLibraryPendingMessage = Form::Label(this, "lblLibraryPendingMessage", "Library Pending");

  QPushButton* const cmdSearch = Form::Button(this, "cmdSearch", "&Search");
  QPushButton* const cmdAdvanced = Form::Button(this, "cmdAdvanced", "Ad&vanced");
  QPushButton* const cmdUpdate = Form::Button(this, "cmdUpdate", "&Update");
  QPushButton* const cmdClear = Form::Button(this, "cmdClear", "Clea&r");
  QPushButton* const cmdClose = Form::Button(this, "cmdClose", "&Close");
  QPushButton* const cmdArticle = Form::Button(this, "cmdArticle", "Artic&le");
  QPushButton* const cmdBook = Form::Button(this, "cmdBook", "Boo&k");

  QMenu* const mnuFile = Form::Menu(this, "mnuFile", "&File");
  QMenu* const mnuDisplay = Form::Menu(this, "mnuDisplay", "&Display");
  QMenu* const mnuOptions = Form::Menu(this, "mnuOptions", "&Options");
  QMenu* const mnuRequest = Form::Menu(this, "mnuRequest", "Re&quest");
  QMenu* const mnuHelp = Form::Menu(this, "mnuHelp", "&Help");

  void Form_Load() override;
  bool Form_QueryUnload() override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildMenu();
  void ConnectControls();
  QWidget* SymbolRow();
  QWidget* Banner();
  QLayout* NavigationRow(std::initializer_list<QPushButton*> doors);
  void LoadText();
  void ApplyCaller();
  void ReadAtLoad();

  void txtLibrarySymbol_Change();
  void cmbLibrarySymbol_Change();
  void cmbLibrarySymbol_Click();
  void cmdSearch_Click();
  void cmdAdvanced_Click();
  void cmdClear_Click();
  void cmdClose_Click();
  void Sibling_Click(LibrarySibling target);
  void Request_Click(const QString& button, const QString& formName);
  bool RecordIsOnShow(const QString& title);
  void ShowMatches(const QString& text);
  void StayOnRecord();
  void FillBanner(const Recordset& rows);

  const LibrarySibling self_;
  const LibraryScreenFacts& facts_;
  QHash<LibrarySibling, QPushButton*> siblings_;
  QHash<QPushButton*, QAction*> entries_;
};

// Failure line of reading a library.
inline const QString LibrarySelectFailed = "***** SQL error on ID_LIBRARY (Select) *****";
