#include "pipeline/IncomingFile.h"

#include "core/common/Records.h"
#include "pipeline/DestinationGuard.h"
#include "pipeline/Log.h"
#include "platform/LastError.h"
#include "support/Volumes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

constexpr qsizetype WriteBufferBytes = 4194304; ///< 4 MiB
/// How often a place that has just been taken by somebody else is given up for another one.
constexpr int MaxPlaces = 20;

} // namespace

IncomingFile::State IncomingFile::begin(const ReceivedFile &announced)
{
    abandon();
    m_file = announced;
    m_wanted = announced.destination;
    m_problem = Problem::None;
    m_systemText.clear();
    m_checksum.reset();
    m_received = 0;
    return m_state = findPlace();
}

IncomingFile::State IncomingFile::findPlace()
{
    const QFileInfo place(m_wanted);
    // A name of that form would be taken for a leftover, and removed, by a later run.
    if (!isSafeDestination(m_file.relativePath, m_wanted) || PartialFile::isTemporaryName(place.fileName())) {
        qCDebug(logPipeline) << "  Refused, the path leads out of its folder:" << m_file.relativePath;
        fail(Problem::CannotCreate);
        return m_state;
    }
    const QString folder = place.absolutePath();
    if (!m_tidyFolders.contains(folder)) {
        m_tidyFolders.insert(folder);
        removeAbandonedFiles(folder);
    }
    if (!place.exists())
        return create();
    m_file.destination = resolveConflict(m_wanted, m_policy);
    if (!m_file.destination.isEmpty())
        return create();
    qCDebug(logPipeline) << "  Skipped due to conflict";
    m_file.destination = m_wanted;
    m_standing.open(m_wanted, m_file.bytes);
    return State::Standing;
}

IncomingFile::State IncomingFile::create()
{
    const QString folder = QFileInfo(m_file.destination).absolutePath();
    qCDebug(logPipeline) << "  Target directory:" << folder;
    if (!QDir().mkpath(folder)) {
        qCDebug(logPipeline) << "  ERROR: Failed to create directory:" << folder;
        failByDisk(Problem::CannotCreate, Platform::lastErrorCode());
        return m_state;
    }
    qCDebug(logPipeline) << "  Directory ready:" << folder;
    // What was not there at the first look may have been put there by somebody else since.
    if (!isSafeDestination(m_file.relativePath, m_file.destination)) {
        fail(Problem::CannotCreate);
    } else if (!m_partial.create(m_file.destination)) {
        failByDisk(Problem::CannotCreate, m_partial.error());
        qCDebug(logPipeline) << "  ERROR: Failed to open file:" << m_systemText;
    } else {
        qCDebug(logPipeline) << "  File opened successfully";
        return State::Writing;
    }
    return m_state;
}

bool IncomingFile::take(QByteArrayView bytes)
{
    if (m_state == State::Standing) {
        m_standing.advance(bytes.size());
        return true;
    }
    if (m_state != State::Writing)
        return true;
    m_buffer.append(bytes);
    const qsizetype buffered = m_buffer.size();
    if (buffered >= WriteBufferBytes && !flush()) {
        qCDebug(logPipeline) << "[FileData] flushWriteBuffer failed!"
                             << "path:" << m_file.relativePath << "bufferSize:" << buffered;
        return failByDisk(Problem::WriteError, m_partial.error());
    }
    m_received += bytes.size();
    m_checksum.update(bytes);
    return true;
}

bool IncomingFile::flush()
{
    const qint64 before = m_partial.writtenBytes();
    const bool written = m_partial.write(m_buffer);
    if (!written)
        qCDebug(logPipeline) << "[flushWriteBuffer] Write failed at" << m_partial.writtenBytes() - before
                             << "/" << m_buffer.size() << "error:" << Platform::errorText(m_partial.error())
                             << "path:" << m_file.relativePath;
    m_buffer.resize(0);
    return written;
}

bool IncomingFile::end(quint32 checksum, bool changed)
{
    bool succeeded = false;
    if (changed) {
        fail(Problem::Changed);
    } else if (m_state == State::Standing) {
        judgeStanding(checksum);
        succeeded = checksum == FileChecksum().value(); // as if nothing had come
    } else if (m_checksum.value() != checksum) {
        qCDebug(logPipeline) << "[finalizeFile] Checksum mismatch!" << Qt::hex << "expected:" << checksum
                             << "calculated:" << m_checksum.value() << Qt::dec << "fileSize:" << m_file.bytes
                             << "received:" << m_received << "path:" << m_file.relativePath;
        fail(Problem::Mismatch);
    } else if (!flush()) {
        qCDebug(logPipeline) << "[finalizeFile] flushWriteBuffer failed for:" << m_file.relativePath;
        failByDisk(Problem::WriteError, m_partial.error());
    } else {
        succeeded = place();
    }
    m_standing.close();
    m_state = State::None;
    return succeeded;
}

bool IncomingFile::place()
{
    for (int attempt = 0; attempt < MaxPlaces; ++attempt) {
        switch (m_partial.moveTo(m_file.destination, m_policy == int(ConflictPolicy::Overwrite))) {
        case PartialFile::Renaming::Renamed:
            m_file.outcome = ItemOutcome::Arrived;
            m_file.bytes = m_received;
            return true;
        case PartialFile::Renaming::Failed:
            return failByDisk(Problem::WriteError, m_partial.error());
        case PartialFile::Renaming::Occupied:
            break;
        }
        if (!placeElsewhere())
            return m_problem == Problem::None && m_received == 0;
    }
    return failByDisk(Problem::CannotCreate, m_partial.error());
}

/// Something has come to stand there while the file was received. False when that has decided it.
bool IncomingFile::placeElsewhere()
{
    const QString other = resolveConflict(m_wanted, m_policy);
    if (other.isEmpty()) {
        m_file.destination = m_wanted;
        m_standing.open(m_wanted, m_received);
        m_standing.readOn(m_isCancelled);
        judgeStanding(m_checksum.value());
        m_partial.remove();
        return false;
    }
    if (other == m_file.destination)
        return failByDisk(Problem::CannotCreate, m_partial.error());
    m_file.destination = other;
    return true;
}

void IncomingFile::judgeStanding(quint32 checksum)
{
    m_file.outcome = m_standing.isIdentical(checksum) ? ItemOutcome::WasThere : ItemOutcome::WasDifferent;
}

bool IncomingFile::abandon()
{
    if (m_state != State::Writing && m_state != State::Standing) {
        m_state = State::None;
        return false;
    }
    fail(Problem::Unfinished);
    m_standing.close();
    m_state = State::None;
    return true;
}

bool IncomingFile::fail(Problem problem, const QString &systemText)
{
    m_state = State::Failed;
    m_problem = problem;
    m_systemText = systemText;
    m_file.outcome = ItemOutcome::Failed;
    m_partial.remove();
    m_buffer.resize(0);
    return false;
}

bool IncomingFile::failByDisk(Problem problem, unsigned long code)
{
    if (Platform::isVolumeFull(code))
        m_file.fullVolume = volumeOf(m_file.destination).name;
    return fail(problem, Platform::errorText(code));
}

QString resolveConflict(const QString &path, int policy)
{
    constexpr int MaxRenames = 999;
    switch (ConflictPolicy(policy)) {
    case ConflictPolicy::Skip:
        return {};
    case ConflictPolicy::Rename:
        break;
    default:
        return path;
    }
    const QFileInfo info(path);
    const QString stem = info.path() + u'/' + info.completeBaseName() + u'_';
    const QString suffix = info.suffix().isEmpty() ? QString() : u'.' + info.suffix();
    for (int counter = 1; counter < MaxRenames; ++counter) {
        const QFileInfo candidate(stem + QString::number(counter) + suffix);
        if (!candidate.exists() && !candidate.isSymLink())
            return candidate.filePath();
    }
    return stem + QString::number(MaxRenames) + suffix;
}

} // namespace Zandrove
