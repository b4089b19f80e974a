#include "platform/ado/DriverValues.h"

#include <QDateTime>

namespace {

QString NotNull(QString text) {
  return text.isNull() ? QString(QLatin1String("")) : text;
}

constexpr qsizetype DateLength = 10;  // yyyy-MM-dd

QString WithTime(const QString& moment) {
  return moment.size() == DateLength ? moment + QLatin1String(" 00:00:00") : moment;
}

}  // namespace

int TypeOfDriver(QMetaType type) {
  switch (type.id()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
      return AdoType::Integer;
    case QMetaType::Double:
      return AdoType::Numeric;
    case QMetaType::QDate:
      return AdoType::Date;
    case QMetaType::QDateTime:
      return AdoType::TimeStamp;
    default:
      return AdoType::VarWChar;
  }
}

QString TextOf(const QVariant& value, const ColumnInfo& shape) {
  if (value.isNull()) return {};
  const int scale = shape.type == AdoType::Numeric ? shape.scale : 0;
  switch (value.typeId()) {
    case QMetaType::QString:
      if (shape.type == AdoType::Date) return value.toString().left(DateLength);
      if (shape.type == AdoType::TimeStamp) return WithTime(value.toString());
      return NotNull(value.toString());
    case QMetaType::QDate:
      return value.toDate().toString(Qt::ISODate);
    case QMetaType::QDateTime: {
      const QDateTime moment = value.toDateTime();
      return moment.date().toString(Qt::ISODate) + u' ' + moment.time().toString(u"hh:mm:ss");
    }
    case QMetaType::Double:
      // 15 digits: all that a decimal number keeps on its way through a binary one.
      return scale > 0 ? QString::number(value.toDouble(), 'f', scale) : QString::number(value.toDouble(), 'g', 15);
    case QMetaType::Int:
    case QMetaType::LongLong:
      return scale > 0 ? QString::number(value.toLongLong()) + u'.' + QString(scale, u'0') : value.toString();
    default:
      return NotNull(value.toString());
  }
}
