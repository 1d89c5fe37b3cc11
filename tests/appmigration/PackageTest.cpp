#include "AppMigrationTests.h"

#include "appmigration/AppPackage.h"
#include "appmigration/RegistryText.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace Zandrove;

/// Names that become paths, and the text of .reg files.
class PackageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesBecomeOneComponent_data();
    void namesBecomeOneComponent();
    void textIsDecoded_data();
    void textIsDecoded();
    void usersAreRenamed_data();
    void usersAreRenamed();
};

void PackageTest::namesBecomeOneComponent_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("safe");

    QTest::newRow("plain") << u"Acme Editor 2"_s << u"Acme Editor 2"_s;
    QTest::newRow("forbidden") << u"<a>:\"b\"/\\c|?*"_s << u"_a___b___c___"_s;
    QTest::newRow("end") << u"Acme Inc. . "_s << u"Acme Inc"_s;
    QTest::newRow("device") << u"com1"_s << u"_com1"_s;
    QTest::newRow("device with suffix") << u"COM1.txt"_s << u"_COM1.txt"_s;
    QTest::newRow("device when trimmed") << u"nul."_s << u"_nul"_s;
    QTest::newRow("no device") << u"COM10"_s << u"COM10"_s;
    QTest::newRow("points") << u"..."_s << u"unnamed"_s;
    QTest::newRow("empty") << QString() << u"unnamed"_s;
    QTest::newRow("cut at a point") << QString(99, u'x') + u". y"_s << QString(99, u'x') + u'.';
}

void PackageTest::namesBecomeOneComponent()
{
    QFETCH(QString, name);
    QTEST(makeSafeName(name), "safe");
}

void PackageTest::textIsDecoded_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text"); ///< null where it is that of the bytes as UTF-8
    const auto hex = [](const char *digits) { return QByteArray::fromHex(digits); };
    const QByteArray wide(20, 'a'); // two bytes without a zero are one letter, too
    const QString wideText(10, QChar(0x6161));
    /// `letters` ASCII characters in UTF-16 LE, and others up to 200 bytes.
    const auto mixed = [&](int letters) {
        return hex("6100").repeated(letters) + hex("6161").repeated(100 - letters);
    };

    QTest::newRow("mark LE") << hex("fffe") + wide << wideText;
    QTest::newRow("mark BE") << hex("feff0041") + wide << u'A' + wideText;
    QTest::newRow("mark UTF-8") << hex("efbbbf") + wide << QString::fromLatin1(wide);
    QTest::newRow("mark alone") << hex("fffe") << u""_s;
    QTest::newRow("header LE") << hex("57006900") + wide << u"Wi"_s + wideText;
    QTest::newRow("old header LE") << hex("52004500") + wide << u"RE"_s + wideText;
    QTest::newRow("header BE") << hex("00570069") + wide << u"Wi"_s + wideText;
    QTest::newRow("old header BE") << hex("00520045") + wide << u"RE"_s + wideText;
    QTest::newRow("header, odd size") << hex("5700690041") << QString();
    QTest::newRow("three bytes") << hex("610062") << QString();
    QTest::newRow("zeros behind") << hex("5b002200") << u"[\""_s;
    QTest::newRow("zeros before") << hex("005b0022") << u"[\""_s;
    QTest::newRow("both alike") << hex("0000000041410000") << QString();
    QTest::newRow("share at the bound") << mixed(40) << QString();
    QTest::newRow("share above it") << mixed(41) << QString(41, u'a') + QString(59, QChar(0x6161));
    QTest::newRow("zeros behind the sample") << mixed(0) + mixed(100) << QString();
    QTest::newRow("own form") << encodeRegistryText(u"é 𝄞"_s) << u"é 𝄞"_s;
    QTest::newRow("odd byte") << encodeRegistryText(u"é 𝄞"_s) + 'x' << u"é 𝄞"_s;
    QTest::newRow("code page") << "a\xe9z"_ba << u"a\xfffdz"_s;
}

void PackageTest::textIsDecoded()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, text);
    QCOMPARE(decodeRegistryText(bytes), text.isNull() ? QString::fromUtf8(bytes) : text);
}

void PackageTest::usersAreRenamed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("oldUser");
    QTest::addColumn<QString>("newUser");
    QTest::addColumn<QString>("expected"); ///< null for the text itself

    const QString plain = u"C:/Users/anna/x"_s;
    QTest::newRow("both slashes") << u"C:\\Users\\Anna\\x D:/USERS/anna//Users/anna/y"_s << u"anna"_s
                                  << u"bo"_s << u"C:\\Users\\bo\\x D:/Users/bo//Users/bo/y"_s;
    QTest::newRow("longer name") << u"C:/Users/annabel/x"_s << u"anna"_s << u"bo"_s << QString();
    QTest::newRow("profile itself") << u"C:/Users/anna"_s << u"anna"_s << u"bo"_s << QString();
    QTest::newRow("doubled") << u"C:\\\\Users\\\\anna\\\\x"_s << u"anna"_s << u"bo"_s << QString();
    QTest::newRow("no old user") << u"C:/Users//x"_s << QString() << u"bo"_s << QString();
    QTest::newRow("no new user") << plain << u"anna"_s << QString() << QString();
}

void PackageTest::usersAreRenamed()
{
    QFETCH(QString, text);
    QFETCH(QString, oldUser);
    QFETCH(QString, newUser);
    QFETCH(QString, expected);
    QCOMPARE(withUserFolders(text, oldUser, newUser), expected.isNull() ? text : expected);
}

QObject *makePackageTest()
{
    return new PackageTest;
}

#include "PackageTest.moc"
