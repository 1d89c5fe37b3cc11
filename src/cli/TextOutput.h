#pragma once

#include "cli/Output.h"

#include <QCoreApplication>

namespace Zandrove::Cli {

/// Readable lines for a person and, where standard output is a terminal, one live line with the progress that
/// is redrawn in place. Failures of single files, questions and errors go to standard error.
class TextOutput final : public Output
{
    Q_DECLARE_TR_FUNCTIONS(Zandrove::Cli::TextOutput)

public:
    /// `role` is this copy's `Role`; `listsPeers` whether peers that come and go are what was asked for.
    TextOutput(Streams streams, int role, bool listsPeers);
    ~TextOutput() override;

    void code(const QString &code) override;
    void peer(const PCInfo &pc) override;
    void peerLost(const QString &id, quint64 key) override;
    void found(const PCInfo &pc) override;
    void waiting(const QString &name) override;
    void request(const ConnectionQuestion &question, bool asks) override;
    void refused(const QString &name, const QString &why) override;
    void connected(const PCInfo &pc) override;
    void disconnected() override;
    void progress(const TransferProgress &progress) override;
    void file(const QString &name, FileStatus status, const QString &reason) override;
    void paused(Side by) override;
    void resumed(Side by) override;
    void cancelled(Side by) override;
    void installing(const QString &pcName, const QString &app, int percent) override;
    void report(const RunSummary &summary) override;
    void scanning(int percent, const QString &item, int apps) override;
    void inventory(const ScanResult &result) override;
    void finding(const Finding &finding) override;
    void diagnosed(int problems) override;
    void warning(const QString &message) override;
    void error(const QString &message) override;

private:
    void line(const QString &text);
    void errorText(const QByteArray &bytes);
    void showLiveLine(const QString &text);
    void clearLiveLine();
    void missingFiles(const RunSummary &summary);
    void files(const QList<ItemResult> &results, int all, const RunSummary &summary);
    void savedFolders(const RunSummary &summary);
    void items(const QString &head, const QString &done, const QList<ItemResult> &results, ItemKind kind);
    void section(const QString &title, const QStringList &rows);

    Streams m_streams;
    int m_role;
    bool m_listsPeers;
    bool m_liveLineShown = false;
    QString m_peerName;
    QString m_installing; ///< the application that was named last
    int m_failures = 0;   ///< that were told of the run
};

} // namespace Zandrove::Cli
