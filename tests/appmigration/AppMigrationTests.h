#pragma once

#include "SimulatedPc.h"
#include "TestFiles.h"
#include "TestMain.h"

/// A test that has a PC of its own for each of its functions.
class PcTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase()
    {
        if (!Zandrove::SimulatedPc::isMadeUp() && !qEnvironmentVariableIsSet("ZANDROVE_SCRATCH_PC"))
            QSKIP("Needs a PC that ZANDROVE_SCRATCH_PC gives away for tests");
    }
    void init() { m_pc = std::make_unique<Zandrove::SimulatedPc>(); }
    void cleanup() { m_pc.reset(); }

protected:
    /// Expects a line of the log: the test fails where it does not come.
    static void expectLog(const QString &line) { QTest::ignoreMessage(QtDebugMsg, qPrintable(line)); }

    /// A key that tests may fill.
    const QString Key = QStringLiteral("HKEY_CURRENT_USER\\Software\\ZandroveTest");
    std::unique_ptr<Zandrove::SimulatedPc> m_pc;
};
