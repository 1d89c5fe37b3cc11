#include "cli/DiagnoseSession.h"

#include "cli/ExitCode.h"

namespace Zandrove::Cli {

DiagnoseSession::DiagnoseSession(const Options &options, Output &output, QObject *parent)
    : QObject(parent)
    , m_options(options)
    , m_output(output)
{
    connect(&m_diagnosis, &Diagnosis::finding, this,
            [this](const Finding &finding) { m_output.finding(finding); });
    connect(&m_diagnosis, &Diagnosis::finished, this, [this](int problems) {
        m_output.diagnosed(problems);
        Q_EMIT finished(problems == 0 ? EverythingMoved : SomethingMissing);
    });
}

void DiagnoseSession::start()
{
    DiagnosisOptions what{.role = m_options.role, .target = m_options.target};
    if (m_options.seconds)
        what.hearing = *m_options.seconds;
    m_diagnosis.start(what);
}

void DiagnoseSession::interrupt()
{
    m_diagnosis.cancel();
    Q_EMIT finished(Cancelled);
}

} // namespace Zandrove::Cli
