#include "shell/HelpWindow.h"

#include <QAction>
#include <QDesktopServices>
#include <QFileInfo>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

#include "platform/controls/FormLayout.h"
#include "platform/controls/TextBox.h"
#include "platform/desktop/Prompts.h"
#include "platform/desktop/UserSettings.h"
#include "shell/Help.h"
#include "shell/WindowMemory.h"

namespace {

constexpr auto ZoomKey = "Guide/zoom";
constexpr int LargestZoom = 12, Margin = 40;  // points; pixels

// Pictures of the guide are wider than a window beside the work is.
class GuideText : public QTextBrowser {
 public:
  explicit GuideText(QWidget* parent) : QTextBrowser(parent) {
    // The room for pictures is the same whatever the page's length.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  }

 protected:
  QVariant loadResource(int type, const QUrl& name) override {
    const QVariant found = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource) return found;
    QImage picture = found.canConvert<QImage>() && !found.value<QImage>().isNull()
                         ? found.value<QImage>()
                         : QImage::fromData(found.toByteArray());
    const int room = viewport()->width() - Margin;
    const double ratio = devicePixelRatioF();
    if (picture.width() > room * ratio && room > 0)
      picture = picture.scaledToWidth(qRound(room * ratio), Qt::SmoothTransformation);
    picture.setDevicePixelRatio(ratio);
    return picture;
  }
  void resizeEvent(QResizeEvent* event) override {
    QTextBrowser::resizeEvent(event);
    // Not now: a text that is being read may have caused it.
    if (event->oldSize().width() != event->size().width() && source().isValid())
      QTimer::singleShot(0, this, &GuideText::Again);
  }

 private:
  // The pictures in their new width, the text where it stood.
  void Again() {
    const double place = verticalScrollBar()->value() / std::max(1.0, double(verticalScrollBar()->maximum()));
    reload();
    verticalScrollBar()->setValue(qRound(place * verticalScrollBar()->maximum()));
  }
};

}  // namespace

HelpWindow::HelpWindow()
    : bar_(new QToolBar(this)), text_(new GuideText(this)), sought_(new TextBox(this, "txtFindInGuide")) {
  setObjectName("winGuide");
  setWindowTitle("Ostana - Guide");
  text_->setObjectName("txtGuide");
  text_->setAccessibleName("Guide");
  text_->setOpenLinks(false);
  connect(text_, &QTextBrowser::anchorClicked, this, &HelpWindow::Follow);
  BuildBar();
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(bar_);
  column->addWidget(text_, 1);
  resize(760, 640);
  WindowMemory::Restore(*this);
  Zoom(UserSettings().value(ZoomKey).toInt());
}

QAction* HelpWindow::Add(const QString& name, const QString& caption, const QKeySequence& key,
                         std::function<void()> act) {
  QAction* const action = bar_->addAction(caption);
  action->setObjectName(name);
  action->setShortcut(key);
  action->setToolTip(Form::PlainCaption(caption) + " (" + key.toString(QKeySequence::NativeText) + ")");
  connect(action, &QAction::triggered, this, std::move(act));
  return action;
}

void HelpWindow::BuildBar() {
  bar_->setObjectName("tlbGuide");
  QAction* const back = Add("mnuGuideBack", "&Back", QKeySequence::Back, [this] { text_->backward(); });
  QAction* const forward = Add("mnuGuideForward", "&Forward", QKeySequence::Forward, [this] { text_->forward(); });
  Add("mnuGuideContents", "&Contents", Qt::ALT | Qt::Key_Home, [this] {
    if (const QString index = Help::PageFile("index"); !index.isEmpty()) Open(index);
  });
  Add("mnuGuideLarger", "Larger", QKeySequence::ZoomIn, [this] { Zoom(1); });
  Add("mnuGuideSmaller", "Smaller", QKeySequence::ZoomOut, [this] { Zoom(-1); });
  back->setEnabled(false);
  forward->setEnabled(false);
  connect(text_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(text_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  sought_->setPlaceholderText("Find (Ctrl+F)");
  sought_->setAccessibleName("Find in the page");
  bar_->addWidget(sought_);
  sought_->SetEnterAction([this] { Find(false); });
  connect(sought_, &TextBox::Edited, this, [this] {
    text_->moveCursor(QTextCursor::Start);
    if (!sought_->Text().isEmpty()) Find(false);
  });
}

void HelpWindow::Open(const QString& file) {
  text_->setSource(QUrl::fromLocalFile(file));
}

QString HelpWindow::File() const {
  return text_->source().toLocalFile();
}

void HelpWindow::Follow(const QUrl& link) {
  const QUrl target = text_->source().resolved(link);
  if (!target.isLocalFile()) {
    QDesktopServices::openUrl(target);
  } else if (QFileInfo::exists(target.toLocalFile())) {
    text_->setSource(target);
  } else {
    Prompts().Beep();
  }
}

// Goes round: the first one comes after the last one.
void HelpWindow::Find(bool backwards) {
  const QTextDocument::FindFlags way = backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  if (sought_->Text().isEmpty() || text_->find(sought_->Text(), way)) return;
  text_->moveCursor(backwards ? QTextCursor::End : QTextCursor::Start);
  if (!text_->find(sought_->Text(), way)) Prompts().Beep();
}

void HelpWindow::Zoom(int steps) {
  const int before = std::exchange(zoom_, std::clamp(zoom_ + steps, -LargestZoom / 3, LargestZoom));
  text_->zoomIn(zoom_ - before);
  UserSettings().setValue(ZoomKey, zoom_);
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Find)) return sought_->SelectAllAndFocus();
  if (event->key() == Qt::Key_F3) return Find(event->modifiers().testFlag(Qt::ShiftModifier));
  if (event->key() == Qt::Key_Escape) {
    close();
    return;
  }
  QWidget::keyPressEvent(event);
}

void HelpWindow::closeEvent(QCloseEvent* event) {
  WindowMemory::Remember(*this);
  QWidget::closeEvent(event);
}
