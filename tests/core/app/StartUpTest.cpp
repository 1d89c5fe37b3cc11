#include "core/app/StartUp.h"
#include "SimulatedPc.h"
#include "TestMain.h"

#include <QCoreApplication>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QMetaType>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

QStringList &logLines()
{
    static QStringList lines;
    return lines;
}

void recordLine(QtMsgType, const QMessageLogContext &, const QString &line)
{
    logLines().append(line);
}

/// The debug lines that `work` writes.
template <typename Work>
QStringList logOf(Work work)
{
    logLines().clear();
    const auto previous = qInstallMessageHandler(recordLine);
    work();
    qInstallMessageHandler(previous);
    return logLines();
}

/// A compiled translation of the one text "Hello" in the context "Test".
QByteArray compiledTranslation(const QString &translated)
{
    const auto section = [](quint8 tag, const QByteArray &content) {
        QByteArray bytes;
        QDataStream(&bytes, QIODevice::WriteOnly) << tag << content;
        return bytes;
    };
    QByteArray text;
    for (const QChar unit : translated)
        text.append(char(unit.unicode() >> 8)).append(char(unit.unicode() & 0xff));
    const QByteArray message = section(3, text) + section(6, "Hello") + section(7, "Test") + '\x01';
    const quint32 hashOfHello = 0x04ec32f;
    QByteArray index;
    QDataStream(&index, QIODevice::WriteOnly) << hashOfHello << quint32(0);
    return QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd") + section(0x42, index) +
           section(0x69, message);
}

} // namespace

class StartUpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (const auto scope : {QSettings::UserScope, QSettings::SystemScope})
            QSettings::setPath(QSettings::NativeFormat, scope, m_scratch.filePath(u"settings"_s));
    }

    void identityIsSet()
    {
        StartUp::setIdentity();
        QCOMPARE(QCoreApplication::applicationName(), u"Zandrove"_s);
        QCOMPARE(QCoreApplication::applicationVersion(), u"5.0"_s);
        QCOMPARE(QCoreApplication::organizationName(), u"Ostrelin"_s);
        QCOMPARE(QCoreApplication::organizationDomain(), u"zandrove.example"_s);
    }

    void firewallRulesAreAddedOnce_data()
    {
        addColumns<QString, bool>("shown", "adds");
        QTest::newRow("both there") << u"Rule Name: Zandrove TCP\nRule Name: Zandrove UDP"_s << false;
        QTest::newRow("UDP missing") << u"Rule Name: Zandrove TCP"_s << false;
        QTest::newRow("TCP missing") << u"Rule Name: Zandrove UDP"_s << true;
        QTest::newRow("both missing") << u"No rules match the specified criteria."_s << true;
        QTest::newRow("other case") << u"Rule Name: zandrove tcp"_s << true;
    }
    void firewallRulesAreAddedOnce()
    {
        QFETCH(QString, shown);
        QFETCH(bool, adds);
        if (!SimulatedPc::isMadeUp())
            QSKIP("What the system's own program was asked, nobody can tell.");
        SimulatedPc pc;
        pc.replaceProgram(u"netsh"_s, "IFS='|'; echo \"$*\" >> \"${0%/*}/calls\"\n"
                                      "[ \"$3\" = show ] && echo \"$SHOWN\"\n"
                                      "exit 1\n");
        pc.environment().set("SHOWN", shown.toLocal8Bit());
        StartUp::ensureFirewallRules();

        QByteArrayList expected = {"advfirewall|firewall|show|rule|name=Zandrove TCP"};
        if (adds)
            expected << "advfirewall|firewall|add|rule|name=Zandrove TCP|dir=in|action=allow|protocol=tcp|"
                        "localport=52024|profile=any"
                     << "advfirewall|firewall|add|rule|name=Zandrove UDP|dir=in|action=allow|protocol=udp|"
                        "localport=52025|profile=any";
        QFile calls(QFileInfo(QStandardPaths::findExecutable(u"netsh"_s)).path() + u"/calls"_s);
        QVERIFY(calls.open(QIODevice::ReadOnly));
        QCOMPARE(calls.readAll().trimmed().split('\n'), expected);
    }

    void missingFirewallProgramIsNoMatter()
    {
        SimulatedPc pc;
        if (SimulatedPc::isMadeUp())
            pc.removeProgram(u"netsh"_s);
        const QStringList log = logOf([] { StartUp::ensureFirewallRules(); });
        QCOMPARE(log, QStringList());
    }

    void recordsAreRegisteredInOrder()
    {
        StartUp::registerMetaTypes();
        const QByteArrayList names = {"Zandrove::PCInfo",
                                      "Zandrove::AppInfo",
                                      "Zandrove::FolderInfo",
                                      "Zandrove::AccountInfo",
                                      "Zandrove::SettingInfo",
                                      "Zandrove::ScanResult",
                                      "Zandrove::TransferProgress",
                                      "Zandrove::TransferFileInfo",
                                      "Zandrove::ConflictConfig",
                                      "Zandrove::MigrationReport",
                                      "QList<Zandrove::PCInfo>",
                                      "QList<Zandrove::AppInfo>",
                                      "QList<Zandrove::FolderInfo>",
                                      "QList<Zandrove::AccountInfo>",
                                      "QList<Zandrove::SettingInfo>"};
        int previous = 0;
        for (const QByteArray &name : names) {
            const int id = QMetaType::fromName(name).id();
            QVERIFY2(id > previous, name.constData());
            previous = id;
        }
    }

    void systemLocaleChoosesTheLanguage_data()
    {
        addColumns<QString, QString>("locale", "language");
        for (const char *code : {"en", "fr", "de", "ja", "es", "ko", "nl", "pt", "it"})
            QTest::newRow(code) << QString::fromLatin1(code) << QString::fromLatin1(code);
        QTest::newRow("pt_BR") << u"pt_BR"_s << u"pt"_s;
        QTest::newRow("zh_CN") << u"zh_CN"_s << u"zh_TW"_s;
        QTest::newRow("zh_TW") << u"zh_TW"_s << u"zh_TW"_s;
        QTest::newRow("sv_SE") << u"sv_SE"_s << u"en"_s;
        QTest::newRow("C") << u"C"_s << u"en"_s;
        QTest::newRow("three letters") << u"deu_DE"_s << u"de"_s;
    }
    void systemLocaleChoosesTheLanguage()
    {
        QFETCH(QString, locale);
        QFETCH(QString, language);
        QString chosen;
        const QStringList log = logOf([&] { chosen = StartUp::chooseLanguage(QString(), locale); });
        QCOMPARE(chosen, language);
        QCOMPARE(log, QStringList({u"[Main] System language: \"%1\""_s.arg(locale.left(2)),
                                   u"[Main] Auto-detected: \"%1\""_s.arg(language)}));
    }

    void translationPathKeepsItsParts()
    {
        QCOMPARE(StartUp::translationPath(u"/opt/50%2"_s, u"de"_s),
                 u"/opt/50%2/translations/Zandrove_de.qm"_s);
    }

    void unknownStoredLanguageStaysAndShowsEnglish()
    {
        QSettings settings(u"Ostrelin"_s, u"Zandrove"_s);
        settings.setValue("language"_L1, u"xx"_s);
        settings.sync();

        QString language;
        const QStringList log = logOf([&language] { language = StartUp::initTranslation(); });
        const QString file = QCoreApplication::applicationDirPath() + u"/translations/Zandrove_xx.qm"_s;
        const QStringList expected = {u"========== Translation Init =========="_s,
                                      u"[Main] User language from settings: \"xx\""_s,
                                      u"[Main] Using user language: \"xx\""_s,
                                      u"[Main] Translation file: \"%1\""_s.arg(file),
                                      u"[Main] File exists: false"_s,
                                      u"[Main] ✗ Failed to load translation file"_s,
                                      u"[Main] Falling back to English"_s,
                                      u"======================================="_s};
        QCOMPARE(log, expected);
        QCOMPARE(language, u"xx"_s);
        settings.sync();
        QCOMPARE(settings.value("language"_L1).toString(), u"xx"_s);
    }

    void translationIsInstalled()
    {
        QVERIFY(QDir(m_scratch.path()).mkpath(u"translations"_s));
        QFile file(StartUp::translationPath(m_scratch.path(), u"de"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(compiledTranslation(u"Grüß Gott"_s));
        file.close();

        QCOMPARE(QCoreApplication::translate("Test", "Hello"), u"Hello"_s);
        bool installed = false;
        const QStringList log =
            logOf([&] { installed = StartUp::installTranslation(m_scratch.path(), u"de"_s); });
        QVERIFY(installed);
        QCOMPARE(log.last(), u"[Main] ✓ Translation loaded successfully: \"de\""_s);
        QCOMPARE(QCoreApplication::translate("Test", "Hello"), u"Grüß Gott"_s);
    }

    void brokenTranslationFallsBackToEnglish()
    {
        QFile file(StartUp::translationPath(m_scratch.path(), u"fr"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("not a translation");
        file.close();

        const QStringList log =
            logOf([&] { QVERIFY(!StartUp::installTranslation(m_scratch.path(), u"fr"_s)); });
        QCOMPARE(log.last(), u"[Main] Falling back to English"_s);
        QCOMPARE(QCoreApplication::translate("Test", "Hello"), u"Hello"_s);
    }

private:
    QTemporaryDir m_scratch;
};

ZANDROVE_TEST(StartUpTest)
#include "StartUpTest.moc"
