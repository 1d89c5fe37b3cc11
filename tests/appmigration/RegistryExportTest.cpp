#include "AppMigrationTests.h"

#include "SimulatedPc.h"

#include "appmigration/RegistryExport.h"
#include "appmigration/RegistryText.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

const QString Header = u"Windows Registry Editor Version 5.00\r\n\r\n"_s;
const QString Key = u"HKEY_CURRENT_USER\\Software\\ZandroveTest"_s;

QString contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? decodeRegistryText(file.readAll()) : u"unreadable"_s;
}

} // namespace

/// The registry of an application as one file.
class RegistryExportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_pc = std::make_unique<SimulatedPc>(); }
    void cleanup() { m_pc.reset(); }

    void keysAreMerged();
    void nothingUsableIsAFailure();
    void anyFormOfAnExportIsTaken_data();
    void anyFormOfAnExportIsTaken();

private:
    std::unique_ptr<SimulatedPc> m_pc;
};

void RegistryExportTest::keysAreMerged()
{
    m_pc->addRegistry(
        u"[%1\\A]\n\"path\"=\"C:\\\\Program Files\\\\é\"\n[%1\\B\\Below]\n@=\"b\"\n"_s.arg(Key));
    const QString file = m_pc->path(u"out.reg"_s);
    QVERIFY(exportRegistryKeys({Key + u"\\A"_s, Key + u"\\Missing"_s, Key + u"\\B"_s}, file));
    const QString expected = Header + u"\r\n[%1\\A]\r\n\"path\"=\"C:\\\\Program Files\\\\é\"\r\n\r\n"
                                      "\r\n[%1\\B]\r\n\r\n[%1\\B\\Below]\r\n@=\"b\"\r\n\r\n"_s.arg(Key);
    QCOMPARE(contentOf(file), expected);
    QCOMPARE(QDir::temp().entryList({u"zandrove_reg_*"_s}, QDir::Files), QStringList());
}

void RegistryExportTest::nothingUsableIsAFailure()
{
    const QString file = m_pc->writeFile(u"out.reg"_s, QByteArray(500, 'x'));
    QVERIFY(!exportRegistryKeys({}, file));
    QCOMPARE(QFile(file).size(), 2 + 2 * Header.size());
    QVERIFY(!exportRegistryKeys({Key + u"\\Missing"_s}, file));
    QCOMPARE(contentOf(file), Header);
    QVERIFY(!exportRegistryKeys({Key}, m_pc->path(u"no/such/folder/out.reg"_s)));
}

void RegistryExportTest::anyFormOfAnExportIsTaken_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("content");

    QTest::newRow("UTF-8") << QByteArray(R"(printf 'Header\r\n\r\n[K\303\251y]\r\n' > "$3")")
                           << u"\r\n[Kéy]\r\n"_s;
    QTest::newRow("one line") << QByteArray(R"(printf '[K]\n' > "$3")") << u"[K]\n"_s;
    QTest::newRow("no header") << QByteArray(R"(printf '\r\n[K]' > "$3")") << u"\r\n[K]"_s;
    QTest::newRow("odd UTF-16") << QByteArray(R"(printf '\377\376K\000x' > "$3")") << u"K"_s;
    QTest::newRow("empty") << QByteArray(R"(: > "$3")") << QString();
    QTest::newRow("refused") << QByteArray(R"(echo '[K]' > "$3"; exit 1)") << QString();
    QTest::newRow("crashed") << QByteArray(R"(echo '[K]' > "$3"; kill -9 $$)") << QString();
    QTest::newRow("talkative") << QByteArray(R"(head -c 3000000 /dev/zero; echo '[K]' > "$3")") << u"[K]\n"_s;
}

void RegistryExportTest::anyFormOfAnExportIsTaken()
{
    if (!SimulatedPc::isMadeUp())
        QSKIP("The system's own program can't be replaced");
    QFETCH(QByteArray, script);
    QFETCH(QString, content);
    m_pc->replaceProgram(u"reg.exe"_s, script);
    const QString file = m_pc->path(u"out.reg"_s);
    const bool exported = exportRegistryKeys({Key}, file);
    QCOMPARE(contentOf(file), Header + content);
    QCOMPARE(exported, 2 + 2 * (Header.size() + content.size()) > 100);
}

QObject *makeRegistryExportTest()
{
    return new RegistryExportTest;
}

#include "RegistryExportTest.moc"
