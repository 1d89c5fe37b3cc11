#include "support/RunTexts.h"

#include "core/common/Records.h"
#include "support/Utilities.h"

#include <QCoreApplication>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Zandrove::RunTexts)
};

int missingItems(const RunSummary &summary)
{
    return summary.files.missing() + summary.apps.missing() + summary.settings.missing();
}

/// "drive D:" for a drive, a mount point as it is.
QString placeOf(const FullVolume &volume)
{
    const QString &name = volume.volume;
    const bool isDrive = name.size() == 2 && name.front().isLetter() && name.back() == u':';
    return isDrive ? Text::tr("drive %1").arg(name) : name;
}

QString newPCOf(const RunSummary &summary)
{
    return summary.role == NewPC ? summary.ownName : summary.peerName;
}

} // namespace

QString countText(qint64 count)
{
    return QLocale().toString(count);
}

QString rowName(ItemKind kind, const QString &path)
{
    switch (kind) {
    case ItemKind::Application:
        return Text::tr("[App] %1").arg(path);
    case ItemKind::Setting:
        return Text::tr("[Setting] %1").arg(path);
    case ItemKind::File:
        break;
    }
    return path.section(u'/', -1);
}

QString endName(RunEnd end)
{
    switch (end) {
    case RunEnd::Complete:
        return u"complete"_s;
    case RunEnd::CancelledHere:
        return u"cancelledHere"_s;
    case RunEnd::CancelledThere:
        return u"cancelledThere"_s;
    case RunEnd::LinkLost:
        return u"linkLost"_s;
    case RunEnd::Reset:
        return u"reset"_s;
    case RunEnd::Running:
        break;
    }
    return u"running"_s;
}

QString missingFilesText(const RunSummary &summary)
{
    const int missing = summary.files.missing();
    if (missing == 0)
        return {};
    return Text::tr("%1 of %2 files did not arrive")
        .arg(countText(missing), countText(summary.files.total()));
}

QStringList unlistedTexts(const RunSummary &summary, int unlisted)
{
    const int absent = summary.role == NewPC ? summary.files.notConfirmed + summary.files.pending : 0;
    QStringList texts;
    if (unlisted > absent)
        texts.append(Text::tr("And %1 more.").arg(countText(unlisted - absent)));
    if (absent == 1)
        texts.append(
            Text::tr("1 announced file did not come. The report of %1 names it.").arg(summary.peerName));
    else if (absent > 0)
        texts.append(Text::tr("%1 announced files did not come. The report of %2 names them.")
                         .arg(countText(absent), summary.peerName));
    return texts;
}

QString arrivedFilesText(const RunSummary &summary)
{
    return Text::tr("%1 of %2 files arrived; nothing was deleted on the Old PC")
        .arg(countText(summary.files.arrived), countText(summary.files.total()));
}

QString headlineOf(const RunSummary &summary)
{
    switch (summary.end) {
    case RunEnd::CancelledHere:
        return Text::tr("Transfer cancelled");
    case RunEnd::CancelledThere:
        return Text::tr("Transfer cancelled by %1").arg(summary.peerName);
    case RunEnd::LinkLost:
        return Text::tr("The connection to %1 was lost").arg(summary.peerName);
    case RunEnd::Reset:
        return Text::tr("Transfer ended by %1").arg(summary.peerName);
    case RunEnd::Running:
        return Text::tr("Transfer not finished");
    case RunEnd::Complete:
        break;
    }
    if (summary.files.missing() > 0)
        return Text::tr("Transfer finished, %1").arg(missingFilesText(summary));
    if (missingItems(summary) > 0)
        return Text::tr("Transfer finished, but not everything was moved");
    return Text::tr("Transfer Complete!");
}

QString fullVolumeText(const FullVolume &volume)
{
    return Text::tr("no space left on %1 of %2: %3 files, %4 did not fit")
        .arg(placeOf(volume), volume.pcName, countText(volume.files), formatSize(volume.bytes));
}

QString outcomeText(ItemOutcome outcome)
{
    switch (outcome) {
    case ItemOutcome::Arrived:
        return Text::tr("moved");
    case ItemOutcome::WasThere:
        return Text::tr("was there already");
    case ItemOutcome::WasDifferent:
        return Text::tr("was there already, and different");
    case ItemOutcome::Failed:
        return Text::tr("failed");
    case ItemOutcome::NotConfirmed:
        return Text::tr("not confirmed");
    case ItemOutcome::Pending:
        break;
    }
    return Text::tr("not known yet");
}

QString itemText(const ItemResult &item)
{
    if (item.reason.isEmpty())
        return outcomeText(item.outcome);
    return item.outcome == ItemOutcome::Arrived ? item.reason
                                                : outcomeText(item.outcome) + u": "_s + item.reason;
}

QStringList nextSteps(const RunSummary &summary)
{
    QStringList steps;
    if (missingItems(summary) == 0 && summary.end == RunEnd::Complete) {
        return {
            Text::tr(
                "Open a few of the files on %1 before you part with the Old PC. Nothing was deleted there.")
                .arg(newPCOf(summary))};
    }
    for (const FullVolume &volume : summary.fullVolumes) {
        steps.append(Text::tr("Make room for %1 on %2 of %3, or move less.")
                         .arg(formatSize(volume.bytes), placeOf(volume), volume.pcName));
    }
    if (summary.files.wasDifferent > 0) {
        steps.append(
            Text::tr("Some files stood on %1 before, with other content. Compare the two versions. To get "
                     "the one from the Old PC, rename or move the one on %1, and move the same folder again.")
                .arg(newPCOf(summary)));
    }
    if (summary.end != RunEnd::Complete) {
        steps.append(
            Text::tr("Connect the two PCs again and start the same transfer: what has arrived is skipped, "
                     "only what is missing is moved."));
    } else if (missingItems(summary) > summary.files.wasDifferent) {
        const bool knows = summary.role != NewPC || !summary.notArrived.isEmpty();
        steps.append(knows ? Text::tr("Read the reasons in the list.")
                           : Text::tr("Read the reasons in the report of %1.").arg(summary.peerName));
        steps.append(Text::tr("Once they are gone, start the same transfer again: what has arrived is "
                              "skipped, only what is missing is moved."));
    }
    steps.append(
        Text::tr("Keep the Old PC as it is until nothing is missing any more. Nothing was deleted there."));
    return steps;
}

} // namespace Zandrove
