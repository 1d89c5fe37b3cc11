#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/// One setting in transit, and the payloads of the setting messages, writer beside reader. A reader takes
/// whatever a peer sends: missing keys and values of another type read as 0 or empty.
namespace Zandrove {

/// Everything that belongs to one setting.
struct SettingPackage
{
    QString key;                     ///< the setting's id, such as "wallpaper"
    QString name;                    ///< display name
    QString category;                ///< display category
    QByteArray registryData;         ///< an exported key as `reg export` wrote it; may be empty
    QString registryPath;            ///< the key that was exported
    QByteArray fileData;             ///< a whole file; may be empty
    QString fileName;                ///< its bare name. One that a peer sent can be anything
    QString originalFilePath;        ///< its path on the Old PC
    QMap<QString, QString> metadata; ///< values by name
};

namespace SettingMessages {

/// `SettingStart`: everything of the package but its two contents, of which only the sizes go along.
[[nodiscard]] QByteArray startPayload(const SettingPackage &package);
/// A package with empty contents. Metadata that is no text is left out.
[[nodiscard]] SettingPackage readStart(const QByteArray &payload);

/// `SettingData`: the exported key in one piece, or one chunk of the file. Contents travel as Base64.
struct Data
{
    enum class Content { Registry, File, Unknown };

    QString key = {};
    Content content = Content::Unknown;
    QByteArray bytes = {};
    bool intact = true; ///< false where what arrived is no Base64; `bytes` is empty then
    // Of a file only:
    int chunkIndex = 0; ///< from 0
    int totalChunks = 0;
    QString fileName = {};

    [[nodiscard]] QByteArray toPayload() const;
    [[nodiscard]] static Data fromPayload(const QByteArray &payload);
};

/// `SettingEnd`: the setting is complete.
struct End
{
    QString key;
    QString name;

    [[nodiscard]] QByteArray toPayload() const;
    [[nodiscard]] static End fromPayload(const QByteArray &payload);
};

/// `SettingComplete`: how many settings could be exported and how many could not.
struct Complete
{
    int success = 0;
    int failed = 0;

    [[nodiscard]] QByteArray toPayload() const;
    [[nodiscard]] static Complete fromPayload(const QByteArray &payload);
};

} // namespace SettingMessages

} // namespace Zandrove
