#include "settings/SettingPackage.h"

#include "support/Json.h"

#include <QJsonObject>

#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove::SettingMessages {

namespace {

const QString RegistryType = u"registry"_s;
const QString FileType = u"file"_s;

QJsonObject readObject(const QByteArray &payload)
{
    return parseJsonObject(payload).value_or(QJsonObject());
}

QString base64Text(const QByteArray &bytes)
{
    return QString::fromLatin1(bytes.toBase64());
}

Data::Content contentOf(const QString &dataType)
{
    if (dataType == RegistryType)
        return Data::Content::Registry;
    return dataType == FileType ? Data::Content::File : Data::Content::Unknown;
}

} // namespace

QByteArray startPayload(const SettingPackage &package)
{
    QJsonObject metadata;
    for (auto entry = package.metadata.cbegin(); entry != package.metadata.cend(); ++entry)
        metadata.insert(entry.key(), entry.value());
    return compactJson({{u"key"_s, package.key},
                        {u"name"_s, package.name},
                        {u"category"_s, package.category},
                        {u"registryPath"_s, package.registryPath},
                        {u"registrySize"_s, package.registryData.size()},
                        {u"fileName"_s, package.fileName},
                        {u"fileSize"_s, package.fileData.size()},
                        {u"originalFilePath"_s, package.originalFilePath},
                        {u"metadata"_s, metadata}});
}

SettingPackage readStart(const QByteArray &payload)
{
    const QJsonObject object = readObject(payload);
    SettingPackage package;
    package.key = object.value("key"_L1).toString();
    package.name = object.value("name"_L1).toString();
    package.category = object.value("category"_L1).toString();
    package.registryPath = object.value("registryPath"_L1).toString();
    package.fileName = object.value("fileName"_L1).toString();
    package.originalFilePath = object.value("originalFilePath"_L1).toString();
    const QJsonObject metadata = object.value("metadata"_L1).toObject();
    for (auto entry = metadata.constBegin(); entry != metadata.constEnd(); ++entry) {
        if (entry.value().isString())
            package.metadata.insert(entry.key(), entry.value().toString());
    }
    return package;
}

QByteArray Data::toPayload() const
{
    if (content != Content::File)
        return compactJson({{u"key"_s, key}, {u"dataType"_s, RegistryType}, {u"data"_s, base64Text(bytes)}});
    return compactJson({{u"key"_s, key},
                        {u"dataType"_s, FileType},
                        {u"chunkIndex"_s, chunkIndex},
                        {u"totalChunks"_s, totalChunks},
                        {u"fileName"_s, fileName},
                        {u"data"_s, base64Text(bytes)}});
}

Data Data::fromPayload(const QByteArray &payload)
{
    const QJsonObject object = readObject(payload);
    auto decoded = QByteArray::fromBase64Encoding(object.value("data"_L1).toString().toUtf8(),
                                                  QByteArray::AbortOnBase64DecodingErrors);
    Data data;
    data.key = object.value("key"_L1).toString();
    data.content = contentOf(object.value("dataType"_L1).toString());
    data.intact = bool(decoded);
    if (data.intact)
        data.bytes = std::move(decoded.decoded);
    data.chunkIndex = object.value("chunkIndex"_L1).toInt();
    data.totalChunks = object.value("totalChunks"_L1).toInt();
    data.fileName = object.value("fileName"_L1).toString();
    return data;
}

QByteArray End::toPayload() const
{
    return compactJson({{u"key"_s, key}, {u"name"_s, name}});
}

End End::fromPayload(const QByteArray &payload)
{
    const QJsonObject object = readObject(payload);
    return {object.value("key"_L1).toString(), object.value("name"_L1).toString()};
}

QByteArray Complete::toPayload() const
{
    return compactJson({{u"success"_s, success}, {u"failed"_s, failed}});
}

Complete Complete::fromPayload(const QByteArray &payload)
{
    const QJsonObject object = readObject(payload);
    return {object.value("success"_L1).toInt(), object.value("failed"_L1).toInt()};
}

} // namespace Zandrove::SettingMessages
