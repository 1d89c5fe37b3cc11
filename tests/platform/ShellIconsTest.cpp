#include "SimulatedPc.h"

#include "TestMain.h"
#include "platform/ShellIcons.h"

#include <QTest>
#include <QtEndian>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

constexpr int Side = 32; // pixels, the shell's large icon

template <typename Number>
QByteArray littleEndian(Number number)
{
    QByteArray bytes(sizeof number, Qt::Uninitialized);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

/// An icon file with one picture: red in its upper half, transparent below, by levels of 32-bit colours or by
/// the mask.
QByteArray iconFile(int bitsPerPixel)
{
    QByteArray picture = littleEndian(quint32(40)) + littleEndian(qint32(Side)) +
                         littleEndian(qint32(2 * Side)) + littleEndian(quint16(1)) +
                         littleEndian(quint16(bitsPerPixel)) + QByteArray(24, '\0');
    for (int line = 0; line < Side; ++line) { // from the bottom
        const bool isRed = line >= Side / 2;
        const QByteArray pixel = isRed ? "\x00\x00\xff\xff"_ba : QByteArray(4, '\0');
        picture += pixel.first(bitsPerPixel / 8).repeated(Side);
    }
    picture +=
        QByteArray(Side / 8, '\xff').repeated(Side / 2) + QByteArray(Side / 8, '\0').repeated(Side / 2);
    return littleEndian(quint16(0)) + littleEndian(quint16(1)) + littleEndian(quint16(1)) + char(Side) +
           char(Side) + QByteArray(2, '\0') + littleEndian(quint16(1)) + littleEndian(quint16(bitsPerPixel)) +
           littleEndian(quint32(picture.size())) + littleEndian(quint32(22)) + picture;
}

} // namespace

class ShellIconsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void iconKeepsColoursAndTransparency_data();
    void iconKeepsColoursAndTransparency();
    void fileWithoutIconHasNone();
    void systemLibraryHasIcons();
};

void ShellIconsTest::iconKeepsColoursAndTransparency_data()
{
    QTest::addColumn<int>("bitsPerPixel");
    QTest::newRow("levels of transparency") << 32;
    if (!SimulatedPc::isMadeUp())
        QTest::newRow("mask") << 24;
}

void ShellIconsTest::iconKeepsColoursAndTransparency()
{
    QFETCH(int, bitsPerPixel);
    SimulatedPc pc;
    const QString file = pc.writeFile(u"Symbole ü/x.ico"_s, iconFile(bitsPerPixel));
    const QImage image = Platform::extractIcon(file).largeImage;
    QCOMPARE(image.size(), QSize(Side, Side));
    QCOMPARE(image.pixel(5, 5), qRgba(255, 0, 0, 255));
    QCOMPARE(image.pixel(5, Side - 5), qRgba(0, 0, 0, 0));
    QCOMPARE(Platform::fileIcon(file).size(), QSize(Side, Side));
    QVERIFY(!Platform::extractIcon(file).smallImage.isNull());
    QVERIFY(Platform::extractIcon(file, 5).largeImage.isNull());
}

void ShellIconsTest::fileWithoutIconHasNone()
{
    SimulatedPc pc;
    for (const QString &file : {pc.writeFile(u"x.exe"_s, "MZ, or so it says"), pc.path(u"missing.exe"_s)}) {
        QVERIFY(Platform::extractIcon(file).largeImage.isNull());
        QVERIFY(Platform::extractIcon(file).smallImage.isNull());
    }
}

void ShellIconsTest::systemLibraryHasIcons()
{
    if (SimulatedPc::isMadeUp())
        QSKIP("The simulated PC has no libraries with icons");
    for (int i = 0; i < 300; ++i) // each leaves no handle behind, or they run out
        QVERIFY(!Platform::extractIcon(u"C:/windows/system32/shell32.dll"_s, i % 10).largeImage.isNull());
    QVERIFY(!Platform::fileTypeIcon(u".exe"_s).isNull());
}

ZANDROVE_TEST_MAIN(ShellIconsTest)
#include "ShellIconsTest.moc"
