#include "UiTests.h"

#include "core/common/Records.h"
#include "ui/widgets/CircleProgress.h"
#include "ui/widgets/FileBrowserWidget.h"
#include "ui/widgets/ModeCard.h"
#include "ui/widgets/PCListItem.h"
#include "ui/widgets/ProgressCard.h"
#include "ui/widgets/ProgressDots.h"
#include "ui/widgets/RadarWidget.h"
#include "ui/widgets/RoleCard.h"
#include "ui/widgets/SettingListItem.h"

#include <QEnterEvent>
#include <QListWidget>
#include <QPropertyAnimation>
#include <QTreeWidget>

#include <memory>

using namespace Qt::StringLiterals;
using namespace Zandrove;

using Make = std::function<QWidget *()>;

/// What the drawn widgets paint, at a few telling points.
class DrawingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cardsAndRowsShowTheirState_data()
    {
        columns<Make, bool, bool, QString, QString>("make", "selected", "hovered", "fill", "border");
        const Make mode = [] { return new ModeCard; };
        const Make oldPc = [] { return new RoleCard(OldPC); };
        const Make newPc = [] { return new RoleCard(NewPC); };
        const Make peer = [] { return new PCListItem; };
        const Make row = [] { return new SettingListItem; };
        QTest::newRow("mode") << mode << false << false << u"#ffffff"_s << u"#e5e7eb"_s;
        QTest::newRow("mode, hovered") << mode << false << true << u"#fafafa"_s << u"#d1d5db"_s;
        QTest::newRow("mode, both") << mode << true << true << u"#eff6ff"_s << u"#3b82f6"_s;
        QTest::newRow("old PC, selected") << oldPc << true << false << u"#fff7ed"_s << u"#f97316"_s;
        QTest::newRow("new PC, both") << newPc << true << true << u"#ecfdf5"_s << u"#10b981"_s;
        QTest::newRow("new PC, hovered") << newPc << false << true << u"#fafafa"_s << u"#d1d5db"_s;
        QTest::newRow("peer") << peer << false << false << u"#ffffff"_s << u"#00000000"_s;
        QTest::newRow("peer, hovered") << peer << false << true << u"#f9fafb"_s << u"#e5e7eb"_s;
        QTest::newRow("peer, both") << peer << true << true << u"#eff6ff"_s << u"#3b82f6"_s;
        QTest::newRow("row") << row << false << false << u"#ffffff"_s << u"#ffffff"_s;
        QTest::newRow("row, hovered") << row << false << true << u"#f3f4f6"_s << u"#f3f4f6"_s;
        QTest::newRow("row, both") << row << true << true << u"#dbeafe"_s << u"#dbeafe"_s;
    }

    void cardsAndRowsShowTheirState()
    {
        QFETCH(Make, make);
        QFETCH(QString, border);
        QFETCH(bool, selected);
        QFETCH(bool, hovered);
        const std::unique_ptr<QWidget> card(make());
        card->resize(300, card->height());
        auto *row = qobject_cast<CheckRow *>(card.get());
        if (row)
            row->setChecked(selected);
        else
            card->setProperty("selected", selected);
        QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
        if (hovered)
            QCoreApplication::sendEvent(card.get(), &enter);
        const QImage picture = pictureOf(*card);
        const int middle = card->width() / 2;
        QTEST(picture.pixelColor(middle, 4).name(), "fill");
        QCOMPARE(picture.pixelColor(middle, 0), QColor(border));
        QCOMPARE(picture.pixelColor(0, 0).alpha(), row ? 255 : 0);
    }

    void selectingMovesNothing()
    {
        FileBrowserWidget browser;
        browser.resize(800, 400);
        browser.show();
        auto *tree = browser.findChild<QTreeWidget *>();
        (new QTreeWidgetItem(tree, {u"Folder"_s}))->setCheckState(0, Qt::Unchecked);
        for (QAbstractItemView *view :
             std::initializer_list<QAbstractItemView *>{tree, browser.findChild<QListWidget *>()}) {
            const QModelIndex last = view->model()->index(view->model()->rowCount() - 1, 0);
            const auto contentStart = [view, last] {
                const QImage picture = view->viewport()->grab(view->visualRect(last)).toImage();
                const int middle = picture.height() / 2;
                int x = 0;
                while (x < picture.width() && picture.pixel(x, middle) == picture.pixel(0, middle))
                    ++x;
                return x;
            };
            const int before = contentStart();
            view->setCurrentIndex(last);
            QCOMPARE(contentStart(), before);
        }
    }

    void ringFillsClockwiseFromTheTop_data()
    {
        columns<int, int, int>("value", "shown", "quarters"); // of the ring, whose middles are filled
        QTest::newRow("below") << -5 << 0 << 0;
        QTest::newRow("a quarter") << 25 << 25 << 1;
        QTest::newRow("three quarters") << 75 << 75 << 3;
        QTest::newRow("beyond") << 150 << 100 << 4;
    }

    void ringFillsClockwiseFromTheTop()
    {
        QFETCH(int, value);
        QFETCH(int, quarters);
        CircleProgress ring;
        ring.setColors(Qt::red, Qt::green);
        ring.setSize(160);
        ring.setValue(value);
        QTEST(ring.value(), "shown");
        const QImage picture = pictureOf(ring);
        const int near = 26; // the ring's middle, 76 from the centre, at 45 degrees
        const int far = 160 - near;
        const QList<QPoint> middles = {{far, near}, {far, far}, {near, far}, {near, near}};
        for (int quarter = 0; quarter < 4; ++quarter)
            QCOMPARE(picture.pixelColor(middles[quarter]), QColor(quarter < quarters ? Qt::green : Qt::red));
    }

    void dotsShowTheStep_data()
    {
        columns<int, int, QStringList>("current", "completed", "colours"); // on the line of the circles
        const QString grey = u"#d1d5db"_s, green = u"#22c55e"_s, pill = u"#000000"_s;
        QTest::newRow("first") << 0 << -1 << QStringList{pill, grey, grey};
        QTest::newRow("last") << 2 << 1 << QStringList{green, green, pill};
        QTest::newRow("none done") << 1 << -1 << QStringList{grey, pill, grey};
    }

    void dotsShowTheStep()
    {
        QFETCH(int, current);
        QFETCH(int, completed);
        ProgressDots dots(3);
        dots.resize(48, 16); // as wide as the dots and their gaps
        dots.setCurrent(current);
        dots.setCompleted(completed);
        const QImage picture = pictureOf(dots);
        QStringList colours;
        for (int dot = 0; dot < 3; ++dot) {
            const int middle = dot * 16 + (dot < current ? 4 : dot == current ? 8 : 12);
            colours.append(picture.pixelColor(middle, 9).name());
            QCOMPARE(picture.pixelColor(middle, 3) == QColor(0x3b, 0x82, 0xf6), dot == current);
        }
        QTEST(colours, "colours");
    }

    void progressBarIsPlacedByHand_data()
    {
        columns<int, int>("percent", "width"); // of 333 pixels
        QTest::newRow("rounded down") << 50 << 166;
        QTest::newRow("wraps around") << 26'000'000 << 680'654;
    }

    void progressBarIsPlacedByHand()
    {
        QFETCH(int, percent);
        QFETCH(int, width);
        ProgressCard card;
        auto *track = card.findChild<QWidget *>(u"barTrack"_s);
        track->resize(333, 8);
        card.setProgress(percent);
        track->resize(100, 8);
        QCOMPARE(card.findChild<QWidget *>(u"barFill"_s)->geometry(), QRect(0, 0, width, 8));
    }

    void radarTurnsAndPulses()
    {
        RadarWidget radar;
        const auto at = [&radar](double angle, int x, int y) {
            radar.setSweepAngle(angle);
            return pictureOf(radar).pixelColor(x, y);
        };
        QCOMPARE(at(0, 100, 90), QColor(Qt::white)); // the monitor's upper edge
        QCOMPARE(at(0, 1, 100).alpha(), 0);
        // The beam is at the top, then at the right.
        QVERIFY(at(0, 100, 20).red() < 120 && at(90, 100, 20).red() > 180);
        QVERIFY(at(90, 180, 100).red() < 120 && at(0, 180, 100).red() > 120);
        // Just outside the hub, away from all lines: the pulse has passed, has wrapped, and is on its way.
        QCOMPARE(at(120, 78, 121), at(240, 78, 121));
        QVERIFY(at(180, 78, 121) != at(120, 78, 121));
    }

    void radarGoesOnAsItIs()
    {
        RadarWidget radar;
        radar.start();
        QTRY_VERIFY(radar.sweepAngle() > 5.0);
        radar.start();
        QVERIFY(radar.isRunning() && radar.sweepAngle() > 5.0);
        const auto *animation = radar.findChild<QPropertyAnimation *>();
        radar.show();
        radar.hide();
        QCOMPARE(animation->state(), QAbstractAnimation::Paused);
        radar.show();
        QCOMPARE(animation->state(), QAbstractAnimation::Running);
        radar.stop();
        QVERIFY(!radar.isRunning());
    }
};

QObject *makeDrawingTest()
{
    return new DrawingTest;
}

#include "DrawingTest.moc"
