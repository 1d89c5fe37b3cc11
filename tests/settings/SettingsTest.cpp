#include "SettingsTests.h"
#include "SimulatedPc.h"
#include "TestMain.h"

#include <QCoreApplication>

namespace {

int runAll(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    // The others look at what the stand-ins of a made-up PC were called with.
    if (!Zandrove::SimulatedPc::isMadeUp())
        return Zandrove::TestMain::runTests(makeSettingPackageTest);
    return Zandrove::TestMain::runTests(makeSettingPackageTest, makeSettingExportTest, makeSettingApplyTest);
}

} // namespace

int main(int argc, char *argv[])
{
    return Zandrove::Platform::endProcess(runAll(argc, argv));
}
