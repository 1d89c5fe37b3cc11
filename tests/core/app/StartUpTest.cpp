#include "SimulatedPc.h"
#include "TestFiles.h"
#include "TestMain.h"

#include "core/app/StartUp.h"

#include <QSettings>

namespace {

QStringList logged; // by the work that runs

/// The debug lines that `work` writes.
template <typename Work>
QStringList logOf(Work work)
{
    logged.clear();
    const auto previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &line) { logged.append(line); });
    work();
    qInstallMessageHandler(previous);
    return logged;
}

/// A compiled translation of the one text "Hello" in the context "Test": "Grüß Gott".
const QByteArray Translation = QByteArray::fromHex(
    "3cb86418caef9c95cd211cbf60a1bddd4200000008004ec32f00000000690000002b03000000120047007200fc00df00"
    "200047006f00740074060000000548656c6c6f07000000045465737401");

} // namespace

class StartUpTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_scratch;
    const QString m_program = m_scratch.filePath(u"50%2"_s); ///< where translations are looked for

private Q_SLOTS:
    void initTestCase()
    {
        for (const auto scope : {QSettings::UserScope, QSettings::SystemScope})
            QSettings::setPath(QSettings::NativeFormat, scope, m_scratch.filePath(u"settings"_s));
        StartUp::setIdentity();
    }

    void firewallRulesAreAddedOnce_data()
    {
        const auto row = addColumns<QByteArray, bool>("shown", "adds");
        row("both there", "Rule Name: Zandrove TCP\nRule Name: Zandrove UDP"_ba, false);
        row("UDP missing", "Rule Name: Zandrove TCP"_ba, false);
        row("TCP missing", "Rule Name: Zandrove UDP"_ba, true);
        row("other case", "Rule Name: zandrove tcp"_ba, true);
    }
    void firewallRulesAreAddedOnce()
    {
        QFETCH(QByteArray, shown);
        QFETCH(bool, adds);
        if (!SimulatedPc::isMadeUp())
            QSKIP("What the system's own program was asked, nobody can tell.");
        SimulatedPc pc;
        pc.replaceProgram(u"netsh"_s, "IFS='|'; echo \"$*\" >> calls\n"
                                      "[ \"$3\" = show ] && echo \"$SHOWN\"\n"
                                      "exit 1\n");
        pc.environment().set("SHOWN", shown);
        StartUp::ensureFirewallRules();
        QStringList expected = {u"advfirewall|firewall|show|rule|name=Zandrove TCP"_s};
        if (adds)
            expected << u"advfirewall|firewall|add|rule|name=Zandrove TCP|dir=in|action=allow|protocol=tcp|"
                        "localport=52024|profile=any"_s
                     << u"advfirewall|firewall|add|rule|name=Zandrove UDP|dir=in|action=allow|protocol=udp|"
                        "localport=52025|profile=any"_s;
        QCOMPARE(pc.programCalls(), expected);
    }

    void missingFirewallProgramIsNoMatter()
    {
        SimulatedPc pc;
        if (SimulatedPc::isMadeUp())
            pc.removeProgram(u"netsh"_s);
        QCOMPARE(logOf([] { StartUp::ensureFirewallRules(); }), QStringList());
    }

    void systemLocaleChoosesTheLanguage_data()
    {
        const auto row = addColumns<QString, QString>("locale", "language");
        for (const char *code : {"en", "fr", "de", "ja", "es", "ko", "nl", "pt", "it"})
            row(code, QString::fromLatin1(code), QString::fromLatin1(code));
        row("pt_BR", u"pt_BR"_s, u"pt"_s);
        row("zh_CN", u"zh_CN"_s, u"zh_TW"_s);
        row("sv_SE", u"sv_SE"_s, u"en"_s);
        row("C", u"C"_s, u"en"_s);
        row("three letters", u"deu_DE"_s, u"de"_s);
    }
    void systemLocaleChoosesTheLanguage()
    {
        QFETCH(QString, locale);
        QTEST(StartUp::chooseLanguage({}, locale), "language");
    }

    void unknownStoredLanguageStaysAndShowsEnglish()
    {
        QSettings settings(u"Ostrelin"_s, u"Zandrove"_s);
        settings.setValue("language"_L1, u"xx"_s);
        settings.sync();

        const QString language = StartUp::initTranslation();
        QCOMPARE(language, u"xx"_s);
        settings.sync();
        QCOMPARE(settings.value("language"_L1).toString(), u"xx"_s);
    }

    void translationIsInstalled()
    {
        writeFile(m_program + u"/translations/Zandrove_de.qm"_s, Translation);
        const QStringList log = logOf([this] { QVERIFY(StartUp::installTranslation(m_program, u"de"_s)); });
        QCOMPARE(log.last(), u"[Main] ✓ Translation loaded successfully: \"de\""_s);
        QCOMPARE(QCoreApplication::translate("Test", "Hello"), u"Grüß Gott"_s);
    }

    void brokenTranslationFallsBackToEnglish()
    {
        writeFile(StartUp::translationPath(m_program, u"fr"_s), "not a translation");
        const QStringList log = logOf([this] { QVERIFY(!StartUp::installTranslation(m_program, u"fr"_s)); });
        QCOMPARE(log.last(), u"[Main] Falling back to English"_s);
        QCOMPARE(QCoreApplication::translate("Test", "Hello"), u"Hello"_s);
    }
};

ZANDROVE_TEST(StartUpTest)
#include "StartUpTest.moc"
