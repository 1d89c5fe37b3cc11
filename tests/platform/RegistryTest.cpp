#include "PlatformTests.h"

#include "SimulatedPc.h"

#include "platform/ExternalProgram.h"
#include "platform/Registry.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace Zandrove;
using Platform::RegistryKey;

namespace {

const QString Key = u"HKEY_CURRENT_USER\\Software\\ZandroveTest"_s;

} // namespace

/// The same on the real registry and on the simulated one: what is there comes by `reg import`, what was
/// written is judged by `reg export`.
class RegistryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_pc = std::make_unique<SimulatedPc>(); }
    void cleanup() { m_pc.reset(); }
    void valuesAreReadByType_data();
    void valuesAreReadByType();
    void namesAreListedAndIgnoreCase();
    void missingKeyIsEmptyAndStaysMissing();
    void writtenTextIsExactlyInTheRegistry_data();
    void writtenTextIsExactlyInTheRegistry();
    void viewsShowTheSameKeyOrAnother();
    void changesOfOtherProgramsAreSeen();

private:
    std::unique_ptr<SimulatedPc> m_pc;
};

void RegistryTest::valuesAreReadByType_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint64>("number");
    QTest::addColumn<QStringList>("texts");

    const auto row = [](const char *name, const QString &line, const QString &text, qint64 number) {
        QTest::newRow(name) << line << text << number << QStringList(text);
    };
    row("text", uR"("v"="C:\\Program Files\\\"x\" ü")"_s, uR"(C:\Program Files\"x" ü)"_s, -1);
    row("text with a number", uR"("v"="42")"_s, u"42"_s, 42);
    row("empty text", uR"("v"="")"_s, u""_s, -1);
    row("text that looks like markup", uR"("v"="@%SystemRoot%\\x.dll,-1")"_s, u"@%SystemRoot%\\x.dll,-1"_s,
        -1);
    row("number", uR"("v"=dword:00000400)"_s, u"1024"_s, 1024);
    row("largest number", uR"("v"=dword:ffffffff)"_s, u"4294967295"_s, 4294967295);
    row("long number", uR"("v"=hex(b):01,00,00,00,01,00,00,00)"_s, u"4294967297"_s, 4294967297);
    row("expandable text", uR"("v"=hex(2):25,00,54,00,45,00,4d,00,50,00,25,00,00,00)"_s, u"%TEMP%"_s, -1);
    row("bytes", uR"("v"=hex:41,00,42,00)"_s, u"AB"_s, -1);
    row("name in capitals", uR"("V"="x")"_s, u"x"_s, -1);
    QTest::newRow("list") << uR"("v"=hex(7):61,00,00,00,62,00,\
  63,00,00,00,00,00)"_s << u"a\nbc"_s
                          << qint64(-1) << QStringList{u"a"_s, u"bc"_s};
    QTest::newRow("missing") << uR"("w"="x")"_s << u"fallback"_s << qint64(-1) << QStringList();
}

void RegistryTest::valuesAreReadByType()
{
    QFETCH(QString, line);
    m_pc->addRegistry(u"[%1]\n%2\n"_s.arg(Key, line));
    const RegistryKey key(Key);
    QTEST(key.text(u"v"_s, u"fallback"_s), "text");
    QTEST(key.number(u"v"_s, -1), "number");
    QTEST(key.texts(u"v"_s), "texts");
    QCOMPARE(key.hasValue(u"v"_s), key.text(u"v"_s, u"fallback"_s) != u"fallback"_s);
}

void RegistryTest::namesAreListedAndIgnoreCase()
{
    m_pc->addRegistry(u"[%1]\n@=\"default\"\n\"b\\\\c\"=\"1\"\n\"A\"=\"2\"\n"
                      "[%1\\Sub/Key]\n\"x\"=\"3\"\n[%1\\another\\deep]\n"_s.arg(Key));
    const RegistryKey key(u"hkcu\\SOFTWARE\\zandrovetest"_s);
    QVERIFY(key.exists());
    QCOMPARE(key.subkeyNames(), QStringList({u"Sub/Key"_s, u"another"_s}));
    QCOMPARE(key.valueNames(), QStringList({u"."_s, u"A"_s, u"b\\c"_s}));
    QCOMPARE(key.text(u"."_s), u"default"_s);
    QCOMPARE(key.text(u"a"_s), u"2"_s);
    QCOMPARE(key.subkey(u"SUB/KEY"_s).text(u"x"_s), u"3"_s);
    QVERIFY(key.subkey(u"another\\deep"_s).exists());
    QVERIFY(!key.subkey(u"Sub"_s).exists());
}

void RegistryTest::missingKeyIsEmptyAndStaysMissing()
{
    for (const QString &path : {Key + u"\\missing"_s, u"HKEY_NOWHERE\\x"_s, QString()}) {
        const RegistryKey key(path);
        QVERIFY(!key.exists());
        QCOMPARE(key.subkeyNames(), QStringList());
        QCOMPARE(key.valueNames(), QStringList());
        QCOMPARE(key.text(u"v"_s, u"fallback"_s), u"fallback"_s);
        QVERIFY(!RegistryKey(path).exists());
    }
    QVERIFY(!RegistryKey(Key).exists());
    QVERIFY(!RegistryKey(u"HKEY_NOWHERE\\x"_s).setText(u"v"_s, u"x"_s));
}

void RegistryTest::writtenTextIsExactlyInTheRegistry_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("line");

    QTest::newRow("new key") << u""_s << u"v"_s << uR"(a "b" \c ü)"_s << uR"("v"="a \"b\" \\c ü")"_s;
    QTest::newRow("at sign") << u""_s << u"v"_s << u"@x"_s << uR"("v"="@x")"_s;
    QTest::newRow("empty") << u""_s << u"v"_s << u""_s << uR"("v"="")"_s;
    QTest::newRow("default value") << u""_s << u"."_s << u"x"_s << uR"(@="x")"_s;
    QTest::newRow("in place of a number")
        << uR"("v"=dword:00000001)"_s << u"V"_s << u"2"_s << uR"("v"="2")"_s;
    QTest::newRow("stays expandable")
        << uR"("v"=hex(2):25,00,00,00)"_s << u"v"_s << u"%T%"_s << uR"("v"=hex(2):25,00,54,00,25,00,00,00)"_s;
}

void RegistryTest::writtenTextIsExactlyInTheRegistry()
{
    QFETCH(QString, before);
    QFETCH(QString, name);
    QFETCH(QString, text);
    if (!before.isEmpty())
        m_pc->addRegistry(u"[%1]\n%2\n"_s.arg(Key, before));

    RegistryKey key(Key);
    QVERIFY(key.setText(name, text));
    QCOMPARE(key.text(name), text);

    const QString file = m_pc->path(u"out.reg"_s);
    QCOMPARE(Platform::runProgram(u"reg"_s, {u"export"_s, Key, file, u"/y"_s}).exitCode, 0);
    QFile exported(file);
    QVERIFY(exported.open(QIODevice::ReadOnly));
    const QByteArray bytes = exported.readAll();
    QCOMPARE(bytes.first(2), "\xff\xfe"_ba);
    QFETCH(QString, line);
    const QString expected =
        u"Windows Registry Editor Version 5.00\r\n\r\n[%1]\r\n%2\r\n\r\n"_s.arg(Key, line);
    QCOMPARE(QString::fromUtf16(reinterpret_cast<const char16_t *>(bytes.constData()), bytes.size() / 2),
             expected);
}

void RegistryTest::viewsShowTheSameKeyOrAnother()
{
    using enum Platform::RegistryView;
    m_pc->addRegistry(u"[%1]\n\"v\"=\"x\"\n"_s.arg(Key));
    for (const auto view : {Native, View64, View32}) {
        QCOMPARE(RegistryKey(Key, view).text(u"v"_s), u"x"_s);
        QVERIFY(RegistryKey(u"HKEY_CURRENT_USER"_s, view).subkeyNames().contains(u"Software"_s));
    }
    RegistryKey key(Key, View32);
    QVERIFY(key.setText(u"v"_s, u"y"_s));
    QCOMPARE(RegistryKey(Key, View64).text(u"v"_s), u"y"_s);

    if (!SimulatedPc::isMadeUp() && !qEnvironmentVariableIsSet("ZANDROVE_SCRATCH_PC"))
        QSKIP("Needs a PC that ZANDROVE_SCRATCH_PC gives away for tests");
    const QString path = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\ZandroveTest"_s;
    const QString path32 = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\ZandroveTest"_s;
    m_pc->addRegistry(
        u"[%1]\n\"bits\"=dword:00000040\n[%2\\Sub]\n\"bits\"=dword:00000020\n"_s.arg(path, path32));
    QCOMPARE(RegistryKey(path, Native).number(u"bits"_s), 64);
    QCOMPARE(RegistryKey(path, View64).number(u"bits"_s), 64);
    QVERIFY(!RegistryKey(path, View32).hasValue(u"bits"_s));
    QCOMPARE(RegistryKey(path, View32).subkeyNames(), QStringList(u"Sub"_s));
    QCOMPARE(RegistryKey(path, View32).subkey(u"Sub"_s).number(u"bits"_s), 32);
    QCOMPARE(RegistryKey(path32 + u"\\Sub"_s, View32).number(u"bits"_s), 32);
    QCOMPARE(RegistryKey(path32 + u"\\Sub"_s, View64).number(u"bits"_s), 32);
}

void RegistryTest::changesOfOtherProgramsAreSeen()
{
    const auto number = [] { return RegistryKey(Key).number(u"n"_s); };
    for (qint64 expected = 1; expected < 4; ++expected) {
        const QStringList arguments = {
            u"add"_s, Key, u"/v"_s, u"n"_s, u"/t"_s, u"REG_DWORD"_s, u"/d"_s, QString::number(expected),
            u"/f"_s};
        QCOMPARE(Platform::runProgram(u"reg.exe"_s, arguments).exitCode, 0);
        QCOMPARE(number(), expected);
    }
    QCOMPARE(Platform::runProgram(u"reg"_s, {u"delete"_s, Key, u"/f"_s}).exitCode, 0);
    QVERIFY(!RegistryKey(Key).exists());
    QCOMPARE(Platform::runProgram(u"reg"_s, {u"export"_s, Key, m_pc->path(u"x.reg"_s), u"/y"_s}).exitCode, 1);
}

QObject *makeRegistryTest()
{
    return new RegistryTest;
}

#include "RegistryTest.moc"
