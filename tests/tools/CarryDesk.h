#pragma once

#include "tools/ToolDesk.h"

// A desk with two sites: the common one has the reference rows; "Test" has the rows of the sample site.
class CarryDesk : public ToolDesk {
 protected:
  void SetUp() override;
  void TearDown() override;

  // The settings name this database as the site Test.
  void UseAsTestSite(const ConnectionSettings& settings);
  Connection& TestSite() { return sample_->OtherClient(); }

  QString Path(const QString& name) const { return Folder() + '/' + name; }
  QString Text(const QString& name) const;
  void Write(const QString& name, const QString& text) const;
  // The command succeeds; what it says.
  QString Done(const QStringList& arguments, int exitCode = 0) const;
  // The file of an export with `from` replaced by `to`, which it must hold.
  void Edit(const QString& name, const QString& from, const QString& to) const;

 private:
  std::unique_ptr<TestDatabase> sample_;
};
