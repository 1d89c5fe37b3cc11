#include "SettingsTests.h"

#include "settings/SettingPackage.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace Zandrove;
using SettingMessages::Data;

/// The payloads byte by byte, and what becomes of payloads that no writer makes.
class SettingPackageTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void payloadsKeepTheirForm();
    void dataOfAnyPeerIsRead_data();
    void dataOfAnyPeerIsRead();
    void startOfAnyPeerIsRead();
};

void SettingPackageTest::payloadsKeepTheirForm()
{
    SettingPackage package;
    package.key = u"wallpaper"_s;
    package.name = u"Bild"_s;
    package.category = u"Größe"_s;
    package.registryData = "abc";
    package.registryPath = u"HKCU\\x"_s;
    package.fileData = "12345";
    package.fileName = u"a.jpg"_s;
    package.originalFilePath = u"C:\\a.jpg"_s;
    package.metadata = {{u"TileWallpaper"_s, u"0"_s}};
    const QByteArray start =
        R"({"category":"Größe","fileName":"a.jpg","fileSize":5,"key":"wallpaper",)"
        R"("metadata":{"TileWallpaper":"0"},"name":"Bild","originalFilePath":"C:\\a.jpg",)"
        R"("registryPath":"HKCU\\x","registrySize":3})";
    QCOMPARE(SettingMessages::startPayload(package), start);
    SettingPackage read = SettingMessages::readStart(start);
    QVERIFY(read.registryData.isEmpty() && read.fileData.isEmpty());
    read.registryData = package.registryData;
    read.fileData = package.fileData;
    QCOMPARE(SettingMessages::startPayload(read), start);

    const Data key{u"k"_s, Data::Content::Registry, "\xff\xfe", true, 0, 0, {}};
    const QByteArray keyPayload = R"({"data":"//4=","dataType":"registry","key":"k"})";
    QCOMPARE(key.toPayload(), keyPayload);
    const Data chunk{u"k"_s, Data::Content::File, "x", true, 1, 2, u"f"_s};
    const QByteArray chunkPayload =
        R"({"chunkIndex":1,"data":"eA==","dataType":"file","fileName":"f","key":"k","totalChunks":2})";
    QCOMPARE(chunk.toPayload(), chunkPayload);
    QCOMPARE(Data::fromPayload(chunkPayload).toPayload(), chunkPayload);
    const QByteArray endPayload = R"({"key":"k","name":"n"})";
    QCOMPARE(SettingMessages::End::fromPayload(endPayload).toPayload(), endPayload);
    const QByteArray completePayload = R"({"failed":2,"success":7})";
    QCOMPARE(SettingMessages::Complete::fromPayload(completePayload).toPayload(), completePayload);
}

void SettingPackageTest::dataOfAnyPeerIsRead_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<Data::Content>("content");
    QTest::addColumn<bool>("intact");
    const auto row = [](const char *name, const char *payload, Data::Content content, bool intact = true) {
        QTest::newRow(name) << QByteArray(payload) << content << intact;
    };
    row("no JSON", "{\"key\":", Data::Content::Unknown);
    row("an array", "[1]", Data::Content::Unknown);
    row("an unknown kind", R"({"dataType":"Registry"})", Data::Content::Unknown);
    row("data that is no text", R"({"dataType":"registry","data":[1,2]})", Data::Content::Registry);
    row("data that is no Base64", R"({"dataType":"registry","data":"§$%&"})", Data::Content::Registry, false);
    row("an alien in it", R"({"dataType":"file","data":"eA==\u0000eA=="})", Data::Content::File, false);
    row("odd counts", R"({"dataType":"file","totalChunks":2147483648,"chunkIndex":1e99})",
        Data::Content::File);
}

void SettingPackageTest::dataOfAnyPeerIsRead()
{
    QFETCH(const QByteArray, payload);
    const Data data = Data::fromPayload(payload);
    QTEST(data.content, "content");
    QTEST(data.intact, "intact");
    QVERIFY(data.bytes.isEmpty());
    QCOMPARE(data.totalChunks + data.chunkIndex, 0);
}

void SettingPackageTest::startOfAnyPeerIsRead()
{
    const SettingPackage package = SettingMessages::readStart(
        R"({"key":5,"name":"n","fileSize":-1,"metadata":{"a":1,"b":null,"c":"3","d":{"e":"f"}}})");
    QCOMPARE(package.key, QString());
    QCOMPARE(package.name, u"n"_s);
    QCOMPARE(package.metadata, (QMap<QString, QString>{{u"c"_s, u"3"_s}}));
    const QByteArray noMetadata = R"({"key":"k","metadata":"none"})";
    QVERIFY(SettingMessages::readStart(noMetadata).metadata.isEmpty());
    QCOMPARE(SettingMessages::End::fromPayload("null").key, QString());
}

std::unique_ptr<QObject> makeSettingPackageTest()
{
    return std::make_unique<SettingPackageTest>();
}

#include "SettingPackageTest.moc"
