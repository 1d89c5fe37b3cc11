#include "PeerTest.h"

#include <QBuffer>

namespace {

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

    FrameReader m_reader;
    QByteArrayList m_payloads; ///< what has come out

    /// Gives `bytes` to the reader as one read of a socket.
    void feed(const QByteArray &bytes, qsizetype limit = FrameReader::NoLimit)
    {
        QBuffer source;
        source.setData(bytes);
        source.open(QIODevice::ReadOnly);
        while (const auto next = m_reader.read(source, limit))
            m_payloads.append(next->payload);
    }

private Q_SLOTS:
    void init()
    {
        m_reader = FrameReader();
        m_payloads.clear();
    }

    void buildsTheStatedBytes()
    {
        QCOMPARE(Protocol::buildFrame(MessageType::FileData, "\x01\x02"_ba, 0xFFFFFF02).toHex(),
                 "5a4452560001003200000002ffffff02000000080102"_ba);
    }

    void cutsFramesHoweverTheStreamIsSplit_data()
    {
        addColumns<qsizetype, qsizetype>("piece", "largest");
        for (const qsizetype piece : {1, 19, 20, 21})
            QTest::addRow("pieces of %d", int(piece)) << piece << qsizetype(700);
        QTest::newRow("pieces of 4099, payload grown in steps") << qsizetype(4099) << qsizetype(5'000'001);
        QTest::newRow("one piece") << qsizetype(100'000'000) << qsizetype(5'000'001);
    }
    void cutsFramesHoweverTheStreamIsSplit()
    {
        QFETCH(qsizetype, piece);
        QFETCH(qsizetype, largest);
        const QByteArrayList expected = {{}, "x", pattern(largest), {}, pattern(20), pattern(1'048'576)};
        QByteArray stream;
        for (const QByteArray &payload : expected)
            stream += frame(MessageType(999), payload);
        for (qsizetype at = 0; at < stream.size(); at += piece)
            feed(stream.mid(at, piece));
        QVERIFY(m_payloads == expected);
        QCOMPARE(m_reader.waiting(), 0);
    }

    void badHeaderCostsAllThatIsReadable_data()
    {
        addColumns<QByteArray>("bad");
        QTest::newRow("wrong magic") << header(0x5A445257, 50, 0);
        QTest::newRow("total 0") << header(Protocol::Magic, 50, 0xFFFFFFEC);
        QTest::newRow("total 19") << header(Protocol::Magic, 50, 0xFFFFFFFF);
        QTest::newRow("smallest negative total") << header(Protocol::Magic, 50, 0x7FFFFFEC);
        QTest::newRow("total -1") << header(Protocol::Magic, 50, 0xFFFFFFEB);
    }
    void badHeaderCostsAllThatIsReadable()
    {
        QFETCH(QByteArray, bad);
        feed(frame(MessageType::FileData, "before"_ba) + bad.first(17));
        QCOMPARE(m_reader.waiting(), 17);
        feed(bad.mid(17) + frame(MessageType::FileData, "lost"_ba));
        QCOMPARE(m_reader.waiting(), 0);
        feed(frame(MessageType::FileData, "after"_ba));
        QCOMPARE(m_payloads, (QByteArrayList{"before", "after"}));
    }

    void unfinishedFrameIsDroppedAboveTheLimitOnly()
    {
        feed(header(Protocol::Magic, 50, 0x7FFFFFEB) + QByteArray(80, 'x'), 100);
        QCOMPARE(m_reader.waiting(), 100);
        feed("y", 100);
        QCOMPARE(m_reader.waiting(), 0);
        feed(frame(MessageType::FileData, QByteArray(500, 'z')), 100);
        QCOMPARE(m_payloads, QByteArrayList{QByteArray(500, 'z')});
    }
};

ZANDROVE_TEST(FrameReaderTest)
#include "FrameReaderTest.moc"
