#include "UiTests.h"

#include "TestMain.h"

#include <QApplication>

namespace {

int runAll(int argc, char *argv[])
{
    const Zandrove::TestMain::OwnHome home;
    const QApplication app(argc, argv);
    return Zandrove::TestMain::runTests(makeLinkManagerTest, makeWidgetsTest, makeConnectionPageTest,
                                        makeSelectionPagesTest, makeRunPagesTest, makeMainWindowTest);
}

} // namespace

int main(int argc, char *argv[])
{
    return Zandrove::Platform::endProcess(runAll(argc, argv));
}
