#include "platform/controls/FormLayout.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFontMetrics>
#include <QGridLayout>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStyle>
#include <QStyleOptionFrame>

#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FieldEdge.h"
#include "platform/controls/Grid.h"
#include "platform/controls/LeaveGuard.h"
#include "platform/controls/MemoBox.h"

namespace {

constexpr int Margin = 12, Across = 8, Down = 6, BetweenPairs = 20;  // pixels
constexpr int NarrowestButton = 88;
constexpr int CapitalsOnly = 12;  // up to this limit a field is a code, and codes are capitals
// The grid of a form: label and field, twice, and what is left.
constexpr int LabelColumn = 0, FieldColumn = 1, SecondLabel = 3, SecondField = 4, Rest = 5, Columns = 6;
constexpr int Gap = 2;

bool IsTall(const QWidget* field) {
  return qobject_cast<const QAbstractScrollArea*>(field) != nullptr;
}

// What takes the focus in a field of several parts: a row of options, a date with its check.
QList<QWidget*> Parts(QWidget* field) {
  QList<QWidget*> parts = field->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
  parts.removeIf([](const QWidget* part) { return part->focusPolicy() == Qt::NoFocus; });
  return parts;
}

// A label whose mnemonic moves the focus and does nothing else, where the toolkit would also click an option.
class FieldLabel : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  bool event(QEvent* event) override {
    if (event->type() != QEvent::Shortcut || buddy() == nullptr) return QLabel::event(event);
    if (QWidget* target = Target(buddy()); target != nullptr) target->setFocus(Qt::ShortcutFocusReason);
    return true;
  }

 private:
  static QWidget* Target(QWidget* field) {
    if (field->focusPolicy() != Qt::NoFocus) return field;
    QWidget* first = nullptr;
    for (QWidget* part : Parts(field)) {
      const auto* option = qobject_cast<QRadioButton*>(part);
      if (option != nullptr && option->isChecked()) return part;
      if (first == nullptr && part->isEnabled()) first = part;
    }
    return first;
  }
};

// As wide as the usual ones, and never narrower than its own words.
class CommandButton : public QPushButton {
 public:
  using QPushButton::QPushButton;
  QSize sizeHint() const override { return QPushButton::sizeHint().expandedTo({NarrowestButton, 0}); }
  QSize minimumSizeHint() const override { return QPushButton::minimumSizeHint().expandedTo({NarrowestButton, 0}); }
};

void LendName(QWidget* field, const QString& caption) {
  if (field->accessibleName().isEmpty()) field->setAccessibleName(caption);
  if (field->focusPolicy() != Qt::NoFocus && field->focusProxy() == nullptr) return;
  for (QWidget* part : Parts(field)) {
    const auto* button = qobject_cast<QAbstractButton*>(part);
    const bool speaksForItself = button != nullptr && !button->text().isEmpty();
    if (!speaksForItself && part->accessibleName().isEmpty()) part->setAccessibleName(caption);
    // "Yes" alone says nothing to somebody who does not see the row.
    if (qobject_cast<QRadioButton*>(part) != nullptr) part->setAccessibleDescription(caption);
  }
}

// Rows are equally high whatever stands in them, so that forms side by side keep step: as high as the highest of the
// fields with one line.
int RowHeight(const QWidget* field) {
  QComboBox list;
  list.setFont(field->font());
  return list.sizeHint().height();
}

QHBoxLayout* Line(QWidget* field, QWidget* behind) {
  auto* line = new QHBoxLayout;
  line->setSpacing(Across);
  const bool takesAll = field->sizePolicy().expandingDirections().testFlag(Qt::Horizontal);
  line->addWidget(field, takesAll ? 1 : 0);
  if (behind != nullptr) line->addWidget(behind, 0, IsTall(field) ? Qt::AlignTop : Qt::AlignVCenter);
  if (!takesAll) line->addStretch();
  return line;
}

}  // namespace

namespace Form {

QString PlainCaption(const QString& caption) {
  QString plain;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == u'&' && i + 1 < caption.size()) ++i;
    plain += caption[i];
  }
  return plain;
}

int FieldWidth(const QWidget* field, int characters) {
  const QFontMetrics metrics = field->fontMetrics();
  const int capitals = metrics.horizontalAdvance(u'M') * std::min(characters, CapitalsOnly);
  const int frame = field->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, field);
  return std::max(capitals, metrics.averageCharWidth() * characters) + 2 * frame + 12;
}

QLabel* Label(QWidget* parent, const QString& name, const QString& caption) {
  auto* label = new FieldLabel(caption, parent);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

QPushButton* Button(QWidget* parent, const QString& name, const QString& caption, const QString& toolTip) {
  auto* button = new CommandButton(caption, parent);
  button->setObjectName(name);
  button->setAutoDefault(false);
  if (!toolTip.isEmpty()) button->setToolTip(toolTip);
  return button;
}

QCheckBox* Check(QWidget* parent, const QString& name, const QString& caption) {
  auto* check = new QCheckBox(caption, parent);
  check->setObjectName(name);
  FieldEdge::Watch(check);
  return check;
}

QGroupBox* Frame(QWidget* parent, const QString& name, const QString& caption) {
  auto* frame = new QGroupBox(caption, parent);
  frame->setObjectName(name);
  return frame;
}

QAction* MenuEntry(QMenu* menu, const QString& name, const QString& caption) {
  QAction* entry = menu->addAction(caption);
  entry->setObjectName(name);
  return entry;
}

void OnPress(QAction* entry, QWidget* window, const std::function<void()>& act) {
  QObject::connect(entry, &QAction::triggered, window, [window, act] {
    if (LeaveGuard::MayLeave(window)) act();
  });
}

QMenu* Menu(QWidget* window, const QString& name, const QString& caption) {
  auto* menu = new QMenu(caption, window);
  menu->setObjectName(name);
  if (auto* main = qobject_cast<QMainWindow*>(window)) main->menuBar()->addMenu(menu);
  return menu;
}

Rows::Rows(QWidget* parent) : layout_(parent != nullptr ? new QGridLayout(parent) : new QGridLayout) {
  // A part of a page stands where the other parts of the page stand; only what has an edge keeps away from it.
  const bool hasEdge = parent != nullptr && (parent->isWindow() || qobject_cast<QGroupBox*>(parent) != nullptr);
  const int margin = hasEdge ? Margin : 0;
  layout_->setContentsMargins(margin, margin, margin, margin);
  layout_->setHorizontalSpacing(Across);
  layout_->setVerticalSpacing(Down);
  layout_->setColumnMinimumWidth(Gap, 0);
  layout_->setColumnStretch(Rest, 1);
}

QLabel* Rows::Add(const QString& labelName, const QString& caption, QWidget* field, QWidget* behind) {
  return Add(Label(field->parentWidget(), labelName, caption), field, behind);
}

QLabel* Rows::Add(QLabel* label, QWidget* field, QWidget* behind) {
  ++row_;
  Place(label, field, behind, LabelColumn);
  return label;
}

QLabel* Rows::Beside(const QString& labelName, const QString& caption, QWidget* field, QWidget* behind) {
  // The field before made room for itself to the end of the form; now it shares the row.
  if (QLayoutItem* first = layout_->itemAtPosition(row_, FieldColumn); first != nullptr) {
    layout_->removeItem(first);
    layout_->addItem(first, row_, FieldColumn);
  }
  layout_->setColumnMinimumWidth(Gap, BetweenPairs - 2 * Across);
  QLabel* label = Label(field->parentWidget(), labelName, caption);
  Place(label, field, behind, SecondLabel);
  return label;
}

void Rows::Place(QLabel* label, QWidget* field, QWidget* behind, int column) {
  const QString caption = PlainCaption(label->text());
  label->setBuddy(field);
  LendName(field, caption);
  if (auto* const button = qobject_cast<QAbstractButton*>(behind); button != nullptr && button->toolTip().isEmpty())
    button->setAccessibleDescription(caption);
  const bool tall = IsTall(field);
  // The first line of a tall field and its label stand on one line.
  if (tall) {
    label->setContentsMargins(0, 4, 0, 0);
  } else {
    // A list is made to learn it, so it is asked once for a form.
    if (rowHeight_ == 0) rowHeight_ = RowHeight(field);
    for (QWidget* part : {static_cast<QWidget*>(label), field, behind})
      if (part != nullptr) part->setMinimumHeight(rowHeight_);
  }
  layout_->addWidget(label, row_, column, tall ? Qt::AlignLeft | Qt::AlignTop : Qt::AlignLeft | Qt::AlignVCenter);
  const int end = Columns;
  layout_->addLayout(Line(field, behind), row_, column + 1, 1, end - column - 1);
  if (tall) layout_->setRowStretch(row_, 1);
}

void Rows::Wide(QWidget* widget, int stretch) {
  ++row_;
  layout_->addWidget(widget, row_, 0, 1, Columns);
  const bool tall = qobject_cast<QAbstractScrollArea*>(widget) != nullptr;
  layout_->setRowStretch(row_, stretch > 0 ? stretch : (tall ? 1 : 0));
}

void Rows::Wide(QLayout* layout) {
  ++row_;
  layout_->addLayout(layout, row_, 0, 1, Columns);
}

void Rows::Stretch() {
  layout_->setRowStretch(++row_, 1);
}

void Require(std::initializer_list<QWidget*> fields) {
  const QString hint = QStringLiteral("Required");
  for (QWidget* field : fields) {
    if (auto* const list = qobject_cast<CodeComboBox*>(field))
      list->SetHint(hint);
    else
      field->setAccessibleDescription(hint);
    for (QLabel* label : field->window()->findChildren<QLabel*>()) {
      const QWidget* const buddy = label->buddy();
      if (buddy == nullptr || (buddy != field && !buddy->isAncestorOf(field))) continue;
      QFont bold = label->font();
      bold.setBold(true);
      label->setFont(bold);
    }
  }
}

QHBoxLayout* ButtonRow(std::initializer_list<QWidget*> buttons) {
  auto* row = new QHBoxLayout;
  row->setSpacing(Across);
  if (std::find(buttons.begin(), buttons.end(), nullptr) == buttons.end()) row->addStretch();
  for (QWidget* button : buttons) {
    if (button != nullptr)
      row->addWidget(button);
    else
      row->addStretch();
  }
  return row;
}

void Unfold(QGridLayout* rows) {
  struct Part {
    QLayoutItem* item;
    int row, column, columns;
  };
  std::vector<Part> parts;
  bool beside = false;
  while (rows->count() > 0) {
    Part part{};
    int height = 0;
    rows->getItemPosition(0, &part.row, &part.column, &height, &part.columns);
    part.item = rows->takeAt(0);
    beside = beside || part.column == SecondLabel;
    parts.push_back(part);
  }
  std::vector<int> stretches;
  for (int row = 0; row < rows->rowCount(); ++row) stretches.push_back(rows->rowStretch(row));
  for (std::size_t row = 0; row < stretches.size(); ++row) {
    rows->setRowStretch(static_cast<int>(2 * row), stretches[row]);
    rows->setRowStretch(static_cast<int>(2 * row) + 1, 0);
  }
  for (const Part& part : parts) {
    const bool second = beside && part.column >= SecondLabel;
    const int column = second ? part.column - SecondLabel : part.column;
    const int end = second || part.column + part.columns == Columns ? Columns : part.column + part.columns;
    const int columns = column == LabelColumn && part.columns == 1 ? 1 : end - column;
    rows->addItem(part.item, 2 * part.row + (second ? 1 : 0), column, 1, columns, part.item->alignment());
  }
  rows->setColumnMinimumWidth(Gap, 0);
}

bool HasPairs(const QGridLayout* rows) {
  for (int row = 0; row < rows->rowCount(); ++row)
    if (rows->columnCount() == Columns && rows->itemAtPosition(row, SecondLabel) != nullptr &&
        rows->itemAtPosition(row, SecondLabel) != rows->itemAtPosition(row, FieldColumn))
      return true;
  return false;
}

void KeepInSight(QWidget* part) {
  part->setProperty(KeptInSight, true);
}

QWidget* Together(QWidget* parent, const QString& name, std::initializer_list<QWidget*> controls) {
  auto* const field = new QWidget(parent);
  field->setObjectName(name);
  auto* const row = new QHBoxLayout(field);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(Across);
  for (QWidget* control : controls) row->addWidget(control);
  row->addStretch();
  return field;
}

QVBoxLayout* Column(QWidget* parent, std::initializer_list<QWidget*> widgets) {
  auto* column = parent != nullptr ? new QVBoxLayout(parent) : new QVBoxLayout;
  column->setContentsMargins(Margin, Margin, Margin, Margin);
  column->setSpacing(Across);
  for (QWidget* widget : widgets) column->addWidget(widget);
  return column;
}

}  // namespace Form
