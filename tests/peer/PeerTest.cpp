#include "PeerTest.h"

#include <QCoreApplication>
#include <QTest>

/// Runs every test class; one alone, with QtTest's own arguments after it, when its name is the first
/// argument.
int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    const QString only = arguments.value(1).endsWith(QLatin1String("Test")) ? arguments.takeAt(1) : QString();
    int failures = 0;
    for (const auto &make :
         {makeFrameReaderTest, makeCableModeHelperTest, makeDiscoveryTest, makeConnectionTest}) {
        const auto test = make();
        if (only.isEmpty() || only == QLatin1String(test->metaObject()->className()))
            failures += QTest::qExec(test.get(), arguments);
    }
    return failures;
}
