#include "PlatformTests.h"

#include <QCoreApplication>
#include <QTest>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    int failures = 0;
    for (QObject *test :
         {makeFilesTest(), makeProgramTest(), makeRegistryTest(), makeTerminalTest(), makeSystemTest()}) {
        failures += QTest::qExec(test, argc, argv);
        delete test;
    }
    return failures;
}
