#pragma once

#include "SimulatedPc.h"

#include "core/common/Records.h"
#include "settings/SettingMigrator.h"

#include <QDir>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <optional>
#include <utility>

/// Both halves of a run of settings in one process: what an Old PC says, and a New PC that hears it.
namespace Zandrove {

using namespace Qt::StringLiterals;
using SettingMessages::Data;
using Values = QMap<QString, QString>;
using Messages = QList<std::pair<int, QByteArray>>; ///< type and payload

/// A setting that the user has ticked.
inline SettingInfo chosen(const QString &id, const QString &registryPath = QString())
{
    SettingInfo setting;
    setting.id = id;
    setting.name = id.toUpper();
    setting.registryPath = registryPath;
    setting.selected = true;
    return setting;
}

/// One export, from its beginning to its end.
struct Export
{
    Messages messages;
    QStringList failed;    ///< names
    QList<int> percents;   ///< of the run
    QVariantList finished; ///< the two counts; empty where the export said nothing of its end

    explicit Export(const QList<SettingInfo> &settings)
    {
        SettingMigrator migrator;
        QObject::connect(&migrator, &SettingMigrator::requestSendCommand, &migrator,
                         [this](int type, const QByteArray &payload) {
                             messages.append({type, payload});
                         });
        QObject::connect(&migrator, &SettingMigrator::progress, &migrator,
                         [this](int percent) { percents.append(percent); });
        QObject::connect(&migrator, &SettingMigrator::settingFinished, &migrator,
                         [this](const QString &name, bool success, const QString &error) {
                             QCOMPARE(error, success ? QString() : u"Export failed"_s);
                             if (!success)
                                 failed.append(name);
                         });
        QSignalSpy spy(&migrator, &SettingMigrator::finished);
        migrator.start(settings);
        finished = spy.value(0);
    }

    /// The types of the messages in their order.
    [[nodiscard]] QList<int> types() const
    {
        QList<int> list;
        for (const auto &[type, payload] : messages)
            list.append(type);
        return list;
    }
};

/// A New PC's migrator that has begun to receive.
struct Receiver
{
    SettingMigrator migrator;
    QSignalSpy settingFinished{&migrator, &SettingMigrator::settingFinished};
    QSignalSpy percents{&migrator, &SettingMigrator::settingProgress};
    QSignalSpy progress{&migrator, &SettingMigrator::progress};
    QSignalSpy finished{&migrator, &SettingMigrator::finished};

    Receiver() { migrator.startReceiving(); }

    void hear(const Messages &messages)
    {
        for (const auto &[type, payload] : messages) {
            if (type == 112)
                migrator.onSettingStart(payload);
            else if (type == 113)
                migrator.onSettingData(payload);
            else if (type == 114)
                migrator.onSettingEnd(payload);
            else
                migrator.onSettingComplete(payload);
        }
    }

    void begin(const QString &key, const Values &metadata = {})
    {
        SettingPackage package;
        package.key = package.name = key;
        package.metadata = metadata;
        migrator.onSettingStart(SettingMessages::startPayload(package));
    }

    void addKey(const QString &key, const QByteArray &content)
    {
        const Data data{.key = key, .content = Data::Content::Registry, .bytes = content};
        migrator.onSettingData(data.toPayload());
    }

    void addFile(const QString &key, const QString &name, const QByteArray &bytes, int index = 0,
                 int total = 1)
    {
        const Data data{.key = key,
                        .content = Data::Content::File,
                        .bytes = bytes,
                        .chunkIndex = index,
                        .totalChunks = total,
                        .fileName = name};
        migrator.onSettingData(data.toPayload());
    }

    /// Ends the current setting. Whether it was applied; nothing where the end was dropped.
    std::optional<bool> end(const QString &key)
    {
        settingFinished.clear();
        migrator.onSettingEnd(SettingMessages::End{key, key}.toPayload());
        if (settingFinished.isEmpty())
            return std::nullopt;
        return settingFinished[0][1].toBool() && settingFinished[0][2].toString().isEmpty();
    }
};

/// Keeps the log for as long as it lives. Its calls of the system go into the record of the programs' calls
/// too, so that all of them have one order.
class LogRecorder
{
public:
    LogRecorder()
        : m_before(qInstallMessageHandler(record))
    {
        lines.clear();
    }
    ~LogRecorder() { qInstallMessageHandler(m_before); }
    LogRecorder(const LogRecorder &) = delete;
    LogRecorder &operator=(const LogRecorder &) = delete;

    static inline QStringList lines;

private:
    static void record(QtMsgType, const QMessageLogContext &, const QString &line)
    {
        lines.append(line);
        const QString mark = u"[SystemParameters] "_s;
        const QString calls = qEnvironmentVariable("ZANDROVE_STANDIN_CALLS");
        if (calls.isEmpty() || !line.startsWith(mark))
            return;
        QFile file(calls);
        if (file.open(QIODevice::WriteOnly | QIODevice::Append))
            file.write(line.mid(mark.size()).toUtf8() + '\n');
    }

    QtMessageHandler m_before;
};

/// What the system was called with, with FILE and GUID for what differs each time.
inline QStringList callsOf(const SimulatedPc &pc)
{
    static const QRegularExpression file(
        u"[^|]*[/\\\\]zandrove_(reg_(ex|im)port_\\d{13}\\.reg|power_(ex|im)port\\.pow)"_s);
    static const QRegularExpression guid(u"[0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}"_s);
    return pc.programCalls().replaceInStrings(file, u"FILE"_s).replaceInStrings(guid, u"GUID"_s);
}

/// The temporary files that are left.
inline QStringList leftovers()
{
    return QDir::temp().entryList({u"zandrove_*"_s});
}

} // namespace Zandrove
