#include "platform/controls/MemoBox.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QTextCursor>
#include <QTextDocument>
#include <limits>

#include "platform/controls/FieldEdge.h"
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
  FieldEdge::Watch(this);
  setTabChangesFocus(true);
  connect(this, &QPlainTextEdit::textChanged, this, [this] {
    Q_EMIT Change();
    if (!filling_) Q_EMIT Edited();
  });
}

// --- Line ends ---

// Where no line was added or taken out each keeps its end, else those at the beginning and at the end that are as they
// were filled in.
QString MemoBox::Stored(const QString& raw) const {
  if (raw == filledRaw_) return filled_;
  const QStringList lines = WithLineEnds(raw).split(u'\n');
  const qsizetype both = std::min(lines.size(), filledLines_.size());
  qsizetype first = lines.size() == filledLines_.size() ? both : 0, last = 0;
  while (first < both && lines[first] == filledLines_[first]) ++first;
  while (last < both - first && lines[lines.size() - 1 - last] == filledLines_[filledLines_.size() - 1 - last]) ++last;
  QString text;
  for (qsizetype line = 0; line < lines.size(); ++line) {
    text += lines[line];
    const qsizetype fromEnd = lines.size() - 1 - line;  // line ends that follow this one
    if (fromEnd == 0) break;
    if (line < first && line < filledEnds_.size())
      text += filledEnds_[line];
    else
      text += fromEnd <= last && fromEnd <= filledEnds_.size() ? filledEnds_[filledEnds_.size() - fromEnd] : lineEnd_;
  }
  return text;
}

QString MemoBox::Text() const {
  return Stored(document()->toRawText());
}

void MemoBox::SetText(const QString& text) {
  filled_ = text;
  filledLines_ = {QString()};
  filledEnds_.clear();
  for (qsizetype at = 0; at < text.size(); ++at) {
    const bool pair = text[at] == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n';
    if (text[at] != u'\n' && text[at] != u'\r' && text[at] != QChar::ParagraphSeparator) {
      filledLines_.back() += text[at];
      continue;
    }
    filledEnds_.append(pair ? QStringLiteral("\r\n") : QString(text[at]));
    filledLines_.append(QString());
    if (pair) ++at;
  }
  lineEnd_ = filledEnds_.contains(QStringLiteral("\r\n")) ? QStringLiteral("\r\n") : QStringLiteral("\n");
  const QString plain = filledLines_.join(u'\n');
  if (plain != WithLineEnds(document()->toRawText())) {
    const QScopedValueRollback filling(filling_, true);
    setPlainText(plain);
  }
  filledRaw_ = document()->toRawText();
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
  const QString selected = textCursor().selectedText();
  return maxLength_ - Text().size() + selected.size() +
         selected.count(QChar::ParagraphSeparator) * (lineEnd_.size() - 1);
}

// As much of the text as there is room for, its line ends counted as they would be stored.
QString MemoBox::Fitting(const QString& text) const {
  QString stored = text;
  stored.replace(QLatin1String("\n"), lineEnd_);
  QString fitting = TextInput::Fitting(stored, Room());
  fitting.replace(lineEnd_, QLatin1String("\n"));
  if (fitting.endsWith(u'\r')) fitting.chop(1);  // half a line end
  return fitting;
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
  if (Fitting(typed) != typed) return event->accept();
  if (!event->matches(QKeySequence::InsertLineSeparator)) return QPlainTextEdit::keyPressEvent(event);
  // Shift+Enter is Enter: no other program takes a line separator for a line end.
  textCursor().insertBlock();
  ensureCursorVisible();
  event->accept();
}

void MemoBox::inputMethodEvent(QInputMethodEvent* event) {
  if (isReadOnly() || event->commitString().isEmpty()) return QPlainTextEdit::inputMethodEvent(event);
  QInputMethodEvent composed(event->preeditString(), event->attributes());
  const QString fitting = Refused() ? QString() : Fitting(TextInput::Lines(event->commitString()));
  composed.setCommitString(fitting, event->replacementStart(), event->replacementLength());
  QPlainTextEdit::inputMethodEvent(&composed);
  event->setAccepted(composed.isAccepted());
}

void MemoBox::insertFromMimeData(const QMimeData* source) {
  if (isReadOnly() || !source->hasText()) return;
  const QString fitting = Fitting(TextInput::Lines(source->text()));
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
