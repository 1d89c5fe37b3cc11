#include "support/ReportDocument.h"

#include "core/common/AppConfig.h"
#include "core/common/Records.h"
#include "support/PrintableText.h"
#include "support/RunTexts.h"
#include "support/Utilities.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QSaveFile>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Zandrove::ReportDocument)
};

constexpr auto Style =
    "body{font:16px/1.5 system-ui,'Segoe UI',Roboto,'Noto Sans',sans-serif;color:#1f2937;background:#f3f4f6;"
    "margin:0;padding:24px}"
    "main{max-width:900px;margin:0 auto;background:#fff;border:1px solid #e5e7eb;border-radius:12px;"
    "padding:24px 32px}"
    "h1{font-size:26px;line-height:1.25;margin:0 0 4px}h2{font-size:18px;margin:28px 0 8px}"
    "header{border-left:6px solid #22c55e;padding:4px 0 4px "
    "16px}header+table{margin-top:20px}header.missing{border-color:#d97706}"
    "header.ended{border-color:#dc2626}header p{margin:0;color:#4b5563}"
    "table{border-collapse:collapse;width:100%;font-size:14px}"
    "th,td{text-align:start;vertical-align:top;padding:6px 10px 6px 0;border-bottom:1px solid #e5e7eb}"
    "th{color:#4b5563;font-weight:600}td.n,th.n{text-align:end;white-space:nowrap}"
    "td.p{overflow-wrap:anywhere;width:60%}.bad{color:#b91c1c;font-weight:600}"
    ".full{background:#fef3c7;border-radius:8px;padding:8px 12px}li{margin:4px 0}"
    "footer{margin-top:28px;color:#6b7280;font-size:13px}"
    "@media print{body{background:#fff;padding:0}main{border:0;padding:0;max-width:none}"
    "thead{display:table-header-group}tr{break-inside:avoid}}"_L1;

/// Text of any origin, fit to stand in the page.
QString safe(const QString &text)
{
    return printable(text).toHtmlEscaped();
}

QString element(QLatin1StringView tag, const QString &text, QLatin1StringView cssClass = {})
{
    const QString head = cssClass.isEmpty() ? QString() : u" class=\""_s + cssClass + u'"';
    return u'<' + tag + head + u'>' + safe(text) + u"</"_s + tag + u">\n"_s;
}

/// A path or name by itself, whose letters do not reorder what stands around it.
QString pathCell(const QString &path)
{
    return u"<td class=\"p\"><bdi>"_s + safe(path) + u"</bdi></td>"_s;
}

QString tableOf(const QStringList &heads, const QString &rows)
{
    QString head;
    for (const QString &text : heads)
        head += element("th"_L1, text);
    return u"<table><thead><tr>"_s + head + u"</tr></thead><tbody>\n"_s + rows + u"</tbody></table>\n"_s;
}

QString moment(const QDateTime &time)
{
    return QLocale().toString(time, QLocale::ShortFormat);
}

QString facts(const RunSummary &summary)
{
    const bool receives = summary.role == NewPC;
    const auto row = [](const QString &name, const QString &value) {
        return u"<tr>"_s + element("th"_L1, name) + u"<td><bdi>"_s + safe(value) + u"</bdi></td></tr>\n"_s;
    };
    QString rows = row(Text::tr("Old PC"), receives ? summary.peerName : summary.ownName) +
                   row(Text::tr("New PC"), receives ? summary.ownName : summary.peerName);
    if (summary.startTime.isValid())
        rows += row(Text::tr("Began"), moment(summary.startTime));
    if (summary.endTime.isValid()) {
        rows += row(Text::tr("Ended"), moment(summary.endTime));
        rows += row(Text::tr("Took"), formatTime(int(summary.startTime.secsTo(summary.endTime))));
    }
    rows += row(Text::tr("Moved"), formatSize(summary.arrivedBytes));
    if (summary.missingBytes > 0)
        rows += row(Text::tr("Not moved"), formatSize(summary.missingBytes));
    return u"<table><tbody>\n"_s + rows + u"</tbody></table>\n"_s;
}

QString countRow(const QString &name, const OutcomeCounts &counts)
{
    const int failed = counts.failed + counts.notConfirmed + counts.pending;
    QString row = u"<tr>"_s + element("th"_L1, name);
    for (const int count : {counts.arrived, counts.wasThere, counts.wasDifferent})
        row += element("td"_L1, countText(count), "n"_L1);
    return row + element("td"_L1, countText(failed), failed > 0 ? "n bad"_L1 : "n"_L1) +
           element("td"_L1, countText(counts.total()), "n"_L1) + u"</tr>\n"_s;
}

QString countTable(const RunSummary &summary)
{
    QString rows = countRow(Text::tr("Files"), summary.files);
    if (summary.apps.total() > 0)
        rows += countRow(Text::tr("Apps"), summary.apps);
    if (summary.settings.total() > 0)
        rows += countRow(Text::tr("Settings"), summary.settings);
    QString head = element("th"_L1, {});
    for (const QString &text :
         {Text::tr("Moved"), Text::tr("There already, identical"), Text::tr("There already, and different"),
          Text::tr("Failed"), Text::tr("All")})
        head += element("th"_L1, text, "n"_L1);
    return u"<table><thead><tr>"_s + head + u"</tr></thead><tbody>\n"_s + rows + u"</tbody></table>\n"_s;
}

QString nextStepsSection(const RunSummary &summary)
{
    QString items;
    for (const QString &step : nextSteps(summary))
        items += element("li"_L1, step);
    return element("h2"_L1, Text::tr("What to do next")) + u"<ul>\n"_s + items + u"</ul>\n"_s;
}

QString placesSection(const RunSummary &summary)
{
    if (summary.savedFolderPaths.isEmpty())
        return {};
    QString rows;
    for (auto folder = summary.savedFolderPaths.begin(); folder != summary.savedFolderPaths.end(); ++folder)
        rows += u"<tr>"_s + element("td"_L1, folder.key()) + pathCell(folder.value()) +
                element("td"_L1, countText(summary.savedFolderCounts.value(folder.key()))) + u"</tr>\n"_s;
    return element("h2"_L1, Text::tr("Where the files lie")) +
           tableOf({Text::tr("Folder"), Text::tr("Place on %1").arg(summary.ownName), Text::tr("Files")},
                   rows);
}

QString itemsSection(const RunSummary &summary)
{
    if (summary.items.isEmpty())
        return {};
    QString rows;
    for (const ItemResult &item : summary.items) {
        const QString kind = item.kind == ItemKind::Application ? Text::tr("App") : Text::tr("Setting");
        rows += u"<tr>"_s + element("td"_L1, kind) + pathCell(item.path) + element("td"_L1, itemText(item)) +
                u"</tr>\n"_s;
    }
    return element("h2"_L1, Text::tr("Apps and settings")) +
           tableOf({{}, Text::tr("Name"), Text::tr("What became of it")}, rows);
}

/// The files of `results` with their reasons, of `all` that there are in `summary`.
QString filesSection(const QString &title, const QList<ItemResult> &results, int all,
                     const RunSummary &summary)
{
    if (all <= 0)
        return {};
    QString rows;
    int listed = 0;
    for (const ItemResult &result : results) {
        if (result.kind != ItemKind::File)
            continue;
        rows += u"<tr>"_s + pathCell(result.path) + element("td"_L1, result.reason) + u"</tr>\n"_s;
        ++listed;
    }
    const QString table = listed > 0 ? tableOf({Text::tr("File"), Text::tr("Reason")}, rows) : QString();
    QString rest;
    for (const QString &text : unlistedTexts(summary, all - listed))
        rest += element("p"_L1, text);
    return element("h2"_L1, title) + table + rest;
}

QString header(const RunSummary &summary)
{
    const bool isEnded = summary.end != RunEnd::Complete;
    const auto mark = summary.everythingArrived() ? QLatin1StringView() : isEnded ? "ended"_L1 : "missing"_L1;
    const QString begin = mark.isEmpty() ? u"<header>\n"_s : u"<header class=\""_s + mark + u"\">\n"_s;
    const QString there =
        summary.files.wasThere > 0
            ? element("p"_L1,
                      Text::tr("%1 were there already, identical.").arg(countText(summary.files.wasThere)))
            : QString();
    return begin + element("h1"_L1, headlineOf(summary)) + element("p"_L1, arrivedFilesText(summary) + u'.') +
           there + u"</header>\n"_s;
}

QString fullVolumesSection(const RunSummary &summary)
{
    QString section;
    for (const FullVolume &volume : summary.fullVolumes)
        section += element("p"_L1, fullVolumeText(volume), "full"_L1);
    return section;
}

QJsonObject toJson(const OutcomeCounts &counts)
{
    return {{u"arrived"_s, counts.arrived},           {u"wasThere"_s, counts.wasThere},
            {u"wasDifferent"_s, counts.wasDifferent}, {u"failed"_s, counts.failed},
            {u"notConfirmed"_s, counts.notConfirmed}, {u"pending"_s, counts.pending}};
}

QJsonArray toJson(const QList<ItemResult> &results)
{
    static const QString Kinds[] = {u"file"_s, u"application"_s, u"setting"_s};
    static const QString Outcomes[] = {u"pending"_s,      u"arrived"_s, u"wasThere"_s,
                                       u"wasDifferent"_s, u"failed"_s,  u"notConfirmed"_s};
    QJsonArray array;
    for (const ItemResult &result : results)
        array.append(QJsonObject{{u"kind"_s, Kinds[int(result.kind)]},
                                 {u"outcome"_s, Outcomes[int(result.outcome)]},
                                 {u"path"_s, result.path},
                                 {u"reason"_s, result.reason},
                                 {u"bytes"_s, result.bytes}});
    return array;
}

QString isoTime(const QDateTime &time)
{
    return time.isValid() ? time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODateWithMs)
                          : QString();
}

} // namespace

QByteArray reportAsHtml(const RunSummary &summary)
{
    //: The code of the language of this translation, as in "de" or "zh-TW".
    const QString language = Text::tr("en");
    const QString title = Text::tr("%1 report").arg(AppConfig::appName());
    const OutcomeCounts &files = summary.files;
    const QString page =
        u"<!DOCTYPE html>\n<html lang=\""_s + safe(language) + u"\">\n<head>\n<meta charset=\"utf-8\">\n"_s +
        u"<meta name=\"viewport\" content=\"width=device-width\">\n"_s + element("title"_L1, title) +
        u"<style>"_s + Style + u"</style>\n</head>\n<body>\n<main>\n"_s + header(summary) +
        fullVolumesSection(summary) + countTable(summary) + nextStepsSection(summary) +
        element("h2"_L1, Text::tr("This transfer")) + facts(summary) + placesSection(summary) +
        itemsSection(summary) +
        filesSection(Text::tr("Files that did not arrive"), summary.notArrived,
                     files.failed + files.notConfirmed + files.pending, summary) +
        filesSection(Text::tr("Files that were there already, with other content"), summary.different,
                     files.wasDifferent, {}) +
        element("footer"_L1, title) + u"</main>\n</body>\n</html>\n"_s;
    return page.toUtf8();
}

QByteArray reportAsJson(const RunSummary &summary)
{
    QJsonArray volumes;
    for (const FullVolume &volume : summary.fullVolumes)
        volumes.append(QJsonObject{{u"volume"_s, volume.volume},
                                   {u"pc"_s, volume.pcName},
                                   {u"files"_s, volume.files},
                                   {u"bytes"_s, volume.bytes}});
    QJsonArray folders;
    for (auto folder = summary.savedFolderPaths.begin(); folder != summary.savedFolderPaths.end(); ++folder)
        folders.append(QJsonObject{{u"name"_s, folder.key()},
                                   {u"path"_s, folder.value()},
                                   {u"files"_s, summary.savedFolderCounts.value(folder.key())}});
    const QJsonObject object{{u"role"_s, summary.role == NewPC ? u"new"_s : u"old"_s},
                             {u"end"_s, endName(summary.end)},
                             {u"everythingArrived"_s, summary.everythingArrived()},
                             {u"ownName"_s, summary.ownName},
                             {u"peerName"_s, summary.peerName},
                             {u"startTime"_s, isoTime(summary.startTime)},
                             {u"endTime"_s, isoTime(summary.endTime)},
                             {u"files"_s, toJson(summary.files)},
                             {u"apps"_s, toJson(summary.apps)},
                             {u"settings"_s, toJson(summary.settings)},
                             {u"arrivedBytes"_s, summary.arrivedBytes},
                             {u"missingBytes"_s, summary.missingBytes},
                             {u"notArrived"_s, toJson(summary.notArrived)},
                             {u"different"_s, toJson(summary.different)},
                             {u"items"_s, toJson(summary.items)},
                             {u"fullVolumes"_s, volumes},
                             {u"savedFolders"_s, folders}};
    return QJsonDocument(object).toJson();
}

QString reportPathFor(const RunSummary &summary)
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + u'/' +
           Text::tr("Zandrove report") + summary.endTime.toString(u" yyyy-MM-dd HHmmss"_s) + u".html"_s;
}

QString saveReport(const RunSummary &summary, const QString &path)
{
    const QFileInfo target(path);
    if (target.exists() && !target.isFile())
        return Text::tr("The report %1 can't be written: %2").arg(path, Text::tr("it is no ordinary file"));
    const bool isJson = path.endsWith(".json"_L1, Qt::CaseInsensitive);
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(isJson ? reportAsJson(summary) : reportAsHtml(summary));
        if (file.commit())
            return {};
    }
    return Text::tr("The report %1 can't be written: %2").arg(path, file.errorString());
}

} // namespace Zandrove
