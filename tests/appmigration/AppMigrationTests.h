#pragma once

#include "SimulatedPc.h"

#include <QFile>
#include <QTest>

#include <memory>

QObject *makeAppMigratorTest();
QObject *makePackageTest();
QObject *makeAppAnalyzerTest();
QObject *makeAppInstallerTest();
QObject *makeRegistryFileTest();

/// A test that has a PC of its own for each of its functions.
class PcTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init() { m_pc = std::make_unique<Zandrove::SimulatedPc>(); }
    void cleanup() { m_pc.reset(); }

protected:
    /// Whether everything on the PC may be touched.
    static bool isScratchPc()
    {
        return Zandrove::SimulatedPc::isMadeUp() || qEnvironmentVariableIsSet("ZANDROVE_SCRATCH_PC");
    }

    static QByteArray contentOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("unreadable");
    }

    /// Expects a line of the log: the test fails where it does not come.
    static void expectLog(const QString &line) { QTest::ignoreMessage(QtDebugMsg, qPrintable(line)); }

    std::unique_ptr<Zandrove::SimulatedPc> m_pc;
};
