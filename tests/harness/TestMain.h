#pragma once

#include "platform/Terminal.h"

#include <QCoreApplication>
#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>

namespace Zandrove {

/// Declares the columns of a test's table, in their order, and returns what adds a row:
///   const auto row = addColumns<int, QString>("seconds", "text");
///   row("a minute", 60, u"1 min"_s);
template <typename... Types, typename... Names>
auto addColumns(Names... names)
{
    (QTest::addColumn<Types>(names), ...);
    return [](const char *row, const Types &...values) { (QTest::newRow(row) << ... << values); };
}

} // namespace Zandrove

/// What the test programs share: their main function, which a program without one of its own gets, and the
/// test classes that it runs.
namespace Zandrove::TestMain {

using Makers = QList<std::function<std::unique_ptr<QObject>()>>;

/// What makes the test objects of this program; ZANDROVE_TEST adds to it.
inline Makers &makers()
{
    static Makers all;
    return all;
}

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

/// Runs the test objects one after the other; one alone, with QtTest's own arguments after it, when its class
/// name is the first argument. Returns the number of failures.
[[nodiscard]] inline int runTests()
{
    // Else the log goes to the debugger on Windows.
    qputenv("QT_ASSUME_STDERR_HAS_CONSOLE", "1");
    QStringList arguments = QCoreApplication::arguments();
    const QString only = arguments.value(1).endsWith(QLatin1String("Test")) ? arguments.takeAt(1) : QString();
    int failures = 0;
    for (const auto &maker : makers()) {
        const std::unique_ptr<QObject> test = maker();
        if (only.isEmpty() || only == QLatin1String(test->metaObject()->className()))
            failures += QTest::qExec(test.get(), arguments);
    }
    return failures;
}

} // namespace Zandrove::TestMain

/// Has this program run a test class.
#define ZANDROVE_TEST(TestClass)                                                                             \
    [[maybe_unused]] static const auto &added##TestClass =                                                   \
        Zandrove::TestMain::makers().emplaceBack([] { return std::make_unique<TestClass>(); });

// What nearly every test speaks of.
using namespace Qt::StringLiterals;
using namespace Zandrove;
