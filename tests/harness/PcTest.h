#pragma once

#include "SimulatedPc.h"
#include "TestFiles.h"
#include "TestMain.h"

/// A test that has a PC of its own for each of its functions.
class PcTest : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init() { m_pc = std::make_unique<SimulatedPc>(); }
    void cleanup() { m_pc.reset(); }

protected:
    /// Expects a line of the log: the test fails where it does not come.
    static void expectLog(const QString &line) { QTest::ignoreMessage(QtDebugMsg, qPrintable(line)); }

    /// A key that tests may fill.
    const QString Key = u"HKEY_CURRENT_USER\\Software\\ZandroveTest"_s;
    std::unique_ptr<SimulatedPc> m_pc;
};

/// The same for what goes beyond the scratch folder and that key: not on a PC that somebody needs.
class ScratchPcTest : public PcTest
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase()
    {
        if (!SimulatedPc::isMadeUp() && !qEnvironmentVariableIsSet("ZANDROVE_SCRATCH_PC"))
            QSKIP("Needs a PC that ZANDROVE_SCRATCH_PC gives away for tests");
    }
};
