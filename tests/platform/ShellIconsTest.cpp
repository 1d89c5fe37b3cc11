#include "SimulatedPc.h"
#include "TestMain.h"

#include "platform/ShellIcons.h"

#include <QDataStream>

namespace {

constexpr int Side = 32; // pixels, the shell's large icon

/// An icon file with one picture: red in its upper half, transparent below, by levels of 32-bit colours or by
/// the mask.
QByteArray iconFile(quint16 bitsPerPixel)
{
    QByteArray lines; // from the bottom
    for (const bool isRed : {false, true}) {
        const QByteArray pixel = isRed ? "\x00\x00\xff\xff"_ba : QByteArray(4, '\0');
        lines += pixel.first(bitsPerPixel / 8).repeated(Side * Side / 2);
    }
    const QByteArray mask = QByteArray(Side * Side / 16, '\xff') + QByteArray(Side * Side / 16, '\0');
    QByteArray file;
    QDataStream stream(&file, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint16(0) << quint16(1) << quint16(1) << quint8(Side) << quint8(Side) << quint16(0);
    stream << quint16(1) << bitsPerPixel << quint32(40 + lines.size() + mask.size()) << quint32(22);
    stream << quint32(40) << qint32(Side) << qint32(2 * Side) << quint16(1) << bitsPerPixel;
    return file + QByteArray(24, '\0') + lines + mask;
}

} // namespace

class ShellIconsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void iconKeepsColoursAndTransparency_data()
    {
        const auto row = addColumns<int>("bitsPerPixel");
        row("levels of transparency", 32);
        if (!SimulatedPc::isMadeUp())
            row("mask", 24);
    }
    void iconKeepsColoursAndTransparency()
    {
        QFETCH(int, bitsPerPixel);
        SimulatedPc pc;
        const QString file = pc.writeFile(u"Symbole ü/x.ico"_s, iconFile(quint16(bitsPerPixel)));
        const QImage image = Platform::extractIcon(file).largeImage;
        QCOMPARE(image.size(), QSize(Side, Side));
        QCOMPARE(image.pixel(5, 5), qRgba(255, 0, 0, 255));
        QCOMPARE(image.pixel(5, Side - 5), qRgba(0, 0, 0, 0));
        QCOMPARE(Platform::fileIcon(file).size(), QSize(Side, Side));
        QVERIFY(!Platform::extractIcon(file).smallImage.isNull());
        QVERIFY(Platform::extractIcon(file, 5).largeImage.isNull());
    }

    void fileWithoutIconHasNone()
    {
        SimulatedPc pc;
        for (const QString &file :
             {pc.writeFile(u"x.exe"_s, "MZ, or so it says"), pc.path(u"missing.exe"_s)}) {
            QVERIFY(Platform::extractIcon(file).largeImage.isNull());
            QVERIFY(Platform::extractIcon(file).smallImage.isNull());
        }
    }

    void systemLibraryHasIcons()
    {
        if (SimulatedPc::isMadeUp())
            QSKIP("The simulated PC has no libraries with icons");
        for (int i = 0; i < 300; ++i) // each leaves no handle behind, or they run out
            QVERIFY(!Platform::extractIcon(u"C:/windows/system32/shell32.dll"_s, i % 10).largeImage.isNull());
        QVERIFY(!Platform::fileTypeIcon(u".exe"_s).isNull());
    }
};

ZANDROVE_TEST(ShellIconsTest)
#include "ShellIconsTest.moc"
