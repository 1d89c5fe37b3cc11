#include "UiTests.h"

#include "TestMain.h"

#include <QApplication>

namespace Zandrove {

QImage pictureOf(QWidget &widget)
{
    QImage picture(widget.size(), QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    widget.render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
    return picture;
}

int countLogLines(QLatin1StringView start, const std::function<void()> &action)
{
    static QLatin1StringView wanted;
    static int count;
    wanted = start;
    count = 0;
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { count += text.startsWith(wanted); });
    action();
    qInstallMessageHandler(before);
    return count;
}

} // namespace Zandrove

namespace {

int runAll(int argc, char *argv[])
{
    const Zandrove::TestMain::OwnHome home;
    const QApplication app(argc, argv);
    return Zandrove::TestMain::runTests(makeLinkManagerTest, makeDrawingTest, makeWidgetsTest, makeChromeTest,
                                        makeFileBrowserTest, makeConnectionPageTest, makeSelectionPagesTest,
                                        makeRunPagesTest, makeMainWindowTest);
}

} // namespace

int main(int argc, char *argv[])
{
    return Zandrove::Platform::endProcess(runAll(argc, argv));
}
