#include "PcTest.h"

#include "appmigration/AppMessages.h"
#include "appmigration/AppMigrator.h"
#include "platform/ShellLink.h"
#include "platform/SpecialFolders.h"
#include "support/Json.h"

#include <QDir>
#include <QJsonObject>
#include <QStandardPaths>

using Platform::SpecialFolder;
using Platform::specialFolder;

class AppMigratorTest : public ScratchPcTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        ScratchPcTest::init();
        m_migrator = std::make_unique<AppMigrator>();
        m_requests.clear();
        connect(m_migrator.get(), &AppMigrator::requestSendCommand, this,
                [this](int type, const QByteArray &payload) {
                    const QJsonObject object = parseJsonObject(payload).value_or(QJsonObject());
                    QString request = QString::number(type);
                    for (const QString &key : {u"safeName"_s, u"fileCount"_s, u"totalSize"_s,
                                               u"filesQueued"_s, u"filesSkipped"_s}) {
                        if (object.contains(key))
                            request += u' ' + object.value(key).toVariant().toString();
                    }
                    m_requests.append(request);
                });
        connect(m_migrator.get(), &AppMigrator::requestSendFile, this,
                [this](const QString &, const QString &relativePath) { m_requests.append(relativePath); });
    }
    void cleanup()
    {
        m_migrator.reset();
        ScratchPcTest::cleanup();
    }

    void namesBecomeOneComponent()
    {
        const std::pair<QString, QString> safeNames[] = {
            {u"Acme Editor 2"_s, u"Acme Editor 2"_s},
            {u"<a>:\"b\"/\\c|?*"_s, u"_a___b___c___"_s},
            {u"Acme Inc. . "_s, u"Acme Inc"_s},
            {u"com1"_s, u"_com1"_s},
            {u"COM1.txt"_s, u"_COM1.txt"_s},
            {u"nul."_s, u"_nul"_s},
            {u"COM10"_s, u"COM10"_s},
            {u"..."_s, u"unnamed"_s},
            {QString(), u"unnamed"_s},
            {QString(99, u'x') + u". y"_s, QString(99, u'x') + u'.'}}; // cut at a point, which stays
        for (const auto &[name, safeName] : safeNames)
            QCOMPARE(makeSafeName(name), safeName);
    }

    void applicationsAreSentInOrder()
    {
        QList<AppInfo> apps = {app(u"Zqx: One"_s), app(u"Vwvk"_s), app(u"Idle"_s, false),
                               app(u"Stuck"_s, true, false)};
        apps.append(apps[0]);
        apps.last().name = u"Zqx? One"_s; // which travels as the first one does
        m_pc->writeFile(apps[0].installPath + u"/left.log"_s, QByteArray(100, 'x'));
        m_pc->writeFile(specialFolder(SpecialFolder::LocalAppData) + u"/zqx./l"_s, "x");
        m_pc->writeFile(specialFolder(SpecialFolder::RoamingAppData) + u"/Zqx/sub/r"_s, "x");
        m_pc->writeFile(specialFolder(SpecialFolder::CommonAppData) + u"/Zqx/p"_s, "x");
        m_pc->addRegistry(u"[HKEY_CURRENT_USER\\Software\\Zqx:]\n\"value\"=\"a text\"\n"_s);
        const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
        const std::pair<QString, AppInfo> links[] = {
            {specialFolder(SpecialFolder::StartMenuPrograms) + u"/Zqx: 1.lnk"_s, apps[0]},
            {desktop + u"/Zqx: 1.lnk"_s, apps[0]},
            {desktop + u"/Vwvk.lnk"_s, apps[1]}};
        for (const auto &[link, target] : links)
            QVERIFY(Platform::writeShellLink(link, {.path = target.installPath + u"/bin/a.exe"_s}));
        connect(m_migrator.get(), &AppMigrator::appStarted, this, [&](const QString &name) {
            if (name == "Vwvk"_L1) // vanishes between its analysis and its sending
                QVERIFY(QDir(apps[1].installPath).removeRecursively() &&
                        QFile::remove(desktop + u"/Vwvk.lnk"_s));
        });

        QSignalSpy appFinished(m_migrator.get(), &AppMigrator::appFinished);
        QSignalSpy finished(m_migrator.get(), &AppMigrator::finished);
        expectLog(u"  [WARN] Another application travels under the same name: \"Zqx? One\""_s);
        expectLog(u"  [WARN] Directory not exists: \"%1\""_s.arg(apps[1].installPath));
        m_migrator->start(apps);
        const QString base = u"Apps/Zqx_ One/"_s;
        const QStringList folders = {base + u"Install/Zqx_ One/bin/a.exe"_s, base + u"AppData/Local/zqx/l"_s,
                                     base + u"AppData/Roaming/Zqx/sub/r"_s, base + u"ProgramData/Zqx/p"_s};
        QCOMPARE(m_requests, (QStringList{u"96 Zqx_ One 4 4"_s, base + u"registry.reg"_s} + folders +
                              QStringList{base + u"Shortcuts/StartMenu/Zqx_ 1.lnk"_s,
                                          base + u"Shortcuts/Desktop/Zqx_ 1.lnk"_s, u"97 Zqx_ One 7 1"_s,
                                          u"96 Vwvk 1 1"_s, u"97 Vwvk 0 1"_s, u"96 Zqx_ One 4 4"_s} +
                              folders + QStringList{u"97 Zqx_ One 4 1"_s}));
        QCOMPARE(appFinished, (QList<QVariantList>{{u"Zqx: One"_s, true, QString()},
                                                   {u"Vwvk"_s, true, QString()},
                                                   {u"Zqx? One"_s, true, QString()}}));
        QCOMPARE(finished, (QList<QVariantList>{{3, 0, 2}}));
    }

    void cancelledRunsEndInSilence()
    {
        const QList<AppInfo> apps = {app(u"Zqx"_s), app(u"Vwvk"_s)};
        QSignalSpy appFinished(m_migrator.get(), &AppMigrator::appFinished);
        QSignalSpy finished(m_migrator.get(), &AppMigrator::finished);
        const auto once = connect(m_migrator.get(), &AppMigrator::requestSendCommand, m_migrator.get(),
                                  [this] { m_migrator->cancel(); });
        m_migrator->start(apps);
        QCOMPARE(m_requests, QStringList(u"96 Zqx 1 1"_s));
        QCOMPARE(appFinished, (QList<QVariantList>{{u"Zqx"_s, false, QString()}}));
        QCOMPARE(finished.size(), 0);

        disconnect(once);
        m_migrator->start(apps);
        QCOMPARE(finished, (QList<QVariantList>{{2, 0, 0}}));
    }

    void beginMessagesAreRead()
    {
        AppPackage package;
        package.name = u"AC/DC"_s;
        package.fileCount = 7;
        package.shortcuts = {ShortcutInfo{}};
        const std::tuple<QByteArray, QString, int> taken[] = {
            {appStartPayload(package), u"AC/DC"_s, 7},
            {R"({"appName":"x","fileCount":"many","shortcuts":4,"version":[]})", u"x"_s, 0},
            {R"({"appName":".a..b."})", u".a..b."_s, 0},
            {R"({"appName":"x","fileCount":1e12})", u"x"_s, 2147483647}};
        for (const auto &[payload, name, fileCount] : taken) {
            const AppPackage read = readAppStart(payload).value_or(AppPackage{});
            QCOMPARE(read.name, name);
            QCOMPARE(read.fileCount, fileCount);
        }
        for (const char *payload :
             {"", "[]", "{}", R"({"appName":7})", R"({"appName":" "})", R"({"appName":"../x"})",
              R"({"appName":"x\\..\\y"})", R"({"appName":"."})", R"({"appName":"x/. ./y"})",
              R"({"appName":"x\u0000"})"})
            QVERIFY2(!readAppStart(payload), payload);
    }

    void receivedApplicationsAreAnnouncedAndEnded()
    {
        AppPackage package;
        package.name = u"Zqx"_s;
        package.installLocation = m_pc->path(u"Target"_s);
        QSignalSpy started(m_migrator.get(), &AppMigrator::appStarted);
        QSignalSpy finished(m_migrator.get(), &AppMigrator::appFinished);
        m_migrator->onAppPackageReceived(appStartPayload(package));
        QCOMPARE(started.size(), 0);

        m_migrator->startReceiving();
        m_migrator->onAppPackageReceived(appStartPayload(package));
        QCOMPARE(started, (QList<QVariantList>{{u"Zqx"_s}}));
        m_migrator->onAppEndReceived(u"Other"_s);
        QCOMPARE(finished.size(), 0);
        m_migrator->onAppEndReceived(u"Zqx"_s);
        QCOMPARE(finished, (QList<QVariantList>{{u"Zqx"_s, true, QString()}}));

        const QString base =
            QStandardPaths::writableLocation(QStandardPaths::TempLocation) + u"/Zandrove_Apps"_s;
        QVERIFY(QDir().mkpath(base + u"/Apps/Zqx/Install/empty"_s));
        m_migrator->onAppEndReceived(u"Zqx"_s);
        QVERIFY(QDir(base).removeRecursively());
        QCOMPARE(finished.last(), (QVariantList{u"Zqx"_s, false, u"Failed to copy install files"_s}));
    }

private:
    AppInfo app(const QString &name, bool selected = true, bool canTransfer = true)
    {
        AppInfo info;
        info.name = name;
        info.installPath = m_pc->path(u"Target/"_s + makeSafeName(name));
        info.selected = selected;
        info.canTransfer = canTransfer;
        m_pc->writeFile(info.installPath + u"/bin/a.exe"_s, "x");
        return info;
    }

    std::unique_ptr<AppMigrator> m_migrator;
    QStringList m_requests; ///< what was to be sent, in order
};

ZANDROVE_TEST(AppMigratorTest)
#include "AppMigratorTest.moc"
