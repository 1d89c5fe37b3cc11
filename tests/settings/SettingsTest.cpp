#include "SettingsTests.h"
#include "TestMain.h"

#include <QCoreApplication>

namespace {

int runAll(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    return Zandrove::TestMain::runTests(makeSettingPackageTest, makeSettingExportTest, makeSettingApplyTest);
}

} // namespace

int main(int argc, char *argv[])
{
    return Zandrove::Platform::endProcess(runAll(argc, argv));
}
