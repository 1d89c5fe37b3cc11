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
    void relativePathLeavingItsRootIsUnsafe_data();
    void relativePathLeavingItsRootIsUnsafe();
    void sizeIsThatOfTheFileItself();
    void shellLinkComesBackAsItWasWritten_data();
    void shellLinkComesBackAsItWasWritten();
    void whatIsNoShellLinkIsNotRead_data();
    void whatIsNoShellLinkIsNotRead();
    void shellLinkThatCantBeWrittenIsToldSo();

private:
    std::unique_ptr<SimulatedPc> m_pc;
};

void FilesTest::relativePathLeavingItsRootIsUnsafe_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isUnsafe");

    QTest::newRow("plain") << u"Documents/a/b.txt"_s << false;
    QTest::newRow("dots in names") << u"a..b/..c/...x"_s << false;
    QTest::newRow("names like devices") << u"CONFIG/console.txt/COM/nulls/x.con/lpt10/com0.txt"_s << false;
    QTest::newRow("empty names") << u"/a//b"_s << false;
    QTest::newRow("empty") << u""_s << false;
    QTest::newRow("leading") << u"../x"_s << true;
    QTest::newRow("in the middle") << u"Documents/../../x"_s << true;
    QTest::newRow("trailing") << u"a/.."_s << true;
    QTest::newRow("alone") << u".."_s << true;
    QTest::newRow("backslashes") << u"a\\..\\x"_s << true;
    QTest::newRow("mixed slashes") << u"a/..\\x"_s << true;
    QTest::newRow("before a line break") << u"..\n/x"_s << false;
    QTest::newRow("NUL character") << u"a.txt"_s + QChar::Null + u".jpg"_s << true;
}

void FilesTest::relativePathLeavingItsRootIsUnsafe()
{
    QFETCH(QString, path);
    QTEST(Platform::isUnsafeRelativePath(path), "isUnsafe");
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

void FilesTest::whatIsNoShellLinkIsNotRead_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("empty") << ""_ba;
    QTest::newRow("text") << "nothing of the kind\n"_ba;
    QTest::newRow("its beginning") << QByteArray::fromHex("4c000000011402000000");
    QTest::newRow("large") << QByteArray(3000000, '[');
}

void FilesTest::whatIsNoShellLinkIsNotRead()
{
    QFETCH(QByteArray, content);
    const QString file = m_pc->writeFile(u"x.lnk"_s, content);
    QVERIFY(!Platform::readShellLink(file));
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
