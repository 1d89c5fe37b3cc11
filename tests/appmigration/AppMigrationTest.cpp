#include "AppMigrationTests.h"

#include "TestMain.h"

namespace {

int runAll(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    return Zandrove::TestMain::runTests(makeRegistryFileTest, makeAppAnalyzerTest, makeAppInstallerTest,
                                        makeAppMigratorTest);
}

} // namespace

int main(int argc, char *argv[])
{
    return Zandrove::Platform::endProcess(runAll(argc, argv));
}
