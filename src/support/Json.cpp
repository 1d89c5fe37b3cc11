#include "support/Json.h"

#include <QJsonDocument>
#include <QJsonValue>
#include <QVariant>

namespace Zandrove {

namespace {

/// Largest whole number that a JSON number carries exactly.
constexpr qint64 MaxExactInteger = qint64(1) << 53;

} // namespace

QByteArray compactJson(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<QJsonObject> parseJsonObject(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    if (!document.isObject())
        return std::nullopt;
    return document.object();
}

qint64 jsonSize(const QJsonObject &object, const QString &key)
{
    const double number = object.value(key).toVariant().toDouble();
    if (!(number > 0.0))
        return 0;
    return number >= double(MaxExactInteger) ? MaxExactInteger : qint64(number);
}

quint32 jsonUInt32(const QJsonObject &object, const QString &key)
{
    return quint32(object.value(key).toInteger());
}

} // namespace Zandrove
