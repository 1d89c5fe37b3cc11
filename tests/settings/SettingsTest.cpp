#include "PcTest.h"
#include "SettingHalf.h"

#include "inventory/SettingScanner.h"
#include "platform/Registry.h"
#include "platform/SystemParameters.h"

#include <QRegularExpression>

#include <limits>
#include <numeric>

namespace {

const QByteArray PathKey = "Windows Registry Editor Version 5.00\r\n\r\n"
                           "[HKEY_CURRENT_USER\\Environment]\r\n\"PATH\"=\"C:\\\\old\"\r\n";
const QByteArray NoKey = "no key";
const QString Wallpaper = u"wallpaper"_s;

// What moves when everything does: registry and calls of the Old PC, values and calls of the New PC.
constexpr auto OldRegistry =
    "[WINDOWS\\Explorer\\StuckRects3]\n\"Settings\"=hex:41,00\n"
    "[WINDOWS\\Explorer\\Advanced]\n\"Hidden\"=dword:1\n"
    "[HKCU\\Environment]\n\"PATH\"=\"C:\\\\old\"\n\"Zoo\"=hex(2):25,00,58,00,25,00,00,00\n"
    "[WINDOWS\\Themes\\Personalize]\n\"AppsUseLightTheme\"=dword:0\n"
    "[HKCU\\AppEvents\\Schemes\\Apps\\Beep]\n@=\"dïng.wav\"\n"
    "[HKCU\\Software\\ZandroveTest]\n\"Ink\"=\"blue\"\n";
constexpr auto OldCalls =
    "reg|export|HKCU\\Control Panel\\Desktop|FILE|/y; reg|export|WINDOWS\\Explorer\\StuckRects3|FILE|/y; "
    "reg|export|WINDOWS\\Explorer\\Advanced|FILE|/y; reg|export|WINDOWS\\Explorer\\Advanced|FILE|/y; "
    "reg|export|HKCU\\Control Panel\\Mouse|FILE|/y; reg|export|HKCU\\Control Panel\\Keyboard|FILE|/y; "
    "powercfg|/export|FILE|SCHEME_CURRENT; reg|export|HKCU\\Environment|FILE|/y; "
    "reg|export|WINDOWS\\Themes\\Personalize|FILE|/y; reg|export|HKCU\\AppEvents\\Schemes|FILE|/y; "
    "reg|export|HKCU\\Software\\ZandroveTest|FILE|/y";
constexpr auto NewValues =
    "HKCU\\Control Panel\\Desktop\\WallpaperStyle=6; HKCU\\Control Panel\\Desktop\\TileWallpaper=0; "
    "WINDOWS\\Explorer\\StuckRects3\\Settings=A; WINDOWS\\Explorer\\Advanced\\Hidden=1; "
    "HKCU\\Control Panel\\Mouse\\DoubleClickSpeed=400; HKCU\\Control Panel\\Keyboard\\KeyboardDelay=2; "
    "HKCU\\Environment\\PATH=C:\\old; HKCU\\Environment\\Zoo=%X%; HKCU\\Environment\\Kept=1; "
    "WINDOWS\\Themes\\Personalize\\AppsUseLightTheme=0; "
    "HKCU\\AppEvents\\Schemes\\Apps\\Beep\\.=dïng.wav; HKCU\\Software\\ZandroveTest\\Ink=blue";
constexpr auto NewCalls =
    "reg|import|FILE; reg|import|FILE; setting change \"TraySettings\"; "
    "reg|import|FILE; setting change \"\"; associations changed; "
    "reg|import|FILE; action 113 value 10; action 33 value 0; action 32 value 400; "
    "reg|import|FILE; action 23 value 2; action 11 value 31; powercfg|/import|FILE; powercfg|/setactive|%1; "
    "reg|import|FILE; setting change \"Environment\"; "
    "reg|import|FILE; setting change \"ImmersiveColorSet\"; reg|import|FILE; reg|import|FILE";

/// `text` with the whole of a key that it shortens.
QString spelledOut(const char *text)
{
    return QString::fromUtf8(text).replace("WINDOWS\\"_L1,
                                           "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\"_L1);
}

/// What the registry holds in the place of such values: "HKCU\Key\Value=text; HKCU\Key\Other=text".
QString found(const QString &values)
{
    QStringList texts;
    for (const QString &value : values.split(u"; "_s)) {
        const QString path = value.section(u'=', 0, 0);
        const Platform::RegistryKey key(path.section(u'\\', 0, -2));
        texts.append(path + u'=' + key.text(path.section(u'\\', -1), u"none"_s));
    }
    return texts.join(u"; "_s);
}

QStringList logged; // since the test began

/// The system's calls come between those of its programs, so that all of them have one order.
void recordLine(QtMsgType, const QMessageLogContext &, const QString &line)
{
    logged.append(line);
    QFile calls(qEnvironmentVariable("ZANDROVE_STANDIN_CALLS", u"."_s));
    if (line.startsWith("[SystemParameters] "_L1) && calls.open(QIODevice::WriteOnly | QIODevice::Append))
        calls.write(line.mid(19).toUtf8() + '\n');
}

QStringList temporaryFiles()
{
    return QDir::temp().entryList({u"zandrove_*"_s});
}

} // namespace

/// Settings from one PC to another: its registry, programs and files, the messages, and the other's.
class SettingsTest final : public ScratchPcTest
{
    Q_OBJECT

private Q_SLOTS:
    /// Also makes the next PC of one test.
    void init()
    {
        m_pc.reset();
        PcTest::init();
        qInstallMessageHandler(recordLine);
        logged.clear();
    }

    void cleanup()
    {
        QCOMPARE(temporaryFiles(), m_foreignFiles);
        if (!SimulatedPc::isMadeUp()) { // there it would be the next test's picture too
            QDir(m_pc->homePath(u"Pictures/Zandrove"_s)).removeRecursively();
            QVERIFY(Platform::setWallpaper(u""_s));
        }
        m_pc.reset();
    }

    void payloadsKeepTheirForm()
    {
        const QByteArray start = R"({"category":"Größe","fileName":"a.jpg","fileSize":5,"key":"wallpaper",)"
                                 R"("metadata":{"a":"b"},"name":"Bild","originalFilePath":"C:\\a.jpg",)"
                                 R"("registryPath":"HKCU\\x","registrySize":3})";
        SettingPackage package = SettingMessages::readStart(start);
        QCOMPARE(package.key + package.name + package.category + package.registryPath + package.fileName +
                     package.originalFilePath + package.metadata.value(u"a"_s),
                 u"wallpaperBildGrößeHKCU\\xa.jpgC:\\a.jpgb"_s);
        package.registryData = "abc";
        package.fileData = "12345";
        QCOMPARE(SettingMessages::startPayload(package), start);
        const QByteArray key = R"({"data":"//4=","dataType":"registry","key":"k"})";
        QCOMPARE(keyPayload(u"k"_s, "\xff\xfe"), key);
        QCOMPARE(filePayload(u"k"_s, u"f"_s, "x", 1, 2),
                 QByteArray(R"({"chunkIndex":1,"data":"eA==","dataType":"file","fileName":"f",)"
                            R"("key":"k","totalChunks":2})"));
        QCOMPARE((SettingMessages::End{u"k"_s, u"n"_s}.toPayload()), QByteArray(R"({"key":"k","name":"n"})"));
        const QByteArray complete = R"({"failed":2,"success":7})";
        QCOMPARE(SettingMessages::Complete::fromPayload(complete).toPayload(), complete);
        const QByteArray odd = R"({"key":5,"metadata":{"a":1,"b":null,"c":"3"}})";
        QCOMPARE(SettingMessages::readStart(odd).metadata, (Values{{u"c"_s, u"3"_s}}));
    }

    /// Everything but powercfg, which Wine lacks, is the same there.
    void everySettingMoves()
    {
        const bool isMadeUp = SimulatedPc::isMadeUp();
        QVERIFY(Platform::setWallpaper(m_pc->writeFile(u"sea ü.bmp"_s, "BM")));
        // Wine's calls would lose these keys with what addRegistry() takes back in the end.
        using Platform::RegistryKey;
        QVERIFY(RegistryKey(u"HKCU\\Control Panel\\Desktop"_s).setText(u"WallpaperStyle"_s, u"6"_s));
        QVERIFY(RegistryKey(u"HKCU\\Control Panel\\Mouse"_s).setText(u"DoubleClickSpeed"_s, u"400"_s));
        QVERIFY(RegistryKey(u"HKCU\\Control Panel\\Keyboard"_s).setText(u"KeyboardDelay"_s, u"2"_s));
        addRegistry(OldRegistry);
        SettingScanner scanner;
        QSignalSpy scanned(&scanner, &SettingScanner::finished);
        scanner.start();
        auto settings = scanned[0][0].value<QList<SettingInfo>>();
        for (SettingInfo &setting : settings)
            setting.selected = true;
        settings.append(
            {chosen(u"pens"_s, u"HKEY_CURRENT_USER/Software/ZandroveTest"_s), chosen(u"Mouse"_s)});
        Half oldPc;
        oldPc.migrator.start(settings);
        const int moved = isMadeUp ? 10 : 9;
        QCOMPARE(oldPc.finished, (QList<QVariantList>{{moved, 11 - moved}}));
        QCOMPARE(oldPc.progress.last(), (QVariantList{90, u"Mouse"_s}));
        if (isMadeUp)
            QCOMPARE(calls(), spelledOut(OldCalls));

        init();
        addRegistry("[HKCU\\Environment]\n\"Path\"=\"C:\\\\new\"\n\"Kept\"=\"1\"\n");
        Half newPc;
        newPc.hearAll(oldPc);
        QCOMPARE(newPc.finished, (QList<QVariantList>{{moved, 0}}));
        QCOMPARE(found(spelledOut(NewValues)), spelledOut(NewValues));
        QVERIFY(m_pc->registryText(u"HKEY_CURRENT_USER\\Environment"_s).contains("\"Zoo\"=hex(2):"_L1));
        const QString picture = pictureOfNewPc(u"sea ü.bmp"_s);
        QCOMPARE(QDir::fromNativeSeparators(Platform::wallpaper().value()), picture);
        QCOMPARE(contentOf(picture), QByteArray("BM"));
        if (isMadeUp) {
            const QString scheme = calls().section(u"/setactive|"_s, 1).section(u';', 0, 0);
            QVERIFY(m_pc->registryText().contains(u"\"ActivePowerScheme\"=\"%1\""_s.arg(scheme)));
            QCOMPARE(calls(), spelledOut(NewCalls).arg(scheme));
        } else {
            newPc.apply(u"keyboard"_s, {}, {{u"KeyboardDelay"_s, u"1"_s}, {u"KeyboardSpeed"_s, u"30"_s}});
            const QString byCall = u"HKCU\\Control Panel\\Keyboard\\KeyboardSpeed=30"_s;
            QCOMPARE(found(byCall), byCall);
            return;
        }

        newPc.migrator.startReceiving(); // a second run, with counts of its own and the progress of both
        QVERIFY(newPc.migrator.isRunning());
        newPc.migrator.cancel(); // means nothing to what is received
        QCOMPARE(newPc.apply(u"sound"_s, {}), u"failed"_s);
        newPc.hear(115, "[]");
        QCOMPARE(newPc.progress.last().first(), 110);
        QCOMPARE(newPc.finished.last(), (QVariantList{0, 1}));
    }

    void picturesMoveInChunks_data()
    {
        constexpr qsizetype Chunk = 524288;
        const auto row = addColumns<QList<qsizetype>>("chunks");
        row("empty", QList<qsizetype>());
        row("one chunk", QList<qsizetype>{Chunk});
        row("a byte more", QList<qsizetype>{Chunk, 1});
        row("6 MiB", QList<qsizetype>(12, Chunk));
    }
    void picturesMoveInChunks()
    {
        QFETCH(const QList<qsizetype>, chunks);
        QByteArray content(std::accumulate(chunks.begin(), chunks.end(), qsizetype(0)), 'x');
        for (qsizetype i = 0; i < content.size(); i += 1021)
            content[i] = char(i);
        QVERIFY(Platform::setWallpaper(m_pc->writeFile(u"sea.bmp"_s, content)));
        Half oldPc, newPc;
        oldPc.migrator.start({chosen(Wallpaper)});
        QCOMPARE(oldPc.finished, (QList<QVariantList>{{1, 0}}));
        QList<qsizetype> sizes;
        for (const QVariantList &message : std::as_const(oldPc.sent)) {
            const Data data = Data::fromPayload(message[1].toByteArray());
            if (data.content == Data::Content::File && data.chunkIndex == sizes.size())
                sizes.append(data.bytes.size());
        }
        QCOMPARE(sizes, chunks);
        newPc.hearAll(oldPc);
        const bool isPicture = !chunks.isEmpty();
        QCOMPARE(newPc.finished, (QList<QVariantList>{{int(isPicture), int(!isPicture)}}));
        QCOMPARE(newPc.percents.value(0).value(1).toInt(), isPicture ? int(100 / chunks.size()) : 0);
        QVERIFY(!isPicture || contentOf(pictureOfNewPc(u"sea.bmp"_s)) == content);
    }

    void onlyTheImportReplacesPath()
    {
        addRegistry("[HKCU\\Environment]\n\"Path\"=\"C:\\\\new\"\n");
        const QString id = u"environment"_s;
        const Values variables = {
            {u"EnvironmentVars"_s, uR"({"pAth":"C:\\old","Zoo":"ä","Bad":5,"":"x"})"_s}};
        QString values = u"HKCU\\Environment\\PATH=C:\\new; HKCU\\Environment\\Zoo=ä; "
                         "HKCU\\Environment\\Bad=none; HKCU\\Environment\\.=none"_s;
        Half newPc;
        QCOMPARE(newPc.apply(id, {}, variables), u"applied"_s);
        QCOMPARE(found(values), values);
        const QString skipped = u"[Environment] Skipping PATH merge for safety"_s;
        QCOMPARE(logged.count(skipped), 1);
        // The key is imported before the variables are looked at, so PATH is the other PC's already by then.
        QCOMPARE(newPc.apply(id, {keyPayload(id, PathKey)}, variables), u"applied"_s);
        QCOMPARE(found(values), values.replace("new"_L1, "old"_L1));
        QCOMPARE(logged.count(skipped), 1);
        QCOMPARE(newPc.apply(id, {}), u"failed"_s);
        QCOMPARE(newPc.apply(id, {}, {{u"EnvironmentVars"_s, u"[]"_s}}), u"applied"_s);
    }

    void aHugeKeyMoves()
    {
        if (!SimulatedPc::isMadeUp())
            QSKIP("The programs of the PC at hand stay.");
        m_pc->replaceProgram(u"reg"_s, "[ $1 = export ] && exec head -c 104857600 /dev/zero > \"$3\"\n"
                                       "wc -c < \"$2\" > imported");
        Half oldPc, newPc;
        oldPc.migrator.start({chosen(u"pens"_s, u"HKCU\\Pens"_s)});
        newPc.hearAll(oldPc);
        QCOMPARE(contentOf(m_pc->path(u"imported"_s)).trimmed(), QByteArray("104857600"));
    }

    void contentsDecide_data()
    {
        const auto row = addColumns<QByteArray, Values, QByteArray>("key", "metadata", "outcomeAndCalls");
        const Values advanced = {{u"AdvancedSettings"_s, QString::fromLatin1(PathKey.toBase64())}};
        row("taskbar, only the extra", {}, advanced, "failed; ");
        row("taskbar", NoKey, advanced,
            "failed; reg|import|FILE; reg|import|FILE; setting change \"TraySettings\"");
        row("explorer", NoKey, {}, "failed; reg|import|FILE; setting change \"\"; associations changed");
        row("mouse", NoKey, {{u"SwapMouseButtons"_s, u"true"_s}},
            "applied; reg|import|FILE; action 33 value 0");
        row("mouse, no speed", {}, {{u"MouseSpeed"_s, u"1"_s}, {u"MouseSensitivity"_s, u"21"_s}},
            "applied; ");
        row("keyboard, half", {}, {{u"KeyboardDelay"_s, u"2"_s}}, "applied; ");
        row("environment", NoKey, {}, "failed; reg|import|FILE; setting change \"Environment\"");
        row("sound", NoKey, {}, "failed; reg|import|FILE");
        row("display, no key", {}, advanced, "failed; setting change \"ImmersiveColorSet\"");
        row("power, no scheme", PathKey, {}, "failed; ");
        row("wallpaper, no file", PathKey, {}, "failed; ");
    }
    void contentsDecide()
    {
        if (!SimulatedPc::isMadeUp())
            QSKIP("The calls to the PC at hand are not recorded.");
        QFETCH(const QByteArray, key);
        QFETCH(const Values, metadata);
        const QString id = QString::fromLatin1(QTest::currentDataTag()).section(u',', 0, 0);
        const QByteArrayList data(key.isEmpty() ? 0 : 1, keyPayload(id, key));
        const QString outcome = Half().apply(id, data, metadata);
        QTEST((outcome + u"; "_s + calls()).toLatin1(), "outcomeAndCalls");
    }

    void programsFail_data()
    {
        // The script of the program is empty where that is missing.
        const auto row = addColumns<bool, QByteArray, QByteArray>("isExport", "script", "log");
        row("sound, missing", true, "", R"([Registry] Export timeout for: "HKCU\\AppEvents\\Schemes")");
        row("sound, failing", true, "echo x > $3; echo no >&2; exit 3", R"(  Error: "no\n")");
        row("sound, empty", true, ": > $3", R"([Registry] Exported: "HKCU\\AppEvents\\Schemes" size: 0)");
        row("power, missing", true, "", "[Power] powercfg export timeout");
        row("power, failing", true, "echo x > $2; echo no >&2; exit 3",
            R"([Power] powercfg export failed: "no\n")");
        row("sound, missing at last", false, "", "[Registry] Import timeout");
        row("sound, failing at last", false, "echo no >&2; exit 3", R"([Registry] Import failed: "no\n")");
        row("power, failing at last", false, "exit 3", "[Power] Applied settings, success: false");
    }
    void programsFail()
    {
        if (!SimulatedPc::isMadeUp())
            QSKIP("The programs of the PC at hand stay.");
        QFETCH(const bool, isExport);
        QFETCH(const QByteArray, script);
        QFETCH(const QByteArray, log);
        const QString id = QString::fromLatin1(QTest::currentDataTag()).section(u',', 0, 0);
        const QString program = id == "power"_L1 ? u"powercfg"_s : u"reg"_s;
        m_pc->removeProgram(program);
        if (!script.isEmpty())
            m_pc->replaceProgram(program, script);
        Half half;
        if (isExport)
            half.migrator.start({chosen(id)});
        else
            half.apply(id, {keyPayload(id, PathKey), filePayload(id, u"../not written"_s, "x")});
        QVERIFY2(logged.contains(QString::fromLatin1(log)), qPrintable(logged.join(u'\n')));
        const QString error = isExport ? u"Export failed"_s : u"Failed to apply setting"_s;
        QCOMPARE(half.ended[0], (QVariantList{isExport ? id : QString(), false, error}));
    }

    void aPictureIsWrittenBelowItsFolderOnly()
    {
        const QDir pictures(m_pc->homePath(u"Pictures"_s));
        const QString older = m_pc->writeFile(pictureOfNewPc(u"sea ..bmp"_s), "an older, longer one");
        QStringList bad = {u""_s, u"."_s, u".."_s, u"../a.bmp"_s, u"a/a.bmp"_s, u"a\\a.bmp"_s, u"/a.bmp"_s};
        bad.append(u"a.bmp"_s + QChar(QChar::Null));
        if (!SimulatedPc::isMadeUp())
            bad.append(u"sea ..bmp:stream"_s);
        for (const QString &name : std::as_const(bad)) {
            const QByteArrayList chunks = {filePayload(Wallpaper, u"a.bmp"_s, "x"),
                                           filePayload(Wallpaper, name, "x")};
            QCOMPARE(name + Half().apply(Wallpaper, chunks), name + u"failed"_s);
        }
        QCOMPARE(contentOf(older), QByteArray("an older, longer one"));
        QCOMPARE(Half().apply(Wallpaper, {filePayload(Wallpaper, u"sea ..bmp"_s, "view")}), u"applied"_s);
        QCOMPARE(contentOf(older), QByteArray("view"));
        m_pc->writeFile(pictureOfNewPc(u"taken/mine"_s), "mine");
        Half half;
        half.apply(Wallpaper, {filePayload(Wallpaper, u"taken"_s, "view")});
        QCOMPARE(half.ended[0][2], u"Failed to apply setting: a folder of this name stands in its place"_s);
        QCOMPARE(pictures.entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList(u"Zandrove"_s));
        QCOMPARE(QDir(pictureOfNewPc({})).entryList(QDir::Files | QDir::Hidden), QStringList(u"sea ..bmp"_s));
    }

    void messagesOfAnyPeerAreTaken()
    {
        constexpr int Largest = std::numeric_limits<int>::max();
        const QString name = u"sea.bmp"_s;
        Half newPc;
        QCOMPARE(newPc.end(Wallpaper), u"dropped"_s); // none has begun
        QCOMPARE(newPc.end({}), u"failed"_s);         // fits the one without an id, which can't be applied
        QCOMPARE(newPc.apply(Wallpaper, {filePayload(u"mouse"_s, name, "0"),
                                         filePayload(Wallpaper, name, "3", Largest, 0),
                                         filePayload(Wallpaper, name, "1", Largest, 1),
                                         filePayload(Wallpaper, name, "2", -Largest, 1)}),
                 u"applied"_s);
        QCOMPARE(newPc.end(Wallpaper), u"dropped"_s); // a second end applies nothing twice
        QCOMPARE(newPc.percents, (QList<QVariantList>{{QString(), 0}, {QString(), 100}, {QString(), 0}}));
        QCOMPARE(contentOf(pictureOfNewPc(name)), QByteArray("312")); // what counts is the order of arrival
        const QByteArrayList odd = {
            "{\"key\":", "[1]", R"({"key":"pens","dataType":"registry","data":[1]})",
            R"({"key":"pens","dataType":"file","totalChunks":2147483648,"chunkIndex":1e99})"};
        QCOMPARE(newPc.apply(u"pens"_s, odd + QByteArrayList{keyPayload(u"pens"_s, PathKey)}), u"applied"_s);
        for (const char *noBase64 : {"§$%&", "eA==\\u0000eA=="}) {
            const auto data =
                QByteArray(R"({"key":"pens","dataType":"registry","data":")") + noBase64 + "\"}";
            QCOMPARE(newPc.apply(u"pens"_s, {data, keyPayload(u"pens"_s, PathKey)}), u"failed"_s);
        }
        newPc.hear(112, "no JSON"); // gives up the one before all the same
        QCOMPARE(newPc.end(Wallpaper), u"dropped"_s);

        newPc.migrator.setContentLimit(PathKey.size());
        for (const auto excess : {0, 1}) {
            const QString outcome = excess == 0 ? u"applied"_s : u"failed"_s;
            const QByteArray rest(PathKey.size() - 4 + excess, 'x');
            QCOMPARE(newPc.apply(Wallpaper,
                                 {filePayload(Wallpaper, name, "1234"), filePayload(Wallpaper, name, rest)}),
                     outcome);
            // A second key takes the place of the first.
            const QByteArray key = PathKey + QByteArray(excess, '\n');
            QCOMPARE(newPc.apply(u"pens"_s, {keyPayload(u"pens"_s, NoKey), keyPayload(u"pens"_s, key)}),
                     outcome);
        }
    }

    void aCancelledExportEndsSilently()
    {
        addRegistry("[-WINDOWS\\Explorer\\StuckRects3]\n[WINDOWS\\Explorer\\Taskband]\n\"A\"=\"b\"\n"
                    "[HKCU\\Environment]\n\"PATH\"=\"mine\"\n");
        const SettingInfo taskbar = chosen(u"taskbar"_s);
        SettingInfo missing = taskbar;
        missing.available = false;
        Half oldPc;
        SettingMigrator &migrator = oldPc.migrator;
        migrator.start({missing, SettingInfo()}); // none to move, so no message either
        QCOMPARE(oldPc.finished.takeFirst(), (QVariantList{0, 0}));
        const auto cancelling = connect(&migrator, &SettingMigrator::settingStarted, &migrator, [&] {
            migrator.start({taskbar}); // dropped: one is on
            migrator.cancel();
        });
        migrator.start({taskbar, taskbar});
        QCOMPARE(oldPc.ended.size(), 1);
        QCOMPARE(oldPc.sent.size(),
                 3); // the setting in hand still leaves whole, if by the second of its keys
        QVERIFY(oldPc.sent[0][1].toByteArray().contains("Taskband"));
        QCOMPARE(oldPc.finished.size(), 0);
        disconnect(cancelling);
        migrator.start({taskbar});
        QCOMPARE(oldPc.finished.size(), 1);
        migrator.stop();
        migrator.start({taskbar});
        QCOMPARE(oldPc.finished.size(), 1);
        QVERIFY(!migrator.isRunning());
        oldPc.ended.clear(); // nor does it apply any
        oldPc.apply(u"pens"_s, {keyPayload(u"pens"_s, PathKey)});
        QCOMPARE(oldPc.ended[0][2], u"Failed to apply setting: stopped before it was applied"_s);
        QCOMPARE(found(u"HKCU\\Environment\\PATH=none"_s), u"HKCU\\Environment\\PATH=mine"_s);
        oldPc.hear(112, R"({"key":"pens"})");
        migrator.giveUpReceiving(u"link lost"_s);
        QCOMPARE(oldPc.ended[1][2], u"Failed to apply setting: link lost"_s);
    }

private:
    void addRegistry(const char *text)
    {
        m_pc->addRegistry(spelledOut(text).replace("HKCU"_L1, "HKEY_CURRENT_USER"_L1));
    }

    /// What the system was called with, without what differs each time.
    [[nodiscard]] QString calls() const
    {
        static const QRegularExpression file(
            u"[^|]*/zandrove_(reg_(ex|im)port_\\d{13}\\.reg|power_(ex|im)port\\.pow)"_s);
        return m_pc->programCalls().replaceInStrings(file, u"FILE"_s).join(u"; "_s);
    }

    [[nodiscard]] QString pictureOfNewPc(const QString &name) const
    {
        return m_pc->homePath(u"Pictures/Zandrove/"_s + name);
    }

    /// What others had left in the temporary folder of the PC at hand.
    const QStringList m_foreignFiles = SimulatedPc::isMadeUp() ? QStringList() : temporaryFiles();
};

ZANDROVE_TEST(SettingsTest)

#include "SettingsTest.moc"
