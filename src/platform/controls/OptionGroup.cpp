#include "platform/controls/OptionGroup.h"

#include <QButtonGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

#include "platform/controls/FieldEdge.h"

namespace {
constexpr int Apart = 16, BesideMark = 4;  // pixels
}

OptionGroup::OptionGroup(QWidget* parent, const QString& name, std::initializer_list<QString> captions)
    : QObject(parent), group_(new QButtonGroup(this)) {
  int index = 0;
  for (const QString& caption : captions) Adopt(parent, QStringLiteral("%1(%2)").arg(name).arg(index++), caption);
}

OptionGroup::OptionGroup(QWidget* parent, std::initializer_list<std::pair<QString, QString>> namesAndCaptions)
    : QObject(parent), group_(new QButtonGroup(this)) {
  for (const auto& [name, caption] : namesAndCaptions) Adopt(parent, name, caption);
}

void OptionGroup::Adopt(QWidget* parent, const QString& name, const QString& caption) {
  auto* button = new QRadioButton(caption, parent);
  button->setObjectName(name);
  const int index = Count();
  buttons_.push_back(button);
  group_->addButton(button, index);
  connect(button, &QRadioButton::clicked, this, [this, index] { Q_EMIT Click(index); });
  button->installEventFilter(this);
  connect(button, &QRadioButton::toggled, this, &OptionGroup::SetTabStop);
  SetTabStop();
}

// The toolkit makes the element that had the focus last the one that Tab enters, whatever was set by code since.
void OptionGroup::SetTabStop() {
  QRadioButton* stop = Button(std::max(Selected(), 0));
  // From the element that has the focus Tab leaves the group.
  for (QRadioButton* button : buttons_)
    if (button->hasFocus()) stop = button;
  for (QRadioButton* button : buttons_)
    button->setFocusPolicy(button == stop ? Qt::StrongFocus : Qt::FocusPolicy(Qt::StrongFocus & ~Qt::TabFocus));
}

bool OptionGroup::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusOut) SetTabStop();
  return QObject::eventFilter(watched, event);
}

int OptionGroup::Selected() const {
  return group_->checkedId();
}

void OptionGroup::Select(int index) {
  if (index >= 0 && index < Count()) return Button(index)->setChecked(true);
  // An exclusive group does not let go of its last element.
  group_->setExclusive(false);
  for (QRadioButton* button : buttons_) button->setChecked(false);
  group_->setExclusive(true);
}

void OptionGroup::SetEnabled(bool enabled) {
  for (QRadioButton* button : buttons_) button->setEnabled(enabled);
}

void OptionGroup::SetVisible(bool visible) {
  for (QRadioButton* button : buttons_) button->setVisible(visible);
}

QHBoxLayout* OptionGroup::MakeRow() {
  row_ = new QWidget(static_cast<QWidget*>(parent()));
  FieldEdge::Watch(row_);
  auto* const layout = new QHBoxLayout(row_);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(Apart);
  return layout;
}

QWidget* OptionGroup::Row(const QString& name) {
  if (row_ != nullptr) return row_;
  QHBoxLayout* const layout = MakeRow();
  row_->setObjectName(name);
  for (QRadioButton* button : buttons_) layout->addWidget(button);
  layout->addStretch();
  return row_;
}

QWidget* OptionGroup::RowWith(std::initializer_list<QLabel*> captions) {
  QHBoxLayout* const layout = MakeRow();
  auto button = buttons_.begin();
  for (QLabel* caption : captions) {
    auto* const pair = new QHBoxLayout;
    pair->setSpacing(BesideMark);
    pair->addWidget(*button++);
    pair->addWidget(caption);
    layout->addLayout(pair);
  }
  layout->addStretch();
  return row_;
}
