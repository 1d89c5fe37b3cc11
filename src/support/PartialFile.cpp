#include "support/PartialFile.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <atomic>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

/// Bytes in UTF-8, which are never fewer than UTF-16 units. Some encrypted file systems take no longer name.
constexpr qsizetype MaxNameBytes = 140;
constexpr qsizetype MaxPathBytes = 4095; // without the final NUL

constexpr auto Suffix = ".zandrove-part"_L1;

/// The process, so that a living one can be told from one that has ended, and a number that no other has.
QString ownMark()
{
    static const quint64 Program = QRandomGenerator::system()->generate64();
    static std::atomic<quint32> files = 0;
    return u".%1-%2-%3"_s.arg(QCoreApplication::applicationPid(), 0, 16)
        .arg(Program, 16, 16, QChar(u'0'))
        .arg(++files, 0, 16);
}

const QRegularExpression &temporaryName()
{
    static const QRegularExpression Name(u"^\\..*\\.([0-9a-f]+)-[0-9a-f]{16}-[0-9a-f]+\\.zandrove-part$"_s,
                                         QRegularExpression::DotMatchesEverythingOption);
    return Name;
}

/// As much of the beginning of `text` as fits into `bytes` of UTF-8 without cutting a character.
QString cut(const QString &text, qsizetype bytes)
{
    QString kept = text;
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
    characters.toEnd();
    while (!kept.isEmpty() && kept.toUtf8().size() > bytes)
        kept.truncate(std::max<qsizetype>(characters.toPreviousBoundary(), 0));
    return kept;
}

QString temporaryPath(const QString &folder, const QString &fileName)
{
    const QString mark = ownMark() + Suffix;
    const qsizetype fixed = 1 + mark.size();
    const qsizetype room =
        std::min(MaxNameBytes, MaxPathBytes - QFile::encodeName(folder).size() - 1) - fixed;
    return folder + u"/."_s + cut(fileName.left(MaxNameBytes), room) + mark;
}

} // namespace

bool PartialFile::create(const QString &place)
{
    remove();
    m_isFlushed = false;
    const QFileInfo file(place);
    return m_file.create(temporaryPath(file.absolutePath(), file.fileName()));
}

bool PartialFile::write(QByteArrayView bytes)
{
    return m_file.write(bytes.data(), bytes.size());
}

PartialFile::Renaming PartialFile::moveTo(const QString &place, bool mayReplace)
{
    if (!m_isFlushed && !m_file.flush())
        return Renaming::Failed;
    m_isFlushed = true;
    return m_file.rename(place, mayReplace);
}

bool PartialFile::isTemporaryName(const QString &fileName)
{
    return fileName.endsWith(Suffix) && temporaryName().match(fileName).hasMatch();
}

void removeAbandonedFiles(const QString &folder)
{
    QDirIterator files(folder, {u'*' + Suffix}, QDir::Files | QDir::Hidden | QDir::System);
    while (files.hasNext()) {
        const QString path = files.next();
        const auto name = temporaryName().match(files.fileName());
        bool isNumber = false;
        const qint64 owner = name.captured(1).toLongLong(&isNumber, 16);
        if (name.hasMatch() && isNumber)
            Platform::removeAbandoned(path, owner);
    }
}

} // namespace Zandrove
