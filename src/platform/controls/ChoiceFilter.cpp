#include "platform/controls/ChoiceFilter.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QVBoxLayout>

#include "platform/controls/TextFolding.h"
#include "platform/controls/TextInput.h"

namespace {
constexpr int ManyEntries = 12;
}

ChoiceFilter::ChoiceFilter(QComboBox* box) : QObject(box), box_(box), list_(static_cast<QListView*>(box->view())) {
  list_->installEventFilter(this);
}

bool ChoiceFilter::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Hide) Apply({});
  const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
  if (isKey && box_->count() >= ManyEntries && Typed(*static_cast<QKeyEvent*>(event))) {
    event->accept();
    return true;
  }
  return QObject::eventFilter(watched, event);
}

bool ChoiceFilter::Typed(const QKeyEvent& event) {
  const bool pressed = event.type() == QEvent::KeyPress;
  if (!text_.isEmpty() && (event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Escape)) {
    if (pressed) Apply(event.key() == Qt::Key_Escape ? QString() : text_.chopped(1));
    return true;
  }
  const bool begins = !text_.isEmpty() || event.key() != Qt::Key_Space;
  if (!TextInput::IsTyped(event) || !begins) return false;
  if (pressed) Apply(text_ + event.text());
  return true;
}

// Made when the first letter is typed: most lists never see one.
void ChoiceFilter::Show() {
  if (shown_ == nullptr) {
    shown_ = new QLabel(list_->parentWidget());
    shown_->setObjectName(QStringLiteral("qt_choice_filter"));
    shown_->setTextFormat(Qt::PlainText);
    shown_->setContentsMargins(6, 3, 6, 3);
    static_cast<QBoxLayout*>(list_->parentWidget()->layout())->insertWidget(0, shown_);
  }
  shown_->setText(text_);
  shown_->setVisible(!text_.isEmpty());
}

void ChoiceFilter::Apply(const QString& text) {
  if (text == text_) return;
  text_ = text;
  const TextFolding::Sought sought(text);
  for (int row = 0; row < box_->count(); ++row) list_->setRowHidden(row, !sought.IsIn(box_->itemText(row)));
  Show();
  if (const int row = BestMatch(); !text.isEmpty() && row >= 0)
    list_->setCurrentIndex(box_->model()->index(row, box_->modelColumn(), box_->rootModelIndex()));
}

// An entry that begins with the text, else the first that holds it.
int ChoiceFilter::BestMatch() const {
  const QString begin = TextFolding::Fold(text_);
  int first = -1;
  for (int row = 0; row < box_->count(); ++row) {
    if (list_->isRowHidden(row)) continue;
    if (TextFolding::Fold(box_->itemText(row)).startsWith(begin)) return row;
    if (first < 0) first = row;
  }
  return first;
}
