#include "PipelineTests.h"

#include "pipeline/Aftermath.h"
#include "pipeline/RunInbox.h"
#include "pipeline/SendPhases.h"

using Protocol::MessageType;

/// What decides the order of a run, without threads and sockets.
class RunRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lanesEndARunInAnyOrder_data()
    {
        // Events: q an application's file is queued, p packed, l a list is through, s settings through.
        // Actions: F send the applications' files, E send their held ends, C complete.
        const auto row =
            addColumns<bool, bool, QString, QString>("withApps", "withSettings", "events", "actions");
        row("nothing selected", false, false, u"l"_s, u"C"_s);
        row("settings last", false, true, u"ls"_s, u"-C"_s);
        row("settings first", false, true, u"sl"_s, u"-C"_s);
        row("packed first", true, false, u"qpll"_s,
            u"--F"
            u"EC"_s);
        row("packed last", true, false, u"lqpl"_s,
            u"--F"
            u"EC"_s);
        row("settings behind the applications", true, true, u"qplls"_s, u"--FEC"_s);
        row("all of the applications' files gone, packed first", true, false, u"pl"_s, u"-C"_s);
        row("all of the applications' files gone, packed last", true, true, u"lsp"_s, u"--C"_s);
    }
    void lanesEndARunInAnyOrder()
    {
        QFETCH(bool, withApps);
        QFETCH(bool, withSettings);
        QFETCH(QString, events);
        SendPhases phases(withApps, withSettings);
        QString done;
        for (const QChar event : std::as_const(events)) {
            SendPhases::Actions actions;
            if (event == u'q')
                phases.appFileAnnounced(true);
            else
                actions = event == u'p'   ? phases.packed()
                          : event == u'l' ? phases.listThrough()
                                          : phases.settingsThrough();
            const QString what = (actions.sendAppFiles ? u"F"_s : u""_s) +
                                 (actions.sendHeldEnds ? u"E"_s : u""_s) +
                                 (actions.complete ? u"C"_s : u""_s);
            done += what.isEmpty() ? u"-"_s : what;
        }
        QTEST(done, "actions");
    }

    void messagesWaitForTheRunInFront_data()
    {
        using Type = MessageType;
        const auto row = addColumns<RunState, bool, Type, bool>("run", "paused", "type", "waits");
        row("idle", RunState::None, false, Type::TransferStart, false);
        row("a second list", RunState::On, false, Type::TransferStart, false);
        row("a run behind one that is worked off", RunState::WorkingOff, false, Type::TransferStart, true);
        row("a reset behind settings", RunState::Settling, false, Type::TransferReset, true);
        row("files", RunState::WorkingOff, false, Type::FileData, false);
        row("the end of the session", RunState::WorkingOff, false, Type::SessionEnd, true);
        row("the end of the session, paused", RunState::WorkingOff, true, Type::SessionEnd, false);
        row("the end of the session behind settings", RunState::Settling, false, Type::SessionEnd, false);
        row("pause", RunState::WorkingOff, false, Type::TransferPause, false);
    }
    void messagesWaitForTheRunInFront()
    {
        QFETCH(RunState, run);
        QFETCH(bool, paused);
        QFETCH(MessageType, type);
        RunInbox inbox;
        QTEST(inbox.keep(type, {}, run, paused), "waits");
    }

    void whatWaitsKeepsItsOrder()
    {
        RunInbox inbox;
        QVERIFY(inbox.keep(MessageType::TransferReset, "1", RunState::WorkingOff, false));
        QVERIFY(inbox.keep(MessageType::TransferStart, "2", RunState::WorkingOff, false));
        QVERIFY(inbox.keep(MessageType::FileHeader, "3", RunState::Settling, false));
        QVERIFY(!inbox.take(RunState::WorkingOff));
        QVERIFY(!inbox.take(RunState::Settling));
        QByteArray order;
        while (const auto message = inbox.take(RunState::None))
            order += message->payload;
        QCOMPARE(order, "123");
        QVERIFY(!inbox.drop());
        QVERIFY(inbox.keep(MessageType::SessionEnd, {}, RunState::WorkingOff, false));
        QVERIFY2(inbox.drop(), "the end of the session was lost");
    }

    void whatWasSentIsConfirmedByWordAlone_data()
    {
        // Before the run is over, and behind it: a the New PC is through ahead, s it is through, l another
        // link, x the link breaks, c the New PC calls off.
        const auto row =
            addColumns<int, QString, QString, int>("settings", "before", "behind", "notConfirmed");
        row("broken", 2, {}, u"x"_s, 2);
        row("called off", 2, {}, u"c"_s, 2);
        row("through, then broken", 2, {}, u"sx"_s, 0);
        row("through before the run is over", 2, u"a"_s, u"x"_s, 0);
        row("through with the run before", 2, u"s"_s, u"x"_s, 2);
        row("told once", 2, {}, u"xx"_s, 2);
        row("broken on another link", 2, {}, u"lx"_s, 0);
        row("files alone", 0, {}, u"x"_s, 0);
    }
    void whatWasSentIsConfirmedByWordAlone()
    {
        QFETCH(int, settings);
        QFETCH(QString, before);
        QFETCH(QString, behind);
        RunSummary summary;
        summary.end = RunEnd::Complete;
        summary.settings.arrived = settings;
        summary.items.fill({ItemKind::Setting, ItemOutcome::Arrived, u"x"_s, {}, 0}, settings);
        Aftermath aftermath;
        for (const QChar event : std::as_const(before))
            aftermath.settled(event == u'a');
        aftermath.begin(summary, 1);
        QList<RunSummary> told;
        for (const QChar event : std::as_const(behind)) {
            const auto how = event == u'x' ? RunEnd::LinkLost : RunEnd::CancelledThere;
            if (event == u's')
                aftermath.settled(false);
            else if (event == u'l')
                aftermath.noteLink(2);
            else if (const auto revised = aftermath.cutOff(how))
                told.append(*revised);
        }
        QTEST(told.isEmpty() ? 0 : told.constFirst().settings.notConfirmed, "notConfirmed");
        QCOMPARE(told.isEmpty() ? 0 : told.constFirst().notArrived.size(), told.size() * settings);
        QVERIFY(told.size() <= 1);
    }
};

ZANDROVE_TEST(RunRulesTest)
#include "RunRulesTest.moc"
