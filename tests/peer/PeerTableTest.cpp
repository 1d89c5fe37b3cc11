#include "PeerTest.h"

#include "peer/PeerTable.h"
#include "support/PeerChoice.h"

class PeerTableTest : public QObject
{
    Q_OBJECT

    std::optional<PeerTable> m_table;
    QDateTime m_now = QDateTime::currentDateTime();
    QStringList m_told; ///< what to tell the user: "ID" of a peer new or better known, "-ID" of a lost one

    void hear(const QString &id, const QString &code, const QString &sender)
    {
        PCInfo pc;
        pc.id = id;
        pc.verifyCode = code;
        pc.senderIp = sender;
        tell(m_table->hear(pc, m_now));
    }
    void tell(const std::optional<PCInfo> &news)
    {
        for (const PCInfo &pc : m_table->takeDisplaced())
            m_told.append(u'-' + pc.id);
        if (news)
            m_told.append(news->id);
    }
    void check()
    {
        m_table->age(m_now);
        while (const auto *row = m_table->overdue()) {
            m_told.append(u'-' + row->pc.id);
            m_table->giveUp(row->pc.key);
        }
    }
    /// "hear ID CODE SENDER", "find IP", "+SECONDS" or "check".
    void run(const QString &event)
    {
        const QStringList words = event.split(u' ');
        if (words[0] == "hear"_L1)
            hear(words[1], words[2], words[3]);
        else if (words[0] == "find"_L1)
            tell(m_table->find(words[1], u"PC"_s, 7, m_now));
        else if (words[0] == "check"_L1)
            check();
        else
            m_now = m_now.addSecs(words[0].toInt());
    }
    void fill(int count, const QString &idOf, const QString &senderOf)
    {
        for (int i = 0; i < count; ++i)
            hear(idOf.arg(i), {}, senderOf.contains(u'%') ? senderOf.arg(i) : senderOf);
    }

private Q_SLOTS:
    void init()
    {
        m_table.emplace();
        m_told.clear();
    }

    void rules_data()
    {
        addColumns<QString, QString, QString>("events", "told", "rows");
        const auto row = [](const QString &events, const QString &told, const QString &rows) {
            QTest::newRow(qPrintable(events)) << events << told << rows;
        };
        // One id and one code is one peer: a new address leads, a known one once the leading one is silent.
        row(u"hear pc 1 A;hear pc 1 B;hear pc 1 A"_s, u"pc pc"_s, u"pc 1 B,A"_s);
        row(u"hear pc 1 A;+1;hear pc 1 B;+3;hear pc 1 A"_s, u"pc pc pc"_s, u"pc 1 A,B"_s);
        row(u"hear pc 1 A;hear pc 1 B;hear pc 1 C;+1;hear pc 1 A"_s, u"pc pc pc"_s, u"pc 1 C,A,B"_s);
        row(u"hear pc 1 A;hear pc 1 B;hear pc 1 C;hear pc 1 D;hear pc 1 E"_s, u"pc pc pc pc pc"_s,
            u"pc 1 E,D,C,B"_s);
        row(u"hear pc 1 A;+31;hear pc 1 B;check"_s, u"pc pc"_s, u"pc 1 B"_s);
        // Another code elsewhere is another peer; at the same address it is a fresh one of the same peer.
        row(u"hear pc 1 A;hear pc 2 B"_s, u"pc pc"_s, u"pc 1 A;pc 2 B"_s);
        row(u"hear pc 1 A;hear pc 1 B;hear pc 2 A"_s, u"pc pc pc"_s, u"pc 2 A"_s);
        row(u"hear pc 1 A;hear pc 2 B;hear pc 2 A"_s, u"pc pc -pc pc"_s, u"pc 2 A,B"_s);
        row(u"hear a 1 A;hear b 1 A"_s, u"a b"_s, u"a 1 A;b 1 A"_s);
        // What the sweep has found gets its name from the first datagram.
        row(u"find A;find A"_s, u"A"_s, u"A  A"_s);
        row(u"find A;hear pc 1 A;hear pc 1 A;find A"_s, u"A pc"_s, u"pc 1 A"_s);
        row(u"hear pc 1 A;find B;hear pc 1 B"_s, u"pc B -B pc"_s, u"pc 1 B,A"_s);
        row(u"hear pc 1 A;+15;check;check;check"_s, u"pc"_s, u"pc 1 A"_s);
        row(u"hear pc 1 A;+16;check;check;hear pc 1 A;+16;check;check"_s, u"pc"_s, u"pc 1 A"_s);
        row(u"hear a 1 A;hear a 2 B;find C;+16;check;check;hear a 2 B;check"_s, u"a a C -C -a"_s, u"a 2 B"_s);
    }
    void rules()
    {
        QFETCH(QString, events);
        for (const QString &event : events.split(u';'))
            run(event);
        QStringList rows;
        for (const PCInfo &pc : m_table->peers()) {
            const auto ips = m_table->addressesOf(*m_table->rowOf(pc.key, {}));
            QCOMPARE(pc.ip, ips.first());
            rows.append(QStringList{pc.id, pc.verifyCode, ips.join(u',')}.join(u' '));
        }
        QTEST(m_told.join(u' '), "told");
        QTEST(rows.join(u';'), "rows");
    }

    void nobodyCrowdsOutTheOthers()
    {
        hear(u"dialled"_s, {}, u"A"_s);
        m_table->noteDialled(m_table->rowAt(u"A"_s)->pc.key);
        fill(20, u"many%1"_s, u"B"_s);
        QCOMPARE(m_table->peers().size(), 17);
        fill(495, u"pc%1"_s, u"C%1"_s);
        m_told.clear();
        m_now = m_now.addSecs(1);
        hear(u"many0"_s, {}, u"B"_s);
        hear(u"real"_s, {}, u"R"_s);
        QCOMPARE(m_told.join(u' '), u"-many1 real"_s);
        fill(14 + 495 + 10, u"late%1"_s, u"D%1"_s);
        QVERIFY(m_table->rowAt(u"A"_s) && m_table->rowAt(u"B"_s) == nullptr);
        QCOMPARE(m_table->peers().size(), 512);
    }

    void pcsOfOneCodeAtDifferentAddressesAreSeveral()
    {
        for (const QString &event : {u"hear a 1 A"_s, u"hear b 2 B"_s, u"+1"_s, u"hear a2 1 A"_s})
            run(event);
        QCOMPARE(peersWithCode(m_table->peers(), u"1"_s), QList{m_table->peers().last()});
        hear(u"c"_s, u"1"_s, u"C"_s);
        QCOMPARE(peersWithCode(m_table->peers(), u"1"_s).size(), 2);
    }

    void pcOfTheSameRoleIsToldEveryFiveSeconds()
    {
        QString told;
        for (int second = 0; second < 12; ++second)
            told += m_table->hearSameRole(u"pc"_s, m_now.addSecs(second)) ? u'x' : u'.';
        QCOMPARE(told, u"x....x....x."_s);
    }
};

ZANDROVE_TEST(PeerTableTest)
#include "PeerTableTest.moc"
