#include "directory/CustomText.h"

#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <stdexcept>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

namespace {

bool IsListed(const QString& path) {
  const QFileInfo file(path);
  return file.dir().entryList(QDir::Files | QDir::Hidden | QDir::System).contains(file.fileName());
}

void PutCaption(QObject& control, const QString& text, int column) {
  if (auto* const grid = qobject_cast<Grid*>(&control)) return grid->SetHeading(column, text);
  if (auto* const menu = qobject_cast<QMenu*>(&control)) return menu->setTitle(text);
  if (auto* const entry = qobject_cast<QAction*>(&control)) return entry->setText(text);
  if (auto* const button = qobject_cast<QAbstractButton*>(&control)) return button->setText(text);
  if (auto* const frame = qobject_cast<QGroupBox*>(&control)) return frame->setTitle(text);
  if (auto* const label = qobject_cast<QLabel*>(&control)) {
    label->setText(text);
    if (label->buddy()) label->buddy()->setAccessibleName(Form::PlainCaption(text));
    return;
  }
  throw std::logic_error("No caption can be put on " + control.objectName().toStdString());
}

}  // namespace

QString MissingCustomText(const QString& path) {
  return "Unable to find the Custom Configuration File:\n\n" + path +
         "\n\nCopy the Configuration File to the Ostana Installation Directory.\n\n"
         "***************  Using Defaults  ***************";
}

void PutText(QWidget& form, const TextKey& key, const QString& text) {
  const QString name = key.control;
  if (name.isEmpty()) return form.setWindowTitle("Ostana - " + text);
  auto* const control = form.findChild<QObject*>(name);
  if (!control) throw std::logic_error("The form has no control " + name.toStdString());
  if (!QString(key.key).endsWith("ToolTip")) return PutCaption(*control, text, key.column);
  if (auto* const widget = qobject_cast<QWidget*>(control)) widget->setToolTip(text);
}

void PutBuiltInTips(QWidget& form, std::span<const TextKey> keys) {
  for (const TextKey& key : keys)
    if (key.tip != nullptr) PutText(form, key, key.tip);
}

void LoadCustomText(QWidget& form, const CustomTextReader& reader, std::span<const TextKey> keys,
                    const std::function<void(const CustomText&)>& further) {
  Procedure(reader.logName, &form).OnFailure(Texts::NotifySupport).Run([&] {
    // A look-up of a default may use it.
    gclsOF->Connection().EnsureOpen();
    const QString path = gclsOF->SystemFile(gclsOF->CustomConfigFile());
    if (!IsListed(path)) {
      ShowMessage(reader.missingText(path), MessageStyle::Warning, form.windowTitle(), {}, &form);
      return;
    }
    const CustomText texts(path, reader.section);
    for (const TextKey& key : keys) {
      const QString text = texts.Value(key.key);
      if (!text.isEmpty()) PutText(form, key, text);
    }
    if (further) further(texts);
  });
}
