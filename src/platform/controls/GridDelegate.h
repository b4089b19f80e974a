#pragma once

#include <QStyledItemDelegate>

class Grid;
class GridModel;

// Paints the cells of a Grid (the pointer in the marker column, one line a cell) and edits them: a text box of the
// column's limit, or the column's drop-down list.
class GridDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  GridDelegate(Grid* grid, GridModel* model);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  Grid* grid_;
  GridModel* model_;
};
