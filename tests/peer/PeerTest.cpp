#include "PeerTest.h"

#include <QCoreApplication>
#include <QTest>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    int failures = 0;
    for (const auto &make :
         {makeFrameReaderTest, makeCableModeHelperTest, makeDiscoveryTest, makeConnectionTest})
        failures += QTest::qExec(make().get(), app.arguments());
    return failures;
}
