#include "AppMigrationTests.h"

#include "appmigration/AppInstaller.h"
#include "appmigration/RegistryExport.h"
#include "appmigration/RegistryText.h"
#include "platform/Identity.h"

#include <QDir>
#include <QThread>

#include <functional>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

const QString Header = u"Windows Registry Editor Version 5.00\r\n\r\n"_s;
const QString Key = u"HKEY_CURRENT_USER\\Software\\ZandroveTest"_s;

} // namespace

/// The registry of an application as one file, out of one PC and into the other.
class RegistryFileTest : public PcTest
{
    Q_OBJECT

private Q_SLOTS:
    void keysAreMerged();
    void nothingUsableIsAFailure();
    void anyFormOfAnExportIsTaken_data();
    void anyFormOfAnExportIsTaken();
    void importsTellWhatHappened_data();
    void importsTellWhatHappened();
    void hangingProgramsAreEnded_data();
    void hangingProgramsAreEnded();
    void largeFilesPass();

private:
    [[nodiscard]] QString textOf(const QString &path) const { return decodeRegistryText(contentOf(path)); }
    bool exportKeys(const QStringList &keys) { return exportRegistryKeys(keys, m_pc->path(u"out.reg"_s)); }
    bool install()
    {
        AppPackageInfo info;
        info.receivedBasePath = m_pc->path(u"Received"_s);
        info.sourceUser = u"anna"_s;
        return AppInstaller().install(info);
    }
};

void RegistryFileTest::keysAreMerged()
{
    m_pc->addRegistry(
        u"[%1\\A]\n\"path\"=\"C:\\\\Program Files\\\\é\"\n[%1\\B\\Below]\n@=\"b\"\n"_s.arg(Key));
    QVERIFY(exportKeys({Key + u"\\A"_s, Key + u"\\Missing"_s, Key + u"\\B"_s}));
    const QString expected = Header + u"\r\n[%1\\A]\r\n\"path\"=\"C:\\\\Program Files\\\\é\"\r\n\r\n"
                                      "\r\n[%1\\B]\r\n\r\n[%1\\B\\Below]\r\n@=\"b\"\r\n\r\n"_s.arg(Key);
    QCOMPARE(textOf(m_pc->path(u"out.reg"_s)), expected);
    QCOMPARE(QDir::temp().entryList({u"zandrove_reg_*"_s}, QDir::Files), QStringList());
}

void RegistryFileTest::nothingUsableIsAFailure()
{
    const QString file = m_pc->writeFile(u"out.reg"_s, QByteArray(500, 'x'));
    QVERIFY(!exportKeys({}));
    QCOMPARE(QFile(file).size(), 82);
    QVERIFY(!exportKeys({Key + u"\\Missing"_s}));
    QCOMPARE(textOf(file), Header);
    QVERIFY(!exportRegistryKeys({Key}, m_pc->path(u"no/such/folder/out.reg"_s)));
}

void RegistryFileTest::anyFormOfAnExportIsTaken_data()
{
    QTest::addColumn<QByteArray>("script"); ///< null for a program that is missing
    QTest::addColumn<QString>("content");

    QTest::newRow("UTF-8") << R"(printf 'Header\r\n\r\n[K\303\251y]\r\n' > "$3")"_ba << u"\r\n[Kéy]\r\n"_s;
    QTest::newRow("one line") << R"(printf '[K]\n' > "$3")"_ba << u"[K]\n"_s;
    QTest::newRow("no header") << R"(printf '\r\n[K]' > "$3")"_ba << u"\r\n[K]"_s;
    QTest::newRow("odd UTF-16") << R"(printf '\377\376K\000x' > "$3")"_ba << u"K"_s;
    QTest::newRow("empty") << R"(: > "$3")"_ba << QString();
    QTest::newRow("refused") << R"(echo '[K]' > "$3"; exit 1)"_ba << QString();
    QTest::newRow("crashed") << R"(echo '[K]' > "$3"; kill -9 $$)"_ba << QString();
    QTest::newRow("missing") << QByteArray() << QString();
    QTest::newRow("talkative") << R"(head -c 3000000 /dev/zero; echo '[K]' > "$3")"_ba << u"[K]\n"_s;
}

void RegistryFileTest::anyFormOfAnExportIsTaken()
{
    if (!SimulatedPc::isMadeUp())
        QSKIP("The system's own program can't be replaced");
    QFETCH(QByteArray, script);
    QFETCH(QString, content);
    script.isNull() ? m_pc->removeProgram(u"reg.exe"_s) : m_pc->replaceProgram(u"reg.exe"_s, script);
    const bool exported = exportKeys({Key});
    QCOMPARE(textOf(m_pc->path(u"out.reg"_s)), Header + content);
    QCOMPARE(exported, 2 + 2 * (Header.size() + content.size()) > 100);
}

void RegistryFileTest::importsTellWhatHappened_data()
{
    QTest::addColumn<QByteArray>("script"); ///< null for a program that is missing
    QTest::addColumn<QString>("log");

    QTest::newRow("accepted") << R"(test "$1|$#" = 'import|2')"_ba << u"  Registry import result: success"_s;
    QTest::newRow("refused") << "echo no >&2; exit 3"_ba << u"  reg.exe stderr: \"no\""_s;
    QTest::newRow("talkative") << "head -c 3000000 /dev/zero; exit 3"_ba << u"  reg.exe exit code: 3"_s;
    QTest::newRow("crashed") << "kill -9 $$"_ba << u"  Registry import timeout"_s;
    QTest::newRow("missing") << QByteArray() << u"  Registry import timeout"_s;
}

void RegistryFileTest::importsTellWhatHappened()
{
    if (!SimulatedPc::isMadeUp())
        QSKIP("The system's own program can't be replaced");
    QFETCH(QByteArray, script);
    QFETCH(QString, log);
    script.isNull() ? m_pc->removeProgram(u"reg.exe"_s) : m_pc->replaceProgram(u"reg.exe"_s, script);
    m_pc->writeFile(u"Received/registry.reg"_s, "[K]");
    expectLog(log);
    if (!log.contains(u"success"))
        expectLog(u"  Warning: Registry import failed, continuing..."_s);
    QVERIFY(install());
    QVERIFY(!QFile::exists(QDir::temp().filePath(u"zandrove_import.reg"_s)));
    QCOMPARE(contentOf(m_pc->path(u"Received/registry.reg"_s)), "[K]"_ba);
}

void RegistryFileTest::hangingProgramsAreEnded_data()
{
    QTest::addColumn<bool>("imports");
    QTest::newRow("export") << false;
    QTest::newRow("import") << true;
}

void RegistryFileTest::hangingProgramsAreEnded()
{
    if (!SimulatedPc::isMadeUp())
        QSKIP("The system's own program can't be replaced");
    QFETCH(bool, imports);
    m_pc->replaceProgram(u"reg.exe"_s, "touch started; exec sleep 600");
    m_pc->writeFile(u"Received/registry.reg"_s, "[K]");
    expectLog(imports ? u"  Registry import timeout"_s : u"    TIMEOUT"_s);
    bool succeeded = false;
    const std::unique_ptr<QThread> thread(
        QThread::create([&] { succeeded = imports ? install() : exportKeys({Key}); }));
    thread->start();
    QTRY_VERIFY(QFile::exists(m_pc->path(u"started"_s)));
    thread->requestInterruption(); // as if the deadline had come
    QVERIFY(thread->wait());
    QCOMPARE(succeeded, imports);
    QCOMPARE(QDir::temp().entryList({u"zandrove_*"_s}, QDir::Files), QStringList());
}

void RegistryFileTest::largeFilesPass()
{
    if (!SimulatedPc::isMadeUp())
        QSKIP("The system's own program can't be replaced");
    const auto content = [](const QString &user) {
        return Header + u"\"C:/Users/%1/x\"=\"y\"\r\n"_s.arg(user).repeated(1000000); // 50 MB
    };
    m_pc->replaceProgram(u"reg.exe"_s, R"(test $1 = import && cp "$2" imported || cp imported "$3")");
    m_pc->writeFile(u"Received/registry.reg"_s, encodeRegistryText(content(u"anna"_s)));
    QVERIFY(install());
    const QByteArray imported = encodeRegistryText(content(Platform::userName()));
    QVERIFY(contentOf(m_pc->path(u"imported"_s)) == imported);
    QVERIFY(exportKeys({Key}));
    QCOMPARE(QFile(m_pc->path(u"out.reg"_s)).size(), imported.size() + 4); // a blank line more
}

QObject *makeRegistryFileTest()
{
    return new RegistryFileTest;
}

#include "RegistryFileTest.moc"
