#pragma once

#include <QString>

// Letters as a person means them who looks for a text: without regard to letter case and accents, so that "universite"
// finds "UNIVERSITÉ".
namespace TextFolding {

// Small letters without accents; "ß" becomes "ss".
QString Fold(QStringView text);

// A text that is looked for in many others; folded once.
class Sought {
 public:
  Sought() = default;
  explicit Sought(QStringView text);
  bool IsEmpty() const { return folded_.isEmpty(); }
  // An empty text is in every other.
  bool IsIn(QStringView text) const;

 private:
  QString folded_;
};

}  // namespace TextFolding
