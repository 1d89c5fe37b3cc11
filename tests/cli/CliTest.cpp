#include "TestFiles.h"
#include "TestMain.h"
#include "cli/Columns.h"
#include "cli/ControlCommand.h"
#include "cli/FolderCheck.h"
#include "cli/ItemChoice.h"
#include "cli/JsonOutput.h"
#include "cli/Options.h"
#include "cli/PeerMatch.h"
#include "cli/RunResults.h"
#include "cli/TextOutput.h"
#include "support/PrintableText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

using namespace Zandrove::Cli;

namespace {

/// Standard output and standard error, kept.
struct Captured
{
    QByteArray out;
    QByteArray err;
    int columns = 0;

    Streams streams()
    {
        return {.out = [this](const QByteArray &bytes) { out += bytes; },
                .err = [this](const QByteArray &bytes) { err += bytes; },
                .columns = [this] { return columns; }};
    }
};

PCInfo peer(const QString &name, const QString &ip, const QString &senderIp, const QString &code)
{
    PCInfo pc;
    pc.id = pc.name = name;
    pc.ip = ip;
    pc.senderIp = senderIp;
    pc.verifyCode = code;
    return pc;
}

} // namespace

class CliTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesWrongArguments_data()
    {
        const auto row = addColumns<QString, QString>("line", "mentions");
        row("nothing", u""_s, u"receive"_s);
        row("unknown command", u"fetch"_s, u"fetch"_s);
        row("second word", u"receive now"_s, u"now"_s);
        row("option of another command", u"receive --folder x"_s, u"--folder"_s);
        row("no target", u"send --folder x"_s, u"--to"_s);
        row("blank target", u"send --to= --folder x"_s, u"--to"_s);
        row("no folder", u"send --to 1234"_s, u"--folder"_s);
        row("value missing at the end", u"send --folder x --to"_s, u"--to"_s);
        row("value for a flag", u"receive --yes=1"_s, u"--yes"_s);
        row("no name", u"send --to x --app="_s, u"--app"_s);
        row("report of a scan", u"scan --report x"_s, u"--report"_s);
        row("items of the other side", u"receive --all-settings"_s, u"--all-settings"_s);
        row("no role", u"discover"_s, u"--role"_s);
        row("wrong role", u"discover --role 0"_s, u"0"_s);
        row("wrong mode", u"receive --mode wifi"_s, u"wifi"_s);
        row("network for a scan", u"scan --mode cable"_s, u"--mode"_s);
        row("no number", u"receive --timeout soon"_s, u"soon"_s);
        row("zero seconds", u"receive --timeout 0"_s, u"0"_s);
        row("too long", u"discover --role old --seconds 99999999"_s, u"99999999"_s);
    }
    void refusesWrongArguments()
    {
        QFETCH(QString, line);
        QFETCH(QString, mentions);
        const ParsedArguments parsed = parseArguments(line.split(u' ', Qt::SkipEmptyParts));
        QVERIFY(!parsed.options);
        QVERIFY(parsed.text.isEmpty());
        QVERIFY2(parsed.error.contains(mentions), qPrintable(parsed.error));
        QVERIFY(!parsed.error.contains(u'\n'));
    }

    void readsOptionsInEitherFormAndAnyOrder()
    {
        const ParsedArguments send = parseArguments(
            {u"--json"_s, u"--timeout=30"_s, u"send"_s, u"--folder"_s, u"-strange name"_s, u"--to"_s,
             u" old pc "_s, u"--folder=b=c"_s, u"--mode"_s, u"cable"_s, u"--control"_s});
        QVERIFY2(send.options, qPrintable(send.error));
        QCOMPARE(int(send.options->command), int(Command::Send));
        QCOMPARE(send.options->role, int(OldPC));
        QCOMPARE(send.options->target, u"old pc"_s);
        QCOMPARE(send.options->folders, QStringList({u"-strange name"_s, u"b=c"_s}));
        QCOMPARE(send.options->mode, int(CableMode));
        QVERIFY(send.options->timeout == std::chrono::seconds(30));
        QVERIFY(send.options->json && send.options->control && !send.options->verbose);

        const ParsedArguments receive =
            parseArguments({u"receive"_s, u"--yes"_s, u"--once"_s, u"--verbose"_s});
        QVERIFY(receive.options);
        QCOMPARE(receive.options->role, int(NewPC));
        QVERIFY(receive.options->yes && receive.options->once && receive.options->verbose);
        QVERIFY(!receive.options->timeout);

        for (const auto &[line, mentions] :
             {std::pair(u"--help"_s, u"discover"_s), std::pair(u"send -h"_s, u"--folder DIR"_s),
              std::pair(u"--version"_s, u"" ZANDROVE_VERSION ""_s)}) {
            const ParsedArguments parsed = parseArguments(line.split(u' '));
            QVERIFY2(!parsed.options && parsed.text.contains(mentions), qPrintable(parsed.text));
        }
        QVERIFY(parseArguments({u"send"_s, u"--to"_s, u"x"_s, u"--folder"_s, u"--help"_s}).options);

        const ParsedArguments discover = parseArguments({u"discover"_s, u"--role"_s, u"new"_s});
        QVERIFY(discover.options);
        QCOMPARE(discover.options->role, int(NewPC));
    }

    void choosesWhatIsMeant_data()
    {
        const auto row =
            addColumns<QString, QList<int>, QList<int>, QString>("items", "apps", "settings", "problem");
        row("both of one name, once", u"--app Pad --app Pad"_s, QList{0, 3}, QList<int>(), u""_s);
        row("one and all", u"--app=Pen --all-apps"_s, QList{1, 0, 3}, QList<int>(), u""_s);
        row("another case", u"--app pad"_s, QList<int>(), QList<int>(), u"no application pad"_s);
        row("keys only", u"--app Keys"_s, QList<int>(), QList<int>(), u"cannot be moved"_s);
        row("setting", u"--setting mouse"_s, QList<int>(), QList{0}, u""_s);
        row("not here", u"--setting sound"_s, QList<int>(), QList<int>(), u"no setting sound"_s);
        row("all", u"--all-apps --all-settings"_s, QList{0, 1, 3}, QList{0}, u""_s);
    }
    void choosesWhatIsMeant()
    {
        QFETCH(QString, items);
        QFETCH(QString, problem);
        ScanResult result;
        for (const QString &name : {u"Pad"_s, u"Pen"_s, u"Keys"_s, u"Pad"_s})
            result.apps.emplaceBack().name = name;
        result.apps[2].canTransfer = false;
        for (const QString &id : {u"mouse"_s, u"sound"_s})
            result.settings.emplaceBack().id = id;
        result.settings[1].available = false;
        const ParsedArguments parsed = parseArguments(u"send --to x %1"_s.arg(items).split(u' '));
        QVERIFY2(parsed.options && needsScan(*parsed.options), qPrintable(parsed.error));
        const ItemChoice choice = chooseItems(result, *parsed.options);
        QVERIFY2(problem.isEmpty() ? choice.problem.isEmpty() : choice.problem.contains(problem),
                 qPrintable(choice.problem));
        QTEST(choice.apps, "apps");
        QTEST(choice.settings, "settings");
        QVERIFY(!chooseItems({}, *parsed.options).problem.isEmpty());
    }

    void wrapsAtTheEndOfTheLine_data()
    {
        const auto row = addColumns<QString, QString>("text", "lines");
        row("words", u"one two three four"_s, u"one two\n  three\n  four"_s);
        row("a word too long", u"a incomprehensible b"_s, u"a\n  incomprehensible\n  b"_s);
        row("an option stays whole", u"it is --timeout"_s, u"it is\n  --timeout"_s);
        row("wide characters", u"旧電腦新電腦"_s, u"旧電腦新\n  電腦"_s);
        row("no line begins with a full stop", u"旧電腦新。電"_s, u"旧電腦\n  新。電"_s);
    }
    void wrapsAtTheEndOfTheLine()
    {
        QFETCH(QString, text);
        QTEST(wrapped(text, 2, 10), "lines");
    }

    void findsThePeerThatIsMeant_data()
    {
        const auto row = addColumns<QString, QString>("target", "expected");
        row("code", u"0427"_s, u"Blue"_s);
        row("code before a name of four digits", u"2024"_s, u"Green"_s);
        row("name of four digits", u"1999"_s, u"1999"_s);
        row("name in another case", u"gReEn"_s, u"Green"_s);
        row("two of one name", u"twin"_s, u"Twin Twin"_s);
        row("address that would be dialled", u"10.0.0.2"_s, u"Green"_s);
        row("another address of it", u"192.168.1.9"_s, QString());
        row("part of a name", u"Gre"_s, QString());
        row("nobody", u"7777"_s, QString());
    }
    void findsThePeerThatIsMeant()
    {
        QFETCH(QString, target);
        const QList<PCInfo> peers = {peer(u"2024"_s, u"10.0.0.5"_s, u"10.0.0.5"_s, u"1111"_s),
                                     peer(u"Blue"_s, u"10.0.0.1"_s, u"192.168.1.8"_s, u"0427"_s),
                                     peer(u"Green"_s, u"10.0.0.2"_s, u"192.168.1.9"_s, u"2024"_s),
                                     peer(u"1999"_s, u"10.0.0.6"_s, u"10.0.0.6"_s, {}),
                                     peer(u"Twin"_s, u"10.0.0.7"_s, u"10.0.0.7"_s, u"1112"_s),
                                     peer(u"Twin"_s, u"10.0.0.8"_s, u"10.0.0.8"_s, u"1113"_s)};
        QStringList names;
        for (const PCInfo &found : findPeers(peers, target))
            names.append(found.name);
        QTEST(names.join(u' '), "expected");
    }

    void readsControlLines_data()
    {
        const auto row = addColumns<QString, int, QString>("line", "kind", "folder");
        row("word", u" pause \t"_s, int(ControlCommand::Pause), QString());
        row("again", u"again"_s, int(ControlCommand::Again), QString());
        row("folder with blanks", u"again  /a b/c "_s, int(ControlCommand::Again), u"/a b/c"_s);
        row("too much", u"cancel all"_s, -1, QString());
    }
    void readsControlLines()
    {
        QFETCH(QString, line);
        QFETCH(int, kind);
        QFETCH(QString, folder);
        const std::optional<ControlCommand> command = parseControlCommand(line);
        QCOMPARE(command ? int(command->kind) : -1, kind);
        QCOMPARE(command ? command->folder : QString(), folder);
    }

    void namesWhatIsWrongWithAFolder()
    {
        const QTemporaryDir scratch;
        const QString file = writeFile(scratch.filePath(u"file"_s), {});
        QVERIFY(folderProblem(scratch.path()).isEmpty());
        QVERIFY(folderProblem(file).contains(u"not a folder"_s));
        QVERIFY(folderProblem(scratch.filePath(u"missing"_s)).contains(u"no folder"_s));
        QCOMPARE(absoluteFolder(scratch.path() + u"/a/../b//"_s), scratch.path() + u"/b"_s);
    }

    void sumsUpRuns()
    {
        RunResults results;
        QCOMPARE(results.exitCode(), EverythingMoved);
        results.record(Cancelled);
        QCOMPARE(results.exitCode(), Cancelled);
        results.record(SomethingMissing);
        results.record(EverythingMoved);
        QCOMPARE(results.exitCode(), SomethingMissing);
        results.record(RunFailed);
        QCOMPARE(results.exitCode(), RunFailed);

        RunSummary run;
        run.files.arrived = 1;
        QCOMPARE(exitCodeFor(run), RunFailed);
        run.end = RunEnd::Complete;
        QCOMPARE(exitCodeFor(run), EverythingMoved);
        for (int *count :
             {&run.files.wasThere, &run.files.wasDifferent, &run.apps.failed, &run.settings.notConfirmed}) {
            *count = 1;
            QCOMPARE(exitCodeFor(run), SomethingMissing);
            *count = 0;
        }
    }

    void printsOneJsonObjectALine()
    {
        Captured captured;
        JsonOutput output(captured.streams());
        output.code(u"0427"_s);
        output.disconnected();
        output.file(u"a\n\"b\".txt"_s, FileStatus::Failed, u"why"_s);
        output.error(u"first\nsecond"_s);

        const QList<QByteArray> lines = captured.out.split('\n');
        QCOMPARE(lines.size(), 5); // the last one is empty
        QCOMPARE(lines.at(0), QByteArray(R"({"event":"code","code":"0427"})"));
        QCOMPARE(lines.at(1), QByteArray(R"({"event":"disconnected"})"));
        const QJsonObject file = QJsonDocument::fromJson(lines.at(2)).object();
        QCOMPARE(file.value(u"name"_s).toString(), u"a\n\"b\".txt"_s);
        QCOMPARE(file.value(u"reason"_s).toString(), u"why"_s);
        QCOMPARE(captured.err.count('\n'), 1);
    }

    void reportNamesWhatDidNotArrive()
    {
        RunSummary run;
        run.end = RunEnd::Complete;
        run.startTime = QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9, 12));
        run.files = {.arrived = 7, .wasThere = 2, .wasDifferent = 1, .failed = 50, .notConfirmed = 1};
        run.notArrived =
            QList<ItemResult>(2000, {ItemKind::File, ItemOutcome::Failed, u"/d/a\x1b"_s, u"locked"_s, 1});
        run.different = {{ItemKind::File, ItemOutcome::WasDifferent, u"/d/b"_s, u"other"_s, 1}};
        run.fullVolumes = {{u"D:"_s, u"NEWBOX"_s, 12, 1024}};
        run.savedFolderCounts.insert(u"Music"_s, 3);
        const QJsonObject json = toJson(run);
        QCOMPARE(json.value(u"startTime"_s).toString(), u"2024-05-06T07:08:09.012"_s);
        QCOMPARE(json.value(u"filesFailed"_s).toInt(), 51);
        QCOMPARE(json.value(u"filesSkipped"_s).toInt(), 3);
        QCOMPARE(json.value(u"failedFiles"_s).toArray().size(), 1000);
        QCOMPARE(json.value(u"differentFiles"_s).toArray().first().toObject().value(u"reason"_s).toString(),
                 u"other"_s);

        Captured captured;
        TextOutput(captured.streams(), OldPC, false).report(run);
        QVERIFY(
            captured.out.contains("\nno space left on drive D: of NEWBOX: 12 files, 1.0 KB did not fit\n"));
        QVERIFY(captured.out.contains("\n52 of 61 files did not arrive:\n  /d/a\uFFFD: locked\n"));
        QVERIFY(captured.out.contains("locked\n  And 31 more.\n  /d/b: other\n"));
        QCOMPARE(captured.out.count(": locked\n"), 20);
        run.role = NewPC; // which can't name what did not come
        run.peerName = u"OLDBOX"_s;
        TextOutput(captured.streams(), NewPC, false).report(run);
        QVERIFY(
            captured.out.contains("  And 30 more.\n  1 announced file did not come. The report of OLDBOX "));
    }

    void namesOfPeersCannotSteerTheTerminal()
    {
        Captured captured;
        TextOutput output(captured.streams(), NewPC, true);
        const QString hostile = u"PC\x1b[2J\r\nroot\u202e\u009b"_s;
        output.peer(peer(hostile, u"10.0.0.1"_s, {}, u"1234"_s));
        output.request({1, hostile, u"10.0.0.1"_s, {}}, true);
        output.file(hostile, FileStatus::Failed, hostile);

        for (const QByteArray &printed : {captured.out, captured.err}) {
            const QString text = QString::fromUtf8(printed);
            QVERIFY(!text.contains(u'\x1b') && !text.contains(u'\r') && !text.contains(u'\u202e'));
        }
        QCOMPARE(captured.out.count('\n'), 1);
        QVERIFY(captured.err.startsWith("Allow PC"));
        QVERIFY2(printable(u"Größe 音楽\u200f.txt"_s) == u"Größe 音楽\u200f.txt"_s, "ordinary text stays");
    }

    void liveLineFitsTheTerminalAndLeavesNoTrace()
    {
        Captured captured;
        captured.columns = 40;
        TextOutput output(captured.streams(), OldPC, false);
        TransferProgress progress;
        progress.overallPercent = 42;
        progress.bytesPerSecond = 1024 * 1024;
        progress.remainingSeconds = 63;
        progress.currentFile = u"写真写真写真写真写真写真写真写真.jpg"_s;
        output.progress(progress);

        QVERIFY(captured.out.startsWith("\r") && captured.out.endsWith("\x1b[K"));
        const QString shown = QString::fromUtf8(captured.out.mid(1).chopped(3));
        QVERIFY2(shown.contains(u"42%") && shown.contains(u"1.0 MB/s") && shown.contains(u"1m 3s"),
                 qPrintable(shown));
        QVERIFY(columnsOf(shown) < 40 && shown.endsWith(u'…'));

        captured.out.clear();
        output.cancelled(Side::Here);
        QCOMPARE(captured.out, QByteArray("\r\x1b[KCancelled.\n"));

        Captured file; // that standard output goes to
        TextOutput(file.streams(), OldPC, false).progress(progress);
        QVERIFY(file.out.isEmpty());
    }

    void showsTheInventory()
    {
        ScanResult result;
        result.apps.resize(2);
        result.apps[0].name = u"Photo Lab"_s;
        result.apps[0].version = u"3.1"_s;
        result.apps[0].installPath = u"C:/Photo Lab"_s;
        result.apps[0].size = 5'000'000'000'000;
        result.apps[1].name = u"Keys\nOnly"_s;
        result.apps[1].canTransfer = false;
        result.folders.resize(1);
        result.folders[0].fileCount = 3;

        Captured text;
        TextOutput(text.streams(), OldPC, false).inventory(result);
        QVERIFY(text.out.startsWith("Applications: 2\n    4.55 TB  Photo Lab  3.1  C:/Photo Lab\n"));
        QVERIFY(text.out.contains("        0 B  Keys\uFFFDOnly  (cannot be moved)\nFolders: 1\n"));

        Captured json;
        JsonOutput(json.streams()).inventory(result);
        const QJsonObject object = QJsonDocument::fromJson(json.out).object();
        const QJsonArray apps = object.value(u"apps"_s).toArray();
        QCOMPARE(apps.first().toObject().value(u"size"_s).toInteger(), 5'000'000'000'000);
        QCOMPARE(apps.last().toObject().value(u"canMove"_s).toBool(true), false);
        QCOMPARE(object.value(u"folders"_s).toArray().first().toObject().value(u"files"_s).toInt(), 3);
    }
};

ZANDROVE_TEST(CliTest)
#include "CliTest.moc"
