#include "pipeline/TransferMessages.h"

#include "support/Json.h"

#include <QJsonArray>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace Zandrove::TransferMessages {

namespace {

QJsonObject readObject(const QByteArray &payload)
{
    return parseJsonObject(payload).value_or(QJsonObject());
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
                        {u"totalSent"_s, totalSent}});
}

End End::fromPayload(const QByteArray &payload)
{
    const QJsonObject object = readObject(payload);
    return {object.value("taskId"_L1).toInt(), object.value("relativePath"_L1).toString(),
            jsonUInt32(object, u"checksum"_s), jsonSize(object, u"totalSent"_s)};
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
    QJsonArray failed;
    for (const FileBatchResult &result : results) {
        if (!result.success) {
            failed.append(QJsonObject{{u"taskId"_s, result.taskId},
                                      {u"relativePath"_s, result.relativePath},
                                      {u"error"_s, result.error}});
        }
    }
    const int failedCount = int(failed.size());
    return compactJson({{u"batchId"_s, batchId},
                        {u"isRequest"_s, false},
                        {u"success"_s, failedCount == 0},
                        {u"successCount"_s, int(results.size()) - failedCount},
                        {u"failedCount"_s, failedCount},
                        {u"failedFiles"_s, failed}});
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
    const QJsonArray failed = object.value("failedFiles"_L1).toArray();
    for (const QJsonValue &file : failed)
        ack.failedFiles.append(file.toObject().value("relativePath"_L1).toString());
    return ack;
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

} // namespace Zandrove::TransferMessages
