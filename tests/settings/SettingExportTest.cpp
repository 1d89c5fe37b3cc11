#include "SettingsTests.h"

#include "SimulatedPc.h"

#include "peer/Protocol.h"
#include "settings/SettingMigrator.h"

#include <QDir>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace Zandrove;
using SettingMessages::Data;

namespace {

using Values = QMap<QString, QString>;

const QString ExplorerPath = u"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer"_s;

SettingInfo chosen(const QString &id, const QString &registryPath = QString())
{
    SettingInfo setting;
    setting.id = id;
    setting.name = id.toUpper();
    setting.category = u"C"_s;
    setting.registryPath = registryPath;
    setting.selected = true;
    return setting;
}

/// What one export sent, put together again by the readers.
struct Export
{
    QList<int> types;
    QList<SettingPackage> packages;
    QList<qsizetype> chunks; ///< their sizes
    QStringList failed;      ///< names
    std::optional<SettingMessages::Complete> complete;
    QList<QList<QVariant>> finished;
    QList<int> percents;

    explicit Export(const QList<SettingInfo> &settings)
    {
        SettingMigrator migrator;
        QObject::connect(&migrator, &SettingMigrator::requestSendCommand, &migrator,
                         [this](int type, const QByteArray &payload) { receive(type, payload); });
        QObject::connect(&migrator, &SettingMigrator::progress, &migrator,
                         [this](int percent) { percents.append(percent); });
        QObject::connect(&migrator, &SettingMigrator::settingFinished, &migrator,
                         [this](const QString &name, bool success, const QString &error) {
                             if (!success && error == "Export failed"_L1)
                                 failed.append(name);
                         });
        const QSignalSpy spy(&migrator, &SettingMigrator::finished);
        migrator.start(settings);
        finished = spy;
    }

    void receive(int type, const QByteArray &payload)
    {
        types.append(type);
        if (type == int(Protocol::MessageType::SettingStart))
            packages.append(SettingMessages::readStart(payload));
        else if (type == int(Protocol::MessageType::SettingData))
            addData(Data::fromPayload(payload));
        else if (type == int(Protocol::MessageType::SettingComplete))
            complete = SettingMessages::Complete::fromPayload(payload);
    }

    void addData(const Data &data)
    {
        SettingPackage &package = packages.last();
        const bool isFile = data.content == Data::Content::File;
        (isFile ? package.fileData : package.registryData) += data.bytes;
        if (isFile && data.chunkIndex == chunks.size())
            chunks.append(data.bytes.size());
    }
};

/// A call of a stand-in without the time in the name of its temporary file.
QStringList plainCalls(const SimulatedPc &pc)
{
    static const QRegularExpression temporary(u"[^|]*zandrove_(reg_export|power_export)[^|]*"_s);
    return pc.programCalls().replaceInStrings(temporary, u"FILE"_s);
}

} // namespace

/// The Old PC's half, from the registry and the programs of a made-up PC to the messages.
class SettingExportTest final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyKeyIsGathered_data();
    void everyKeyIsGathered();
    void otherSettingsAreGathered();
    void aLargePictureLeavesInChunks_data();
    void aLargePictureLeavesInChunks();
    void aFailureCostsOneSetting();
    void aCancelledExportEndsSilently();
};

void SettingExportTest::everyKeyIsGathered_data()
{
    QTest::addColumn<QString>("key"); // below HKEY_CURRENT_USER
    QTest::addColumn<QString>("value");
    QTest::addColumn<Values>("metadata");

    QTest::newRow("explorer") << ExplorerPath + u"\\Advanced"_s << u"\"Hidden\"=dword:1"_s << Values();
    QTest::newRow("mouse") << u"Control Panel\\Mouse"_s << u"\"MouseSpeed\"=\"2\""_s
                           << Values{{u"MouseSpeed"_s, u"2"_s},
                                     {u"MouseSensitivity"_s, u"10"_s},
                                     {u"SwapMouseButtons"_s, u"0"_s},
                                     {u"DoubleClickSpeed"_s, u"500"_s}};
    QTest::newRow("keyboard") << u"Control Panel\\Keyboard"_s << u"\"KeyboardDelay\"=\"3\""_s
                              << Values{{u"KeyboardDelay"_s, u"3"_s}, {u"KeyboardSpeed"_s, u"31"_s}};
    QTest::newRow("environment") << u"Environment"_s << u"\"PATH\"=\"C:\\\\t\"\n\"Zoo\"=\"ä\""_s
                                 << Values{{u"EnvironmentVars"_s, uR"({"PATH":"C:\\t","Zoo":"ä"})"_s}};
    QTest::newRow("sound") << u"AppEvents\\Schemes"_s << u"@=\".None\""_s << Values();
    QTest::newRow("display") << u"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize"_s
                             << u"\"AppsUseLightTheme\"=dword:0"_s
                             << Values{{u"AppsUseLightTheme"_s, u"0"_s},
                                       {u"SystemUsesLightTheme"_s, u"1"_s},
                                       {u"EnableTransparency"_s, u"1"_s}};
}

void SettingExportTest::everyKeyIsGathered()
{
    QFETCH(const QString, key);
    QFETCH(const QString, value);
    SimulatedPc pc;
    pc.addRegistry(u"[HKEY_CURRENT_USER\\%1]\n%2\n"_s.arg(key, value));
    const Export sent({chosen(QString::fromLatin1(QTest::currentDataTag()))});

    QCOMPARE(sent.types, (QList<int>{112, 113, 114, 115}));
    const SettingPackage &package = sent.packages.first();
    QCOMPARE(package.name + package.category, package.key.toUpper() + u'C');
    QCOMPARE(package.registryPath, u"HKEY_CURRENT_USER\\"_s + key);
    QVERIFY(package.registryData.startsWith("\xff\xfe"));
    QTEST(package.metadata, "metadata");
    QCOMPARE(plainCalls(pc), QStringList(u"reg|export|HKCU\\%1|FILE|/y"_s.arg(key)));
}

void SettingExportTest::otherSettingsAreGathered()
{
    SimulatedPc pc;
    pc.addRegistry(u"[HKEY_LOCAL_MACHINE\\Software\\Pens]\n\"Ink\"=\"blue\"\n"_s);
    pc.addRegistry(u"[HKEY_CURRENT_USER\\%1\\Taskband]\n\"S\"=hex:02\n[HKEY_CURRENT_USER\\%1\\Advanced]\n"
                   "\"A\"=\"1\"\n"_s.arg(ExplorerPath));
    const Export sent({chosen(u"Pens"_s, u"HKEY_LOCAL_MACHINE/Software/Pens"_s), chosen(u"Mouse"_s),
                       chosen(u"power"_s), chosen(u"taskbar"_s)});
    const QString taskbarCall = u"reg|export|HKCU\\"_s + ExplorerPath + u"\\%1|FILE|/y"_s;
    QCOMPARE(plainCalls(pc),
             (QStringList{u"reg|export|HKLM\\Software\\Pens|FILE|/y"_s,
                          u"powercfg|/export|FILE|SCHEME_CURRENT"_s, taskbarCall.arg("StuckRects3"_L1),
                          taskbarCall.arg("Taskband"_L1), taskbarCall.arg("Advanced"_L1)}));
    QCOMPARE(sent.failed, QStringList(u"MOUSE"_s)); // ids have their letters as they are
    QCOMPARE(sent.packages.size(), 3);
    QCOMPARE(sent.packages[1].fileName, u"power_scheme.pow"_s);
    QVERIFY(sent.packages[1].fileData.startsWith("power scheme "));
    QCOMPARE(sent.packages[1].registryPath, QString());
    QVERIFY(sent.packages[2].registryPath.endsWith("\\Taskband"_L1));
    const auto advanced =
        QByteArray::fromBase64(sent.packages[2].metadata.value(u"AdvancedSettings"_s).toLatin1());
    QVERIFY(advanced.contains(QByteArray("A\0d\0v\0a\0n\0c\0e\0d\0", 16)));
    QVERIFY(QDir(QDir::tempPath()).isEmpty());
    QCOMPARE(sent.percents, (QList<int>{0, 25, 50, 75}));
    QCOMPARE(sent.finished, (QList<QList<QVariant>>{{3, 1}}));
    QCOMPARE(sent.complete->success, 3);
}

void SettingExportTest::aLargePictureLeavesInChunks_data()
{
    constexpr qsizetype Chunk = SettingMigrator::ChunkBytes;
    QTest::addColumn<qsizetype>("size");
    QTest::addColumn<QList<qsizetype>>("chunks");
    QTest::newRow("empty") << qsizetype(0) << QList<qsizetype>();
    QTest::newRow("one full chunk") << Chunk << QList<qsizetype>{Chunk};
    QTest::newRow("a byte more") << Chunk + 1 << QList<qsizetype>{Chunk, 1};
    QTest::newRow("6 MiB") << 12 * Chunk << QList<qsizetype>(12, Chunk);
}

void SettingExportTest::aLargePictureLeavesInChunks()
{
    QFETCH(const qsizetype, size);
    SimulatedPc pc;
    QByteArray picture(size, 'x');
    for (qsizetype i = 0; i < size; i += 1021)
        picture[i] = char(i);
    const QString path = pc.writeFile(u"C:/Pictures/see ü.jpg"_s, picture);
    pc.addRegistry(
        u"[HKEY_CURRENT_USER\\Control Panel\\Desktop]\n\"Wallpaper\"=\"%1\"\n\"WallpaperStyle\"=\"6\"\n"_s
            .arg(path));
    const Export sent({chosen(u"wallpaper"_s)});
    QCOMPARE(sent.packages.size(), 1);
    QTEST(sent.chunks, "chunks");
    const SettingPackage &package = sent.packages.first();
    QVERIFY(package.fileData == picture);
    QCOMPARE(package.fileName, u"see ü.jpg"_s);
    QCOMPARE(package.originalFilePath, path);
    QCOMPARE(package.metadata, (Values{{u"WallpaperStyle"_s, u"6"_s}, {u"TileWallpaper"_s, u"0"_s}}));
}

void SettingExportTest::aFailureCostsOneSetting()
{
    SimulatedPc pc;
    pc.addRegistry(u"[HKEY_CURRENT_USER\\Control Panel\\Desktop]\n\"Wallpaper\"=\"C:/gone.jpg\"\n"_s);
    pc.addRegistry(u"[HKEY_CURRENT_USER\\Environment]\n\"A\"=\"b\"\n"_s);
    pc.replaceProgram(u"powercfg"_s, "exit 3");
    const Export one(
        {chosen(u"wallpaper"_s), chosen(u"taskbar"_s), chosen(u"power"_s), chosen(u"environment"_s)});
    QCOMPARE(one.failed, (QStringList{u"WALLPAPER"_s, u"TASKBAR"_s, u"POWER"_s}));
    QCOMPARE(one.types, (QList<int>{112, 113, 114, 115}));
    QCOMPARE(one.finished, (QList<QList<QVariant>>{{1, 3}}));

    QList<SettingInfo> unfit = {chosen(u"environment"_s), chosen(u"environment"_s)};
    unfit[0].available = false;
    unfit[1].selected = false;
    const Export nothing(unfit);
    QVERIFY(nothing.types.isEmpty());
    QCOMPARE(nothing.finished, (QList<QList<QVariant>>{{0, 0}}));

    pc.removeProgram(u"powercfg"_s);
    pc.replaceProgram(u"reg"_s, ": > \"$3\""); // an export without a byte
    const Export none({chosen(u"environment"_s), chosen(u"power"_s)});
    QCOMPARE(none.types, QList<int>{115});
    QCOMPARE(none.complete->failed, 2);
    QVERIFY(QDir(QDir::tempPath()).isEmpty());
}

void SettingExportTest::aCancelledExportEndsSilently()
{
    SimulatedPc pc;
    pc.addRegistry(u"[HKEY_CURRENT_USER\\Environment]\n\"A\"=\"b\"\n"_s);
    SettingMigrator migrator;
    QSignalSpy sent(&migrator, &SettingMigrator::requestSendCommand);
    QSignalSpy started(&migrator, &SettingMigrator::settingStarted);
    QSignalSpy finished(&migrator, &SettingMigrator::finished);
    const QList<SettingInfo> settings = {chosen(u"environment"_s), chosen(u"environment"_s)};
    const auto cancelling = connect(&migrator, &SettingMigrator::settingStarted, &migrator, [&] {
        migrator.start(settings); // dropped: one is on
        migrator.cancel();
    });
    migrator.start(settings);
    QCOMPARE(started.size(), 1);
    QCOMPARE(sent.size(), 3); // the setting in hand still leaves whole
    QCOMPARE(finished.size(), 0);

    disconnect(cancelling);
    migrator.start(settings);
    QCOMPARE(finished.size(), 1);
    migrator.stop();
    migrator.start(settings);
    QCOMPARE(started.size(), 3);
    QVERIFY(!migrator.isRunning());
}

std::unique_ptr<QObject> makeSettingExportTest()
{
    return std::make_unique<SettingExportTest>();
}

#include "SettingExportTest.moc"
