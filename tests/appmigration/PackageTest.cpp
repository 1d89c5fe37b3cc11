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
    void namesBecomeOneComponent();
    void textIsDecoded_data();
    void textIsDecoded();
    void usersAreRenamed();
};

void PackageTest::namesBecomeOneComponent()
{
    const std::pair<QString, QString> safeNames[] = {
        {u"Acme Editor 2"_s, u"Acme Editor 2"_s},
        {u"<a>:\"b\"/\\c|?*"_s, u"_a___b___c___"_s},
        {u"Acme Inc. . "_s, u"Acme Inc"_s},
        {u"com1"_s, u"_com1"_s},
        {u"COM1.txt"_s, u"_COM1.txt"_s},
        {u"nul."_s, u"_nul"_s},
        {u"COM10"_s, u"COM10"_s},
        {u"..."_s, u"unnamed"_s},
        {QString(), u"unnamed"_s},
        {QString(99, u'x') + u". y"_s, QString(99, u'x') + u'.'}}; // cut at a point, which stays
    for (const auto &[name, safeName] : safeNames)
        QCOMPARE(makeSafeName(name), safeName);
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

void PackageTest::usersAreRenamed()
{
    QCOMPARE(withUserFolders(u"C:\\Users\\Anna\\x D:/USERS/anna//Users/anna/y"_s, u"anna"_s, u"bo"_s),
             u"C:\\Users\\bo\\x D:/Users/bo//Users/bo/y"_s);
    // A longer name, the profile itself, doubled backslashes.
    for (const QString &kept : {u"C:/Users/annabel/x"_s, u"C:/Users/anna"_s, u"C:\\\\Users\\\\anna\\\\x"_s})
        QCOMPARE(withUserFolders(kept, u"anna"_s, u"bo"_s), kept);
    QCOMPARE(withUserFolders(u"C:/Users//x"_s, QString(), u"bo"_s), u"C:/Users//x"_s);
    QCOMPARE(withUserFolders(u"C:/Users/anna/x"_s, u"anna"_s, QString()), u"C:/Users/anna/x"_s);
}

QObject *makePackageTest()
{
    return new PackageTest;
}

#include "PackageTest.moc"
