#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

/// Wire JSON: compact UTF-8 objects out, and numbers in that a peer may have made up.
namespace Zandrove {

/// `object` without white space, UTF-8.
[[nodiscard]] QByteArray compactJson(const QJsonObject &object);

/// The object in `json`; nothing when the text does not parse or is no object.
[[nodiscard]] std::optional<QJsonObject> parseJsonObject(const QByteArray &json);

/// A count of bytes or files under `key`, within 0 to 2^53; 0 when it is missing or no number.
[[nodiscard]] qint64 jsonSize(const QJsonObject &object, const QString &key);

/// An unsigned 32-bit value under `key`; 0 when it is missing or no number.
[[nodiscard]] quint32 jsonUInt32(const QJsonObject &object, const QString &key);

} // namespace Zandrove
