#include "PeerTest.h"
#include "TestFiles.h"

#include "peer/Pairing.h"
#include "peer/PeerTable.h"

#include <QBuffer>

/// What needs no socket: the cutting of a stream into frames, the handshake, and the table of peers.
class PeerRulesTest : public QObject
{
    Q_OBJECT

    FrameReader m_reader;
    QByteArrayList m_payloads; ///< what has come out
    PeerTable m_table;
    QDateTime m_now = QDateTime::currentDateTime();

    /// "hear ID IP SENDER", "find IP", "+SECONDS" or "check". What to tell the user: the id of a peer new or
    /// better known, and behind a minus that of a lost one.
    QStringList after(const QString &event)
    {
        const QStringList words = event.split(u' ') + QStringList(3, QString());
        PCInfo pc;
        pc.id = words[1];
        pc.ip = words[2];
        pc.senderIp = words[3];
        std::optional<PCInfo> news;
        QStringList lost;
        if (words[0] == "hear"_L1)
            news = m_table.hear(pc, m_now);
        else if (words[0] == "find"_L1)
            news = m_table.find(words[1], u"PC"_s, 7, m_now);
        else if (words[0] == "check"_L1)
            m_table.age(m_now);
        m_now = m_now.addSecs(words[0].toInt());
        for (const auto *row = m_table.overdue(); row; row = m_table.overdue()) {
            lost.append(u'-' + row->pc.id);
            m_table.giveUp(row->key);
        }
        return news ? QStringList(news->id) : lost;
    }

    /// Lets an event of a word and perhaps an argument happen; whether it was obeyed.
    static bool happens(Pairing &pairing, const QString &word, const QString &argument)
    {
        PCInfo pc;
        pc.name = argument;
        const std::map<QString, std::function<bool()>> events = {
            {u"dial"_s, [&] { return pairing.dialled(pc), true; }},
            {u"in"_s, [&] { return pairing.cameIn(), true; }},
            {u"end"_s, [&] { return pairing.ended(), true; }},
            {u"left"_s, [&] { return pairing.peerLeft(), true; }},
            {u"ask"_s, [&] { return pairing.asked(pc), true; }},
            {u"told-yes"_s, [&] { return pairing.toldYes(); }},
            {u"told-no"_s, [&] { return pairing.toldNo(); }},
            {u"yes"_s, [&] { return pairing.answerYes(argument.toULongLong()); }},
            {u"no"_s, [&] { return pairing.answerNo(argument.toULongLong()); }}};
        return events.at(word)();
    }

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
        m_table.clear();
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
            const QByteArrayList expected = {{}, "x",           someBytes(largest),
                                             {}, someBytes(20), someBytes(1'048'576)};
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

    void handshakes_data()
    {
        using enum Pairing::State;
        const auto row = addColumns<Pairing::State, QString>("state", "rest");
        // An x is before what is not obeyed. The rest: question, link, peer, whether an answer is awaited.
        row("ask A;xyes;xno;xtold-yes", Idle, u"0 0  -"_s);
        row("dial B", Dialling, u"0 0  ?"_s);
        row("dial B;told-yes;xtold-yes;xtold-no", Accepted, u"0 1 B -"_s);
        row("dial B;told-no;xtold-yes;xtold-no", Unpaired, u"0 0  -"_s);
        row("dial B;left", Dialling, u"0 0  ?"_s);
        row("in;ask A;xtold-yes;xtold-no", Unpaired, u"1 0  ?"_s);
        row("in;ask A;yes;xyes;xno", Accepted, u"0 1 A -"_s);
        row("in;ask A;no 1;xyes 1", Unpaired, u"0 0  -"_s);
        row("in;ask A;left;xyes", Unpaired, u"0 0  -"_s);
        row("in;ask A;end;in;xyes;xno", Unpaired, u"0 0  -"_s);
        row("in;ask A;in;ask B;xyes 1;xno 1;yes 2", Accepted, u"0 1 B -"_s);
        row("in;yes", Accepted, u"0 1  -"_s); // where nobody ever asked
        row("in;ask A;yes;ask C", Accepted, u"2 1 A ?"_s);
        row("in;ask A;yes;left;xtold-yes", Unpaired, u"0 0  -"_s);
        row("dial B;told-yes;end", Idle, u"0 0 B -"_s); // a pair beyond a failure
        row("dial B;told-yes;end;dial C;told-yes", Accepted, u"0 2 C -"_s);
    }
    void handshakes()
    {
        Pairing pairing;
        for (const QString &event : QString::fromLatin1(QTest::currentDataTag()).split(u';')) {
            const QString word = event.section(u' ', 0, 0);
            const bool obeyed = happens(pairing, word.section(u'x', -1), event.section(u' ', 1));
            QVERIFY2(obeyed != word.startsWith(u'x'), qPrintable(event));
        }
        QTEST(pairing.state(), "state");
        QTEST(u"%1 %2 %3 %4"_s.arg(QString::number(pairing.openQuestion()),
                                   QString::number(pairing.acceptedLink()), pairing.peer().name,
                                   pairing.isOpen() ? u"?"_s : u"-"_s),
              "rest");
    }

    void peers_data()
    {
        const auto row = addColumns<QString, QString>("told", "rows");
        row("hear pc A s;hear pc B t", u"pc"_s, u"pc B s"_s);
        row("hear c A s;hear d A s", u"c"_s, u"d A s"_s); // the address makes it the same one
        row("hear a  s;hear b  s", u"a b"_s, u"a  s,b  s"_s);
        row("find A;find A", u"A"_s, u"A A A"_s);
        row("find A;hear pc A s;hear pc A s", u"A pc"_s, u"pc A A"_s);
        row("hear pc A s;find s;find A", u"pc"_s, u"pc A s"_s);
        row("hear pc A s;+15;check;check;check", u"pc"_s, u"pc A s"_s);
        row("hear pc A s;+16;check;check;hear pc A s;+16;check;check", u"pc"_s, u"pc A s"_s);
        row("hear a  s;find A;hear b  s;+16;check;check;hear c A s;check", u"a A b c -b -a"_s, u"c A A"_s);
        // Two rows that have become one peer live, and go, as one.
        row("hear a A s;hear b B s;+16;hear b A s;check;check;check", u"a b"_s, u"b A s,b B s"_s);
        row("hear a A s;hear b B s;hear b A s;+16;check;check;check", u"a b -b"_s, {});
    }
    void peers()
    {
        QStringList told, rows;
        for (const QString &event : QString::fromLatin1(QTest::currentDataTag()).split(u';'))
            told += after(event);
        for (const PCInfo &pc : m_table.peers())
            rows.append(QStringList{pc.id, pc.ip, pc.senderIp}.join(u' '));
        QTEST(told.join(u' '), "told");
        QTEST(rows.join(u','), "rows");
    }

    void fullTableTakesRefreshesOnly()
    {
        for (int i = 0; i < 513; ++i)
            after(u"hear pc%1  "_s.arg(i));
        after(u"find A"_s);
        after(u"hear pc511 B s"_s);
        QCOMPARE(m_table.peers().size(), 512);
        QCOMPARE(m_table.peers().last().ip, u"B"_s);
    }
};

ZANDROVE_TEST(PeerRulesTest)
#include "PeerRulesTest.moc"
