#include "support/ReplacingFile.h"

#include "platform/LastError.h"
#include "support/Volumes.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace Zandrove {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Zandrove::ReplacingFile)
};

} // namespace

bool ReplacingFile::open()
{
    const QFileInfo old(m_path);
    if (old.isDir())
        return fail(Text::tr("a folder of this name stands in its place"));
    if (old.exists() && !old.isSymLink() && !old.isWritable())
        return fail(Text::tr("the file that stands there is read-only"));
    if (!QDir().mkpath(old.path()))
        return fail(Platform::lastErrorCode());
    return m_file.create(m_path) || fail(m_file.error());
}

bool ReplacingFile::write(const QByteArray &bytes)
{
    return m_file.write(bytes) || fail(m_file.error());
}

bool ReplacingFile::commit()
{
    return m_file.moveTo(m_path, true) == PartialFile::Renaming::Renamed || fail(m_file.error());
}

bool ReplacingFile::fail(const QString &reason)
{
    if (m_reason.isEmpty())
        m_reason = reason;
    return false;
}

bool ReplacingFile::fail(unsigned long code)
{
    if (Platform::isVolumeFull(code))
        m_fullVolume = volumeOf(m_path).name;
    return fail(Platform::errorText(code));
}

} // namespace Zandrove
