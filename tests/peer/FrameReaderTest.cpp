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

    void cutsFramesHoweverTheStreamIsSplit()
    {
        // Small pieces, and payloads that grow in steps.
        for (const auto &[piece, largest] : std::initializer_list<std::pair<qsizetype, qsizetype>>{
                 {1, 700}, {19, 700}, {20, 700}, {21, 700}, {4099, 5'000'001}, {100'000'000, 5'000'001}}) {
            init();
            const QByteArrayList expected = {{}, "x", pattern(largest), {}, pattern(20), pattern(1'048'576)};
            QByteArray stream;
            for (const QByteArray &payload : expected)
                stream += frame(MessageType(999), payload);
            for (qsizetype at = 0; at < stream.size(); at += piece)
                feed(stream.mid(at, piece));
            QVERIFY2(m_payloads == expected && m_reader.waiting() == 0, qPrintable(QString::number(piece)));
        }
    }

    void badHeaderCostsAllThatIsReadable()
    {
        // A wrong magic, and sizes of 0, 19, the smallest negative number and -1.
        for (const QByteArray &bad :
             {header(0x5A445257, 50, 0), header(Protocol::Magic, 50, 0xFFFFFFEC),
              header(Protocol::Magic, 50, 0xFFFFFFFF), header(Protocol::Magic, 50, 0x7FFFFFEC),
              header(Protocol::Magic, 50, 0xFFFFFFEB)}) {
            init();
            feed(frame(MessageType::FileData, "before"_ba) + bad.first(17));
            QCOMPARE(m_reader.waiting(), 17);
            feed(bad.mid(17) + frame(MessageType::FileData, "lost"_ba));
            QCOMPARE(m_reader.waiting(), 0);
            feed(frame(MessageType::FileData, "after"_ba));
            QCOMPARE(m_payloads, (QByteArrayList{"before", "after"}));
        }
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
