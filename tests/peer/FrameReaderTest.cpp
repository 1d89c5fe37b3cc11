#include "PeerTest.h"

#include <QBuffer>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

/// Gives `bytes` to the reader as one read of a socket and appends what comes out.
void feed(FrameReader &reader, const QByteArray &bytes, QList<QByteArray> &payloads,
          qsizetype limit = FrameReader::NoLimit)
{
    QBuffer source;
    source.setData(bytes);
    source.open(QIODevice::ReadOnly);
    while (const auto next = reader.read(source, limit))
        payloads.append(next->payload);
}

QByteArray pattern(qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (qsizetype i = 0; i < size; ++i)
        bytes[i] = char(i * 31 + i / 251);
    return bytes;
}

} // namespace

class FrameReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buildsTheStatedBytes()
    {
        QCOMPARE(Protocol::buildFrame(MessageType::SessionEnd, {}, 258).toHex(),
                 "5a44525600010016000000000000010200000000"_ba);
        QCOMPARE(Protocol::buildFrame(MessageType::FileData, "\x01\x02"_ba, 0xFFFFFFFF).toHex(),
                 "5a4452560001003200000002ffffffff000000080102"_ba);
    }

    void cutsFramesHoweverTheStreamIsSplit_data()
    {
        QTest::addColumn<qsizetype>("piece");
        QTest::addColumn<qsizetype>("largest");
        for (const qsizetype piece : {1, 7, 17, 19, 20, 21, 41})
            QTest::addRow("pieces of %d", int(piece)) << piece << qsizetype(700);
        QTest::newRow("pieces of 4099, payload grown in steps") << qsizetype(4099) << qsizetype(5'000'001);
        QTest::newRow("one piece") << qsizetype(100'000'000) << qsizetype(5'000'001);
    }
    void cutsFramesHoweverTheStreamIsSplit()
    {
        QFETCH(qsizetype, piece);
        QFETCH(qsizetype, largest);
        const QList<QByteArray> expected = {{}, "x"_ba,      pattern(largest),
                                            {}, pattern(20), pattern(1'048'576)};
        QByteArray stream;
        for (const QByteArray &payload : expected)
            stream += frame(MessageType(999), payload);

        FrameReader reader;
        QList<QByteArray> payloads;
        for (qsizetype at = 0; at < stream.size(); at += piece)
            feed(reader, stream.mid(at, piece), payloads);
        QVERIFY(payloads == expected);
        QCOMPARE(reader.waiting(), 0);
    }

    void badHeaderCostsAllThatIsReadable_data()
    {
        QTest::addColumn<QByteArray>("bad");
        QTest::newRow("wrong magic") << header(0x5A445257, 50, 0);
        QTest::newRow("total 0") << header(Protocol::Magic, 50, 0xFFFFFFEC);
        QTest::newRow("total 19") << header(Protocol::Magic, 50, 0xFFFFFFFF);
        QTest::newRow("smallest negative total") << header(Protocol::Magic, 50, 0x7FFFFFEC);
        QTest::newRow("total -1") << header(Protocol::Magic, 50, 0xFFFFFFEB);
    }
    void badHeaderCostsAllThatIsReadable()
    {
        QFETCH(QByteArray, bad);
        FrameReader reader;
        QList<QByteArray> payloads;
        feed(reader, frame(MessageType::FileData, "before") + bad.first(17), payloads);
        QCOMPARE(reader.waiting(), 17);
        feed(reader, bad.mid(17) + frame(MessageType::FileData, "lost"), payloads);
        QCOMPARE(reader.waiting(), 0);
        feed(reader, frame(MessageType::FileData, "after"), payloads);
        QCOMPARE(payloads, (QList<QByteArray>{"before", "after"}));
    }

    void unfinishedFrameIsDroppedAboveTheLimitOnly()
    {
        FrameReader reader;
        QList<QByteArray> payloads;
        const QByteArray start = header(Protocol::Magic, 50, 0x7FFFFFEB);
        feed(reader, start + QByteArray(80, 'x'), payloads, 100);
        QCOMPARE(reader.waiting(), 100);
        feed(reader, "y", payloads, 100);
        QCOMPARE(reader.waiting(), 0);
        feed(reader, frame(MessageType::FileData, QByteArray(500, 'z')), payloads, 100);
        QCOMPARE(payloads, QList<QByteArray>{QByteArray(500, 'z')});
    }
};

std::unique_ptr<QObject> makeFrameReaderTest()
{
    return std::make_unique<FrameReaderTest>();
}

#include "FrameReaderTest.moc"
