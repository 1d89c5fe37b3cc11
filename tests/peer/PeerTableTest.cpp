#include "PeerTest.h"

#include "peer/PeerTable.h"

class PeerTableTest : public QObject
{
    Q_OBJECT

    PeerTable m_table;
    QDateTime m_now = QDateTime::currentDateTime();
    QStringList m_told; ///< what to tell the user: "ID" of a peer new or better known, "-ID" of a lost one

    void hear(const QString &id, const QString &ip = {}, const QString &sender = {})
    {
        PCInfo pc;
        pc.id = id;
        pc.ip = ip;
        pc.senderIp = sender;
        tell(m_table.hear(pc, m_now));
    }
    void tell(const std::optional<PCInfo> &news)
    {
        if (news)
            m_told.append(news->id);
    }
    void check()
    {
        m_table.age(m_now);
        while (const auto *row = m_table.overdue()) {
            m_told.append(u'-' + row->pc.id);
            m_table.giveUp(row->key);
        }
    }
    /// "hear ID IP SENDER", "find IP", "+SECONDS" or "check".
    void run(const QString &event)
    {
        const QStringList words = event.split(u' ');
        if (words[0] == "hear"_L1)
            hear(words[1], words[2], words[3]);
        else if (words[0] == "find"_L1)
            tell(m_table.find(words[1], u"PC"_s, 7, m_now));
        else if (words[0] == "check"_L1)
            check();
        else
            m_now = m_now.addSecs(words[0].toInt());
    }

private Q_SLOTS:
    void rules_data()
    {
        addColumns<QString, QString, QString>("events", "told", "rows");
        const auto row = [](const QString &events, const QString &told, const QString &rows) {
            QTest::newRow(qPrintable(events)) << events << told << rows;
        };
        row(u"hear pc A s;hear pc B t"_s, u"pc"_s, u"pc B s"_s);
        row(u"hear c A s;hear d A s"_s, u"c"_s, u"d A s"_s); // the address makes it the same one
        row(u"hear a  s;hear b  s"_s, u"a b"_s, u"a  s,b  s"_s);
        row(u"find A;find A"_s, u"A"_s, u"A A A"_s);
        row(u"find A;hear pc A s;hear pc A s"_s, u"A pc"_s, u"pc A A"_s);
        row(u"hear pc A s;find s;find A"_s, u"pc"_s, u"pc A s"_s);
        row(u"hear pc A s;+15;check;check;check"_s, u"pc"_s, u"pc A s"_s);
        row(u"hear pc A s;+16;check;check;hear pc A s;+16;check;check"_s, u"pc"_s, u"pc A s"_s);
        row(u"hear a  s;find A;hear b  s;+16;check;check;hear c A s;check"_s, u"a A b c -b -a"_s, u"c A A"_s);
        // Two rows that have become one peer live, and go, as one.
        row(u"hear a A s;hear b B s;+16;hear b A s;check;check;check"_s, u"a b"_s, u"b A s,b B s"_s);
        row(u"hear a A s;hear b B s;hear b A s;+16;check;check;check"_s, u"a b -b"_s, {});
    }
    void rules()
    {
        m_table.clear();
        m_told.clear();
        QFETCH(QString, events);
        for (const QString &event : events.split(u';'))
            run(event);
        QStringList rows;
        for (const PCInfo &pc : m_table.peers())
            rows.append(QStringList{pc.id, pc.ip, pc.senderIp}.join(u' '));
        QTEST(m_told.join(u' '), "told");
        QTEST(rows.join(u','), "rows");
    }

    void fullTableTakesRefreshesOnly()
    {
        m_table.clear();
        for (int i = 0; i < 513; ++i)
            hear(u"pc%1"_s.arg(i));
        run(u"find A"_s);
        hear(u"pc511"_s, u"B"_s);
        QCOMPARE(m_table.peers().size(), 512);
        QCOMPARE(m_table.peers().last().ip, u"B"_s);
    }
};

ZANDROVE_TEST(PeerTableTest)
#include "PeerTableTest.moc"
