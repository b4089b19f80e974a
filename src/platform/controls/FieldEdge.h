#pragma once

#include <QPointer>
#include <QWidget>

// The edge that a field wears over its own: in the highlight colour with a bar at its beginning while the dynamic
// property "unsaved" is true (what stands there is not stored), in red for the two seconds after a key was refused.
// Every control that holds a part of a record has one.
class FieldEdge : public QWidget {
  Q_OBJECT

 public:
  static constexpr auto Unsaved = "unsaved";  // "modified" is a text box's own property and means something else
  static constexpr auto Refused = "refused";

  // From here on the field's two properties are drawn.
  static void Watch(QWidget* field);
  // Says at the field, for two seconds, why a key was refused.
  static void SayRefused(QWidget* field, const QString& why);

 protected:
  bool eventFilter(QObject* field, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  explicit FieldEdge(QWidget* field);
  void Follow();

  int refusals_ = 0;  // a later one outlives the end of an earlier one
};
