#include "PipelineTests.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

/// Runs the folder's test objects in a home of their own: the standard folders of whoever runs the tests stay
/// untouched.
int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toLocal8Bit());
    for (const char *name : {"TMPDIR", "TMP", "TEMP"})
        qputenv(name, home.filePath(QStringLiteral("tmp")).toLocal8Bit());
    QDir(home.path()).mkpath(QStringLiteral("tmp"));

    QCoreApplication app(argc, argv);
    int failures = 0;
    for (QObject *test : {makePipelineRulesTest(), makeFileSenderTest(), makeFileReceiverTest(),
                          makeMigrationManagerTest()}) {
        failures += QTest::qExec(test, argc, argv);
        delete test;
    }
    return failures;
}
