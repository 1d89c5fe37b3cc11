#include "SettingRuns.h"
#include "SettingsTests.h"

#include <QThread>

#include <limits>

using namespace Zandrove;

namespace {

const QByteArray PenKey = "Windows Registry Editor Version 5.00\r\n\r\n"
                          "[HKEY_CURRENT_USER\\Software\\ZandroveTest]\r\n\"Ink\"=\"blue\"\r\n";
const QByteArray NoKey = "no key";

const QByteArray Hangs = "exec sleep 100"; // a program's script

constexpr int LargestInt = std::numeric_limits<int>::max();

} // namespace

/// What goes wrong on the way of a setting, and that it costs this one alone.
class SettingTroubleTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { m_pc = std::make_unique<SimulatedPc>(); }
    void cleanup()
    {
        QVERIFY(leftovers().isEmpty());
        m_pc.reset();
    }

    void contentsDecide_data();
    void contentsDecide();
    void programsFail_data();
    void programsFail();
    void aPictureIsWrittenBelowItsFolderOnly_data();
    void aPictureIsWrittenBelowItsFolderOnly();
    void messagesOfAnyPeerAreTaken();
    void contentsHaveALimit();
    void unwantedSettingsStay();
    void aCancelledExportEndsSilently();
    void everyRunIsCounted();

private:
    std::unique_ptr<SimulatedPc> m_pc;
};

void SettingTroubleTest::initTestCase()
{
    if (!SimulatedPc::isMadeUp() && !qEnvironmentVariableIsSet("ZANDROVE_SCRATCH_PC"))
        QSKIP("Needs a PC that ZANDROVE_SCRATCH_PC gives away for tests");
}

void SettingTroubleTest::contentsDecide_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<Values>("metadata");
    QTest::addColumn<bool>("applied");
    QTest::addColumn<QStringList>("calls");

    const QString imported = u"reg|import|FILE"_s;
    const Values advanced = {{u"AdvancedSettings"_s, QString::fromLatin1(PenKey.toBase64())}};
    const Values halfKeyboard = {{u"KeyboardDelay"_s, u"2"_s}};
    QTest::newRow("taskbar, only the extra") << QByteArray() << advanced << false << QStringList();
    QTest::newRow("taskbar, bad key")
        << NoKey << advanced << false
        << QStringList{imported, imported, u"setting change \"TraySettings\""_s};
    QTest::newRow("taskbar, bad extra") << PenKey << Values{{u"AdvancedSettings"_s, u"?"_s}} << true
                                        << QStringList{imported, u"setting change \"TraySettings\""_s};
    QTest::newRow("explorer, no key") << QByteArray() << Values() << false << QStringList();
    QTest::newRow("explorer, bad key")
        << NoKey << Values() << false
        << QStringList{imported, u"setting change \"\""_s, u"associations changed"_s};
    QTest::newRow("mouse, nothing") << QByteArray() << Values() << true << QStringList();
    QTest::newRow("mouse, bad key") << NoKey << Values{{u"SwapMouseButtons"_s, u"true"_s}} << true
                                    << QStringList{imported, u"action 33 value 0"_s};
    QTest::newRow("keyboard, half") << QByteArray() << halfKeyboard << true << QStringList();
    QTest::newRow("keyboard, bad key") << NoKey << halfKeyboard << true << QStringList(imported);
    QTest::newRow("power, nothing") << QByteArray() << Values() << false << QStringList();
    QTest::newRow("environment, bad key")
        << NoKey << Values() << false << QStringList{imported, u"setting change \"Environment\""_s};
    QTest::newRow("sound, no key") << QByteArray() << Values() << false << QStringList();
    QTest::newRow("sound, bad key") << NoKey << Values() << false << QStringList(imported);
    QTest::newRow("display, no key") << QByteArray() << Values{{u"AppsUseLightTheme"_s, u"1"_s}} << false
                                     << QStringList(u"setting change \"ImmersiveColorSet\""_s);
    QTest::newRow("pens") << PenKey << Values() << true << QStringList(imported);
    QTest::newRow("pens, no key") << QByteArray() << Values() << false << QStringList();
    QTest::newRow("wallpaper, no file") << PenKey << Values() << false << QStringList();
}

void SettingTroubleTest::contentsDecide()
{
    QFETCH(const QByteArray, key);
    QFETCH(const Values, metadata);
    QFETCH(const bool, applied);
    QFETCH(const QStringList, calls);
    const QString id = QString::fromLatin1(QTest::currentDataTag()).section(u',', 0, 0);
    const LogRecorder log;
    Receiver receiver;
    receiver.begin(id, metadata);
    if (!key.isEmpty())
        receiver.addKey(id, key);
    const std::optional<bool> result = receiver.end(id);
    if (SimulatedPc::isMadeUp())
        QCOMPARE(callsOf(*m_pc), calls);
    else if (key == NoKey)
        QSKIP("Wine's reg imports anything.");
    QCOMPARE(result, applied);
}

void SettingTroubleTest::programsFail_data()
{
    QTest::addColumn<bool>("isExport");
    QTest::addColumn<QByteArray>("script"); // of the program; empty where it is missing
    QTest::addColumn<QString>("log");
    const auto row = [](const char *name, bool isExport, const QByteArray &script, const char *log) {
        QTest::newRow(name) << isExport << script << QString::fromLatin1(log);
    };
    row("sound, missing", true, "", "[Registry] Export timeout for: \"HKCU\\\\AppEvents\\\\Schemes\"");
    row("sound, hanging", true, Hangs, "[Registry] Export timeout for: \"HKCU\\\\AppEvents\\\\Schemes\"");
    row("sound, failing", true, "echo x > $3; echo no >&2; exit 3", "  Error: \"no\\n\"");
    row("sound, lazy", true, "exit 0", "[SettingMigrator] Exporting: \"sound\" - \"SOUND\"");
    row("sound, empty", true, ": > $3", "[Registry] Exported: \"HKCU\\\\AppEvents\\\\Schemes\" size: 0");
    row("power, missing", true, "", "[Power] powercfg export timeout");
    row("power, hanging", true, Hangs, "[Power] powercfg export timeout");
    row("power, failing", true, "echo no >&2; exit 3", "[Power] powercfg export failed: \"no\\n\"");
    row("power, lazy", true, "exit 0", "[SettingMigrator] Exporting: \"power\" - \"POWER\"");
    row("sound, missing at last", false, "", "[Registry] Import timeout");
    row("sound, hanging at last", false, Hangs, "[Registry] Import timeout");
    row("sound, failing at last", false, "echo no >&2; exit 3", "[Registry] Import failed: \"no\\n\"");
    row("power, missing at last", false, "", "[SettingMigrator] Applying setting: \"power\"");
    row("power, hanging at last", false, Hangs, "[SettingMigrator] Applying setting: \"power\"");
    row("power, failing at last", false, "exit 3", "[Power] Applied settings, success: false");
}

void SettingTroubleTest::programsFail()
{
    if (!SimulatedPc::isMadeUp())
        QSKIP("The programs of the PC at hand stay.");
    QFETCH(const bool, isExport);
    QFETCH(const QByteArray, script);
    QFETCH(const QString, log);
    const QString id = QString::fromLatin1(QTest::currentDataTag()).section(u',', 0, 0);
    const QString program = id == "power"_L1 ? u"powercfg"_s : u"reg"_s;
    m_pc->removeProgram(program);
    if (!script.isEmpty())
        m_pc->replaceProgram(program, script);
    const LogRecorder recorder;
    const auto run = [&] {
        if (isExport) {
            const Export sent({chosen(id)});
            QCOMPARE(sent.types(), QList<int>{115});
            QCOMPARE(sent.messages.first().second, QByteArray(R"({"failed":1,"success":0})"));
            QCOMPARE(sent.failed, QStringList(id.toUpper()));
            return;
        }
        Receiver receiver;
        receiver.begin(id);
        receiver.addKey(id, PenKey);
        receiver.addFile(id, u"any name/that is not written"_s, "scheme");
        QCOMPARE(receiver.end(id), false);
    };
    const std::unique_ptr<QThread> thread(QThread::create(run));
    thread->start();
    // Ends the wait for a program as if its time were over.
    if (script == Hangs)
        thread->requestInterruption();
    QVERIFY(thread->wait());
    QVERIFY2(recorder.lines.contains(log), qPrintable(recorder.lines.join(u'\n')));
}

void SettingTroubleTest::aPictureIsWrittenBelowItsFolderOnly_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<bool>("applied");
    QTest::newRow("a name") << u"sea ü..bmp"_s << true;
    for (const char *name : {"", ".", "..", "../sea.bmp", "a/sea.bmp", "..\\sea.bmp", "/sea.bmp"})
        QTest::newRow(qPrintable(u"bad %1"_s.arg(QLatin1StringView(name))))
            << QString::fromLatin1(name) << false;
    QTest::newRow("NUL") << u"sea.bmp"_s + QChar(QChar::Null) << false;
    if (!SimulatedPc::isMadeUp())
        QTest::newRow("a stream") << u"sea.bmp:x"_s << false;
}

void SettingTroubleTest::aPictureIsWrittenBelowItsFolderOnly()
{
    QFETCH(const QString, fileName);
    QFETCH(const bool, applied);
    const QDir pictures(m_pc->homePath(u"Pictures"_s));
    const QString path = pictures.filePath(u"Zandrove/"_s + fileName);
    if (applied)
        m_pc->writeFile(path, "an older and longer picture");
    Receiver receiver;
    receiver.begin(u"wallpaper"_s);
    receiver.addFile(u"wallpaper"_s, u"not the last name"_s, "sea ", 0, 2);
    receiver.addFile(u"wallpaper"_s, fileName, "view", 1, 2);
    const QStringList before = QDir(pictures.filePath(u"Zandrove"_s)).entryList(QDir::Files);
    QCOMPARE(receiver.end(u"wallpaper"_s), applied);
    QCOMPARE(QDir(pictures.filePath(u"Zandrove"_s)).entryList(QDir::Files), before);
    QVERIFY(!pictures.exists(u"sea.bmp"_s));
    QFile picture(path);
    QVERIFY(!applied || (picture.open(QIODevice::ReadOnly) && picture.readAll() == "sea view"));
}

void SettingTroubleTest::messagesOfAnyPeerAreTaken()
{
    const QString wallpaper = u"wallpaper"_s;
    const QString name = u"sea.bmp"_s;
    Receiver receiver;
    QVERIFY(!receiver.end(wallpaper));        // none has begun
    QCOMPARE(receiver.end(QString()), false); // fits the one without an id, which can't be applied

    receiver.begin(wallpaper);
    receiver.addFile(u"mouse"_s, name, "x");
    receiver.addFile(wallpaper, name, "3", LargestInt, 0);
    receiver.addFile(wallpaper, name, "1", LargestInt, 1);
    receiver.addFile(wallpaper, name, "2", -LargestInt, 1);
    QList<int> percents;
    for (const QVariantList &chunk : std::as_const(receiver.percents))
        percents.append(chunk[1].toInt());
    QCOMPARE(percents, (QList<int>{0, 100, 0}));
    QVERIFY(!receiver.end(u"mouse"_s));
    QCOMPARE(receiver.end(wallpaper), true); // what counts is the order of arrival
    QFile picture(m_pc->homePath(u"Pictures/Zandrove/"_s + name));
    QVERIFY(picture.open(QIODevice::ReadOnly));
    QCOMPARE(picture.readAll(), QByteArray("312"));

    receiver.begin(wallpaper);
    receiver.addFile(wallpaper, name, "x");
    receiver.migrator.onSettingData(R"({"key":"wallpaper","dataType":"file","fileName":"y","data":"?"})");
    QCOMPARE(receiver.end(wallpaper), false);
    receiver.begin(wallpaper);
    receiver.addFile(wallpaper, name, "x");
    receiver.migrator.onSettingStart("no JSON"); // the one before is given up all the same
    QVERIFY(!receiver.end(wallpaper));
}

void SettingTroubleTest::contentsHaveALimit()
{
    const QString pens = u"pens"_s;
    Receiver receiver;
    receiver.migrator.setContentLimit(8);
    for (const QByteArray &second : {QByteArray("5678"), QByteArray("56789")}) {
        receiver.begin(u"wallpaper"_s);
        receiver.addFile(u"wallpaper"_s, u"sea.bmp"_s, "1234");
        receiver.addFile(u"wallpaper"_s, u"sea.bmp"_s, second);
        QCOMPARE(receiver.end(u"wallpaper"_s), second.size() == 4);
    }
    receiver.migrator.setContentLimit(PenKey.size()); // a second key takes the place of the first
    receiver.begin(pens);
    receiver.addKey(pens, NoKey);
    receiver.addKey(pens, PenKey);
    QCOMPARE(receiver.end(pens), true);
    QVERIFY(
        m_pc->registryText(u"HKEY_CURRENT_USER\\Software\\ZandroveTest"_s).contains("\"Ink\"=\"blue\""_L1));
    receiver.begin(pens);
    receiver.addFile(pens, u"x"_s, "1");
    receiver.addKey(pens, PenKey);
    QCOMPARE(receiver.end(pens), false);
}

void SettingTroubleTest::unwantedSettingsStay()
{
    QList<SettingInfo> settings = {chosen(u"mouse"_s), chosen(u"mouse"_s)};
    settings[0].available = false;
    settings[1].selected = false;
    const Export nothing(settings);
    QVERIFY(nothing.messages.isEmpty());
    QCOMPARE(nothing.finished, (QVariantList{0, 0}));
}

void SettingTroubleTest::aCancelledExportEndsSilently()
{
    m_pc->addRegistry(u"[HKEY_CURRENT_USER\\Software\\ZandroveTest]\n\"A\"=\"b\"\n"_s);
    SettingMigrator migrator;
    QSignalSpy sent(&migrator, &SettingMigrator::requestSendCommand);
    QSignalSpy started(&migrator, &SettingMigrator::settingStarted);
    QSignalSpy finished(&migrator, &SettingMigrator::finished);
    const SettingInfo setting = chosen(u"pens"_s, u"HKEY_CURRENT_USER\\Software\\ZandroveTest"_s);
    const QList<SettingInfo> settings = {setting, setting};
    const auto cancelling = connect(&migrator, &SettingMigrator::settingStarted, &migrator, [&] {
        migrator.start(settings); // dropped: one is on
        migrator.cancel();
    });
    migrator.start(settings);
    QCOMPARE(started.size(), 1);
    QCOMPARE(sent.size(), 3); // the setting in hand still leaves whole
    QCOMPARE(finished.size(), 0);

    disconnect(cancelling);
    migrator.start(settings);
    QCOMPARE(finished.size(), 1);
    migrator.stop();
    migrator.start(settings);
    QCOMPARE(started.size(), 3);
    QVERIFY(!migrator.isRunning());
}

void SettingTroubleTest::everyRunIsCounted()
{
    Receiver receiver;
    receiver.migrator.cancel(); // means nothing to what is received
    for (const int percent : {60, 120}) {
        for (int i = 0; i < 3; ++i) {
            for (const QString &key : {u"mouse"_s, u"sound"_s}) {
                receiver.begin(key);
                receiver.end(key);
            }
        }
        receiver.migrator.onSettingComplete("[]");
        QCOMPARE(receiver.finished.takeFirst(), (QVariantList{3, 3}));
        QCOMPARE(receiver.progress.last().first().toInt(), percent);
        QVERIFY(!receiver.migrator.isRunning());
        receiver.migrator.startReceiving();
        QVERIFY(receiver.migrator.isRunning());
    }
}

std::unique_ptr<QObject> makeSettingTroubleTest()
{
    return std::make_unique<SettingTroubleTest>();
}

#include "SettingTroubleTest.moc"
