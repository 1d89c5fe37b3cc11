#include "PcTest.h"

#include "appmigration/AppInstaller.h"
#include "appmigration/RegistryExport.h"
#include "appmigration/RegistryText.h"
#include "platform/Identity.h"

#include <QDir>
#include <QThread>

#include <functional>

/// The registry of an application as one file, out of one PC and into the other.
class RegistryFileTest : public ScratchPcTest
{
    Q_OBJECT

private Q_SLOTS:
    void textIsDecoded()
    {
        const auto hex = [](const char *digits) { return QByteArray::fromHex(digits); };
        const QByteArray wide(20, 'a'); // two bytes without a zero are one letter, too
        const QString wideText(10, QChar(0x6161));
        const auto mixed = [&](int narrow) {
            return hex("6100").repeated(narrow) + hex("6161").repeated(100 - narrow);
        };
        const QString text = u"é 𝄞"_s;
        const std::pair<QByteArray, QString> encodings[] = {
            {hex("fffe") + wide, wideText},
            {hex("feff0041") + wide, u'A' + wideText},
            {hex("efbbbf") + wide, QString::fromLatin1(wide)},
            {hex("fffe"), u""_s},
            {hex("57006900") + wide, u"Wi"_s + wideText},
            {hex("52004500") + wide, u"RE"_s + wideText},
            {hex("00570069") + wide, u"Wi"_s + wideText},
            {hex("00520045") + wide, u"RE"_s + wideText},
            {hex("5b002200"), u"[\""_s},
            {hex("005b0022"), u"[\""_s},
            {mixed(41), QString(41, u'a') + QString(59, QChar(0x6161))},
            {encodeRegistryText(text), text},
            {encodeRegistryText(text) + 'x', text},
            {"a\xe9z"_ba, u"a\xfffdz"_s}};
        for (const auto &[bytes, expected] : encodings)
            QCOMPARE(decodeRegistryText(bytes), expected);
        // An odd size, too few bytes, as many zeros behind as before, too few of them,
        // none among the first 200.
        for (const QByteArray &bytes :
             {hex("5700690041"), hex("610062"), hex("0000000041410000"), mixed(40), mixed(0) + mixed(100)})
            QCOMPARE(decodeRegistryText(bytes), QString::fromUtf8(bytes));
    }

    void usersAreRenamed()
    {
        QCOMPARE(withUserFolders(u"C:\\Users\\Anna\\x D:/USERS/anna//Users/anna/y"_s, u"anna"_s, u"bo"_s),
                 u"C:\\Users\\bo\\x D:/Users/bo//Users/bo/y"_s);
        // A longer name, the profile itself, doubled backslashes.
        for (const QString &kept :
             {u"C:/Users/annabel/x"_s, u"C:/Users/anna"_s, u"C:\\\\Users\\\\anna\\\\x"_s})
            QCOMPARE(withUserFolders(kept, u"anna"_s, u"bo"_s), kept);
        QCOMPARE(withUserFolders(u"C:/Users//x"_s, QString(), u"bo"_s), u"C:/Users//x"_s);
        QCOMPARE(withUserFolders(u"C:/Users/anna/x"_s, u"anna"_s, QString()), u"C:/Users/anna/x"_s);
    }

    void keysAreMerged()
    {
        m_pc->addRegistry(
            u"[%1\\A]\n\"path\"=\"C:\\\\Program Files\\\\é\"\n[%1\\B\\Below]\n@=\"b\"\n"_s.arg(Key));
        QVERIFY(exportKeys({Key + u"\\A"_s, Key + u"\\Missing"_s, Key + u"\\B"_s}));
        const QString expected = Header + u"\r\n[%1\\A]\r\n\"path\"=\"C:\\\\Program Files\\\\é\"\r\n\r\n"
                                          "\r\n[%1\\B]\r\n\r\n[%1\\B\\Below]\r\n@=\"b\"\r\n\r\n"_s.arg(Key);
        QCOMPARE(textOf(m_pc->path(u"out.reg"_s)), expected);
        QVERIFY(!exportKeys({Key + u"\\Missing"_s}));
        QCOMPARE(QFile(m_pc->path(u"out.reg"_s)).size(), 82); // the mark and the header
        QVERIFY(!exportRegistryKeys({Key}, m_pc->path(u"no/such/folder/out.reg"_s)));
    }

    void programsDoAsTheyLike_data()
    {
        QTest::addColumn<QByteArray>("script"); ///< null for a program that is missing
        QTest::addColumn<QString>("exported");  ///< behind the header
        QTest::addColumn<QString>("importLog");

        const QString fine = u"  Registry import result: success"_s;
        const QString ended = u"  Registry import timeout"_s;
        QTest::newRow("UTF-8") << R"(printf 'Header\r\n\r\n[K\303\251y]\r\n')"_ba << u"\r\n[Kéy]\r\n"_s
                               << fine;
        QTest::newRow("one line") << R"(printf '[K]\n')"_ba << u"[K]\n"_s << fine;
        QTest::newRow("no header") << R"(printf '\r\n[K]')"_ba << u"\r\n[K]"_s << fine;
        QTest::newRow("odd UTF-16") << R"(printf '\377\376K\000x')"_ba << u"K"_s << fine;
        QTest::newRow("empty") << ":"_ba << QString() << fine;
        QTest::newRow("refused") << "echo K; echo no >&2; exit 3"_ba << QString()
                                 << u"  reg.exe stderr: \"no\""_s;
        QTest::newRow("crashed") << "echo K; kill -9 $$"_ba << QString() << ended;
        QTest::newRow("missing") << QByteArray() << QString() << ended;
        QTest::newRow("talkative") << R"(echo K; head -c 3000000 /dev/zero | tr '\0' ' ' >&2)"_ba << u"K\n"_s
                                   << fine;
        QTest::newRow("hanging") << "touch started; exec sleep 600"_ba << QString() << ended;
    }
    void programsDoAsTheyLike()
    {
        if (!SimulatedPc::isMadeUp())
            QSKIP("The system's own program can't be replaced");
        QFETCH(QByteArray, script);
        QFETCH(QString, exported);
        QFETCH(QString, importLog);
        m_pc->removeProgram(u"reg.exe"_s);
        if (!script.isNull())
            m_pc->replaceProgram(u"reg.exe"_s, "exec > ${3:-/dev/null}\n" + script);
        m_pc->writeFile(u"Received/registry.reg"_s, "[K]");
        expectLog(importLog);
        if (!importLog.contains("success"_L1))
            expectLog(u"  Warning: Registry import failed, continuing..."_s);
        bool hasContent = false;
        bool installed = false;
        const std::function<void()> works[] = {[&] { hasContent = exportKeys({Key}); },
                                               [&] { installed = install(); }};
        for (const auto &work : works) {
            const std::unique_ptr<QThread> thread(QThread::create(work));
            thread->start();
            QTRY_VERIFY(thread->isFinished() || QFile::exists(m_pc->path(u"started"_s)));
            thread->requestInterruption(); // as if the deadline had come
            QVERIFY(thread->wait());
            QFile::remove(m_pc->path(u"started"_s));
        }
        QCOMPARE(textOf(m_pc->path(u"out.reg"_s)), Header + exported);
        QCOMPARE(hasContent, 2 + 2 * (Header.size() + exported.size()) > 100);
        QCOMPARE(installed, !script.contains("sleep")); // a stop, which no other failure is
        QCOMPARE(QDir::temp().entryList({u"zandrove_*"_s}, QDir::Files), QStringList());
        QCOMPARE(contentOf(m_pc->path(u"Received/registry.reg"_s)), "[K]"_ba);
    }

private:
    const QString Header = u"Windows Registry Editor Version 5.00\r\n\r\n"_s;

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

ZANDROVE_TEST(RegistryFileTest)
#include "RegistryFileTest.moc"
