#include "PeerTest.h"

#include "TestMain.h"

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    return Zandrove::Platform::endProcess(Zandrove::TestMain::runTests(
        makeFrameReaderTest, makeCableModeHelperTest, makeDiscoveryTest, makeConnectionTest));
}
