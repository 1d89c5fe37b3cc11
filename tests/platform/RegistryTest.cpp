#include "PlatformTests.h"

static const QString Header = u"Windows Registry Editor Version 5.00\r\n\r\n"_s;

/// The same on the real registry and on the simulated one: what is there comes by `reg import`, what was
/// written is judged by `reg export`.
class RegistryTest : public PcTest
{
    Q_OBJECT

private Q_SLOTS:
    void valuesAreReadByType_data();
    void valuesAreReadByType()
    {
        QFETCH(QString, line);
        QFETCH(QString, text);
        m_pc->addRegistry(u"[%1]\n%2\n"_s.arg(Key, line));
        const RegistryKey key(Key);
        const bool isThere = text != u"fallback"_s;
        QCOMPARE(key.text(u"v"_s, u"fallback"_s), text);
        QTEST(key.number(u"v"_s, -1), "number");
        QCOMPARE(key.texts(u"v"_s), isThere ? text.split(u'\n') : QStringList());
        QCOMPARE(key.hasValue(u"v"_s), isThere);
    }

    void namesAreListedAndIgnoreCase()
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

    void missingKeyIsEmptyAndStaysMissing()
    {
        for (const QString &path : {Key + u"\\missing"_s, u"HKEY_NOWHERE\\x"_s, QString()}) {
            const RegistryKey key(path);
            QVERIFY(!key.exists() && key.subkeyNames().isEmpty() && key.valueNames().isEmpty());
            QCOMPARE(key.text(u"v"_s, u"fallback"_s), u"fallback"_s);
            QVERIFY(!RegistryKey(path).exists());
        }
        QVERIFY(!RegistryKey(Key).exists());
        QVERIFY(!RegistryKey(u"HKEY_NOWHERE\\x"_s).setText(u"v"_s, u"x"_s));
    }

    void writtenTextIsExactlyInTheRegistry_data();
    void writtenTextIsExactlyInTheRegistry()
    {
        QFETCH(QString, before);
        QFETCH(QString, name);
        QFETCH(QString, text);
        QFETCH(QString, line);
        if (!before.isEmpty())
            m_pc->addRegistry(u"[%1]\n%2\n"_s.arg(Key, before));
        RegistryKey key(Key);
        QVERIFY(key.setText(name, text));
        QCOMPARE(key.text(name), text);

        const QString file = m_pc->path(u"out.reg"_s);
        QCOMPARE(Platform::runProgram(u"reg"_s, {u"export"_s, Key, file, u"/y"_s}).exitCode, 0);
        const QByteArray bytes = contentOf(file);
        QCOMPARE(bytes.first(2), "\xff\xfe"_ba);
        QCOMPARE(QString::fromUtf16(reinterpret_cast<const char16_t *>(bytes.constData()), bytes.size() / 2),
                 Header + u"[%1]\r\n%2\r\n\r\n"_s.arg(Key, line));
    }

    void viewsShowTheSameKeyOrAnother()
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
        for (const auto view : {View32, View64})
            QCOMPARE(RegistryKey(path32 + u"\\Sub"_s, view).number(u"bits"_s), 32);
    }

    void changesOfOtherProgramsAreSeen()
    {
        const auto import = [this](const QString &text) {
            const QString file = m_pc->writeFile(u"in.reg"_s, (Header + text + u"\r\n"_s).toUtf8());
            return Platform::runProgram(u"reg.exe"_s, {u"import"_s, file}).exitCode;
        };
        for (const qint64 number : {1, 2}) {
            QCOMPARE(import(u"[%1]\r\n\"n\"=dword:%2"_s.arg(Key).arg(number)), 0);
            QCOMPARE(RegistryKey(Key).number(u"n"_s), number);
        }
        QCOMPARE(import(u"[-%1]"_s.arg(Key)), 0);
        QVERIFY(!RegistryKey(Key).exists());
        const QStringList exporting = {u"export"_s, Key, m_pc->path(u"x.reg"_s), u"/y"_s};
        QCOMPARE(Platform::runProgram(u"reg"_s, exporting).exitCode, 1);
    }
};

void RegistryTest::valuesAreReadByType_data()
{
    addColumns<QString, QString, qint64>("line", "text", "number");
    const auto row = [](const char *name, const char *line, const char *text, qint64 number) {
        QTest::newRow(name) << QString::fromUtf8(line) << QString::fromUtf8(text) << number;
    };
    row("text", R"("v"="C:\\Program Files\\\"x\" ü")", R"(C:\Program Files\"x" ü)", -1);
    row("text with a number", R"("v"="42")", "42", 42);
    row("empty text", R"("v"="")", "", -1);
    row("text that looks like markup", R"("v"="@%A%\\x.dll,-1")", "@%A%\\x.dll,-1", -1);
    row("number", R"("v"=dword:00000400)", "1024", 1024);
    row("largest number", R"("v"=dword:ffffffff)", "4294967295", 4294967295);
    row("long number", R"("v"=hex(b):01,00,00,00,01,00,00,00)", "4294967297", 4294967297);
    row("expandable text", R"("v"=hex(2):25,00,54,00,25,00,00,00)", "%T%", -1);
    row("bytes", R"("v"=hex:41,00,42,00)", "AB", -1);
    row("name in capitals", R"("V"="x")", "x", -1);
    row("list", "\"v\"=hex(7):61,00,00,00,62,00,\\\n  63,00,00,00,00,00", "a\nbc", -1);
    row("missing", R"("w"="x")", "fallback", -1);
}

void RegistryTest::writtenTextIsExactlyInTheRegistry_data()
{
    addColumns<QString, QString, QString, QString>("before", "name", "text", "line");
    const auto row = [](const char *what, auto... texts) {
        (QTest::newRow(what) << ... << QString::fromUtf8(texts));
    };
    row("new key", "", "v", R"(a "b" \c ü)", R"("v"="a \"b\" \\c ü")");
    row("empty", "", "v", "", R"("v"="")");
    row("default value", "", ".", "@x", R"(@="@x")");
    row("in place of a number", R"("v"=dword:00000001)", "V", "2", R"("v"="2")");
    row("stays expandable", R"("v"=hex(2):25,00,00,00)", "v", "%T%", R"("v"=hex(2):25,00,54,00,25,00,00,00)");
}

ZANDROVE_TEST(RegistryTest)
#include "RegistryTest.moc"
