#include "platform/ado/AdoError.h"

AdoError::AdoError(quint32 number, QString description, QString source, bool connectionLost)
    : number_(number),
      description_(std::move(description)),
      source_(std::move(source)),
      connectionLost_(connectionLost),
      utf8_(description_.toUtf8()) {}

AdoError AdoError::Of(const QString& statement) const {
  AdoError error = *this;
  error.statement_ = statement;
  return error;
}
