#pragma once

#include <QHash>
#include <QMenu>
#include <QSet>

#include "core/Record.h"
#include "core/UserRights.h"
#include "directory/CodeList.h"
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

// The row of ID_LIBRARY that a screen works on, as it was read.
struct LibraryInHand {
  qint32 id = 0;  // below 1: none
  QString symbol;
  QString activeLetter;  // LIBRARY_ACTIVE
};

// What the five library screens share. A library is one row of ID_LIBRARY; each screen edits its slice of it, and the
// record goes with the user from one to the next through the current library id of the common services. What may be
// done to it follows from how it was read: a reading that fails leaves the library before in hand, its id included. A
// screen adds its fields, the columns it reads, how it shows and empties them, its checks and its UPDATE.
class LibraryScreen : public Screen {
  Q_OBJECT

 public:
  LibraryScreen(LibrarySibling self, QWidget* parent);

  void Form_Activate() override;

 protected:
  // --- What a screen tells of itself ---
  // Columns it reads besides active letter, symbol, institution, library and contact, each with a leading ", ".
  virtual QString Columns() const = 0;
  // Reads what belongs to the record besides its row, before anything on the screen is replaced.
  virtual void ReadFurther(const Recordset&, qint32 /*libraryId*/) {}
  // Fills what Shows did not tell, from the row and from what was read further.
  virtual void ShowRecord(const Recordset& rows) = 0;
  // Empties the same, puts lists back to their defaults; symbol, banner and state are done already.
  virtual void ClearFields() = 0;
  virtual void cmdUpdate_Click() = 0;
  // Its lists of codes, in the order in which they are read, and what they start on.
  virtual std::vector<CodeList> CodeLists() const { return {}; }
  virtual void ChooseDefaults() {}
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
  virtual void DropEdits() { record_.Settled(); }
  // Whether the record on show may be given requests.
  virtual bool RecordIsActive() const { return library_.activeLetter != "N"; }

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
  // Fields that show a column as it stands, told once: filled, watched and, boxes, emptied.
  void Shows(std::initializer_list<std::pair<TextBox*, const char*>> boxes);
  void Shows(std::initializer_list<std::pair<CodeComboBox*, const char*>> lists);
  // Any change of these counts as a change of the record, unless code is filling the screen.
  void Watch(std::initializer_list<TextBox*> boxes);
  void Watch(std::initializer_list<CodeComboBox*> boxes);
  void Watch(std::initializer_list<OptionGroup*> groups);
  void Watch(std::initializer_list<DateBox*> boxes);

  // --- Steps ---
  // The frame of an event procedure of this screen; `handler` as in "cmdSearch_Click".
  bool Run(const QString& handler, const std::function<void()>& body);
  // The same around a statement that writes the record: a failure leaves the statement in the log as well.
  bool RunUpdate(const QString& handler, const QString& closingText, const std::function<void()>& body);
  QString LogName(const QString& handler) const;
  // A stop message, then the box has the focus with its text selected. Always False.
  bool Refuse(const QString& text, QWidget* box);
  // True when the handler may go on. Empty words ask nothing.
  bool GuardPassed(const QString& firstLine);
  // The first two tests of Update: that something was changed (`unchanged` is what is said otherwise), and that a
  // record is on show.
  bool HasRecordToUpdate(const QString& unchanged = "Nothing has been changed.");
  // "Library Symbol is a required field." and "Please enter a value." on a line of its own.
  bool SymbolIsGiven();
  // Trimmed in place, which is no change of the record.
  void Trim(std::initializer_list<TextBox*> boxes);
  void TrimShown();
  // LAST_MODIFIED and DATE_ENTERED of a statement written now.
  static QString PresentDate();
  // "UPDATE ID_LIBRARY SET ..." of the library in hand.
  QString UpdateOfRecord(const ColumnValues& values) const;
  // True when the statement found the row. Otherwise that is told, and no library is in hand any more.
  bool RowWasFound(qint64 affected);
  // "Library Symbol: (...) has been updated."; nothing is left to save.
  void TellUpdated();
  // Sets the request counters of all libraries to 0. Rows found.
  static qint64 ResetLoadBalancing();

  // The code's entry, or the code as it stands; an empty one is the none entry where the list has one.
  static void ShowCode(CodeComboBox* box, const QString& code);
  bool ListWasRead(const CodeComboBox* box) const { return !unreadLists_.contains(box); }

  enum class ReadResult { Found, NoRow, Failed };
  // Reads the library and takes it in hand. A failure has been told and leaves the screen as it stood; so does a
  // missing row, but for the commands that work on the record.
  ReadResult Read(qint32 libraryId);
  // A library that was written or read just now.
  void TakeInHand(const LibraryInHand& library);
  bool HasRecord() const;
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
  void UnloadAndShow(FormName formName, std::function<void()> afterwards = {});

  Record& record() { return record_; }
  const LibraryInHand& library() const { return library_; }
  const FunctionRights& rights() const { return rights_; }

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
  void PopulateComboBoxes();
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
  void Request_Click(const QString& button, FormName formName);
  bool RecordIsOnShow(const QString& title);
  // Commands that work on the record follow its state, and whether its symbol still stands in the box.
  void FollowRecord();
  void SetDisplayed(bool displayed);
  void LetGo();
  void ShowMatches(const QString& text);
  void FillBanner(const Recordset& rows);

  const LibrarySibling self_;
  const LibraryScreenFacts& facts_;
  QHash<LibrarySibling, QPushButton*> siblings_;
  QHash<QPushButton*, QAction*> entries_;
  QSet<const CodeComboBox*> unreadLists_;
  std::vector<std::pair<TextBox*, const char*>> shownBoxes_;
  std::vector<std::pair<CodeComboBox*, const char*>> shownLists_;
  FunctionRights rights_;  // that the screen was opened under
  Record record_;
  LibraryInHand library_;
  bool displayed_ = false;  // the symbol of the record stands in the box; a typed one is no record until it is searched
};

// Failure line of reading a library.
inline const QString LibrarySelectFailed = "***** SQL error on ID_LIBRARY (Select) *****";
