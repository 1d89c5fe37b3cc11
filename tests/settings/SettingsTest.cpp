#include "SettingsTests.h"
#include "TestMain.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    using namespace Zandrove;
    const QCoreApplication app(argc, argv);
    return Platform::endProcess(TestMain::runTests(makeSettingPackageTest, makeSettingMigratorTest));
}
