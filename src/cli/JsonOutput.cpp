#include "cli/JsonOutput.h"

#include "support/Json.h"

#include <QJsonArray>

#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove::Cli {

namespace {

QJsonObject toJson(const PCInfo &pc)
{
    return {{u"id"_s, pc.id},
            {u"name"_s, pc.name},
            {u"ip"_s, pc.ip},
            {u"os"_s, pc.os},
            {u"code"_s, pc.verifyCode}};
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

QJsonObject toJson(const ItemOutcome &outcome)
{
    return {{u"name"_s, outcome.name}, {u"success"_s, outcome.success}, {u"error"_s, outcome.error}};
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
    case FileStatus::Failed:
        return u"failed"_s;
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

void JsonOutput::peerLost(const QString &id)
{
    print("peerLost"_L1, {{u"id"_s, id}});
}

void JsonOutput::found(const PCInfo &pc)
{
    print("found"_L1, toJson(pc));
}

void JsonOutput::request(const QString &name, bool asks)
{
    print("request"_L1, {{u"name"_s, name}, {u"asks"_s, asks}});
    if (asks)
        m_streams.err(questionAbout(name));
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
    if (status == FileStatus::Failed)
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

void JsonOutput::report(const MigrationReport &report, const RunItems &items)
{
    QJsonObject fields = Cli::toJson(report);
    fields.insert(u"apps"_s, toJson(items.apps));
    fields.insert(u"settings"_s, toJson(items.settings));
    print("report"_L1, fields);
}

void JsonOutput::scanning(int percent, const QString &item, int apps)
{
    print("scanning"_L1, {{u"percent"_s, percent}, {u"item"_s, item}, {u"apps"_s, apps}});
}

void JsonOutput::inventory(const ScanResult &result)
{
    print("inventory"_L1, Cli::toJson(result));
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

QJsonObject toJson(const MigrationReport &report)
{
    return {{u"startTime"_s, report.startTime.toString(Qt::ISODateWithMs)},
            {u"endTime"_s, report.endTime.toString(Qt::ISODateWithMs)},
            {u"filesSuccess"_s, report.filesSuccess},
            {u"filesFailed"_s, report.filesFailed},
            {u"filesSkipped"_s, report.filesSkipped},
            {u"appsSuccess"_s, report.appsSuccess},
            {u"appsFailed"_s, report.appsFailed},
            {u"appsSkipped"_s, report.appsSkipped},
            {u"settingsSuccess"_s, report.settingsSuccess},
            {u"settingsFailed"_s, report.settingsFailed},
            {u"totalBytes"_s, report.totalBytes},
            {u"averageSpeed"_s, report.averageSpeed},
            {u"savedFolderPaths"_s, toJson(report.savedFolderPaths)},
            {u"savedFolderCounts"_s, toJson(report.savedFolderCounts)},
            {u"savedFolderSamples"_s, toJson(report.savedFolderSamples)},
            {u"failedFiles"_s, QJsonArray::fromStringList(report.failedFiles)},
            {u"warnings"_s, QJsonArray::fromStringList(report.warnings)},
            {u"summary"_s, report.summary}};
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
