#pragma once

#include "settings/SettingMigrator.h"

#include <QMap>
#include <QSignalSpy>

#include <array>

/// A PC's half of a move of settings, and the messages that it is given.
namespace Zandrove {

using namespace Qt::StringLiterals;
using SettingMessages::Data;
using Values = QMap<QString, QString>;

/// A setting that the user has ticked.
inline SettingInfo chosen(const QString &id, const QString &registryPath = QString())
{
    SettingInfo setting;
    setting.id = setting.name = id;
    setting.registryPath = registryPath;
    setting.selected = true;
    return setting;
}

inline QByteArray keyPayload(const QString &setting, const QByteArray &key)
{
    return Data{.key = setting, .content = Data::Content::Registry, .bytes = key}.toPayload();
}

inline QByteArray filePayload(const QString &setting, const QString &name, const QByteArray &bytes,
                              int index = 0, int total = 1)
{
    return Data{setting, Data::Content::File, bytes, true, index, total, name}.toPayload();
}

/// A migrator, and all that it says.
struct Half
{
    SettingMigrator migrator;
    QSignalSpy sent{&migrator, &SettingMigrator::requestSendCommand};
    QSignalSpy percents{&migrator, &SettingMigrator::settingProgress};
    QSignalSpy ended{&migrator, &SettingMigrator::settingFinished};
    QSignalSpy progress{&migrator, &SettingMigrator::progress};
    QSignalSpy finished{&migrator, &SettingMigrator::finished};

    void hear(int type, const QByteArray &payload)
    {
        constexpr std::array Slots = {&SettingMigrator::onSettingStart, &SettingMigrator::onSettingData,
                                      &SettingMigrator::onSettingEnd, &SettingMigrator::onSettingComplete};
        (migrator.*Slots[std::size_t(type - 112)])(payload);
    }

    void hearAll(const Half &other)
    {
        for (const QVariantList &message : other.sent)
            hear(message[0].toInt(), message[1].toByteArray());
    }

    /// Takes in a setting with this data. Whether it was applied; "dropped" where it did not end.
    QString apply(const QString &key, const QByteArrayList &data, const Values &metadata = {})
    {
        SettingPackage package;
        package.key = key;
        package.metadata = metadata;
        hear(112, SettingMessages::startPayload(package));
        for (const QByteArray &payload : data)
            hear(113, payload);
        return end(key);
    }

    QString end(const QString &key)
    {
        ended.clear();
        hear(114, SettingMessages::End{key, key}.toPayload());
        return ended.isEmpty() ? u"dropped"_s : ended[0][1].toBool() ? u"applied"_s : u"failed"_s;
    }
};

} // namespace Zandrove
