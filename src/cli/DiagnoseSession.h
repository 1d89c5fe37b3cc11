#pragma once

#include "cli/Options.h"
#include "cli/Output.h"
#include "diagnosis/Diagnosis.h"

#include <QObject>

namespace Zandrove::Cli {

/// Says what keeps this PC and others from finding each other. It has no engine, which would hold the ports
/// that are looked at, and announce a PC that lets nobody in.
class DiagnoseSession final : public QObject
{
    Q_OBJECT

public:
    DiagnoseSession(const Options &options, Output &output, QObject *parent = nullptr);

    void start();
    /// The user wants to stop: `finished` comes at once.
    void interrupt();

Q_SIGNALS:
    void finished(int exitCode);

private:
    const Options m_options;
    Output &m_output;
    Diagnosis m_diagnosis;
};

} // namespace Zandrove::Cli
