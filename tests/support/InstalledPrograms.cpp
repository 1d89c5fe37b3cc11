#include "InstalledPrograms.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace Zandrove {

namespace {

const QString ProgramFiles = u"C:\\Program Files"_s;
const QString ProgramFilesX86 = u"C:\\Program Files (x86)"_s;

QStringList split(const QString &text, QChar separator)
{
    QStringList parts = text.split(separator);
    for (QString &part : parts)
        part = part.trimmed();
    return parts;
}

QString quoted(QString text)
{
    return u'"' + text.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s) + u'"';
}

QString textValue(const QString &name, const QString &text)
{
    return quoted(name) + u'=' + quoted(text);
}

QString uninstallRoot(const QString &root)
{
    const QString below = u"Microsoft\\Windows\\CurrentVersion\\Uninstall\\"_s;
    if (root == "user"_L1)
        return u"HKEY_CURRENT_USER\\Software\\"_s + below;
    return u"HKEY_LOCAL_MACHINE\\SOFTWARE\\"_s + (root == "32"_L1 ? u"WOW6432Node\\"_s : QString()) + below;
}

/// What a scan must list, with the icon as the list names it.
AppInfo listed(const QString &name, const QString &version, const QString &folder, const QString &bytes,
               const QString &icon)
{
    AppInfo app;
    app.name = name;
    app.version = version;
    app.installPath = folder;
    app.size = bytes.toLongLong();
    if (!icon.isEmpty())
        app.iconPath = icon.startsWith(u'=') ? icon.mid(1) : folder + u'/' + icon;
    return app;
}

/// The lines that `line` stands for.
QStringList repeated(const QString &line)
{
    static const QStringList Words = u"Amber Birch Cedar Dune Ember Flint Grove Hazel Ivory Jade Karst Lotus "
                                     u"Maple North Ocean Pearl Quill "
                                     u"Raven Slate Topaz Umber Vivid Wharf Zebra"_s.split(u' ');
    static const QRegularExpression Times(u"\\| (?:w(\\d+)|n(\\d+)\\+(\\d+)) +\\|"_s);
    const QRegularExpressionMatch times = Times.match(line);
    if (!times.hasMatch())
        return {line};
    QStringList lines;
    const int words = times.captured(1).toInt();
    const int numbers = times.captured(3).toInt();
    for (int i = 0; i < words + numbers; ++i) {
        QString copy = line;
        if (words > 0)
            copy.replace(u'@', Words.at(i)).replace(u'~', Words.at(i).toLower());
        lines.append(copy.replace(u'#', QString::number(times.captured(2).toInt() + i)));
    }
    return lines;
}

} // namespace

InstalledPrograms::InstalledPrograms(SimulatedPc &pc)
    : m_pc(pc)
{
    pc.environment().set("ProgramFiles", ProgramFiles.toLatin1());
    pc.environment().set("ProgramFiles(x86)", ProgramFilesX86.toLatin1());
    QFile list(u":/InstalledPrograms.txt"_s);
    if (!list.open(QIODevice::ReadOnly))
        qFatal("The list of installed programs is missing.");
    const QStringList lines = QString::fromUtf8(list.readAll()).split(u'\n');
    for (const QString &line : lines) {
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        const QStringList copies = repeated(line);
        for (const QString &copy : copies)
            add(split(expanded(copy), u'|'), line);
    }
    m_pc.addRegistry(m_registry);
}

QString InstalledPrograms::expanded(QString text) const
{
    static const QRegularExpression Absolute(u"\\$A\\{([^}]*)\\}"_s);
    text.replace(u"$P"_s, ProgramFiles).replace(u"$X"_s, ProgramFilesX86).replace(u"$H"_s, m_pc.homePath());
    if (const auto place = Absolute.match(text); place.hasMatch())
        text.replace(place.captured(), m_pc.path(place.captured(1)));
    return text;
}

void InstalledPrograms::add(const QStringList &fields, const QString &text)
{
    const QString kind = fields.value(0);
    if (kind == "folder"_L1 && fields.size() == 5)
        addFolder(fields);
    else if (kind == "soft"_L1 && fields.size() == 6)
        addUserSoftware(fields);
    else if (fields.size() == 10)
        addUninstallKey(fields);
    else
        qFatal("This line of the list of installed programs can't be read: %s", qPrintable(text));
}

void InstalledPrograms::addFolder(const QStringList &fields)
{
    const QString folder = QString(fields.at(2)).replace(u'\\', u'/');
    const QStringList files = split(fields.at(3), u',');
    for (const QString &file : files) {
        const QByteArray content(file.section(u' ', -1).toInt(), 'x');
        m_pc.writeFile(folder + u'/' + file.section(u' ', 0, -2), content);
    }
    const QStringList outcome = split(fields.at(4), u';');
    if (outcome.at(0) == "keep"_L1)
        m_fromFolders.append(listed(folder.section(u'/', -1), {}, folder, outcome.at(1), outcome.at(2)));
}

void InstalledPrograms::addUninstallKey(const QStringList &fields)
{
    // The order of the keys is that of the list.
    const QString key = u"{%1-5A4D-4F56-8E00-000000000000}"_s.arg(++m_uninstallKeys, 8, 10, QLatin1Char('0'));
    const QStringList names = {u"DisplayName"_s, u"DisplayVersion"_s, u"Publisher"_s, u"InstallLocation"_s};
    QStringList values;
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (!fields.at(i + 2).isEmpty())
            values.append(textValue(names.at(i), fields.at(i + 2)));
    }
    values.append(u"\"EstimatedSize\"=dword:"_s + QString::number(fields.at(6).toUInt(), 16));
    if (!fields.at(7).isEmpty())
        values.append(textValue(u"DisplayIcon"_s, fields.at(7)));
    addKey(uninstallRoot(fields.at(0)) + key, values);

    const QStringList outcome = split(fields.at(8), u';');
    if (outcome.at(0) == "keep"_L1)
        m_fromUninstallKeys.append(
            listed(fields.at(2), fields.at(3), outcome.at(1), outcome.at(2), outcome.at(3)));
}

void InstalledPrograms::addUserSoftware(const QStringList &fields)
{
    const QString key = u"HKEY_CURRENT_USER\\Software\\"_s + fields.at(2);
    QStringList values;
    for (const QString &value : split(fields.at(3), u';')) {
        if (!value.isEmpty())
            values.append(textValue(value.section(u'=', 0, 0), value.section(u'=', 1)));
    }
    addKey(key, values);

    const QStringList outcome = split(fields.at(4), u';');
    if (outcome.at(0) != "keep"_L1)
        return;
    AppInfo app = listed(outcome.at(1), outcome.at(2), outcome.at(3), outcome.at(4), outcome.at(6));
    app.canTransfer = outcome.at(5) == "yes"_L1;
    app.hkcuRegPath = key;
    m_fromUserSoftware.append(app);
}

void InstalledPrograms::addKey(const QString &key, const QStringList &values)
{
    m_registry += u'[' + key + u"]\n"_s + values.join(u'\n') + u"\n\n"_s;
}

} // namespace Zandrove
