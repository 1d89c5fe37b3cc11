#include "PcTest.h"

#include "inventory/AccountScanner.h"
#include "inventory/FileScanner.h"
#include "inventory/FolderSize.h"
#include "inventory/SettingScanner.h"
#include "platform/SystemParameters.h"

#include <algorithm>

namespace {

/// Runs a scanner that ends within start(). Returns what `finished` carried, which has come exactly once.
template <typename Record, typename Scanner>
QList<Record> scan(Scanner &scanner)
{
    QSignalSpy finished(&scanner, &Scanner::finished);
    scanner.start();
    return finished.size() == 1 ? finished.first().first().template value<QList<Record>>() : QList<Record>();
}

/// What a cancel in mid-scan, and a restart in mid-scan, must come to.
template <typename Scanner>
void checkCancel(int announcements)
{
    Scanner scanner;
    QSignalSpy started(&scanner, &Scanner::started);
    QSignalSpy finished(&scanner, &Scanner::finished);
    QSignalSpy cancelled(&scanner, &Scanner::cancelled);
    QSignalSpy progress(&scanner, &Scanner::progress);
    auto once = std::make_unique<QObject>();
    QObject::connect(&scanner, &Scanner::progress, once.get(), [&scanner] { scanner.cancel(); });
    scanner.start();
    QCOMPARE(finished.size(), 0);
    QCOMPARE(cancelled.size(), announcements);
    QCOMPARE(progress.size(), announcements);

    once = std::make_unique<QObject>();
    QObject::connect(&scanner, &Scanner::progress, once.get(), [&] {
        if (started.size() < 3) {
            scanner.start(); // does nothing, since one is running
            scanner.cancel();
            scanner.start();
        }
    });
    scanner.start();
    QCOMPARE(started.size(), 3);
    QCOMPARE(finished.size(), 1);
}

} // namespace

/// The scanners that work on the calling thread, and the measuring of folders.
class ScannersTest : public PcTest
{
    Q_OBJECT

private Q_SLOTS:
    void foldersAreMeasured()
    {
        if (!SimulatedPc::isMadeUp())
            QSKIP("The folders of the PC at hand are left alone.");
        for (const QString &file : {u"a.txt"_s, u"deep/er/b.txt"_s, u".hidden/c.txt"_s, u".c.txt"_s})
            m_pc->writeFile(u"C:/Users/alice/Documents/"_s + file, "1234");
        QFile::link(m_pc->homePath(u"Documents"_s), m_pc->homePath(u"Documents/deep/loop"_s));
        QDir(m_pc->homePath(u"Music"_s)).removeRecursively();

        FileScanner scanner;
        QSignalSpy progress(&scanner, &FileScanner::progress);
        QStringList found;
        for (const FolderInfo &folder : scan<FolderInfo>(scanner)) {
            QCOMPARE(folder.path, m_pc->homePath(folder.name));
            found.append(u"%1 %2 %3"_s.arg(folder.name).arg(folder.fileCount).arg(folder.totalSize));
        }
        QCOMPARE(found, QStringList({u"Documents 2 8"_s, u"Pictures 0 0"_s, u"Videos 0 0"_s,
                                     u"Downloads 0 0"_s, u"Desktop 0 0"_s}));
        QCOMPARE(progress.last(), QVariantList({100, u"Desktop"_s}));
    }

    void accountsAreListed()
    {
        for (const QString &name : {u"Default User"_s, u"defaultuser0"_s, u"public"_s})
            m_pc->writeFile(u"C:/Users/%1/ntuser.dat"_s.arg(name), "x");
        AccountScanner scanner;
        QStringList names;
        for (const AccountInfo &account : scan<AccountInfo>(scanner)) {
            QCOMPARE(account.profilePath, QDir(u"C:/Users"_s).absoluteFilePath(account.userName));
            names.append(account.userName);
        }
        QVERIFY(names.contains(u"defaultuser0"_s) && !names.contains(u"Default User"_s));
        QVERIFY(names.contains(QFileInfo(m_pc->homePath()).fileName()));
    }

    void wallpaperIsOfferedWhereItsPictureIs()
    {
        if (!SimulatedPc::isMadeUp())
            QSKIP("The picture of the PC at hand stays.");
        m_pc->addRegistry(u"[HKEY_CURRENT_USER\\Environment]\n\"A\"=\"1\"\n\"B\"=\"2\"\n"_s);
        const QString picture = m_pc->writeFile(u"picture.jpg"_s, "12345");
        QVERIFY(Platform::setWallpaper(picture));
        SettingScanner scanner;
        const auto settings = scan<SettingInfo>(scanner);
        QCOMPARE(settings.value(0).value, picture);
        QCOMPARE(settings.value(0).size, 5);
        QCOMPARE(settings.value(6).description, u"User-defined environment variables (2 variables)"_s);
        QVERIFY(QFile::remove(picture));
        QCOMPARE(scan<SettingInfo>(scanner).size(), settings.size() - 1);
    }

    void cancelledScansSayNothingMore()
    {
        checkCancel<FileScanner>(1);
        checkCancel<AccountScanner>(2);
        checkCancel<SettingScanner>(10); // its announcements go on
    }

    void folderSizeHasItsLimits()
    {
        const QString folder = m_pc->path(u"many"_s);
        QDir().mkpath(folder);
        const int files =
            SimulatedPc::isMadeUp() ? MostFilesMeasured + 500 : 500; // each takes long under Wine
        for (int i = 0; i < files; ++i) {
            QFile file(folder + u'/' + QString::number(i));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write("xx") == 2);
        }
        QCOMPARE(calculateDirSize(folder), 2 * std::min(files, MostFilesMeasured));
        QCOMPARE(calculateDirSize(folder, 7), 14);
        int asked = 0;
        QCOMPARE(calculateDirSize(folder, 100, [&asked] { return ++asked > 3; }), 6);
        QCOMPARE(calculateDirSize(folder + u"/1"_s), 0);
        QCOMPARE(calculateDirSize(folder + u"gone"_s), 0);
        QCOMPARE(calculateDirSize({}), 0);
    }

    void folderSizeSurvivesOddFolders()
    {
        if (!SimulatedPc::isMadeUp())
            QSKIP("Links to folders and permissions are another matter there.");
        m_pc->writeFile(u"odd/.hidden/a"_s, "12345");
        m_pc->writeFile(u"odd/closed/b"_s, "123");
        QFile::link(m_pc->path(u"odd"_s), m_pc->path(u"odd/.hidden/loop"_s));
        QFile::link(m_pc->path(u"odd/.hidden/a"_s), m_pc->path(u"odd/link"_s));
        const QString closed = m_pc->path(u"odd/closed"_s);
        QFile::setPermissions(closed, {});
        const bool isReadAllTheSame = QFileInfo(closed).isReadable(); // by root
        QCOMPARE(calculateDirSize(u"odd\\"_s), isReadAllTheSame ? 8 : 5);
        QFile::setPermissions(closed, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
};

ZANDROVE_TEST(ScannersTest)
#include "ScannersTest.moc"
