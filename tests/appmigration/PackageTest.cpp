#include "AppMigrationTests.h"

#include "appmigration/AppPackage.h"
#include "appmigration/RegistryText.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace Zandrove;

using Encoding = RegistryEncoding;

/// Names that become paths, and the text of .reg files.
class PackageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesBecomeOneComponent_data();
    void namesBecomeOneComponent();
    void encodingIsDetected_data();
    void encodingIsDetected();
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
    QTest::newRow("long") << QString(150, u'x') << QString(100, u'x');
    QTest::newRow("cut at a point") << QString(99, u'x') + u". y"_s << QString(99, u'x') + u'.';
}

void PackageTest::namesBecomeOneComponent()
{
    QFETCH(QString, name);
    QTEST(makeSafeName(name), "safe");
}

void PackageTest::encodingIsDetected_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Encoding>("encoding");
    QTest::addColumn<int>("markSize");
    const auto hex = [](const char *digits) { return QByteArray::fromHex(digits); };
    /// `letters` ASCII characters in UTF-16 LE, and others up to 200 bytes.
    const auto mixed = [&hex](int letters) {
        return hex("6100").repeated(letters) + hex("6161").repeated(100 - letters);
    };

    QTest::newRow("mark LE") << hex("fffe") << Encoding::Utf16LittleEndian << 2;
    QTest::newRow("mark BE") << hex("feff0041") << Encoding::Utf16BigEndian << 2;
    QTest::newRow("mark UTF-8") << hex("efbbbf") << Encoding::Utf8 << 3;
    QTest::newRow("header LE") << hex("57006900") << Encoding::Utf16LittleEndian << 0;
    QTest::newRow("old header LE") << hex("52004500") << Encoding::Utf16LittleEndian << 0;
    QTest::newRow("header BE") << hex("005700697f7f") << Encoding::Utf16BigEndian << 0;
    QTest::newRow("old header BE") << hex("00520045") << Encoding::Utf16BigEndian << 0;
    QTest::newRow("header, odd size") << hex("5700690041") << Encoding::Utf8 << 0;
    QTest::newRow("three bytes") << hex("610062") << Encoding::Utf8 << 0;
    QTest::newRow("zeros behind") << hex("5b002200") << Encoding::Utf16LittleEndian << 0;
    QTest::newRow("zeros before") << hex("005b0022") << Encoding::Utf16BigEndian << 0;
    QTest::newRow("both alike") << hex("0000000041410000") << Encoding::Utf8 << 0;
    QTest::newRow("share at the bound") << mixed(40) << Encoding::Utf8 << 0;
    QTest::newRow("share above it") << mixed(41) << Encoding::Utf16LittleEndian << 0;
    QTest::newRow("zeros behind the sample") << mixed(0) + mixed(100) << Encoding::Utf8 << 0;
    QTest::newRow("empty") << QByteArray() << Encoding::Utf8 << 0;
}

void PackageTest::encodingIsDetected()
{
    QFETCH(QByteArray, bytes);
    const DetectedEncoding detected = detectRegistryEncoding(bytes);
    QTEST(detected.encoding, "encoding");
    QTEST(detected.markSize, "markSize");
}

void PackageTest::textIsDecoded_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const QString text = u"Windows é 𝄞"_s;

    QTest::newRow("own form") << encodeRegistryText(text) << text;
    QTest::newRow("odd byte") << encodeRegistryText(text) + 'x' << text;
    QTest::newRow("BE") << QByteArray::fromHex("feff005700e9d834dd1e00") << u"Wé𝄞"_s;
    QTest::newRow("UTF-8 with mark") << "\xef\xbb\xbf" + text.toUtf8() << text;
    QTest::newRow("code page") << QByteArray("a\xe9z") << u"a\xfffdz"_s;
    QTest::newRow("mark alone") << encodeRegistryText({}) << QString();
}

void PackageTest::textIsDecoded()
{
    QFETCH(QByteArray, bytes);
    QTEST(decodeRegistryText(bytes), "text");
}

void PackageTest::usersAreRenamed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("oldUser");
    QTest::addColumn<QString>("newUser");
    QTest::addColumn<QString>("expected");

    QTest::newRow("both slashes") << u"C:\\Users\\Anna\\x D:/USERS/anna/y"_s << u"anna"_s << u"bob"_s
                                  << u"C:\\Users\\bob\\x D:/Users/bob/y"_s;
    QTest::newRow("longer name") << u"C:/Users/annabel/x"_s << u"anna"_s << u"bob"_s
                                 << u"C:/Users/annabel/x"_s;
    QTest::newRow("profile itself") << u"C:/Users/anna"_s << u"anna"_s << u"bob"_s << u"C:/Users/anna"_s;
    QTest::newRow("doubled") << u"C:\\\\Users\\\\anna\\\\x"_s << u"anna"_s << u"bob"_s
                             << u"C:\\\\Users\\\\anna\\\\x"_s;
    QTest::newRow("no old user") << u"C:/Users//x"_s << QString() << u"bob"_s << u"C:/Users//x"_s;
    QTest::newRow("no new user") << u"C:/Users/anna/x"_s << u"anna"_s << QString() << u"C:/Users/anna/x"_s;
}

void PackageTest::usersAreRenamed()
{
    QFETCH(QString, text);
    QFETCH(QString, oldUser);
    QFETCH(QString, newUser);
    QTEST(withUserFolders(text, oldUser, newUser), "expected");
}

QObject *makePackageTest()
{
    return new PackageTest;
}

#include "PackageTest.moc"
