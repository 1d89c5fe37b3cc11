#include "pipeline/TransferMessages.h"

#include "support/Json.h"

#include <QJsonArray>
#include <QtEndian>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Zandrove::TransferMessages {

namespace {

QJsonObject readObject(const QByteArray &payload)
{
    return parseJsonObject(payload).value_or(QJsonObject());
}

QJsonObject namedFile(const FileBatchResult &result)
{
    QJsonObject file{
        {u"taskId"_s, result.taskId}, {u"relativePath"_s, result.relativePath}, {u"error"_s, result.error}};
    if (result.skipped) {
        file.insert(u"skipped"_s, true);
        file.insert(u"identical"_s, result.identical);
    }
    if (!result.fullVolume.isEmpty())
        file.insert(u"fullVolume"_s, result.fullVolume);
    return file;
}

Ack::NamedFile readNamedFile(const QJsonObject &object)
{
    constexpr qsizetype MaxErrorLength = 1000;
    constexpr qsizetype MaxVolumeLength = 255;
    const bool skipped = object.value("skipped"_L1).toBool();
    const QJsonValue identical = skipped ? object.value("identical"_L1) : QJsonValue();
    return {object.value("taskId"_L1).toInt(),
            object.value("relativePath"_L1).toString(),
            object.value("error"_L1).toString().left(MaxErrorLength),
            skipped,
            identical.isBool() ? std::optional(identical.toBool()) : std::nullopt,
            object.value("fullVolume"_L1).toString().left(MaxVolumeLength)};
}

} // namespace

QByteArray Start::toPayload() const
{
    return compactJson({{u"fileCount"_s, fileCount}, {u"totalSize"_s, totalSize}});
}

Start Start::fromPayload(const QByteArray &payload)
{
    const QJsonObject object = readObject(payload);
    return {std::max(object.value("fileCount"_L1).toInt(), 0), jsonSize(object, u"totalSize"_s)};
}

QByteArray Header::toPayload() const
{
    return compactJson({{u"taskId"_s, taskId},
                        {u"relativePath"_s, relativePath},
                        {u"fileName"_s, fileName},
                        {u"fileSize"_s, fileSize},
                        {u"modifiedTime"_s, modifiedTime}});
}

Header Header::fromPayload(const QByteArray &payload)
{
    const QJsonObject object = readObject(payload);
    return {object.value("taskId"_L1).toInt(), object.value("relativePath"_L1).toString(),
            object.value("fileName"_L1).toString(), jsonSize(object, u"fileSize"_s),
            jsonSize(object, u"modifiedTime"_s)};
}

void ChunkHeader::writeTo(char *payload) const
{
    qToBigEndian(offset, payload);
    qToBigEndian(chunkSize, payload + 8);
    qToBigEndian(taskId, payload + 12);
}

ChunkHeader ChunkHeader::readFrom(const char *payload)
{
    return {qFromBigEndian<qint64>(payload), qFromBigEndian<qint32>(payload + 8),
            qFromBigEndian<qint32>(payload + 12)};
}

QByteArray End::toPayload() const
{
    return compactJson({{u"taskId"_s, taskId},
                        {u"relativePath"_s, relativePath},
                        {u"checksum"_s, qint64(checksum)},
                        {u"totalSent"_s, totalSent},
                        {u"changed"_s, changed}});
}

End End::fromPayload(const QByteArray &payload)
{
    const QJsonObject object = readObject(payload);
    return {object.value("taskId"_L1).toInt(), object.value("relativePath"_L1).toString(),
            jsonUInt32(object, u"checksum"_s), jsonSize(object, u"totalSent"_s),
            object.value("changed"_L1).toBool()};
}

QByteArray ackRequestPayload(const BatchRequest &request)
{
    return compactJson({{u"batchId"_s, request.batchId},
                        {u"startTaskId"_s, request.startTaskId},
                        {u"endTaskId"_s, request.endTaskId},
                        {u"batchBytes"_s, request.bytes},
                        {u"isRequest"_s, true}});
}

QByteArray ackPayload(int batchId, const QList<FileBatchResult> &results)
{
    QJsonArray named;
    int failedCount = 0;
    for (const FileBatchResult &result : results) {
        failedCount += result.success ? 0 : 1;
        if (!result.success || result.skipped)
            named.append(namedFile(result));
    }
    return compactJson({{u"batchId"_s, batchId},
                        {u"isRequest"_s, false},
                        {u"success"_s, failedCount == 0},
                        {u"successCount"_s, int(results.size()) - failedCount},
                        {u"failedCount"_s, failedCount},
                        {u"failedFiles"_s, named}});
}

Ack Ack::fromPayload(const QByteArray &payload)
{
    const QJsonObject object = readObject(payload);
    Ack ack;
    ack.isRequest = object.value("isRequest"_L1).toBool();
    ack.batchId = object.value("batchId"_L1).toInt();
    ack.startTaskId = object.value("startTaskId"_L1).toInt();
    ack.endTaskId = object.value("endTaskId"_L1).toInt();
    ack.success = object.value("success"_L1).toBool();
    const QJsonArray named = object.value("failedFiles"_L1).toArray();
    for (qsizetype i = 0; i < std::min(named.size(), MaxNamed); ++i)
        ack.namedFiles.append(readNamedFile(named.at(i).toObject()));
    return ack;
}

QStringList Ack::namedPaths() const
{
    QStringList paths;
    for (const NamedFile &file : namedFiles)
        paths.append(file.relativePath);
    return paths;
}

QByteArray completePayload(const MigrationReport &report)
{
    return compactJson({{u"filesSuccess"_s, report.filesSuccess},
                        {u"filesFailed"_s, report.filesFailed},
                        {u"appsSuccess"_s, report.appsSuccess},
                        {u"appsFailed"_s, report.appsFailed},
                        {u"settingsSuccess"_s, report.settingsSuccess},
                        {u"settingsFailed"_s, report.settingsFailed},
                        {u"totalBytes"_s, report.totalBytes},
                        {u"isFinal"_s, true}});
}

QByteArray settledPayload()
{
    return compactJson({{u"settled"_s, true}});
}

bool saysSettled(const QByteArray &payload)
{
    return readObject(payload).value("settled"_L1).toBool();
}

} // namespace Zandrove::TransferMessages
