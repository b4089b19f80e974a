#include "platform/controls/MemoBox.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTextCursor>
#include <QTextDocument>
#include <limits>

#include "platform/controls/TextInput.h"

namespace {

// What a document has between its paragraphs. Not QTextDocument's own conversion, which makes a blank of the no-break
// space.
QString WithLineEnds(QString raw) {
  return raw.replace(QChar::ParagraphSeparator, u'\n');
}

}  // namespace

MemoBox::MemoBox(QWidget* parent, const QString& name, int maxLength)
    : QPlainTextEdit(parent), maxLength_(maxLength > 0 ? maxLength : 0) {
  setObjectName(name);
  setTabChangesFocus(true);
  connect(this, &QPlainTextEdit::textChanged, this, [this] {
    Q_EMIT Change();
    if (!filling_) Q_EMIT Edited();
  });
}

QString MemoBox::Text() const {
  return WithLineEnds(document()->toRawText());
}

void MemoBox::SetText(const QString& text) {
  QString plain = text;
  plain.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  if (plain == Text()) return;
  const QScopedValueRollback filling(filling_, true);
  setPlainText(plain);
}

QString MemoBox::TrimInPlace() {
  const QString trimmed = Trimmed();
  SetText(trimmed);
  return trimmed;
}

void MemoBox::SetLines(int lines) {
  lines_ = lines;
  updateGeometry();
}

QSize MemoBox::sizeHint() const {
  const int line = fontMetrics().lineSpacing();
  const int around = 2 * frameWidth() + qRound(2 * document()->documentMargin());
  return {fontMetrics().averageCharWidth() * 50 + around, line * lines_ + around};
}

QSize MemoBox::minimumSizeHint() const {
  const int hidden = fontMetrics().lineSpacing() * std::max(lines_ - 2, 0);
  return {fontMetrics().averageCharWidth() * 16, sizeHint().height() - hidden};
}

qsizetype MemoBox::Room() const {
  if (maxLength_ == 0) return std::numeric_limits<qsizetype>::max();
  // characterCount counts the end of the last paragraph as well.
  return maxLength_ - (document()->characterCount() - 1 - textCursor().selectedText().size());
}

bool MemoBox::Refused() {
  bool refuse = false;
  Q_EMIT KeyPress(refuse);
  return refuse;
}

void MemoBox::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isReadOnly() || (!enter && !TextInput::IsTyped(*event))) return QPlainTextEdit::keyPressEvent(event);
  if (Refused()) return event->accept();
  const QString typed = enter ? QStringLiteral("\n") : event->text();
  if (TextInput::Fitting(typed, Room()) != typed) return event->accept();
  QPlainTextEdit::keyPressEvent(event);
}

void MemoBox::inputMethodEvent(QInputMethodEvent* event) {
  if (isReadOnly() || event->commitString().isEmpty()) return QPlainTextEdit::inputMethodEvent(event);
  QInputMethodEvent composed(event->preeditString(), event->attributes());
  const QString fitting = Refused() ? QString() : TextInput::Fitting(TextInput::Lines(event->commitString()), Room());
  composed.setCommitString(fitting, event->replacementStart(), event->replacementLength());
  QPlainTextEdit::inputMethodEvent(&composed);
  event->setAccepted(composed.isAccepted());
}

void MemoBox::insertFromMimeData(const QMimeData* source) {
  if (isReadOnly() || !source->hasText()) return;
  const QString fitting = TextInput::Fitting(TextInput::Lines(source->text()), Room());
  if (fitting.isEmpty()) return;
  textCursor().insertText(fitting);
  ensureCursorVisible();
}

QMimeData* MemoBox::createMimeDataFromSelection() const {
  auto* const data = new QMimeData;
  data->setText(WithLineEnds(textCursor().selectedText()));
  return data;
}

void MemoBox::focusInEvent(QFocusEvent* event) {
  QPlainTextEdit::focusInEvent(event);
  if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason &&
      event->reason() != Qt::MenuBarFocusReason)
    Q_EMIT GotFocus();
}
