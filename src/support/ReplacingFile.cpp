#include "support/ReplacingFile.h"

#include "platform/LastError.h"
#include "platform/ReplaceFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QStorageInfo>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Zandrove::ReplacingFile)
};

/// A name beside `path` that nothing has: hidden where a dot does that, and short, so that it fits wherever
/// a name of a usual length does.
QString temporaryPath(const QString &path)
{
    const QString folder = QFileInfo(path).path();
    QString candidate;
    do {
        candidate =
            folder + u"/.~zd%1"_s.arg(QRandomGenerator::global()->generate(), 8, 16, QLatin1Char('0'));
    } while (QFileInfo::exists(candidate));
    return candidate;
}

/// The volume of `folder` where it has no room for as many bytes; else nothing.
QString volumeWithoutRoom(const QString &folder, qint64 bytes)
{
    const QStorageInfo volume(folder);
    if (!volume.isValid() || volume.bytesAvailable() >= bytes)
        return {};
    const QString root = volume.rootPath();
    return root.endsWith(":/"_L1) ? root.chopped(1) : root;
}

} // namespace

ReplacingFile::ReplacingFile(const QString &path)
    : m_path(path)
{
}

ReplacingFile::~ReplacingFile()
{
    if (!m_file.fileName().isEmpty())
        m_file.remove();
}

bool ReplacingFile::open()
{
    const QFileInfo old(m_path);
    if (old.isDir())
        return fail(Text::tr("a folder of this name stands in its place"));
    if (old.exists() && !old.isSymLink() && !old.isWritable())
        return fail(Text::tr("the file that stands there is read-only"));
    if (!QDir().mkpath(old.path()))
        return fail(Platform::errorText(Platform::lastErrorCode()));
    m_file.setFileName(temporaryPath(m_path));
    if (m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return true;
    failForSystem(1);
    m_file.setFileName({});
    return false;
}

bool ReplacingFile::write(const QByteArray &bytes)
{
    // A volume that fills up takes a part, and tells why at the next attempt only.
    for (qint64 done = 0; done < bytes.size();) {
        const qint64 taken = m_file.write(bytes.constData() + done, bytes.size() - done);
        if (taken <= 0)
            return failForSystem(bytes.size() - done);
        done += taken;
    }
    m_written += bytes.size();
    return true;
}

bool ReplacingFile::commit()
{
    m_file.close(); // some file systems tell only here that there is no room
    if (m_file.error() != QFile::NoError)
        return failForSystem(1);
    if (QFileInfo(m_file.fileName()).size() != m_written)
        return fail(Text::tr("it was not written whole"));
    if (!Platform::replaceFile(m_file.fileName(), m_path))
        return fail(Platform::errorText(Platform::lastErrorCode()));
    m_file.setFileName({});
    return true;
}

bool ReplacingFile::fail(const QString &reason)
{
    if (m_reason.isEmpty())
        m_reason = reason;
    return false;
}

/// The file's error tells a full volume on some systems only; there is another sign of it everywhere.
bool ReplacingFile::failForSystem(qint64 bytes)
{
    m_fullVolume = volumeWithoutRoom(QFileInfo(m_path).path(), bytes);
    return fail(m_file.errorString());
}

} // namespace Zandrove
