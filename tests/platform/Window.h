#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

// Texts in the words of a failed expectation.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QStringList& texts, std::ostream* out) {
  *out << texts.join(" | ").toStdString();
}

// A window on screen with the controls of one case below each other.
class Window : public QWidget {
 public:
  Window() { new QVBoxLayout(this); }

  template <class Control>
  Control* Add(Control* control) {
    layout()->addWidget(control);
    return control;
  }

  void Show() {
    show();
    Activate();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(this));
  }

  // Without a window manager nobody activates the window below when a message box has closed.
  void Activate() {
    activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(this));
  }
};

// Answers the next message box by a click on its button, as a person does.
inline void AnswerNextBox(QMessageBox::StandardButton button) {
  QTimer::singleShot(0, qApp, [button] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return AnswerNextBox(button);
    QTest::mouseClick(box->button(button), Qt::LeftButton);
  });
}
