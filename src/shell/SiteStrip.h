#pragma once

#include <QLabel>

// The name of the site on its colour, so that nobody takes production for a test. Both come from the settings file;
// where neither is set there is nothing to show.
class SiteStrip : public QLabel {
  Q_OBJECT

 public:
  explicit SiteStrip(QWidget* parent = nullptr);

  static bool IsSet();
};
