#include "platform/controls/GridDelegate.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "platform/controls/CodeComboBox.h"
#include "platform/controls/Grid.h"
#include "platform/controls/GridModel.h"
#include "platform/controls/TextBox.h"

namespace {
constexpr qsizetype LongestOnShow = 400;  // characters that are laid out of a cell; no column is wider

// A cell has one line; what breaks lines elsewhere is a blank here.
QString OneLineOnShow(QString text) {
  if (text.size() > LongestOnShow) text.truncate(LongestOnShow);
  for (QChar& ch : text)
    if (ch < u' ' || ch == QChar::LineSeparator || ch == QChar::ParagraphSeparator) ch = u' ';
  return text;
}
}  // namespace

GridDelegate::GridDelegate(Grid* grid, GridModel* model) : QStyledItemDelegate(grid), grid_(grid), model_(model) {}

void GridDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  option->text = OneLineOnShow(option->text);
  // The whole row is the current thing; a frame around one of its cells would say otherwise.
  option->state &= ~QStyle::State_HasFocus;
  // Rows that wait for something to be entered look like the empty room below the others.
  if (index.row() % 2 == 1 && !model_->IsBlank(model_->RowOf(index)))
    option->backgroundBrush = option->palette.alternateBase();
  // What typing has found and Enter will make current.
  if (grid_->FoundRow() != 0 && model_->RowOf(index) == grid_->FoundRow()) {
    option->font.setBold(true);
    option->font.setUnderline(true);
  }
}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QStyledItemDelegate::paint(painter, option, index);
  if (index.column() != 0 || grid_->Row() == 0 || model_->RowOf(index) != grid_->Row()) return;
  const qreal half = std::min<qreal>(4, option.rect.height() / 4.0);
  const QPointF middle = QRectF(option.rect).center();
  const bool selected = option.state.testFlag(QStyle::State_Selected);
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
  const qreal side = option.direction == Qt::RightToLeft ? -1 : 1;
  painter->drawPolygon(QPolygonF{{middle.x() - side * half / 2, middle.y() - half},
                                 {middle.x() + side * half, middle.y()},
                                 {middle.x() - side * half / 2, middle.y() + half}});
  painter->restore();
}

// The whole text of a cell that is too narrow for it.
bool GridDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                             const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip || !index.isValid())
    return QStyledItemDelegate::helpEvent(event, view, option, index);
  const QString text = index.data().toString();
  if (sizeHint(option, index).width() > option.rect.width())
    QToolTip::showText(event->globalPos(), Qt::convertFromPlainText(text.left(LongestOnShow)), view);
  else
    QToolTip::hideText();
  return true;
}

QWidget* GridDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const {
  const QStringList& choices = model_->Choices(index.column());
  const QString caption = model_->Heading(index.column());
  if (choices.isEmpty()) {
    auto* box = new TextBox(parent, QStringLiteral("qt_grid_text"), model_->MaxLength(index.column()));
    box->setAccessibleName(caption);
    box->setFrame(false);
    return box;
  }
  auto* list = new CodeComboBox(parent, QStringLiteral("qt_grid_list"));
  list->setAccessibleName(caption);
  for (const QString& choice : choices) list->Add(choice);
  return list;
}

void GridDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  const QString text = index.data(Qt::EditRole).toString();
  if (auto* box = qobject_cast<TextBox*>(editor)) {
    if (!box->isModified()) {
      box->SetText(text);
      box->selectAll();
    }
  } else if (auto* list = qobject_cast<CodeComboBox*>(editor)) {
    list->SetText(text);
  }
}

void GridDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
  if (const auto* box = qobject_cast<TextBox*>(editor))
    model->setData(index, box->Text());
  else if (const auto* list = qobject_cast<CodeComboBox*>(editor))
    model->setData(index, list->Text());
}
