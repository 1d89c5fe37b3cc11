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
#include <QTest>
#include <QTreeWidget>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;
using namespace Zandrove;

namespace {

QImage pictureOf(QWidget &widget)
{
    QImage picture(widget.size(), QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    widget.render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
    return picture;
}

void hover(QWidget &widget)
{
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QCoreApplication::sendEvent(&widget, &enter);
}

using Make = std::function<QWidget *()>;

} // namespace

/// What the drawn widgets paint, at a few telling points.
class DrawingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cardsShowTheirState_data();
    void cardsShowTheirState();
    void checkRowShowsItsState_data();
    void checkRowShowsItsState();
    void selectingMovesNothing_data();
    void selectingMovesNothing();
    void ringFillsClockwiseFromTheTop_data();
    void ringFillsClockwiseFromTheTop();
    void dotsShowTheStep_data();
    void dotsShowTheStep();
    void progressBarIsPlacedByHand_data();
    void progressBarIsPlacedByHand();
    void radarTurnsAndPulses();
    void radarGoesOnAsItIs();
};

void DrawingTest::cardsShowTheirState_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<bool>("selected");
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<QString>("fill");
    QTest::addColumn<QString>("border");

    const Make mode = [] { return new ModeCard; };
    const Make oldPc = [] { return new RoleCard(OldPC); };
    const Make newPc = [] { return new RoleCard(NewPC); };
    const Make peer = [] { return new PCListItem; };
    QTest::newRow("mode") << mode << false << false << u"#ffffff"_s << u"#e5e7eb"_s;
    QTest::newRow("mode, hovered") << mode << false << true << u"#fafafa"_s << u"#d1d5db"_s;
    QTest::newRow("mode, selected and hovered") << mode << true << true << u"#eff6ff"_s << u"#3b82f6"_s;
    QTest::newRow("old PC, selected") << oldPc << true << false << u"#fff7ed"_s << u"#f97316"_s;
    QTest::newRow("new PC, selected") << newPc << true << true << u"#ecfdf5"_s << u"#10b981"_s;
    QTest::newRow("new PC, hovered") << newPc << false << true << u"#fafafa"_s << u"#d1d5db"_s;
    QTest::newRow("peer") << peer << false << false << u"#ffffff"_s << u"#00000000"_s;
    QTest::newRow("peer, hovered") << peer << false << true << u"#f9fafb"_s << u"#e5e7eb"_s;
    QTest::newRow("peer, selected") << peer << true << true << u"#eff6ff"_s << u"#3b82f6"_s;
}

void DrawingTest::cardsShowTheirState()
{
    QFETCH(Make, make);
    QFETCH(QString, fill);
    QFETCH(QString, border);
    QFETCH(bool, selected);
    QFETCH(bool, hovered);
    const std::unique_ptr<QWidget> card(make());
    card->resize(300, card->height());
    card->setProperty("selected", selected);
    if (hovered)
        hover(*card);
    const QImage picture = pictureOf(*card);
    const int middle = card->width() / 2;
    QCOMPARE(picture.pixelColor(middle, 4).name(), fill);
    QCOMPARE(picture.pixelColor(middle, 0), QColor(border));
    QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
}

void DrawingTest::checkRowShowsItsState_data()
{
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<QString>("fill");
    QTest::newRow("checked wins") << true << true << u"#dbeafe"_s;
    QTest::newRow("hovered") << false << true << u"#f3f4f6"_s;
    QTest::newRow("neither") << false << false << u"#ffffff"_s;
}

void DrawingTest::checkRowShowsItsState()
{
    QFETCH(bool, checked);
    QFETCH(bool, hovered);
    SettingListItem row;
    row.setChecked(checked);
    if (hovered)
        hover(row);
    QTEST(pictureOf(row).pixelColor(0, 0).name(), "fill");
}

void DrawingTest::selectingMovesNothing_data()
{
    QTest::addColumn<bool>("isFolder");
    QTest::newRow("place") << false;
    QTest::newRow("folder") << true;
}

void DrawingTest::selectingMovesNothing()
{
    QFETCH(bool, isFolder);
    FileBrowserWidget browser;
    browser.resize(800, 400);
    browser.show();
    auto *tree = browser.findChild<QTreeWidget *>();
    (new QTreeWidgetItem(tree, {u"Folder"_s}))->setCheckState(0, Qt::Unchecked);
    QAbstractItemView *view =
        isFolder ? tree : static_cast<QAbstractItemView *>(browser.findChild<QListWidget *>());
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

void DrawingTest::ringFillsClockwiseFromTheTop_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("shown");
    QTest::addColumn<int>("quarters"); // of the ring, whose middles are filled
    QTest::newRow("below") << -5 << 0 << 0;
    QTest::newRow("none") << 0 << 0 << 0;
    QTest::newRow("a quarter") << 25 << 25 << 1;
    QTest::newRow("three quarters") << 75 << 75 << 3;
    QTest::newRow("beyond") << 150 << 100 << 4;
}

void DrawingTest::ringFillsClockwiseFromTheTop()
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

void DrawingTest::dotsShowTheStep_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("completed");
    QTest::addColumn<QStringList>("colours"); // on the line of the circles
    const QString grey = u"#d1d5db"_s, green = u"#22c55e"_s, pill = u"#000000"_s;
    QTest::newRow("first") << 0 << -1 << QStringList{pill, grey, grey};
    QTest::newRow("last") << 2 << 1 << QStringList{green, green, pill};
    QTest::newRow("none done") << 1 << -1 << QStringList{grey, pill, grey};
}

void DrawingTest::dotsShowTheStep()
{
    QFETCH(int, current);
    QFETCH(int, completed);
    QFETCH(QStringList, colours);
    ProgressDots dots(3);
    QCOMPARE(dots.minimumWidth(), 52);
    dots.resize(48, 16); // as wide as the dots and their gaps
    dots.setCurrent(current);
    dots.setCompleted(completed);
    const QImage picture = pictureOf(dots);
    int x = 0;
    for (int dot = 0; dot < 3; ++dot) {
        const int width = dot == current ? 16 : 8;
        QCOMPARE(picture.pixelColor(x + width / 2, 9).name(), colours[dot]);
        if (dot == current)
            QCOMPARE(picture.pixelColor(x + width / 2, 3).name(), u"#3b82f6"_s);
        x += width + 8;
    }
}

void DrawingTest::progressBarIsPlacedByHand_data()
{
    QTest::addColumn<int>("percent");
    QTest::addColumn<int>("width"); // of 333 pixels
    QTest::newRow("rounded down") << 50 << 166;
    QTest::newRow("full") << 100 << 333;
    QTest::newRow("wraps around") << 26'000'000 << 680'654;
}

void DrawingTest::progressBarIsPlacedByHand()
{
    QFETCH(int, percent);
    ProgressCard card;
    auto *track = card.findChild<QWidget *>(u"barTrack"_s);
    auto *fill = card.findChild<QWidget *>(u"barFill"_s);
    track->resize(333, 8);
    card.setProgress(percent);
    QTEST(fill->geometry().width(), "width");
    QCOMPARE(fill->geometry().topLeft(), QPoint(0, 0));
    track->resize(100, 8);
    QTEST(fill->geometry().width(), "width");
}

void DrawingTest::radarTurnsAndPulses()
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

void DrawingTest::radarGoesOnAsItIs()
{
    RadarWidget radar;
    QVERIFY(!radar.isRunning());
    radar.start();
    QTRY_VERIFY(radar.sweepAngle() > 5.0);
    radar.start();
    QVERIFY(radar.isRunning() && radar.sweepAngle() > 5.0);
    radar.show();
    radar.hide();
    QCOMPARE(radar.findChild<QPropertyAnimation *>()->state(), QAbstractAnimation::Paused);
    radar.show();
    QCOMPARE(radar.findChild<QPropertyAnimation *>()->state(), QAbstractAnimation::Running);
    radar.stop();
    QVERIFY(!radar.isRunning());
}

QObject *makeDrawingTest()
{
    return new DrawingTest;
}

#include "DrawingTest.moc"
