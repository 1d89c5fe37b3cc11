#pragma once

#include "SimulatedPc.h"

#include "core/common/Records.h"

#include <QFile>

namespace Zandrove {

using namespace Qt::StringLiterals;

/// Applications on a simulated PC, each with the outcome that a scan must have: the Uninstall keys of all
/// three roots, program folders with and without such keys, and vendors' keys. InstalledPrograms.txt lists
/// them and tells why each outcome is right.
class InstalledPrograms final
{
public:
    /// What the passes over the registry must list, in this order.
    QList<AppInfo> fromUninstallKeys;
    QList<AppInfo> fromUserSoftware;
    /// What the pass over the disk must list, in any order.
    QList<AppInfo> fromFolders;

    /// Installs everything on `pc`.
    explicit InstalledPrograms(SimulatedPc &pc)
        : m_pc(pc)
    {
        pc.environment().set("ProgramFiles", ProgramFiles.toLatin1());
        pc.environment().set("ProgramFiles(x86)", ProgramFilesX86.toLatin1());
        QFile list(u":/InstalledPrograms.txt"_s);
        if (!list.open(QIODevice::ReadOnly))
            qFatal("The list of installed programs is missing.");
        for (const QString &line : QString::fromUtf8(list.readAll()).split(u'\n')) {
            if (line.isEmpty() || line.startsWith(u'#'))
                continue;
            const int times = std::max(1, line.section(u'|', 0, 0).section(u'*', 1).toInt());
            for (int i = 1; i <= times; ++i)
                add(split(expanded(line).replace(u'#', QString::number(i)), u'|'));
        }
        m_pc.addRegistry(m_registry);
    }

private:
    static inline const QString ProgramFiles = u"C:\\Program Files"_s;
    static inline const QString ProgramFilesX86 = u"C:\\Program Files (x86)"_s;

    static QStringList split(const QString &text, QChar separator)
    {
        QStringList parts = text.split(separator);
        for (QString &part : parts)
            part = part.trimmed();
        return parts;
    }

    static QString textValue(const QString &name, QString text)
    {
        text.replace(u'\\', "\\\\"_L1).replace(u'"', "\\\""_L1);
        return u"\"%1\"=\"%2\"\n"_s.arg(name, text);
    }

    static AppInfo listed(const QString &name, const QString &version, const QString &folder,
                          const QString &bytes, const QString &icon)
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

    [[nodiscard]] QString expanded(QString text) const
    {
        text.replace("$P"_L1, ProgramFiles).replace("$X"_L1, ProgramFilesX86);
        text.replace("$H"_L1, m_pc.homePath());
        const QString place = text.section("$A{"_L1, 1).section(u'}', 0, 0);
        return text.replace(u"$A{%1}"_s.arg(place), m_pc.path(place));
    }

    void add(const QStringList &fields)
    {
        const QString kind = fields.at(0);
        if (kind == "folder"_L1)
            addFolder(QString(fields.at(1)).replace(u'\\', u'/'), split(fields.at(2), u','),
                      split(fields.at(3), u';'));
        else if (kind == "soft"_L1)
            addUserSoftware(fields, split(fields.at(3), u';'));
        else
            addUninstallKey(fields, split(fields.at(7), u';'));
    }

    void addFolder(const QString &folder, const QStringList &files, const QStringList &outcome)
    {
        for (const QString &file : files)
            m_pc.writeFile(folder + u'/' + file.section(u' ', 0, -2),
                           QByteArray(file.section(u' ', -1).toInt(), 'x'));
        if (outcome.at(0) == "keep"_L1)
            fromFolders.append(listed(folder.section(u'/', -1), {}, folder, outcome.at(1), outcome.at(2)));
    }

    void addUninstallKey(const QStringList &fields, const QStringList &outcome)
    {
        // The order of the keys is that of the list.
        const QString root = fields.at(0) == "user"_L1 ? u"HKEY_CURRENT_USER\\Software"_s
                             : fields.at(0) == "32"_L1 ? u"HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node"_s
                                                       : u"HKEY_LOCAL_MACHINE\\SOFTWARE"_s;
        m_registry += u"[%1\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Key %2]\n"_s.arg(root).arg(
            ++m_keys, 4, 10, QLatin1Char('0'));
        const QStringList names = {u"DisplayName"_s,     u"DisplayVersion"_s, u"Publisher"_s,
                                   u"InstallLocation"_s, QString(),           u"DisplayIcon"_s};
        for (qsizetype i = 0; i < names.size(); ++i) {
            if (!names.at(i).isEmpty() && !fields.at(i + 1).isEmpty())
                m_registry += textValue(names.at(i), fields.at(i + 1));
        }
        m_registry += u"\"EstimatedSize\"=dword:%1\n"_s.arg(fields.at(5).toUInt(), 0, 16);
        if (outcome.at(0) == "keep"_L1)
            fromUninstallKeys.append(
                listed(fields.at(1), fields.at(2), outcome.at(1), outcome.at(2), outcome.at(3)));
    }

    void addUserSoftware(const QStringList &fields, const QStringList &outcome)
    {
        const QString key = u"HKEY_CURRENT_USER\\Software\\"_s + fields.at(1);
        m_registry += u"[%1]\n"_s.arg(key);
        for (const QString &value : split(fields.at(2), u';')) {
            if (!value.isEmpty())
                m_registry += textValue(value.section(u'=', 0, 0), value.section(u'=', 1));
        }
        if (outcome.at(0) != "keep"_L1)
            return;
        auto app = listed(outcome.at(1), outcome.at(2), outcome.at(3), outcome.at(4), outcome.at(6));
        app.canTransfer = outcome.at(5) == "yes"_L1;
        app.hkcuRegPath = key;
        fromUserSoftware.append(app);
    }

    SimulatedPc &m_pc;
    QString m_registry; ///< the keys so far, as text
    int m_keys = 0;
};

} // namespace Zandrove
