#include "platform/controls/CodeComboBox.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QListView>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStringListModel>
#include <QStylePainter>
#include <QStyledItemDelegate>
#include <QWheelEvent>

#include "platform/controls/ChoiceFilter.h"
#include "platform/controls/FieldEdge.h"
#include "platform/controls/FieldTip.h"

namespace {
constexpr int UsualWidth = 24, NarrowestWidth = 12;  // characters
constexpr int EntriesOnShow = 20;                    // of the open list
bool SameCode(const QString& a, const QString& b) {
  return a.isNull() == b.isNull() && a == b;
}

// Entries with some air between them.
class EntryDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 6);
  }
};

}  // namespace

CodeComboBox::CodeComboBox(QWidget* parent, const QString& name) : QComboBox(parent) {
  setObjectName(name);
  setModel(new QStringListModel(this));
  SetUpList();
  FieldEdge::Watch(this);
  setMaxVisibleItems(EntriesOnShow);
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(UsualWidth);
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
  setFocusPolicy(Qt::StrongFocus);
  connect(this, &QComboBox::activated, this, [this] {
    Show({});
    Q_EMIT Click();
  });
}

void CodeComboBox::Clear() {
  const QSignalBlocker quiet(this);
  clear();
  codes_.clear();
  noneIndex_ = -1;
  Show({});
}

void CodeComboBox::SetHint(const QString& hint) {
  hint_ = hint;
  setAccessibleDescription(shown_.isEmpty() ? hint_ : shown_);
}

// A text that is no entry of the list; assistive technology reads the chosen entry alone.
void CodeComboBox::Show(const QString& text) {
  held_.reset();
  shown_ = text;
  setAccessibleDescription(text.isEmpty() ? hint_ : text);
  update();
}

void CodeComboBox::Append(const QString& description, const QString& code) {
  const QSignalBlocker quiet(this);
  const int chosen = currentIndex();
  codes_.push_back(code);
  addItem(description);
  // The toolkit chooses the first entry of a list by itself.
  if (chosen != currentIndex()) setCurrentIndex(chosen);
}

void CodeComboBox::AddNone(const QString& text) {
  if (noneIndex_ < 0) {
    noneIndex_ = count();
    none_ = text;
  }
  Append(text, QString());
}

void CodeComboBox::Add(const QString& description) {
  Append(description, description);
}

void CodeComboBox::Add(const QString& description, const QString& code) {
  Append(description, code);
}

void CodeComboBox::SetIndex(int index) {
  const QSignalBlocker quiet(this);
  setCurrentIndex(index >= 0 && index < count() ? index : -1);
  Show({});
}

QString CodeComboBox::Text() const {
  return currentIndex() >= 0 ? currentText() : shown_;
}

void CodeComboBox::SetText(const QString& text) {
  SetIndex(IndexOfText(text));
  if (currentIndex() < 0) Show(text);
}

QString CodeComboBox::Code() const {
  return held_ ? *held_ : CodeAt(currentIndex());
}

std::optional<QString> CodeComboBox::Chosen() const {
  if (held_ || currentIndex() >= 0) return Code();
  return std::nullopt;
}

QString CodeComboBox::CodeAt(int index) const {
  return index >= 0 && index < count() ? codes_[static_cast<std::size_t>(index)] : QString();
}

QString CodeComboBox::CodeOf(const QString& description) const {
  return CodeAt(IndexOfText(description));
}

QString CodeComboBox::DescriptionOf(const QString& code) const {
  const int index = IndexOfCode(code);
  return index < 0 ? QString() : TextAt(index);
}

bool CodeComboBox::SetCode(const QString& code) {
  const int index = IndexOfCode(code);
  if (index < 0) return false;
  SetIndex(index);
  return true;
}

void CodeComboBox::Hold(const QString& code, const QString& shownAs) {
  if (SetCode(code)) return;
  SetIndex(-1);
  if (code.isNull()) return;
  Show(shownAs.isEmpty() ? code : shownAs);
  held_ = code;
}

int CodeComboBox::IndexOfCode(const QString& code) const {
  const auto found =
      std::find_if(codes_.begin(), codes_.end(), [&](const QString& entry) { return SameCode(entry, code); });
  return found == codes_.end() ? -1 : static_cast<int>(found - codes_.begin());
}

int CodeComboBox::IndexOfText(const QString& text) const {
  const QStringList entries = static_cast<const QStringListModel*>(model())->stringList();
  return static_cast<int>(entries.indexOf(text));
}

bool CodeComboBox::IsNone() const {
  if (currentIndex() >= 0) return currentIndex() == noneIndex_;
  return !shown_.isEmpty() && shown_.compare(none_, Qt::CaseInsensitive) == 0;
}

bool CodeComboBox::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QComboBox::event(event);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  const QRect room = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
  FieldTip::Show(*static_cast<QHelpEvent*>(event), *this, FieldTip::Of(*this, Text(), room.width(), {}));
  return true;
}

// The toolkit takes Ctrl+Tab and its like for a text to look for; they are the window's.
void CodeComboBox::keyPressEvent(QKeyEvent* event) {
  const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
  if (modifiers.testFlag(Qt::ControlModifier) && !modifiers.testFlag(Qt::AltModifier)) return event->ignore();
  const bool isArrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
  if (opensByArrows_ && isArrow && modifiers == Qt::NoModifier) return showPopup();
  QComboBox::keyPressEvent(event);
}

void CodeComboBox::focusInEvent(QFocusEvent* event) {
  QComboBox::focusInEvent(event);
  if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason &&
      event->reason() != Qt::MenuBarFocusReason)
    Q_EMIT GotFocus();
}

void CodeComboBox::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  option.currentText = Text();
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

// Some styles cover the whole height of the screen with the entries of a box that cannot be edited, and scroll them by
// arrows. Ten thousand entries want a list below the box with a scroll bar, which the same styles give to a box that
// can.
void CodeComboBox::SetUpList() {
  static_cast<QListView*>(view())->setUniformItemSizes(true);
  view()->setItemDelegate(new EntryDelegate(view()));
  view()->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  for (QWidget* arrow : view()->parentWidget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
    if (arrow != view()) arrow->setFixedHeight(0);
  new ChoiceFilter(this);
}

void CodeComboBox::initStyleOption(QStyleOptionComboBox* option) const {
  QComboBox::initStyleOption(option);
  if (opening_) option->editable = true;
}

// The open list is as wide as its longest entry, within the screen.
void CodeComboBox::showPopup() {
  int widest = 0;
  const QStringList entries = static_cast<const QStringListModel*>(model())->stringList();
  const QFontMetrics metrics = view()->fontMetrics();
  qsizetype longest = 0;
  for (const QString& entry : entries) {
    // Shorter ones by a good part cannot be wider; measuring is what costs.
    if (entry.size() * 2 < longest) continue;
    longest = std::max(longest, entry.size());
    widest = std::max(widest, metrics.horizontalAdvance(entry));
  }
  const int around = 24 + view()->verticalScrollBar()->sizeHint().width();
  view()->setMinimumWidth(std::min(std::max(widest + around, width()), screen()->availableGeometry().width() * 4 / 5));
  const QScopedValueRollback opening(opening_, true);
  QComboBox::showPopup();
}

QSize CodeComboBox::minimumSizeHint() const {
  const QSize usual = QComboBox::minimumSizeHint();
  const int letters = fontMetrics().horizontalAdvance(u'X') * (minimumContentsLength() - NarrowestWidth);
  return {minimumContentsLength() > NarrowestWidth ? usual.width() - letters : usual.width(), usual.height()};
}

void CodeComboBox::wheelEvent(QWheelEvent* event) {
  if (hasFocus())
    QComboBox::wheelEvent(event);
  else
    event->ignore();
}
