#include "PlatformTests.h"

#include "SimulatedPc.h"

#include "platform/FileAttributes.h"
#include "platform/ShellLink.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Zandrove;
using Platform::ShellLink;

class FilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_pc = std::make_unique<SimulatedPc>(); }
    void cleanup() { m_pc.reset(); }
    void pathThatMeansSomethingElseIsUnsafe_data();
    void pathThatMeansSomethingElseIsUnsafe();
    void sizeIsThatOfTheFileItself();
    void shellLinkComesBackAsItWasWritten_data();
    void shellLinkComesBackAsItWasWritten();
    void whatIsNoShellLinkIsNotRead();
    void shellLinkThatCantBeWrittenIsToldSo();

private:
    std::unique_ptr<SimulatedPc> m_pc;
};

void FilesTest::pathThatMeansSomethingElseIsUnsafe_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isUnsafe");

    const auto rows = [](const QString &paths, bool isUnsafe) {
        for (const QString &path : paths.split(u'|'))
            QTest::addRow("'%s'", qPrintable(path)) << path << isUnsafe;
    };
    rows(u"Documents/a/b.txt|a..b/..c/...x|/a//b||..\n/x"_s, false);
    rows(u"CONFIG/console.txt/COM/nulls/x.con/lpt10/com0.txt"_s, false);
    rows(u"../x|Documents/../../x|a/..|..|a\\..\\x|a/..\\x|a.txt"_s + QChar::Null + u".jpg"_s, true);
    const bool isWindows = !SimulatedPc::isMadeUp();
    rows(u"CON|a/nul|NUL.txt|aux.tar.gz|com1|LPT9.log|COM\u00b2|conin$|nul .txt|PRN/x"_s, isWindows);
    rows(u"a:b|C:/x|file.txt:stream|t.txt.|t.txt |a./b|a /b|...| |./a"_s, isWindows);
}

void FilesTest::pathThatMeansSomethingElseIsUnsafe()
{
    QFETCH(QString, path);
    QTEST(Platform::isUnsafeRelativePath(path), "isUnsafe");
    QTEST(Platform::isUnsafeRelativePath(u"Documents\\"_s + path), "isUnsafe");
}

void FilesTest::sizeIsThatOfTheFileItself()
{
    const QString deep = QString(30, u'd') + u'/';
    const QString longPlace = deep.repeated(10) + u"file ü.txt"_s;
    for (const QString &place : {u"x.txt"_s, longPlace}) {
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

void FilesTest::shellLinkComesBackAsItWasWritten_data()
{
    QTest::addColumn<ShellLink>("link");

    QTest::newRow("path alone") << ShellLink{.path = u"C:\\Program Files\\Foo\\foo.exe"_s};
    QTest::newRow("everything") << ShellLink{u"C:\\Program Files\\Föö\\foo.exe"_s,
                                             u"--name \"a b\" =x"_s,
                                             u"C:\\Program Files\\Föö"_s,
                                             u"C:\\Icons\\foo.dll"_s,
                                             -7,
                                             u"Starts = Föö 日本"_s};
    QTest::newRow("variables") << ShellLink{.path = u"C:\\Windows\\foo.exe"_s,
                                            .workingDirectory = u"%USERPROFILE%"_s,
                                            .iconPath = u"%SystemRoot%\\foo.dll"_s,
                                            .iconIndex = 3};
}

void FilesTest::shellLinkComesBackAsItWasWritten()
{
    QFETCH(ShellLink, link);
    const QString file = m_pc->path(u"Start Menu/Progräms/Foo.lnk"_s);
    QVERIFY(Platform::writeShellLink(file, {.path = u"C:\\other.exe"_s}));
    QVERIFY(Platform::writeShellLink(file, link));
    const auto read = Platform::readShellLink(file);
    QVERIFY(read.has_value());
    QCOMPARE(read->path, link.path);
    QCOMPARE(read->arguments, link.arguments);
    QCOMPARE(read->workingDirectory, link.workingDirectory);
    QCOMPARE(read->iconPath, link.iconPath);
    QCOMPARE(read->iconIndex, link.iconIndex);
    QCOMPARE(read->description, link.description);
}

void FilesTest::whatIsNoShellLinkIsNotRead()
{
    const QByteArray beginning = QByteArray::fromHex("4c000000011402000000");
    for (const QByteArray &content : {""_ba, "nothing of the kind\n"_ba, beginning, QByteArray(3000000, '[')})
        QVERIFY2(!Platform::readShellLink(m_pc->writeFile(u"x.lnk"_s, content)),
                 content.left(20).constData());
    QVERIFY(!Platform::readShellLink(m_pc->path(u"missing.lnk"_s)));
}

void FilesTest::shellLinkThatCantBeWrittenIsToldSo()
{
    const QString file = m_pc->writeFile(u"file"_s, "x");
    QVERIFY(!Platform::writeShellLink(file + u"/below/a file.lnk"_s, {.path = u"C:\\x.exe"_s}));
    QVERIFY(QDir().mkpath(m_pc->path(u"folder.lnk"_s)));
    QVERIFY(!Platform::writeShellLink(m_pc->path(u"folder.lnk"_s), {.path = u"C:\\x.exe"_s}));
}

QObject *makeFilesTest()
{
    return new FilesTest;
}

#include "FilesTest.moc"
