#include "platform/generic/RegistryFile.h"

#include "platform/generic/RegistryText.h"

#include <QFile>
#include <QFileInfo>
#include <QLockFile>

#include <sys/stat.h>

#include <cstdio>
#include <mutex>

using namespace Qt::StringLiterals;

namespace Zandrove::Platform {

namespace {

/// How long another program may take to change the file.
constexpr int LongestLock = 10000; // milliseconds

/// What tells one state of a file from another. Every change puts a new file in the place of the old one, and
/// its number is a new one while the old file is kept open.
struct FileState
{
    QString path;
    ino_t number = 0;
    off_t size = 0;
    qint64 seconds = 0;
    qint64 nanoseconds = 0;

    bool operator==(const FileState &) const = default;
};

FileState stateOf(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return {path};
    return {path, status.st_ino, status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec};
}

/// Adds what `file` holds to `registry`, and leaves it open. False for a file that is not a .reg file; a
/// missing one holds nothing.
bool load(QFile &file, RegistryNode &registry)
{
    if (!file.exists())
        return true;
    return file.open(QIODevice::ReadOnly) && mergeRegistryText(registry, decodeRegistryFile(file.readAll()));
}

/// The registry as it was read last.
struct Snapshot
{
    FileState state;
    std::unique_ptr<QFile> file;
    std::shared_ptr<const RegistryNode> registry = std::make_shared<const RegistryNode>();
};

Snapshot takeSnapshot(FileState state)
{
    auto file = std::make_unique<QFile>(state.path);
    auto registry = std::make_shared<RegistryNode>();
    if (!load(*file, *registry))
        *registry = {};
    return {std::move(state), std::move(file), std::move(registry)};
}

/// Readers see the old content or the new, never a part. What a power failure leaves is of no interest here.
bool replaceFile(const QString &path, const QByteArray &content)
{
    QFile file(path + u".new"_s);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.flush())
        return false;
    return std::rename(QFile::encodeName(file.fileName()).constData(), QFile::encodeName(path).constData()) ==
           0;
}

} // namespace

QString registryFileName()
{
    return qEnvironmentVariable("ZANDROVE_REGISTRY");
}

bool registryFileExists()
{
    return QFileInfo(registryFileName()).isFile();
}

std::shared_ptr<const RegistryNode> readRegistryFile()
{
    static std::mutex mutex;
    static Snapshot last;

    const std::scoped_lock lock(mutex);
    FileState state = stateOf(registryFileName());
    if (state != last.state)
        last = takeSnapshot(std::move(state));
    return last.registry;
}

bool changeRegistryFile(const std::function<bool(RegistryNode &registry)> &change)
{
    const QString path = registryFileName();
    if (path.isEmpty())
        return false;
    QLockFile lock(path + u".lock"_s);
    if (!lock.tryLock(LongestLock))
        return false;
    QFile before(path);
    RegistryNode registry;
    if (!load(before, registry) || !change(registry))
        return false;
    return replaceFile(path, encodeRegistryFile(registryText(registry)));
}

} // namespace Zandrove::Platform
