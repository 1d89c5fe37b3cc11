#pragma once

#include "platform/Terminal.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

/// What the main functions of the test programs share.
namespace Zandrove::TestMain {

/// A home of the test program's own for as long as it lives: the standard folders and the temporary folder of
/// whoever runs the tests stay untouched. Make it before the application object.
class OwnHome
{
public:
    OwnHome()
    {
        const auto variable = [this](const char *name, const QString &folder) {
            QDir(m_folder.path()).mkpath(folder);
            qputenv(name, m_folder.filePath(folder).toLocal8Bit());
        };
        variable("HOME", QStringLiteral("."));
        variable("XDG_CONFIG_HOME", QStringLiteral("config"));
        for (const char *name : {"TMPDIR", "TMP", "TEMP"})
            variable(name, QStringLiteral("tmp"));
    }

private:
    QTemporaryDir m_folder;
};

/// Runs the test objects that `makers` make, one after the other; one alone, with QtTest's own arguments
/// after it, when its class name is the first argument. Returns the number of failures.
template <typename... Makers>
[[nodiscard]] int runTests(Makers... makers)
{
    // Else the log goes to the debugger on Windows.
    qputenv("QT_ASSUME_STDERR_HAS_CONSOLE", "1");
    QStringList arguments = QCoreApplication::arguments();
    const QString only = arguments.value(1).endsWith(QLatin1String("Test")) ? arguments.takeAt(1) : QString();
    int failures = 0;
    const auto run = [&](const std::unique_ptr<QObject> &test) {
        if (only.isEmpty() || only == QLatin1String(test->metaObject()->className()))
            failures += QTest::qExec(test.get(), arguments);
    };
    (run(std::unique_ptr<QObject>(makers())), ...);
    return failures;
}

} // namespace Zandrove::TestMain

/// The main function of a program with one test class.
#define ZANDROVE_TEST_MAIN(TestClass)                                                                        \
    int main(int argc, char *argv[])                                                                         \
    {                                                                                                        \
        const QCoreApplication app(argc, argv);                                                              \
        return Zandrove::Platform::endProcess(                                                               \
            Zandrove::TestMain::runTests([] { return std::make_unique<TestClass>(); }));                     \
    }
