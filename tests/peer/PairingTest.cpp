#include "PeerTest.h"

#include "peer/Pairing.h"

class PairingTest : public QObject
{
    Q_OBJECT

    /// Lets an event of one word, or of a word and an argument, happen; whether it was obeyed.
    static bool happens(Pairing &pairing, const QString &event)
    {
        const QString argument = event.section(u' ', 1);
        PCInfo pc;
        pc.name = argument;
        const std::map<QString, std::function<bool()>> events = {
            {u"dial"_s, [&] { return pairing.dialled(pc), true; }},
            {u"in"_s, [&] { return pairing.admitted(pc), true; }},
            {u"end"_s, [&] { return pairing.ended(), true; }},
            {u"left"_s, [&] { return pairing.peerLeft(), true; }},
            {u"told-yes"_s, [&] { return pairing.toldYes(u"10.0.0.1"_s); }},
            {u"told-no"_s, [&] { return pairing.toldNo(); }}};
        return events.at(event.section(u' ', 0, 0))();
    }

private Q_SLOTS:
    void handshakes_data()
    {
        using enum Pairing::State;
        addColumns<QString, Pairing::State, QString>("events", "state", "rest");
        // An event behind an x is not obeyed. The rest: link and peer.
        const auto row = [](const QString &events, Pairing::State state, const QString &rest) {
            QTest::newRow(qPrintable(events)) << events << state << rest;
        };
        row(u"xtold-yes;xtold-no"_s, Idle, u"0 "_s);
        row(u"dial B;told-yes;xtold-yes;xtold-no"_s, Accepted, u"1 B"_s);
        row(u"dial B;told-no;xtold-yes;xtold-no"_s, Unpaired, u"0 "_s);
        row(u"dial B;left"_s, Dialling, u"0 "_s);
        row(u"in A;xtold-yes;xtold-no"_s, Accepted, u"1 A"_s);
        row(u"in A;left;xtold-yes"_s, Unpaired, u"0 "_s);
        row(u"dial B;told-yes;end"_s, Idle, u"0 B"_s); // a pair beyond a failure
        row(u"dial B;told-yes;end;in C"_s, Accepted, u"2 C"_s);
    }
    void handshakes()
    {
        QFETCH(QString, events);
        Pairing pairing;
        for (const QString &event : events.split(u';')) {
            const bool obeyed = !event.startsWith(u'x');
            QVERIFY2(happens(pairing, event.mid(obeyed ? 0 : 1)) == obeyed, qPrintable(event));
        }
        QTEST(pairing.state(), "state");
        QTEST(u"%1 %2"_s.arg(QString::number(pairing.acceptedLink()), pairing.peer().name), "rest");
    }
};

ZANDROVE_TEST(PairingTest)
#include "PairingTest.moc"
