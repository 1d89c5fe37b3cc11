#include "InventoryTests.h"

#include <QCoreApplication>
#include <QTest>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    int failures = 0;
    for (QObject *test : {makeAppRulesTest(), makeSearchTest(), makeScannersTest(), makeAppScannerTest()}) {
        failures += QTest::qExec(test, argc, argv);
        delete test;
    }
    return failures;
}
