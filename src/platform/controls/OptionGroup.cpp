#include "platform/controls/OptionGroup.h"

#include <QButtonGroup>
#include <QHBoxLayout>

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

QWidget* OptionGroup::Row() {
  if (row_ != nullptr) return row_;
  row_ = new QWidget(static_cast<QWidget*>(parent()));
  auto* layout = new QHBoxLayout(row_);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(16);
  for (QRadioButton* button : buttons_) layout->addWidget(button);
  layout->addStretch();
  return row_;
}
