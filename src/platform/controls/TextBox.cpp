#include "platform/controls/TextBox.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QStyleOptionFrame>
#include <limits>

#include "platform/controls/FieldEdge.h"
#include "platform/controls/FieldTip.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/LeaveGuard.h"
#include "platform/controls/TextInput.h"

namespace {
constexpr char16_t Backspace = 8, Enter = 13;
constexpr int Unlimited = std::numeric_limits<int>::max();
constexpr int WidestField = 60, UnlimitedField = 40, NarrowestField = 3;  // characters
constexpr int Around = 5;                                                 // pixels: frame and margin

bool IsEnter(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
  return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) && modifiers == Qt::NoModifier;
}
}  // namespace

TextBox::TextBox(QWidget* parent, const QString& name, int maxLength) : QLineEdit(parent) {
  setObjectName(name);
  FieldEdge::Watch(this);
  SetMaxLength(maxLength);
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
  connect(this, &QLineEdit::textChanged, this, &TextBox::Change);
  connect(this, &QLineEdit::textEdited, this, &TextBox::Edited);
}

void TextBox::SetMaxLength(int limit) {
  setMaxLength(limit > 0 ? limit : Unlimited);
  updateGeometry();
}

int TextBox::MaxLength() const {
  return maxLength() == Unlimited ? 0 : maxLength();
}

void TextBox::SetText(const QString& text) {
  setText(TextInput::Fitting(text, maxLength()));
  ShowBeginning();
}

QString TextBox::TrimInPlace() {
  const QString trimmed = text().trimmed();
  if (trimmed != text()) SetText(trimmed);
  return trimmed;
}

QString TextBox::TrimUpperInPlace() {
  const QString upper = TextInput::Upper(text().trimmed());
  if (upper != text()) SetText(upper);
  return text();
}

void TextBox::ShowBeginning() {
  if (!hasFocus()) home(false);
}

QString TextBox::Rule() const {
  if (isReadOnly() || !rule_.isEmpty()) return isReadOnly() ? QString() : rule_;
  const QString limit = MaxLength() == 0   ? QString()
                        : MaxLength() == 1 ? tr("1 character")
                                           : tr("up to %1 characters").arg(MaxLength());
  if (!upperCase_) return limit;
  return limit.isEmpty() ? tr("capitals") : limit + QStringLiteral(", ") + tr("capitals");
}

bool TextBox::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QLineEdit::event(event);
  // The frame and the margins of a line edit take some pixels at each end.
  const QString shown = echoMode() == Normal ? text() : QString();
  FieldTip::Show(*static_cast<QHelpEvent*>(event), *this, FieldTip::Of(*this, shown, width() - 2 * Around, Rule()));
  return true;
}

void TextBox::SelectAllAndFocus() {
  setFocus(Qt::OtherFocusReason);
  selectAll();
}

void TextBox::SetKeyPress(KeyPressFilter filter, bool pasteUnfiltered) {
  filter_ = std::move(filter);
  pasteUnfiltered_ = pasteUnfiltered;
}

void TextBox::UpperCaseAsTyped() {
  upperCase_ = true;
}

void TextBox::SetLeaveCheck(std::function<bool()> check) {
  delete leave_;
  leave_ = check ? new LeaveGuard(this, std::move(check)) : nullptr;
}

void TextBox::SetEnterAction(std::function<void()> action) {
  enterAction_ = std::move(action);
}

// A box that shows only looks like the window behind it.
void TextBox::initStyleOption(QStyleOptionFrame* option) const {
  QLineEdit::initStyleOption(option);
  if (isReadOnly()) option->palette.setBrush(QPalette::Base, option->palette.window());
}

QSize TextBox::sizeHint() const {
  const int characters = MaxLength() == 0 ? UnlimitedField : MaxLength();
  return {Form::FieldWidth(this, std::clamp(characters, NarrowestField, WidestField)), QLineEdit::sizeHint().height()};
}

QSize TextBox::minimumSizeHint() const {
  return {std::min(sizeHint().width(), Form::FieldWidth(this, 8)), QLineEdit::minimumSizeHint().height()};
}

qsizetype TextBox::Room() const {
  return maxLength() - (text().size() - selectedText().size());
}

// The typed characters as they are to be entered; the halves of a surrogate pair stay or go together.
QString TextBox::Filtered(const QString& typed) {
  QString entered;
  for (qsizetype i = 0; i < typed.size(); ++i) {
    const bool pair = typed[i].isHighSurrogate() && i + 1 < typed.size() && typed[i + 1].isLowSurrogate();
    QString piece = typed.mid(i, pair ? 2 : 1);
    if (pair) ++i;
    bool refused = false;
    for (QChar& ch : piece) {
      if (filter_ && !refused) {
        ch = filter_(ch.unicode());
        refused = ch.isNull();
      }
    }
    if (!refused) entered += Cased(piece);
  }
  return entered;
}

// Character by character, so that none becomes two.
QString TextBox::Cased(QString text) const {
  if (upperCase_)
    for (QChar& ch : text) ch = ch.toUpper();
  return text;
}

void TextBox::EnterKey(QKeyEvent* event) {
  if (filter_ && filter_(Enter) == 0) return event->accept();
  if (!enterAction_) return QLineEdit::keyPressEvent(event);
  event->accept();
  enterAction_();
}

void TextBox::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Paste)) {
    PasteClipboard();
    return event->accept();
  }
  if (IsEnter(*event)) return EnterKey(event);
  if (event->key() == Qt::Key_Backspace && filter_ && !isReadOnly() && filter_(Backspace) == 0) return event->accept();
  if (isReadOnly() || !TextInput::IsTyped(*event)) return QLineEdit::keyPressEvent(event);
  const QString entered = TextInput::Fitting(Filtered(event->text()), Room());
  if (entered.isEmpty()) {
    FieldEdge::SayRefused(this, Rule());
    return event->accept();
  }
  QKeyEvent typed(event->type(), event->key(), event->modifiers(), entered, event->isAutoRepeat());
  QLineEdit::keyPressEvent(&typed);
  event->setAccepted(typed.isAccepted());
}

// Composed text (dead keys, input methods) comes this way.
void TextBox::inputMethodEvent(QInputMethodEvent* event) {
  if (isReadOnly() || event->commitString().isEmpty()) return QLineEdit::inputMethodEvent(event);
  const qsizetype room = Room() + event->replacementLength();
  QInputMethodEvent composed(event->preeditString(), event->attributes());
  composed.setCommitString(TextInput::Fitting(Filtered(TextInput::OneLine(event->commitString())), room),
                           event->replacementStart(), event->replacementLength());
  QLineEdit::inputMethodEvent(&composed);
  event->setAccepted(composed.isAccepted());
}

void TextBox::PasteText(const QString& foreign) {
  if (isReadOnly()) return;
  const QString line = TextInput::OneLine(foreign);
  const auto enter = [this](const QString& text) {
    const QString fitting = TextInput::Fitting(text, Room());
    if (!fitting.isEmpty()) insert(fitting);
  };
  if (!filter_ || pasteUnfiltered_) return enter(Cased(line));
  // One by one, since a filter looks at what stands in the box already.
  for (qsizetype i = 0; i < line.size() && (Room() > 0); ++i) {
    const bool pair = line[i].isHighSurrogate() && i + 1 < line.size();
    enter(Filtered(line.mid(i, pair ? 2 : 1)));
    if (pair) ++i;
  }
}

void TextBox::PasteClipboard() {
  PasteText(QGuiApplication::clipboard()->text());
}

void TextBox::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* menu = createStandardContextMenu();
  const QString shortcut = QKeySequence(QKeySequence::Paste).toString(QKeySequence::NativeText);
  for (QAction* action : menu->actions()) {
    if (!action->text().endsWith(u'\t' + shortcut)) continue;
    action->disconnect(this);
    connect(action, &QAction::triggered, this, &TextBox::PasteClipboard);
  }
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->popup(event->globalPos());
}

void TextBox::dropEvent(QDropEvent* event) {
  if (event->source() == this) return QLineEdit::dropEvent(event);
  if (isReadOnly() || !event->mimeData()->hasText()) return;
  setCursorPosition(cursorPositionAt(event->position().toPoint()));
  PasteText(event->mimeData()->text());
  event->acceptProposedAction();
}

void TextBox::mousePressEvent(QMouseEvent* event) {
  QLineEdit::mousePressEvent(event);
  if (selectAfterPress_ && event->button() == Qt::LeftButton) selectAll();
  selectAfterPress_ = false;
}

void TextBox::mouseReleaseEvent(QMouseEvent* event) {
  const QClipboard* clipboard = QGuiApplication::clipboard();
  if (event->button() != Qt::MiddleButton || !clipboard->supportsSelection())
    return QLineEdit::mouseReleaseEvent(event);
  deselect();
  PasteText(clipboard->text(QClipboard::Selection));
}

void TextBox::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  const bool fromControl = event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason &&
                           event->reason() != Qt::MenuBarFocusReason;
  const bool refused = leave_ != nullptr && leave_->Checking();
  if (leave_ != nullptr) leave_->Entered();
  if (!fromControl || refused) return;
  if (selectOnFocus_) {
    selectAll();
    selectAfterPress_ = event->reason() == Qt::MouseFocusReason;
  }
  Q_EMIT GotFocus();
}

void TextBox::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  const bool stays = event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason ||
                     event->reason() == Qt::MenuBarFocusReason;
  if (!stays) ShowBeginning();
  if (leave_ != nullptr) leave_->Left(*event);
}
