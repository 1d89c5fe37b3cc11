#include "cli/JsonOutput.h"

#include "support/Json.h"
#include "support/RunTexts.h"

#include <QJsonArray>

#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove::Cli {

namespace {

QJsonObject toJson(const PCInfo &pc)
{
    return {{u"id"_s, pc.id}, {u"name"_s, pc.name},       {u"ip"_s, pc.ip},
            {u"os"_s, pc.os}, {u"code"_s, pc.verifyCode}, {u"key"_s, qint64(pc.key)}};
}

QJsonObject toJson(const AppInfo &app)
{
    return {{u"name"_s, app.name},
            {u"version"_s, app.version},
            {u"size"_s, app.size},
            {u"folder"_s, app.installPath},
            {u"icon"_s, app.iconPath},
            {u"canMove"_s, app.canTransfer},
            {u"registryKey"_s, app.hkcuRegPath}};
}

QJsonObject toJson(const FolderInfo &folder)
{
    return {{u"name"_s, folder.name},
            {u"path"_s, folder.path},
            {u"size"_s, folder.totalSize},
            {u"files"_s, folder.fileCount}};
}

QJsonObject toJson(const AccountInfo &account)
{
    return {
        {u"name"_s, account.userName}, {u"type"_s, account.accountType}, {u"path"_s, account.profilePath}};
}

QJsonObject toJson(const SettingInfo &setting)
{
    return {{u"id"_s, setting.id},
            {u"name"_s, setting.name},
            {u"category"_s, setting.category},
            {u"description"_s, setting.description},
            {u"value"_s, setting.value},
            {u"size"_s, setting.size}};
}

QJsonObject toJson(const FullVolume &volume)
{
    return {{u"volume"_s, volume.volume},
            {u"pc"_s, volume.pcName},
            {u"files"_s, volume.files},
            {u"bytes"_s, volume.bytes}};
}

template <typename Record>
QJsonArray toJson(const QList<Record> &records)
{
    QJsonArray array;
    for (const Record &record : records)
        array.append(toJson(record));
    return array;
}

template <typename Value>
QJsonObject toJson(const QMap<QString, Value> &map)
{
    QJsonObject object;
    for (auto entry = map.begin(); entry != map.end(); ++entry)
        object.insert(entry.key(), entry.value());
    return object;
}

constexpr int MaxNamedFiles = 1000;

QJsonArray namedFiles(const QList<ItemResult> &results)
{
    QJsonArray files;
    for (const ItemResult &result : results) {
        if (files.size() >= MaxNamedFiles)
            break;
        if (result.kind == ItemKind::File)
            files.append(QJsonObject{{u"path"_s, result.path}, {u"reason"_s, result.reason}});
    }
    return files;
}

QJsonArray namedItems(const QList<ItemResult> &results, ItemKind kind)
{
    QJsonArray items;
    for (const ItemResult &result : results) {
        const bool isThere =
            result.outcome == ItemOutcome::Arrived || result.outcome == ItemOutcome::WasThere;
        if (result.kind != kind)
            continue;
        QJsonObject item{{u"name"_s, result.path},
                         {u"success"_s, isThere},
                         {u"error"_s, isThere ? QString() : result.reason}};
        if (isThere && !result.reason.isEmpty())
            item.insert(u"note"_s, result.reason);
        items.append(item);
    }
    return items;
}

/// What did not come to a good end: a face knows no outcome between failed and not confirmed.
int failedOf(const OutcomeCounts &counts)
{
    return counts.failed + counts.notConfirmed + counts.pending;
}

QString sideName(Side side)
{
    return side == Side::Here ? u"here"_s : u"peer"_s;
}

QString statusName(FileStatus status)
{
    switch (status) {
    case FileStatus::Started:
        return u"started"_s;
    case FileStatus::Completed:
        return u"completed"_s;
    case FileStatus::WasThere:
        return u"skipped"_s;
    case FileStatus::Failed:
        return u"failed"_s;
    }
    return {};
}

QString severityName(Severity severity)
{
    switch (severity) {
    case Severity::Ok:
        return u"ok"_s;
    case Severity::Hint:
        return u"hint"_s;
    case Severity::Problem:
        return u"problem"_s;
    }
    return {};
}

} // namespace

JsonOutput::JsonOutput(Streams streams)
    : m_streams(std::move(streams))
{
}

void JsonOutput::print(QLatin1StringView event, const QJsonObject &fields)
{
    const QByteArray rest = compactJson(fields).mid(1);
    const QByteArray head = "{\"event\":\"" + QByteArray(event.data(), event.size()) + '"';
    m_streams.out(head + (fields.isEmpty() ? "" : ",") + rest + '\n');
}

void JsonOutput::code(const QString &code)
{
    print("code"_L1, {{u"code"_s, code}});
}

void JsonOutput::peer(const PCInfo &pc)
{
    print("peer"_L1, toJson(pc));
}

void JsonOutput::peerLost(const QString &id, quint64 key)
{
    print("peerLost"_L1, {{u"id"_s, id}, {u"key"_s, qint64(key)}});
}

void JsonOutput::found(const PCInfo &pc)
{
    print("found"_L1, toJson(pc));
}

void JsonOutput::waiting(const QString &name)
{
    print("waiting"_L1, {{u"name"_s, name}});
}

void JsonOutput::request(const ConnectionQuestion &question, bool asks)
{
    print("request"_L1, {{u"question"_s, qint64(question.number)},
                         {u"name"_s, question.name},
                         {u"ip"_s, question.ip},
                         {u"asks"_s, asks}});
    if (asks)
        m_streams.err(questionAbout(question));
}

void JsonOutput::refused(const QString &name, const QString &why)
{
    print("refused"_L1, {{u"name"_s, name}, {u"reason"_s, why}});
}

void JsonOutput::connected(const PCInfo &pc)
{
    print("connected"_L1, {{u"name"_s, pc.name}, {u"ip"_s, pc.ip}});
}

void JsonOutput::disconnected()
{
    print("disconnected"_L1, {});
}

void JsonOutput::progress(const TransferProgress &progress)
{
    print("progress"_L1, {{u"percent"_s, progress.overallPercent},
                          {u"transferredBytes"_s, progress.transferredBytes},
                          {u"totalBytes"_s, progress.totalBytes},
                          {u"bytesPerSecond"_s, progress.bytesPerSecond},
                          {u"remainingSeconds"_s, progress.remainingSeconds},
                          {u"file"_s, progress.currentFile}});
}

void JsonOutput::file(const QString &name, FileStatus status, const QString &reason)
{
    QJsonObject fields{{u"name"_s, name}, {u"status"_s, statusName(status)}};
    if (!reason.isEmpty())
        fields.insert(u"reason"_s, reason);
    print("file"_L1, fields);
}

void JsonOutput::paused(Side by)
{
    print("paused"_L1, {{u"by"_s, sideName(by)}});
}

void JsonOutput::resumed(Side by)
{
    print("resumed"_L1, {{u"by"_s, sideName(by)}});
}

void JsonOutput::cancelled(Side by)
{
    print("cancelled"_L1, {{u"by"_s, sideName(by)}});
}

void JsonOutput::installing(const QString &pcName, const QString &app, int percent)
{
    print("installing"_L1, {{u"pc"_s, pcName}, {u"app"_s, app}, {u"percent"_s, percent}});
}

void JsonOutput::report(const RunSummary &summary)
{
    print("report"_L1, Cli::toJson(summary));
}

void JsonOutput::scanning(int percent, const QString &item, int apps)
{
    print("scanning"_L1, {{u"percent"_s, percent}, {u"item"_s, item}, {u"apps"_s, apps}});
}

void JsonOutput::inventory(const ScanResult &result)
{
    print("inventory"_L1, Cli::toJson(result));
}

void JsonOutput::finding(const Finding &finding)
{
    print("finding"_L1, {{u"id"_s, finding.id},
                         {u"subject"_s, finding.subject},
                         {u"severity"_s, severityName(finding.severity)},
                         {u"sentence"_s, finding.sentence},
                         {u"advice"_s, finding.advice},
                         {u"command"_s, finding.command}});
}

void JsonOutput::diagnosed(int problems)
{
    print("diagnosis"_L1, {{u"problems"_s, problems}});
}

void JsonOutput::warning(const QString &message)
{
    print("warning"_L1, {{u"message"_s, message}});
}

void JsonOutput::error(const QString &message)
{
    print("error"_L1, {{u"message"_s, message}});
    m_streams.err(errorLine(message));
}

QJsonObject toJson(const RunSummary &summary)
{
    const OutcomeCounts &files = summary.files;
    return {{u"end"_s, endName(summary.end)},
            {u"startTime"_s, summary.startTime.toString(Qt::ISODateWithMs)},
            {u"endTime"_s, summary.endTime.toString(Qt::ISODateWithMs)},
            {u"filesSuccess"_s, files.arrived},
            {u"filesFailed"_s, failedOf(files)},
            {u"filesSkipped"_s, files.wasThere + files.wasDifferent},
            {u"failedFiles"_s, namedFiles(summary.notArrived)},
            {u"differentFiles"_s, namedFiles(summary.different)},
            {u"fullVolumes"_s, toJson(summary.fullVolumes)},
            {u"apps"_s, namedItems(summary.items, ItemKind::Application)},
            {u"appsSuccess"_s, summary.apps.arrived},
            {u"appsFailed"_s, failedOf(summary.apps)},
            {u"appsSkipped"_s, summary.apps.wasThere + summary.apps.wasDifferent},
            {u"settings"_s, namedItems(summary.items, ItemKind::Setting)},
            {u"settingsSuccess"_s, summary.settings.arrived},
            {u"settingsFailed"_s, failedOf(summary.settings)},
            {u"totalBytes"_s, summary.arrivedBytes},
            {u"averageSpeed"_s, summary.averageSpeed()},
            {u"savedFolderPaths"_s, toJson(summary.savedFolderPaths)},
            {u"savedFolderCounts"_s, toJson(summary.savedFolderCounts)},
            {u"savedFolderSamples"_s, toJson(summary.savedFolderSamples)}};
}

QJsonObject toJson(const ScanResult &result)
{
    return {{u"scanTime"_s, result.scanTime.toString(Qt::ISODateWithMs)},
            {u"totalSize"_s, result.totalSize},
            {u"totalFiles"_s, result.totalFiles},
            {u"apps"_s, toJson(result.apps)},
            {u"folders"_s, toJson(result.folders)},
            {u"accounts"_s, toJson(result.accounts)},
            {u"settings"_s, toJson(result.settings)}};
}

} // namespace Zandrove::Cli
