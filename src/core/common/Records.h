#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QDebug>
#include <QList>
#include <QMap>
#include <QMetaType>
#include <QString>
#include <QStringList>

/// The plain value records that every layer passes around. They own nothing, are copied freely, cross threads
/// in queued signals, and a default-constructed one is a valid empty record. Sizes are bytes.
namespace Zandrove {

/// Port of the one TCP connection between two PCs.
constexpr quint16 TcpPort = 52024;
/// Port on which discovery datagrams are sent and heard.
constexpr quint16 UdpPort = 52025;

/// Which end of a move this copy is. Kept as an int wherever a value from outside could be anything.
enum Role : int {
    OldPC = 0, ///< source, sender
    NewPC = 1, ///< target, receiver
};

/// "OldPC" for 0, "NewPC" for anything else, as log lines name a role.
[[nodiscard]] const char *roleName(int role);

/// How peers are looked for.
enum DiscoveryMode : int {
    NetworkMode = 0, ///< broadcast only
    CableMode = 1,   ///< broadcast, and a sweep of the addresses around this machine's own
};

/// One peer on the network. Two are equal when their ids are the same text.
struct PCInfo
{
    QString id;             ///< computer name as announced; the address for a peer that only a sweep found
    QString name;           ///< display name
    QString ip;             ///< address the peer announces for itself
    QString senderIp;       ///< address its datagram came from
    quint16 port = TcpPort; ///< TCP port of the peer
    QString os;             ///< description of its operating system
    QString verifyCode;     ///< its current four-digit code
    bool online = false;    ///< true for every entry of the discovery table
    QByteArray opaqueData;  ///< spare, stays empty
    QDateTime lastSeen;     ///< time of the last datagram or sweep hit
    quint64 key = 0;        ///< of its row in the discovery table and of no other; 0 outside it
};

inline bool operator==(const PCInfo &a, const PCInfo &b)
{
    return a.id == b.id;
}

/// A PC asks to be let in.
struct ConnectionQuestion
{
    quint64 number = 0; ///< another one for each question
    QString name;       ///< as the PC calls itself
    QString ip;         ///< where its connection comes from
    QString os;         ///< what it says that it runs on
};

/// One installed application.
struct AppInfo
{
    QString name;
    QString version;
    QString installPath;
    QString iconPath; ///< file to take the icon from
    qint64 size = 0;
    bool canTransfer = true; ///< a run takes an application only when this and `selected` are set
    bool reservedFlag = false;
    bool selected = false; ///< chosen by the user
    int reservedValue = 0;
    QString reservedText;
    QString hkcuRegPath; ///< registry key it was found under, where one is known
};

/// One folder to move.
struct FolderInfo
{
    QString name;          ///< last path component
    QString path;          ///< full path as given
    qint64 totalSize = 0;  ///< bytes of all files below it
    int fileCount = 0;     ///< files below it
    bool selected = false; ///< chosen by the user
    qint64 reservedValue = 0;
    QString description; ///< spare, stays empty
};

/// One user profile of the Old PC.
struct AccountInfo
{
    QString userName;    ///< name of the profile directory
    QString accountType; ///< "Local User" where the profile can be read, else empty
    QString reservedText;
    QString profilePath;
    bool selected = false;
    int reservedValue = 0;
    QString note;
};

/// One system setting that can be moved.
struct SettingInfo
{
    QString id;           ///< internal key such as "wallpaper"
    QString name;         ///< translated display name
    QString category;     ///< translated category
    QString description;  ///< translated description
    QString value;        ///< current value
    QString registryPath; ///< registry location it lives in
    qint64 size = 0;      ///< bytes it will carry
    bool selected = false;
    bool available = true; ///< exists on this machine
    int status = 0;
};

/// What a scan of the Old PC found.
struct ScanResult
{
    QList<AppInfo> apps;
    QList<FolderInfo> folders;
    QList<AccountInfo> accounts;
    QList<SettingInfo> settings;
    qint64 totalSize = 0; ///< bytes of all applications and folders
    int totalFiles = 0;   ///< files of all folders
    QDateTime scanTime;
};

/// One snapshot of a running transfer.
struct TransferProgress
{
    int stage = 0;          ///< 0 idle, 1 moving files
    int overallPercent = 0; ///< transferred * 100 / total; 0 while the total is not positive
    int stagePercent = 0;   ///< same as `overallPercent`
    qint64 totalBytes = 0;
    qint64 transferredBytes = 0;
    double bytesPerSecond = 0.0;
    int remainingSeconds = 0; ///< 0 while the speed is not positive
    QString currentFile;      ///< file name without directory
    QString statusText;
    int completedItems = 0; ///< succeeded, failed and skipped
    int totalItems = 0;
    int reservedCounters[4] = {0, 0, 0, 0};
    int failedItems = 0;

    /// "1h 5m", "5m 3s" or "3s"; "Calculating..." while `remainingSeconds` is not positive.
    [[nodiscard]] QString remainingTimeString() const;
};

/// The result of a whole transfer.
struct MigrationReport
{
    QDateTime startTime;
    QDateTime endTime;
    int filesSuccess = 0;
    int filesFailed = 0;
    int filesSkipped = 0;
    int appsSuccess = 0;
    int appsFailed = 0;
    int appsSkipped = 0;
    int settingsSuccess = 0;
    int settingsFailed = 0;
    qint64 totalBytes = 0;
    double averageSpeed = 0.0;                 ///< bytes per second over whole seconds
    QMap<QString, QString> savedFolderPaths;   ///< New PC: receiving folder name to local path
    QMap<QString, int> savedFolderCounts;      ///< New PC: receiving folder name to number of files
    QMap<QString, QString> savedFolderSamples; ///< New PC: receiving folder name to "(a, b, c, ...)"
    QStringList failedFiles;
    QStringList warnings;
    QString summary;
};

/// One file of a running send.
struct FileTransferTask
{
    enum Status : int { Pending = 0, Completed = 2, Failed = 3, Skipped = 4 };

    int taskId = -1;      ///< unique within a run
    QString sourcePath;   ///< path on this machine
    QString relativePath; ///< path below the destination root, '/' between components
    QString category;     ///< spare, stays empty
    qint64 fileSize = 0;
    qint64 transferredBytes = 0;
    uint checksum = 0; ///< file checksum, set when sending ends
    int status = Pending;
    QString error; ///< failure text
};

/// A row of a file transfer as it may be shown or logged.
struct TransferFileInfo
{
    QString fileName;
    QString sourcePath;
    QString destinationPath;
    qint64 size = 0;
    qint64 transferred = 0;
    int status = 0;
    QDateTime timestamp;
    QString error;
};

/// What the New PC does with a file whose destination exists already.
enum class ConflictPolicy : int {
    Skip = 0,      ///< leave the existing file alone
    Overwrite = 1, ///< replace it
    Rename = 2,    ///< take the first free "name_N.suffix"
};

/// The conflict policy, and three spare members that stay zero.
struct ConflictConfig
{
    int policy = 0; ///< a `ConflictPolicy`
    int reserved1 = 0;
    int reserved2 = 0;
    int reserved3 = 0;
};

QDebug operator<<(QDebug debug, const PCInfo &pc);
QDebug operator<<(QDebug debug, const QList<PCInfo> &pcs);
QDebug operator<<(QDebug debug, const TransferProgress &progress);

} // namespace Zandrove

Q_DECLARE_METATYPE(Zandrove::PCInfo)
Q_DECLARE_METATYPE(Zandrove::AppInfo)
Q_DECLARE_METATYPE(Zandrove::FolderInfo)
Q_DECLARE_METATYPE(Zandrove::AccountInfo)
Q_DECLARE_METATYPE(Zandrove::SettingInfo)
Q_DECLARE_METATYPE(Zandrove::ScanResult)
Q_DECLARE_METATYPE(Zandrove::TransferProgress)
Q_DECLARE_METATYPE(Zandrove::MigrationReport)
Q_DECLARE_METATYPE(Zandrove::FileTransferTask)
Q_DECLARE_METATYPE(Zandrove::TransferFileInfo)
Q_DECLARE_METATYPE(Zandrove::ConflictConfig)
