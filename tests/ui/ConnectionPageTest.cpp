#include "SilentEngine.h"
#include "TestMain.h"

#include "peer/NetworkManager.h"
#include "peer/Protocol.h"
#include "ui/pages/ConnectionPage.h"
#include "ui/widgets/NoticeBar.h"
#include "ui/widgets/PCListItem.h"
#include "ui/widgets/RadarWidget.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStackedWidget>
#include <QTcpSocket>
#include <QTimer>

#include <algorithm>
#include <memory>

using Protocol::MessageType;

/// The page on a real engine, with bare sockets for the PCs that dial it.
class ConnectionPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_engine = std::make_unique<TransferEngine>(nullptr, silentEnvironment());
        m_page = std::make_unique<ConnectionPage>(m_engine.get());
        m_page->show();
        QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    }

    void cleanup()
    {
        m_page.reset();
        m_engine.reset();
    }

    void rowsFollowThePeers()
    {
        discover(1, u"ANNA"_s);
        discover(2, u"10.0.0.2"_s, false);
        QCOMPARE(status(), u"2 device(s) found, 1 online"_s);
        QVERIFY(isShown(u"devicesTitle"_s) && !m_page->findChild<RadarWidget *>()->isRunning());

        const QSignalSpy dialled(m_engine.get(), &TransferEngine::connecting);
        QTest::mouseClick(rows()[1], Qt::LeftButton);
        QVERIFY2(dialled.isEmpty() && !rows()[1]->isSelected(), "not online");
        QTest::mouseClick(rows()[0], Qt::LeftButton);
        QVERIFY(dialled.size() == 1 && rows()[0]->isSelected());
        QCOMPARE(status(), u"✗ Connection failed: PC not found"_s);

        // What the sweep has found by its address is heard at last.
        discover(2, u"BOB"_s);
        QCOMPARE(rows().size(), 2);
        Q_EMIT m_engine->pcLost(u"ANNA"_s, 1);
        QCOMPARE(status(), u"1 device(s) found, 1 online"_s);
        Q_EMIT m_engine->pcLost(u"BOB"_s, 2);
        QVERIFY(rows().isEmpty() && isSearching());
    }

    void codeNeedsFourCharacters()
    {
        auto *connectButton = m_page->findChild<QPushButton *>(u"connectButton"_s);
        const QList<QLineEdit *> edits = m_page->findChildren<QLineEdit *>();
        edits[0]->setFocus();
        QTest::keyClick(edits[0], Qt::Key_Backspace);
        QVERIFY2(edits[0]->hasFocus(), "there is no box before the first");
        for (const char typed : {'1', 'a', '3'})
            QTest::keyClick(QApplication::focusWidget(), typed);
        QVERIFY(edits[3]->hasFocus() && !connectButton->isEnabled());
        QTest::keyClick(edits[3], Qt::Key_Backspace);
        QVERIFY2(edits[2]->hasFocus(), "Backspace goes back from an empty box");
        edits[3]->setText(u"4"_s);
        QVERIFY(connectButton->isEnabled() && connectButton->hasFocus());
        connectButton->click();
        QVERIFY(isShown(u"statusLabel"_s));
        QCOMPARE(status(), u"✗ Connection failed: No PC found with verification code: 1a34"_s);
        edits[1]->clear();
        QVERIFY(!connectButton->isEnabled());
    }

    void answerGoesToWhoAsked()
    {
        const QSignalSpy established(m_page.get(), &ConnectionPage::connectionEstablished);
        discover(1, u"OTHER"_s);
        for (const bool yes : {false, true}) {
            const auto anna = dial(u"ANNA"_s);
            QVERIFY(anna && question());
            QCOMPARE(question()->text(), u"'ANNA' wants to connect to this PC.\n\nDo you want to accept?"_s);
            QVERIFY(question()->informativeText().contains(anna->localAddress().toString()));
            QCOMPARE(status(), u"Connection request from ANNA..."_s);
            answer(yes ? QMessageBox::Yes : QMessageBox::No);
            QTRY_VERIFY(anna->bytesAvailable() >= Protocol::HeaderSize);
            QCOMPARE(Protocol::readHeader(anna->readAll())->type,
                     quint16(yes ? MessageType::ConnectAccept : MessageType::ConnectReject));
            QVERIFY2(isShown(u"devicesTitle"_s) && rows()[0]->isVisible(), "the list is there at once");
            QCOMPARE(established.size(), yes ? 2 : 0);
        }
        QCOMPARE(status() + text(u"devicesTitle"_s), u"✓ Connected to ANNAConnected"_s);
        QVERIFY(!isShown(u"refreshButton"_s));
    }

    void askersAreShownAsPlainShortText()
    {
        const auto caller = dial(u"<img src='file:///x'>\\n"_s + QString(300, u'W'));
        QVERIFY(caller && question());
        QCOMPARE(question()->textFormat(), Qt::PlainText);
        QCOMPARE(m_page->findChild<QLabel *>(u"statusLabel"_s)->textFormat(), Qt::PlainText);
        QCOMPARE(question()->text().count(u'\n'), 2);
        QVERIFY(question()->width() < m_page->window()->width());
        m_page.reset();
        QVERIFY2(!QApplication::activeModalWidget(), "the question goes with the page");
    }

    /// What was meant for the page, or for the dialog before, is no answer.
    void questionIsDeafAtFirst()
    {
        QElapsedTimer clock;
        clock.start();
        const auto anna = dial(u"ANNA"_s);
        QVERIFY(anna && question());
        const QPointer<QMessageBox> box = question();
        for (const QMessageBox::StandardButton each : {QMessageBox::Yes, QMessageBox::No})
            QTest::mouseClick(box->button(each), Qt::LeftButton);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape})
            QTest::keyClick(box, key);
        QTest::keyClick(box, Qt::Key_Y, Qt::AltModifier);
        box->close();
        QVERIFY(box && box->isVisible() && !m_engine->openQuestions().isEmpty());
        QTRY_VERIFY(box->button(QMessageBox::Yes)->isEnabled());
        QVERIFY(clock.elapsed() >= 700);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY2(m_engine->openQuestions().isEmpty() && !m_engine->isConnected(), "Enter is no yes");
    }

    void oneQuestionAtATime()
    {
        auto anna = dial(u"ANNA"_s);
        QVERIFY(anna && question());
        const auto bob = dial(u"BOB"_s);
        const auto carl = dial(u"CARL"_s);
        QVERIFY(bob && carl);
        QCOMPARE(m_page->findChildren<QMessageBox *>().size(), 1);
        QCOMPARE(status(), u"Connection request from ANNA..."_s);
        anna.reset();
        QTRY_VERIFY2(question() && question()->text().contains(u"BOB"_s), "one that has left asks no more");
        answer(QMessageBox::No);
        QVERIFY(question() && question()->text().contains(u"CARL"_s));
        const QSignalSpy connected(m_engine.get(), &TransferEngine::connected);
        answer(QMessageBox::Yes);
        QCOMPARE(connected.size(), 1);
        QCOMPARE(m_engine->connectedPC().name, u"CARL"_s);
        QVERIFY(!QApplication::activeModalWidget());
    }

    void questionGoesWithItsAsker()
    {
        const QSignalSpy established(m_page.get(), &ConnectionPage::connectionEstablished);
        auto anna = dial(u"ANNA"_s);
        QVERIFY(anna && question());
        anna.reset();
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QVERIFY(established.isEmpty());
        QCOMPARE(status(), u"The other PC is no longer waiting"_s);
        QVERIFY(isShown(u"refreshButton"_s) && m_page->findChild<RadarWidget *>()->isRunning());
    }

    void silenceIsSpokenOf()
    {
        auto *bar = m_page->findChild<NoticeBar *>();
        Q_EMIT m_engine->sameRolePeer(u"OLDBOX"_s);
        QCOMPARE(bar->text(), u"OLDBOX is here too, but also as Old PC: choose New PC on one of the two"_s);
        Q_EMIT m_engine->portTaken(TcpPort, u"Acme"_s);
        QVERIFY(bar->text().startsWith(u"Port 52024 is taken by Acme, "_s));
        bar->findChild<QPushButton *>()->click();
        QVERIFY(bar->text().isEmpty());

        m_page->findChild<QTimer *>(u"hintTimer"_s)->start(0);
        const auto hints = [this] {
            return seesText(u"Nobody found yet. Please check, the likeliest first:"_s);
        };
        QTRY_VERIFY(hints());
        discover(1, u"ANNA"_s);
        QVERIFY(!hints());
        Q_EMIT m_engine->waitingForAnswer(u"ANNA"_s);
        discover(2, u"BOB"_s);
        QCOMPARE(status(), u"Waiting for ANNA: somebody has to press Yes there"_s);
        Q_EMIT m_engine->connectionFailed(u"Connection rejected"_s);
        QVERIFY(status().endsWith(u"Connection rejected"_s) && rows()[0]->isVisible());
    }

    void addressByHand_data()
    {
        addColumns<QString, QString>("entered", "told");
        const QString form = u"An address has four numbers from 0 to 255, such as 192.168.1.23."_s;
        const QString own = u"This is the address of this PC."_s;
        for (const char *wrong : {"192.168.1", "1.2.3.256", "12"})
            QTest::newRow(wrong) << QString::fromLatin1(wrong) << form;
        QTest::newRow("own") << u" 127.0.0.1 "_s << own;
        QTest::newRow("own by name") << u"localhost"_s << own;
        QTest::newRow("everybody") << u"255.255.255.255"_s << u"This is not the address of one PC."_s;
        QTest::newRow("IPv6") << u"fe80::1"_s << u"Only IPv4 addresses work here, such as 192.168.1.23."_s;
        QTest::newRow("no name") << u"a/b"_s << u"This is neither an address nor the name of a PC."_s;
    }

    void addressByHand()
    {
        QFETCH(QString, entered);
        QFETCH(QString, told);
        m_page->findChild<QPushButton *>(u"addressLink"_s)->click();
        auto *field = m_page->findChild<QLineEdit *>(u"addressField"_s);
        QTRY_VERIFY(field->hasFocus());
        QTest::keyClicks(field, entered);
        QTest::keyClick(field, Qt::Key_Return);
        QTRY_COMPARE(text(u"addressMessage"_s), told);
        field->clear();
        QVERIFY(!isShown(u"addressMessage"_s));
    }

private:
    void discover(quint64 key, const QString &name, bool online = true) const
    {
        PCInfo pc;
        pc.id = pc.name = name;
        pc.key = key;
        pc.online = online;
        Q_EMIT m_engine->pcDiscovered(pc);
    }

    [[nodiscard]] std::unique_ptr<QTcpSocket> dial(const QString &name) const
    {
        auto socket = std::make_unique<QTcpSocket>();
        static int lastHost = 2;
        socket->bind(QHostAddress(u"127.0.0.%1"_s.arg(++lastHost))); // each one another PC
        socket->connectToHost(QHostAddress::LocalHost, m_engine->findChild<NetworkManager *>()->serverPort());
        QSignalSpy requests(m_engine.get(), &TransferEngine::connectionRequested);
        socket->write(
            Protocol::buildFrame(MessageType::ConnectRequest, "{\"name\":\"" + name.toUtf8() + "\"}", 1));
        return requests.wait() ? std::move(socket) : nullptr;
    }

    /// The box that asks the user, once it is there.
    [[nodiscard]] static QMessageBox *question()
    {
        (void)QTest::qWaitFor([] { return QApplication::activeModalWidget(); });
        return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    }

    static void answer(QMessageBox::StandardButton button)
    {
        QAbstractButton *const chosen = question()->button(button);
        QTRY_VERIFY(chosen->isEnabled());
        chosen->click();
    }

    [[nodiscard]] QString text(const QString &label) const
    {
        return m_page->findChild<QLabel *>(label)->text();
    }
    [[nodiscard]] bool seesText(const QString &wanted) const
    {
        const QList<QLabel *> labels = m_page->findChildren<QLabel *>();
        return std::any_of(labels.cbegin(), labels.cend(), [&wanted](const QLabel *label) {
            return label->isVisible() && label->text() == wanted;
        });
    }
    [[nodiscard]] QString status() const { return text(u"statusLabel"_s); }
    [[nodiscard]] bool isShown(const QString &name) const
    {
        return m_page->findChild<QWidget *>(name)->isVisible();
    }
    [[nodiscard]] QList<PCListItem *> rows() const { return m_page->findChildren<PCListItem *>(); }
    [[nodiscard]] bool isSearching() const
    {
        return m_page->findChild<QStackedWidget *>(u"contentStack"_s)->currentIndex() == 0 &&
               m_page->findChild<RadarWidget *>()->isRunning() && !isShown(u"devicesTitle"_s) &&
               !isShown(u"statusLabel"_s);
    }

    std::unique_ptr<TransferEngine> m_engine;
    std::unique_ptr<ConnectionPage> m_page;
};

ZANDROVE_TEST(ConnectionPageTest)

#include "ConnectionPageTest.moc"
