#include "PlatformTests.h"

#include "TestMain.h"

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    return Zandrove::Platform::endProcess(Zandrove::TestMain::runTests(
        makeFilesTest, makeProgramTest, makeRegistryTest, makeTerminalTest, makeSystemTest));
}
