#include "PlatformTests.h"

class FilesTest : public PcTest
{
    Q_OBJECT

private Q_SLOTS:
    void pathThatMeansSomethingElseIsUnsafe()
    {
        const auto judge = [](const QString &paths, bool isUnsafe) {
            for (const QString &path : paths.split(u'|')) {
                QVERIFY2(Platform::isUnsafeRelativePath(path) == isUnsafe, qPrintable(path));
                QVERIFY2(Platform::isUnsafeRelativePath(u"x\\"_s + path) == isUnsafe, qPrintable(path));
            }
        };
        judge(u"Documents/a/b.txt|a..b/..c/...x|/a//b||..\n/x"_s, false);
        judge(u"CONFIG/console.txt/COM/nulls/x.con/lpt10/com0.txt"_s, false);
        judge(u"../x|Documents/../../x|a/..|..|a\\..\\x|a/..\\x|a.txt"_s + QChar::Null + u".jpg"_s, true);
        const bool isWindows = !SimulatedPc::isMadeUp();
        judge(u"CON|a/nul|NUL.txt|aux.tar.gz|com1|LPT9.log|COM\u00b2|conin$|nul .txt|PRN/x"_s, isWindows);
        judge(u"a:b|C:/x|file.txt:stream|t.txt.|t.txt |a./b|a /b|...| |./a"_s, isWindows);
    }

    void sizeIsThatOfTheFileItself()
    {
        const QString deep = QString(30, u'd') + u'/';
        for (const QString &place : {u"x.txt"_s, deep.repeated(10) + u"file ü.txt"_s}) {
            const QString file = m_pc->writeFile(place, QByteArray(12345, 'x'));
            QCOMPARE(Platform::realFileSize(file), 12345);
            QVERIFY(Platform::isRegularFile(file));
        }
        QVERIFY(!Platform::realFileSize(m_pc->path(u"missing"_s)));
        QVERIFY(!Platform::realFileSize(m_pc->path(u"."_s)));
        QVERIFY(!Platform::isRegularFile(m_pc->path(u"."_s)));

        const QString link = m_pc->path(u"x.lnk"_s);
        QVERIFY(Platform::writeShellLink(link, {.path = QDir::toNativeSeparators(m_pc->path(u"x.txt"_s))}));
        const auto size = Platform::realFileSize(link);
        QVERIFY(size && *size > 0 && *size != 12345);
        QVERIFY(QFile::remove(m_pc->path(u"x.txt"_s)));
        QVERIFY(Platform::isRegularFile(link));
    }

    void shellLinkComesBackAsItWasWritten_data()
    {
        const auto row = addColumns<ShellLink>("link");
        row("path alone", ShellLink{.path = u"C:\\Program Files\\Foo\\foo.exe"_s});
        row("everything",
            ShellLink{u"C:\\Föö\\foo.exe"_s, u"--name \"a b\" =x"_s, u"C:\\Program Files\\Föö"_s,
                      u"C:\\Icons\\foo.dll"_s, -7, u"Starts = Föö 日本"_s});
        row("variables", ShellLink{.path = u"C:\\Windows\\foo.exe"_s,
                                   .workingDirectory = u"%USERPROFILE%"_s,
                                   .iconPath = u"%SystemRoot%\\foo.dll"_s,
                                   .iconIndex = 3});
    }
    void shellLinkComesBackAsItWasWritten()
    {
        QFETCH(ShellLink, link);
        const QString file = m_pc->path(u"Start Menu/Progräms/Foo.lnk"_s);
        QVERIFY(Platform::writeShellLink(file, {.path = u"C:\\other.exe"_s}));
        QVERIFY(Platform::writeShellLink(file, link));
        QVERIFY(Platform::readShellLink(file) == link);
    }

    void whatIsNoShellLinkIsNotRead()
    {
        const QByteArray beginning = QByteArray::fromHex("4c000000011402000000");
        for (const QByteArray &content : {""_ba, "other\n"_ba, beginning, QByteArray(3000000, '[')}) {
            const QString file = m_pc->writeFile(u"x.lnk"_s, content);
            QVERIFY2(!Platform::readShellLink(file), content.left(20).constData());
        }
        QVERIFY(!Platform::readShellLink(m_pc->path(u"missing.lnk"_s)));
    }

    void shellLinkThatCantBeWrittenIsToldSo()
    {
        const QString file = m_pc->writeFile(u"file"_s, "x");
        QVERIFY(!Platform::writeShellLink(file + u"/below/a file.lnk"_s, {.path = u"C:\\x.exe"_s}));
        QVERIFY(QDir().mkpath(m_pc->path(u"folder.lnk"_s)));
        QVERIFY(!Platform::writeShellLink(m_pc->path(u"folder.lnk"_s), {.path = u"C:\\x.exe"_s}));
    }
};

ZANDROVE_TEST(FilesTest)
#include "FilesTest.moc"
