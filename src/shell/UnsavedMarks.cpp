#include "shell/UnsavedMarks.h"

#include <QCheckBox>
#include <QDate>

#include "core/Record.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/DateBox.h"
#include "platform/controls/FieldEdge.h"
#include "platform/controls/MemoBox.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/TextBox.h"

UnsavedMarks::UnsavedMarks(QWidget& page, Record& record) : QObject(&page), record_(record) {
  Find(page);
  record_.Observe([this] { CompareAll(); });
}

template <class Control, class Signal>
void UnsavedMarks::Watch(Control* control, QWidget* widget, Signal changed, std::function<QVariant()> value,
                         std::function<void(const QVariant&)> put) {
  fields_.push_back(std::make_unique<Field>(Field{widget, value, std::move(put), value()}));
  connect(control, changed, this, [this, field = fields_.back().get()] { Compare(*field); });
}

void UnsavedMarks::Find(QWidget& page) {
  for (TextBox* box : page.findChildren<TextBox*>()) {
    // Parts of lists and of other controls are no fields.
    if (box->objectName().startsWith(QLatin1String("qt_"))) continue;
    Watch(
        box, box, &TextBox::Change, [box] { return box->Text(); },
        [box](const QVariant& held) {
          box->SetText(held.toString());
          box->selectAll();
        });
  }
  for (MemoBox* box : page.findChildren<MemoBox*>())
    Watch(
        box, box, &MemoBox::Change, [box] { return box->Text(); },
        [box](const QVariant& held) { box->SetText(held.toString()); });
  for (CodeComboBox* list : page.findChildren<CodeComboBox*>())
    Watch(
        list, list, &CodeComboBox::Click, [list] { return list->Text(); },
        [list](const QVariant& held) {
          list->SetText(held.toString());
          Q_EMIT list->Click();
        });
  for (OptionGroup* group : page.findChildren<OptionGroup*>())
    Watch(
        group, group->Button(0)->parentWidget(), &OptionGroup::Click, [group] { return group->Selected(); },
        [group](const QVariant& held) {
          group->Select(held.toInt());
          Q_EMIT group->Click(held.toInt());
        });
  for (QCheckBox* check : page.findChildren<QCheckBox*>()) {
    if (check->objectName().startsWith(QLatin1String("qt_"))) continue;
    Watch(
        check, check, &QCheckBox::toggled, [check] { return check->isChecked(); },
        [check](const QVariant& held) {
          if (check->isChecked() != held.toBool()) check->click();
        });
  }
  for (DateBox* date : page.findChildren<DateBox*>())
    Watch(
        date, date, &DateBox::Change, [date] { return date->Date(); },
        [date](const QVariant& held) { date->SetDate(held.toDate()); });
}

void UnsavedMarks::Compare(Field& field) {
  if (!record_.Modified()) field.held = field.value();
  field.widget->setProperty(FieldEdge::Unsaved, record_.Modified() && field.value() != field.held);
}

void UnsavedMarks::CompareAll() {
  for (const auto& field : fields_) Compare(*field);
}

bool UnsavedMarks::GiveBack(QWidget* widget) {
  for (const auto& field : fields_) {
    const bool meant = field->widget == widget || field->widget->isAncestorOf(widget);
    if (!meant || field->value() == field->held) continue;
    field->put(field->held);
    return true;
  }
  return false;
}
