#include "cli/TextOutput.h"

#include "cli/Columns.h"
#include "support/PrintableText.h"
#include "support/RunTexts.h"
#include "support/Utilities.h"

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace Zandrove::Cli {

namespace {

constexpr int NarrowestLiveLine = 20; // columns; less says nothing
constexpr int CountColumns = 8;
constexpr int SizeColumns = 11;
constexpr int MaxShownFiles = 20;

/// Name of a peer for a person, with what is known besides it.
QString described(const PCInfo &pc)
{
    return pc.ip.isEmpty() || pc.ip == pc.name ? pc.name : u"%1 (%2)"_s.arg(pc.name, pc.ip);
}

/// One line of the inventory: a size, if there is one, and what is known besides it.
QString inventoryRow(std::optional<qint64> size, QStringList parts)
{
    parts.removeAll(QString());
    return (size ? formatSize(*size) : QString()).rightJustified(SizeColumns) + u"  "_s + parts.join(u"  "_s);
}

constexpr int FindingIndent = 10; // columns
constexpr int FindingWidth = 88;

QString severityWord(Severity severity)
{
    switch (severity) {
    case Severity::Ok:
        return TextOutput::tr("ok");
    case Severity::Hint:
        return TextOutput::tr("hint");
    case Severity::Problem:
        return TextOutput::tr("PROBLEM");
    }
    return {};
}

} // namespace

TextOutput::TextOutput(Streams streams, int role, bool listsPeers)
    : m_streams(std::move(streams))
    , m_role(role)
    , m_listsPeers(listsPeers)
{
}

TextOutput::~TextOutput()
{
    clearLiveLine();
}

void TextOutput::line(const QString &text)
{
    clearLiveLine();
    m_streams.out((printable(text) + u'\n').toUtf8());
}

void TextOutput::errorText(const QByteArray &bytes)
{
    clearLiveLine();
    m_streams.err(bytes);
}

void TextOutput::showLiveLine(const QString &text)
{
    const int columns = m_streams.columns();
    if (columns < NarrowestLiveLine)
        return;
    m_streams.out("\r" + fitted(printable(text), columns - 1).toUtf8() + "\x1b[K");
    m_liveLineShown = true;
}

void TextOutput::clearLiveLine()
{
    if (m_liveLineShown)
        m_streams.out("\r\x1b[K");
    m_liveLineShown = false;
}

void TextOutput::code(const QString &code)
{
    line(tr("The code of this PC is %1. Waiting for an Old PC.").arg(code));
}

void TextOutput::peer(const PCInfo &pc)
{
    if (!m_listsPeers)
        return;
    QString text = u"+ "_s + described(pc);
    if (!pc.verifyCode.isEmpty())
        text += u"  "_s + tr("code %1").arg(pc.verifyCode);
    if (!pc.os.isEmpty())
        text += u"  "_s + pc.os;
    line(text);
}

void TextOutput::peerLost(const QString &id, quint64)
{
    if (m_listsPeers)
        line(u"- "_s + id);
}

void TextOutput::found(const PCInfo &pc)
{
    line(tr("Found %1. Waiting for it to let this PC in.").arg(described(pc)));
}

void TextOutput::waiting(const QString &name)
{
    line(tr("Waiting for %1: somebody has to press Yes there").arg(name));
}

void TextOutput::request(const ConnectionQuestion &question, bool asks)
{
    if (asks)
        errorText(questionAbout(question));
}

void TextOutput::refused(const QString &name, const QString &why)
{
    errorText(
        errorLine(why.isEmpty() ? tr("%1 was refused.").arg(name) : tr("%1 was refused: %2").arg(name, why)));
}

void TextOutput::connected(const PCInfo &pc)
{
    m_peerName = pc.name;
    line(tr("Connected to %1.").arg(described(pc)));
}

void TextOutput::disconnected()
{
    line(tr("Disconnected from %1.").arg(m_peerName));
}

void TextOutput::progress(const TransferProgress &progress)
{
    const QString action = m_role == NewPC ? tr("Receiving") : tr("Sending");
    QString text = u"%1 %2%  %3"_s.arg(action, QString::number(progress.overallPercent).rightJustified(3),
                                       formatSpeed(progress.bytesPerSecond));
    if (progress.remainingSeconds > 0)
        text += u"  "_s + tr("%1 left").arg(progress.remainingTimeString());
    text += u"  "_s + progress.currentFile;
    showLiveLine(text);
}

void TextOutput::file(const QString &name, FileStatus status, const QString &reason)
{
    constexpr int MostLines = 20;
    if (status != FileStatus::Failed || ++m_failures > MostLines + 1)
        return;
    errorText(errorLine(m_failures > MostLines ? tr("Further ones are counted in the report.")
                                               : tr("%1 was not moved: %2").arg(name, reason)));
}

void TextOutput::paused(Side by)
{
    line(by == Side::Here ? tr("Paused.") : tr("Paused by %1.").arg(m_peerName));
}

void TextOutput::resumed(Side by)
{
    line(by == Side::Here ? tr("Resumed.") : tr("Resumed by %1.").arg(m_peerName));
}

void TextOutput::cancelled(Side by)
{
    line(by == Side::Here ? tr("Cancelled.") : tr("Cancelled by %1.").arg(m_peerName));
}

void TextOutput::installing(const QString &pcName, const QString &app, int percent)
{
    if (m_installing != app)
        line(tr("%1 is installing %2...").arg(pcName, app));
    m_installing = app;
    showLiveLine(tr("Installing %1").arg(app) + u"  %1%"_s.arg(percent));
}

void TextOutput::report(const RunSummary &summary)
{
    m_installing.clear();
    m_failures = 0;
    const QString time = formatTime(static_cast<int>(summary.startTime.secsTo(summary.endTime)));
    const QString size = formatSize(summary.arrivedBytes);
    const double speed = summary.averageSpeed();
    if (summary.end != RunEnd::Complete)
        line(arrivedFilesText(summary) + u'.');
    else if (speed > 0)
        line(tr("Done in %1: %2, %3 on average.").arg(time, size, formatSpeed(speed)));
    else
        line(tr("Done in %1: %2.").arg(time, size));
    const OutcomeCounts &counts = summary.files;
    line(tr("Files: %1 arrived, %2 failed, %3 were there before.")
             .arg(QString::number(counts.arrived),
                  QString::number(counts.failed + counts.notConfirmed + counts.pending),
                  QString::number(counts.wasThere + counts.wasDifferent)));
    missingFiles(summary);
    savedFolders(summary);
    const bool receives = m_role == NewPC;
    items(tr("Applications:"), receives ? tr("installed") : tr("sent"), summary.items, ItemKind::Application);
    items(tr("Settings:"), receives ? tr("applied") : tr("sent"), summary.items, ItemKind::Setting);
}

void TextOutput::missingFiles(const RunSummary &summary)
{
    for (const FullVolume &volume : summary.fullVolumes)
        line(fullVolumeText(volume));
    const OutcomeCounts &counts = summary.files;
    if (counts.missing() == 0)
        return;
    line(missingFilesText(summary) + u':');
    files(summary.notArrived, counts.missing() - counts.wasDifferent, summary);
    files(summary.different, counts.wasDifferent, {});
}

/// The first of `all` files that there are in `summary`, and what there is beyond.
void TextOutput::files(const QList<ItemResult> &results, int all, const RunSummary &summary)
{
    int shown = 0;
    for (const ItemResult &result : results) {
        if (result.kind != ItemKind::File)
            continue;
        if (shown == MaxShownFiles)
            break;
        line(u"  "_s + result.path + u": "_s + result.reason);
        ++shown;
    }
    for (const QString &text : unlistedTexts(summary, all - shown))
        line(u"  "_s + text);
}

void TextOutput::items(const QString &head, const QString &done, const QList<ItemResult> &results,
                       ItemKind kind)
{
    bool headShown = false;
    for (const ItemResult &item : results) {
        if (item.kind != kind)
            continue;
        if (!std::exchange(headShown, true))
            line(head);
        const bool isPlain = item.outcome == ItemOutcome::Arrived && item.reason.isEmpty();
        line(u"  "_s + item.path + u": "_s + (isPlain ? done : itemText(item)));
    }
}

void TextOutput::savedFolders(const RunSummary &summary)
{
    if (summary.savedFolderPaths.isEmpty())
        return;
    line(tr("Files saved:"));
    for (auto folder = summary.savedFolderPaths.begin(); folder != summary.savedFolderPaths.end(); ++folder) {
        const QString count = QString::number(summary.savedFolderCounts.value(folder.key()));
        const QString sample = summary.savedFolderSamples.value(folder.key());
        line(count.rightJustified(CountColumns) + u"  "_s + folder.value() +
             (sample.isEmpty() ? QString() : u' ' + sample));
    }
}

void TextOutput::scanning(int percent, const QString &item, int apps)
{
    showLiveLine(tr("Scanning %1%  %2 applications")
                     .arg(QString::number(percent).rightJustified(3), QString::number(apps)) +
                 u"  "_s + item);
}

void TextOutput::section(const QString &title, const QStringList &rows)
{
    line(title.arg(rows.size()));
    for (const QString &row : rows)
        line(row);
}

void TextOutput::inventory(const ScanResult &result)
{
    QStringList apps;
    for (const AppInfo &app : result.apps) {
        const QString place = app.canTransfer ? app.installPath : tr("(cannot be moved)");
        apps.append(inventoryRow(app.size, {app.name, app.version, place}));
    }
    section(tr("Applications: %1"), apps);

    QStringList folders;
    for (const FolderInfo &folder : result.folders)
        folders.append(inventoryRow(folder.totalSize,
                                    {folder.name, tr("files: %1").arg(folder.fileCount), folder.path}));
    section(tr("Folders: %1"), folders);

    QStringList accounts;
    for (const AccountInfo &account : result.accounts)
        accounts.append(inventoryRow({}, {account.userName, account.accountType, account.profilePath}));
    section(tr("Accounts: %1"), accounts);

    QStringList settings;
    for (const SettingInfo &setting : result.settings)
        settings.append(inventoryRow(setting.size, {setting.id, setting.name, setting.value}));
    section(tr("Settings: %1"), settings);

    line(tr("%1 in applications and folders.").arg(formatSize(result.totalSize)));
}

void TextOutput::finding(const Finding &finding)
{
    const QString indent(FindingIndent, u' ');
    const auto paragraph = [](const QString &text) {
        return wrapped(printable(text), FindingIndent, FindingWidth);
    };
    clearLiveLine();
    QString text = fitted(severityWord(finding.severity), FindingIndent - 1);
    text += QString(FindingIndent - columnsOf(text), u' ') + paragraph(finding.sentence) + u'\n';
    if (!finding.advice.isEmpty())
        text += indent + paragraph(finding.advice) + u'\n';
    if (!finding.command.isEmpty())
        text += indent + u"  "_s + printable(finding.command) + u'\n';
    m_streams.out(text.toUtf8());
}

void TextOutput::diagnosed(int problems)
{
    line({});
    line(problems == 0 ? tr("Nothing was found that stands in the way.")
                       : tr("Found in the way: %1.").arg(problems));
}

void TextOutput::warning(const QString &message)
{
    errorText(errorLine(message));
}

void TextOutput::error(const QString &message)
{
    errorText(errorLine(message));
}

} // namespace Zandrove::Cli
