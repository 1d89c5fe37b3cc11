#include "peer/FrameReader.h"
#include "peer/Protocol.h"
#include "pipeline/FileChecksum.h"
#include "support/Utilities.h"

#include <QBuffer>
#include <QTest>

using namespace Zandrove;

/// What every byte of a transfer passes through, measured over 64 MiB; divide by the time for MB/s.
class MicroBenchmark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_bytes = QByteArray(64 * 1024 * 1024, 'x'); }
    void frameChecksum();
    void fileChecksum();
    void frameBuilding();
    void frameReading_data();
    void frameReading();

private:
    QByteArray m_bytes;
};

void MicroBenchmark::frameChecksum()
{
    volatile quint32 sum = 0;
    QBENCHMARK
    {
        sum = calculateChecksum(m_bytes);
    }
    QVERIFY(sum != 0);
}

void MicroBenchmark::fileChecksum()
{
    FileChecksum sum;
    QBENCHMARK
    {
        sum.update(m_bytes);
    }
    QVERIFY(sum.value() != 0);
}

void MicroBenchmark::frameBuilding()
{
    const QByteArray chunk = m_bytes.first(512 * 1024);
    QBENCHMARK
    {
        for (int i = 0; i < 128; ++i)
            QVERIFY(Protocol::buildFrame(Protocol::MessageType::FileData, chunk, 1).size() > chunk.size());
    }
}

void MicroBenchmark::frameReading_data()
{
    QTest::addColumn<int>("payloadBytes");
    QTest::newRow("64 MiB in 512 KiB frames") << 512 * 1024;
    QTest::newRow("64 MiB in 200 B frames") << 200;
    QTest::newRow("64 MiB in one frame") << 64 * 1024 * 1024;
}

void MicroBenchmark::frameReading()
{
    QFETCH(int, payloadBytes);
    const QByteArray frame =
        Protocol::buildFrame(Protocol::MessageType::FileData, m_bytes.first(payloadBytes), 1);
    QByteArray stream;
    while (stream.size() < m_bytes.size())
        stream += frame;
    qsizetype frames = 0;
    QBENCHMARK
    {
        QBuffer source(&stream);
        QVERIFY(source.open(QIODevice::ReadOnly));
        FrameReader reader;
        frames = 0;
        while (reader.read(source))
            ++frames;
    }
    QCOMPARE(frames, stream.size() / frame.size());
}

QTEST_GUILESS_MAIN(MicroBenchmark)

#include "MicroBenchmark.moc"
