#include "support/Json.h"

#include <QJsonDocument>
#include <QJsonValue>
#include <QVariant>

#include <algorithm>

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
    const QVariant value = object.value(key).toVariant();
    // Bounded first: beyond the range of 64 bits the conversion would be undefined.
    if (value.typeId() == QMetaType::Double)
        return qRound64(std::clamp(value.toDouble(), 0.0, double(MaxExactInteger)));
    return std::clamp<qint64>(value.toLongLong(), 0, MaxExactInteger);
}

quint32 jsonUInt32(const QJsonObject &object, const QString &key)
{
    return quint32(object.value(key).toInteger());
}

} // namespace Zandrove
