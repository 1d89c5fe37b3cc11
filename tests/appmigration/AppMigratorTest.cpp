#include "AppMigrationTests.h"

#include "appmigration/AppMessages.h"
#include "appmigration/AppMigrator.h"
#include "peer/Protocol.h"
#include "platform/ShellLink.h"
#include "platform/SpecialFolders.h"
#include "support/Json.h"

#include <QDir>
#include <QJsonObject>
#include <QSignalSpy>
#include <QStandardPaths>

using namespace Qt::StringLiterals;
using namespace Zandrove;

using Platform::SpecialFolder;
using Platform::specialFolder;

class AppMigratorTest : public PcTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        PcTest::init();
        m_migrator = std::make_unique<AppMigrator>();
        m_requests.clear();
        connect(m_migrator.get(), &AppMigrator::requestSendCommand, this,
                [this](int type, const QByteArray &payload) {
                    const QJsonObject object = parseJsonObject(payload).value_or(QJsonObject());
                    const bool begins = type == int(Protocol::MessageType::AppStart);
                    m_requests.append((begins ? u"begin "_s : u"end "_s) +
                                      object.value(u"safeName"_s).toString() +
                                      (begins ? QString()
                                              : u" %1 %2"_s.arg(object.value(u"filesQueued"_s).toInt())
                                                    .arg(object.value(u"filesSkipped"_s).toInt())));
                });
        connect(m_migrator.get(), &AppMigrator::requestSendFile, this,
                [this](const QString &, const QString &relativePath) { m_requests.append(relativePath); });
    }
    void cleanup()
    {
        m_migrator.reset();
        PcTest::cleanup();
    }

    void applicationsAreSentInOrder();
    void whatHasVanishedStaysBehind();
    void namesMayCoincide();
    void cancelledRunsEndInSilence();
    void beginMessagesAreRead_data();
    void beginMessagesAreRead();
    void receivedApplicationsAreAnnouncedAndEnded();

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

void AppMigratorTest::applicationsAreSentInOrder()
{
    const QList<AppInfo> apps = {app(u"Zqx: One"_s), app(u"Vwvk"_s), app(u"Idle"_s, false),
                                 app(u"Stuck"_s, true, false)};
    m_pc->writeFile(apps[0].installPath + u"/left.log"_s, "x");
    m_pc->writeFile(specialFolder(SpecialFolder::LocalAppData) + u"/zqx./l"_s, "x");
    m_pc->writeFile(specialFolder(SpecialFolder::RoamingAppData) + u"/Zqx/sub/r"_s, "x");
    m_pc->writeFile(specialFolder(SpecialFolder::CommonAppData) + u"/Zqx/p"_s, "x");
    m_pc->addRegistry(u"[HKEY_CURRENT_USER\\Software\\Zqx:]\n\"value\"=\"a text\"\n"_s);
    for (const QString &folder : {specialFolder(SpecialFolder::StartMenuPrograms),
                                  QStandardPaths::writableLocation(QStandardPaths::DesktopLocation)})
        QVERIFY(Platform::writeShellLink(folder + u"/Zqx: 1.lnk"_s,
                                         {.path = apps[0].installPath + u"/bin/a.exe"_s}));

    QSignalSpy appFinished(m_migrator.get(), &AppMigrator::appFinished);
    QSignalSpy finished(m_migrator.get(), &AppMigrator::finished);
    m_migrator->start(apps);
    const QString base = u"Apps/Zqx_ One/"_s;
    QCOMPARE(
        m_requests,
        (QStringList{u"begin Zqx_ One"_s, base + u"registry.reg"_s, base + u"Install/Zqx_ One/bin/a.exe"_s,
                     base + u"AppData/Local/zqx/l"_s, base + u"AppData/Roaming/Zqx/sub/r"_s,
                     base + u"ProgramData/Zqx/p"_s, base + u"Shortcuts/StartMenu/Zqx_ 1.lnk"_s,
                     base + u"Shortcuts/Desktop/Zqx_ 1.lnk"_s, u"end Zqx_ One 7 1"_s, u"begin Vwvk"_s,
                     u"Apps/Vwvk/Install/Vwvk/bin/a.exe"_s, u"end Vwvk 1 0"_s}));
    QCOMPARE(appFinished,
             (QList<QVariantList>{{u"Zqx: One"_s, true, QString()}, {u"Vwvk"_s, true, QString()}}));
    QCOMPARE(finished, (QList<QVariantList>{{2, 0, 2}}));
}

void AppMigratorTest::whatHasVanishedStaysBehind()
{
    const QList<AppInfo> apps = {app(u"Zqx"_s), app(u"Vwvk"_s)};
    const QString link = m_pc->homePath(u"Desktop/Zqx.lnk"_s);
    QVERIFY(Platform::writeShellLink(link, {.path = apps[0].installPath + u"/bin/a.exe"_s}));
    connect(m_migrator.get(), &AppMigrator::appStarted, this, [&](const QString &name) {
        if (name == "Zqx"_L1)
            QVERIFY(QDir(apps[0].installPath).removeRecursively() && QFile::remove(link));
    });
    expectLog(u"  [WARN] Directory not exists: \"%1\""_s.arg(apps[0].installPath));
    expectLog(u"  [SKIP] Shortcut not found: \"%1\""_s.arg(link));
    m_migrator->start(apps);
    QCOMPARE(m_requests, (QStringList{u"begin Zqx"_s, u"end Zqx 0 1"_s, u"begin Vwvk"_s,
                                      u"Apps/Vwvk/Install/Vwvk/bin/a.exe"_s, u"end Vwvk 1 0"_s}));
}

void AppMigratorTest::namesMayCoincide()
{
    expectLog(u"  [WARN] Another application travels under the same name: \"Zqx?\""_s);
    m_migrator->start({app(u"Zqx:"_s), app(u"Zqx?"_s)});
    const QStringList once = {u"begin Zqx_"_s, u"Apps/Zqx_/Install/Zqx_/bin/a.exe"_s, u"end Zqx_ 1 0"_s};
    QCOMPARE(m_requests, once + once);
}

void AppMigratorTest::cancelledRunsEndInSilence()
{
    const QList<AppInfo> apps = {app(u"Zqx"_s), app(u"Vwvk"_s)};
    QSignalSpy appFinished(m_migrator.get(), &AppMigrator::appFinished);
    QSignalSpy finished(m_migrator.get(), &AppMigrator::finished);
    const auto once = connect(m_migrator.get(), &AppMigrator::requestSendCommand, m_migrator.get(),
                              [this] { m_migrator->cancel(); });
    m_migrator->start(apps);
    QCOMPARE(m_requests, QStringList(u"begin Zqx"_s));
    QCOMPARE(appFinished, (QList<QVariantList>{{u"Zqx"_s, false, QString()}}));
    QCOMPARE(finished.size(), 0);

    disconnect(once);
    m_migrator->start(apps);
    QCOMPARE(finished, (QList<QVariantList>{{2, 0, 0}}));
}

void AppMigratorTest::beginMessagesAreRead_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QString>("name"); ///< null for a message that is ignored
    QTest::addColumn<int>("fileCount");

    AppPackage package;
    package.name = u"AC/DC"_s;
    package.fileCount = 7;
    package.shortcuts = {ShortcutInfo{}};
    QTest::newRow("own") << appStartPayload(package) << u"AC/DC"_s << 7;
    QTest::newRow("wrong types") << R"({"appName":"x","fileCount":"many","shortcuts":4,"version":[]})"_ba
                                 << u"x"_s << 0;
    QTest::newRow("harmless points") << R"({"appName":".a..b."})"_ba << u".a..b."_s << 0;
    QTest::newRow("too many") << R"({"appName":"x","fileCount":1e12})"_ba << u"x"_s << 2147483647;
    for (const QByteArray &payload :
         {""_ba, "[]"_ba, "{}"_ba, R"({"appName":7})"_ba, R"({"appName":" "})"_ba, R"({"appName":"../x"})"_ba,
          R"({"appName":"x\\..\\y"})"_ba, R"({"appName":"."})"_ba, R"({"appName":"x/. ./y"})"_ba,
          R"({"appName":"x\u0000"})"_ba})
        QTest::addRow("'%s'", payload.constData()) << payload << QString() << 0;
}

void AppMigratorTest::beginMessagesAreRead()
{
    QFETCH(QByteArray, payload);
    QFETCH(QString, name);
    const std::optional<AppPackage> package = readAppStart(payload);
    QCOMPARE(package.has_value(), !name.isNull());
    QCOMPARE(package.value_or(AppPackage{}).name, name);
    QTEST(package.value_or(AppPackage{}).fileCount, "fileCount");
}

void AppMigratorTest::receivedApplicationsAreAnnouncedAndEnded()
{
    AppPackage package;
    package.name = u"Zqx"_s;
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

    const QString base = QStandardPaths::writableLocation(QStandardPaths::TempLocation) + u"/Zandrove_Apps"_s;
    QVERIFY(QDir().mkpath(base + u"/Apps/Zqx/Install/empty"_s));
    m_migrator->onAppEndReceived(u"Zqx"_s);
    QCOMPARE(finished.last(), (QVariantList{u"Zqx"_s, false, u"Failed to copy install files"_s}));
}

QObject *makeAppMigratorTest()
{
    return new AppMigratorTest;
}

#include "AppMigratorTest.moc"
