// Controls of a library screen: the menu that mirrors the buttons, symbol row, banner, buttons.
#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QVBoxLayout>

#include "directory/LibraryScreen.h"
#include "platform/controls/DateBox.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/OwnStyle.h"
#include "shell/Help.h"
#include "shell/Procedure.h"
#include "shell/Screens.h"

namespace {

constexpr int BannerPointSize = 11;

// Colours of the two banners: 192 a dark red, 49344 a dark yellow, red in the lowest byte.
const QColor InactiveColour(192, 0, 0), PendingColour(192, 192, 0);

void MakeBanner(QLabel* label, const QColor& colour) {
  QFont font = label->font();
  font.setBold(true);
  font.setPointSize(BannerPointSize);
  label->setFont(font);
  QPalette palette = label->palette();
  palette.setColor(QPalette::WindowText, colour);
  palette.setColor(QPalette::Window, Contrast::GroundFor(colour));
  label->setAutoFillBackground(true);
  label->setContentsMargins(8, 2, 8, 2);
  label->setPalette(palette);
  label->hide();
}

}  // namespace

LibraryScreen::LibraryScreen(LibrarySibling self, QWidget* parent)
    : Screen(DoorTo(self).formName, FactsOf(self).caption, parent), self_(self), facts_(FactsOf(self)) {
  for (const LibrarySibling sibling : AllLibrarySiblings) {
    if (sibling == self_) continue;
    const LibrarySiblingDoor& door = DoorTo(sibling);
    siblings_[sibling] = Form::Button(this, door.button, door.caption);
  }
  cmbLibrarySymbol->setEditable(true);
  cmbLibrarySymbol->setInsertPolicy(QComboBox::NoInsert);
  cmbLibrarySymbol->setCompleter(nullptr);
  // The toolkit would pick the entry that a typed symbol names as soon as the focus leaves the list.
  disconnect(cmbLibrarySymbol->lineEdit(), &QLineEdit::editingFinished, cmbLibrarySymbol, nullptr);
  cmbLibrarySymbol->hide();
  lblFound->hide();
  txtFound->hide();
  MakeReadOnly(txtFound);
  for (TextBox* box : {txtInstitution, txtLibraryName, txtContact}) MakeReadOnly(box);
  MakeBanner(lblLibraryInactiveMessage, InactiveColour);
  MakeBanner(lblLibraryPendingMessage, PendingColour);
  BuildMenu();
  ConnectControls();
}

void LibraryScreen::MakeReadOnly(TextBox* box) {
  box->setReadOnly(true);
  box->setFocusPolicy(Qt::ClickFocus);
}

void LibraryScreen::MakeEditable(TextBox* box) {
  box->setReadOnly(false);
  box->setFocusPolicy(Qt::StrongFocus);
}

// --- Menu ---

QAction* LibraryScreen::AddEntry(QMenu* menu, const QString& name, const QString& caption, QPushButton* button,
                                 QAction* before) {
  auto* const entry = new QAction(caption, this);
  entry->setObjectName(name);
  menu->insertAction(before, entry);
  Form::OnPress(entry, this, [button] { button->click(); });
  entries_[button] = entry;
  return entry;
}

void LibraryScreen::BuildMenu() {
  AddEntry(mnuFile, "mnuFileExit", "E&xit", cmdClose);
  for (const LibrarySibling sibling : AllLibrarySiblings)
    if (QPushButton* const button = SiblingButton(sibling))
      AddEntry(mnuDisplay, DoorTo(sibling).entry, DoorTo(sibling).caption, button);
  AddEntry(mnuOptions, "mnuOptionsUpdate", "&Update", cmdUpdate);
  AddEntry(mnuOptions, "mnuOptionsSearch", "&Search", cmdSearch);
  AddEntry(mnuOptions, "mnuOptionsClear", "Clea&r", cmdClear);
  AddEntry(mnuOptions, "mnuOptionsAdvanced", "Ad&vanced", cmdAdvanced);
  AddEntry(mnuRequest, "mnuRequestArticle", "Artic&le", cmdArticle);
  AddEntry(mnuRequest, "mnuRequestBook", "Boo&k", cmdBook);
  const auto about = [this](const QString& name, const QString& caption, FormName formName) {
    connect(Form::MenuEntry(mnuHelp, name, caption), &QAction::triggered, this,
            [this, name, formName] { Run(name + "_Click", [&] { ::ShowModal(formName, this); }); });
  };
  Help::AddEntry(*mnuHelp, *this, [this] { return objectName(); });
  about("mnuHelpAboutOstana", "&About Ostana", "frmAboutOstana");
  about("mnuHelpAboutApplication", "About &Tabulon", "frmAboutApp");
}

void LibraryScreen::Enable(QPushButton* button, bool enabled) {
  button->setEnabled(enabled);
  if (QAction* const entry = entries_.value(button)) entry->setEnabled(enabled);
}

void LibraryScreen::ShowButton(QPushButton* button, bool shown) {
  button->setVisible(shown);
  if (QAction* const entry = entries_.value(button)) entry->setVisible(shown);
}

// --- Layout ---

QWidget* LibraryScreen::SymbolRow() {
  auto* const row = new QWidget(this);
  auto* const line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  for (QWidget* widget :
       std::initializer_list<QWidget*>{txtLibrarySymbol, cmbLibrarySymbol, cmdSearch, cmdAdvanced, lblFound, txtFound})
    line->addWidget(widget);
  line->addSpacing(12);
  line->addWidget(lblLibraryInactiveMessage);
  line->addWidget(lblLibraryPendingMessage);
  line->addStretch();
  row->setFocusProxy(txtLibrarySymbol);
  return row;
}

QWidget* LibraryScreen::Banner() {
  auto* const banner = new QWidget(this);
  Form::KeepInSight(banner);
  Form::Rows rows(banner);
  rows.Add(lblLibrarySymbol, SymbolRow());
  rows.Add(lblInstitution, txtInstitution);
  rows.Add(lblLibraryName, txtLibraryName);
  rows.Add(lblContact, txtContact);
  txtLibrarySymbol->setAccessibleName(Form::PlainCaption(lblLibrarySymbol->text()));
  cmbLibrarySymbol->setAccessibleName(Form::PlainCaption(lblLibrarySymbol->text()));
  txtFound->setAccessibleName(Form::PlainCaption(lblFound->text()));
  return banner;
}

QLayout* LibraryScreen::NavigationRow(std::initializer_list<QPushButton*> doors) {
  auto* const row = new QHBoxLayout;
  for (const LibrarySibling sibling : AllLibrarySiblings)
    if (QPushButton* const button = SiblingButton(sibling)) row->addWidget(button);
  for (QPushButton* button : doors) row->addWidget(button);
  row->addStretch();
  row->addWidget(cmdArticle);
  row->addWidget(cmdBook);
  return row;
}

void LibraryScreen::Compose(QWidget* content, std::initializer_list<QWidget*> commands,
                            std::initializer_list<QPushButton*> doors) {
  QVBoxLayout* const column = Form::Column(this, {Banner(), content});
  column->setStretch(1, 1);
  column->addLayout(NavigationRow(doors));
  column->addLayout(Form::ButtonRow(commands));
  auto* const bar = new QMenuBar(this);
  for (QMenu* menu : {mnuFile, mnuDisplay, mnuOptions, mnuRequest, mnuHelp}) bar->addMenu(menu);
  column->setMenuBar(bar);
}

// --- Events ---

void LibraryScreen::ConnectControls() {
  connect(txtLibrarySymbol, &TextBox::Edited, this, &LibraryScreen::txtLibrarySymbol_Change);
  connect(cmbLibrarySymbol->lineEdit(), &QLineEdit::textEdited, this, &LibraryScreen::cmbLibrarySymbol_Change);
  connect(cmbLibrarySymbol, &CodeComboBox::Click, this, &LibraryScreen::cmbLibrarySymbol_Click);
  txtLibrarySymbol->SetEnterAction([this] { cmdSearch->click(); });
  cmbLibrarySymbol->installEventFilter(this);
  connect(cmdSearch, &QPushButton::clicked, this, &LibraryScreen::cmdSearch_Click);
  connect(cmdAdvanced, &QPushButton::clicked, this, &LibraryScreen::cmdAdvanced_Click);
  connect(cmdUpdate, &QPushButton::clicked, this, [this] { cmdUpdate_Click(); });
  connect(cmdClear, &QPushButton::clicked, this, &LibraryScreen::cmdClear_Click);
  connect(cmdClose, &QPushButton::clicked, this, &LibraryScreen::cmdClose_Click);
  connect(cmdArticle, &QPushButton::clicked, this, [this] { Request_Click("cmdArticle", "frmRequestArticle"); });
  connect(cmdBook, &QPushButton::clicked, this, [this] { Request_Click("cmdBook", "frmRequestBook"); });
  for (const LibrarySibling sibling : AllLibrarySiblings)
    if (QPushButton* const button = SiblingButton(sibling))
      connect(button, &QPushButton::clicked, this, [this, sibling] { Sibling_Click(sibling); });
}

// Enter in the list of matches searches, as it does in the box whose place the list takes.
bool LibraryScreen::eventFilter(QObject* watched, QEvent* event) {
  if (watched == cmbLibrarySymbol && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      cmdSearch->click();
      return true;
    }
  }
  return Screen::eventFilter(watched, event);
}

void LibraryScreen::Watch(std::initializer_list<TextBox*> boxes) {
  for (TextBox* box : boxes) connect(box, &TextBox::Change, this, [this] { record_.Touched(); });
}

void LibraryScreen::Watch(std::initializer_list<CodeComboBox*> boxes) {
  for (CodeComboBox* box : boxes) connect(box, &CodeComboBox::Click, this, [this] { record_.Touched(); });
}

void LibraryScreen::Watch(std::initializer_list<OptionGroup*> groups) {
  for (OptionGroup* group : groups) connect(group, &OptionGroup::Click, this, [this] { record_.Touched(); });
}

void LibraryScreen::Watch(std::initializer_list<DateBox*> boxes) {
  for (DateBox* box : boxes) connect(box, &DateBox::Change, this, [this] { record_.Touched(); });
}
