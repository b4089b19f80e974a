#include "platform/desktop/Prompts.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QIcon>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStyle>

#include "platform/desktop/DesktopPrompts.h"

namespace {

QMessageBox::Icon IconOf(int style) {
  switch (style & MessageStyle::IconMask) {
    case 16:
      return QMessageBox::Critical;
    case 32:
      return QMessageBox::Question;
    case 48:
      return QMessageBox::Warning;
    case 64:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

// Buttons in their order on screen, the last one being what Escape and the close button mean.
QList<QMessageBox::StandardButton> ButtonsOf(int style) {
  switch (style & MessageStyle::ButtonMask) {
    case 1:
      return {QMessageBox::Ok, QMessageBox::Cancel};
    case MessageStyle::YesNoCancel:
      return {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
    case MessageStyle::YesNo:
      return {QMessageBox::Yes, QMessageBox::No};
    default:
      return {QMessageBox::Ok};
  }
}

int AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return MessageAnswer::Yes;
    case QMessageBox::No:
      return MessageAnswer::No;
    case QMessageBox::Cancel:
      return MessageAnswer::Cancel;
    default:
      return MessageAnswer::Ok;
  }
}

void SetUserIcon(QMessageBox& box, const QString& name) {
  QIcon icon = QIcon::fromTheme(name);
  if (icon.isNull()) icon = QIcon(QStringLiteral(":/") + name);
  const int size = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box);
  if (const QPixmap picture = icon.pixmap(size); !picture.isNull()) box.setIconPixmap(picture);
}

// "*.rpt" is shown as "Reports (*.rpt)"; other patterns are shown as they are.
QStringList NameFilters(const QString& pattern) {
  if (pattern.isEmpty() || pattern == QLatin1String("*") || pattern == QLatin1String("*.*")) return {"All files (*)"};
  if (pattern.compare(QLatin1String("*.rpt"), Qt::CaseInsensitive) == 0)
    return {QStringLiteral("Reports (%1)").arg(pattern)};
  return {QStringLiteral("Files (%1)").arg(pattern)};
}

std::optional<QString> AskForFile(const FileRequest& request, QFileDialog::AcceptMode mode) {
  QFileDialog dialog(request.owner, request.title, request.directory);
  dialog.setObjectName(mode == QFileDialog::AcceptSave ? QStringLiteral("SaveFile") : QStringLiteral("OpenFile"));
  dialog.setAcceptMode(mode);
  dialog.setFileMode(mode == QFileDialog::AcceptSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setNameFilters(NameFilters(request.filter));
  if (mode == QFileDialog::AcceptSave && request.filter.startsWith(QLatin1String("*.")) &&
      !request.filter.endsWith(u'*'))
    dialog.setDefaultSuffix(request.filter.mid(2));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return QDir::toNativeSeparators(dialog.selectedFiles().constFirst());
}

DesktopPrompts& Desktop() {
  static DesktopPrompts desktop;
  return desktop;
}

PromptService* inPlace = nullptr;

}  // namespace

int DesktopPrompts::ShowMessage(const MessageRequest& request) {
  const QList<QMessageBox::StandardButton> buttons = ButtonsOf(request.style);
  QMessageBox box(request.owner);
  box.setObjectName(QStringLiteral("ShowMessage"));
  box.setWindowTitle(request.title);
  box.setWindowModality(request.owner.isNull() ? Qt::ApplicationModal : Qt::WindowModal);
  box.setTextFormat(Qt::PlainText);
  box.setText(request.text);
  if (request.icon.isEmpty())
    box.setIcon(IconOf(request.style));
  else
    SetUserIcon(box, request.icon);
  for (const QMessageBox::StandardButton button : buttons) box.addButton(button);
  const bool second = (request.style & MessageStyle::DefaultButton2) != 0 && buttons.size() > 1;
  box.setDefaultButton(buttons.at(second ? 1 : 0));
  box.setEscapeButton(buttons.constLast());
  return AnswerOf(box.exec());
}

std::optional<QString> DesktopPrompts::OpenFile(const FileRequest& request) {
  return AskForFile(request, QFileDialog::AcceptOpen);
}

std::optional<QString> DesktopPrompts::SaveFile(const FileRequest& request) {
  return AskForFile(request, QFileDialog::AcceptSave);
}

std::optional<QString> DesktopPrompts::ChoosePrinter(QWidget* owner) {
  if (PrinterNames().isEmpty()) return {};
  QPrinter printer;
  QPrintDialog dialog(&printer, owner);
  dialog.setObjectName(QStringLiteral("ChoosePrinter"));
  dialog.setOptions({});
  if (dialog.exec() != QDialog::Accepted || printer.printerName().isEmpty()) return {};
  return printer.printerName();
}

QStringList DesktopPrompts::PrinterNames() {
  return QPrinterInfo::availablePrinterNames();
}

void DesktopPrompts::Beep() {
  QApplication::beep();
}

PromptService& Prompts() {
  return inPlace != nullptr ? *inPlace : Desktop();
}

PromptService* SetPrompts(PromptService* service) {
  PromptService* before = &Prompts();
  inPlace = service;
  return before;
}
